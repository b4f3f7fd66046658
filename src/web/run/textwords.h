// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <string_view>
#include <vector>

/// Texts as the words that they are made of: runs of letters and digits of any script, without regard to letter case
/// and to the ways in which a character can be encoded. Nothing here fails. Stands on nothing.
namespace stemwright
{

/// A hash that goes on from a part of a text to the whole (Fowler-Noll-Vo 1a, 64 bits).
inline constexpr quint64 hashStart = 0xcbf29ce484222325;

constexpr quint64 HashedFurther(quint64 hash, quint64 unit)
{
    constexpr quint64 prime = 0x100000001b3;
    return (hash ^ unit) * prime;
}

/// The hash of a word, by its UTF-16 units.
quint64 HashOf(const QString& word);

/// The words of a text, folded.
QStringList Words(std::string_view utf8);

/// Whether a word is of a script that does not part words, so that it may be a whole sentence.
bool IsUnparted(const QString& word);

/// A word of a text.
struct TextWord {
    quint64 hash;
    /// How many commas, semicolons and line ends stand before it.
    std::size_t clause;
};

/// The words of a text; and those of scripts that do not part words in a row, with a blank where others stand between.
struct TextWords {
    std::vector<TextWord> words;
    QString unparted;

    static TextWords of(std::string_view utf8);
};

} // namespace stemwright
