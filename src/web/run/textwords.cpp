// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/textwords.h"

#include "base/text.h"

#include <algorithm>
#include <utility>

namespace stemwright
{

namespace
{

bool EndsClause(QChar character)
{
    return character == u',' || character == u';' || character == u'\n';
}

QString Decoded(std::string_view utf8)
{
    return QString::fromUtf8(utf8).normalized(QString::NormalizationForm_KC);
}

QStringList WordsOf(const QString& text)
{
    QStringList words;
    QString word;
    for (const QChar character : text + u' ') {
        if (character.isLetterOrNumber() || character.isMark() || character.isSurrogate()) {
            word += character;
        } else if (!word.isEmpty()) {
            words << word.toCaseFolded();
            word.clear();
        }
    }
    return words;
}

/// The words of a text that has ASCII characters only: what WordsOf() finds, without its detours.
std::vector<TextWord> AsciiWords(std::string_view text)
{
    std::vector<TextWord> words;
    std::size_t clause = 0;
    quint64 hash = hashStart;
    const auto end = [&] {
        if (hash != hashStart) {
            words.push_back({std::exchange(hash, hashStart), clause});
        }
    };
    for (const char character : text) {
        const bool upper = character >= 'A' && character <= 'Z';
        if (upper || (character >= 'a' && character <= 'z') || (character >= '0' && character <= '9')) {
            hash = HashedFurther(hash, static_cast<quint64>(upper ? character - 'A' + 'a' : character));
        } else {
            end();
            if (EndsClause(QLatin1Char(character))) {
                ++clause;
            }
        }
    }
    end();
    return words;
}

} // namespace

quint64 HashOf(const QString& word)
{
    quint64 hash = hashStart;
    for (const QChar character : word) {
        hash = HashedFurther(hash, character.unicode());
    }
    return hash;
}

QStringList Words(std::string_view utf8)
{
    return WordsOf(Decoded(utf8));
}

bool IsUnparted(const QString& word)
{
    const QList<uint> characters = word.toUcs4();
    return std::any_of(characters.begin(), characters.end(), [](uint character) {
        switch (QChar::script(character)) {
        case QChar::Script_Han:
        case QChar::Script_Hiragana:
        case QChar::Script_Katakana:
        case QChar::Script_Thai:
        case QChar::Script_Lao:
        case QChar::Script_Khmer:
        case QChar::Script_Myanmar:
            return true;
        default:
            return false;
        }
    });
}

TextWords TextWords::of(std::string_view utf8)
{
    if (IsAscii(utf8)) {
        return {AsciiWords(utf8), {}};
    }
    TextWords found;
    const QString text = Decoded(utf8);
    std::size_t clause = 0;
    for (qsizetype begin = 0; begin < text.size(); ++clause) {
        const auto end = std::find_if(text.begin() + begin, text.end(), EndsClause) - text.begin();
        for (const QString& word : WordsOf(text.mid(begin, end - begin))) {
            found.words.push_back({HashOf(word), clause});
            found.unparted += IsUnparted(word) ? word : QStringLiteral(" ");
        }
        begin = end + 1;
    }
    return found;
}

} // namespace stemwright
