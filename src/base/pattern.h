// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

/// The patterns of the family file's LIKE operator, for queries and for lists in memory alike. Nothing here fails.
namespace stemwright
{

/// A pattern, ready to be held against many texts. `*` stands for any characters, `?` for one, `#` for a digit, `[FM]`,
/// `[A-Z]`, `[!0-9]` for one character of a set or not of it. A pattern that holds `%` and neither begins nor ends with
/// `*` is of the other kind: there `%` stands for any characters, `_` for one, and `*`, `?` and `#` for themselves. A
/// bracket that is never closed stands for itself.
class Pattern
{
public:
    explicit Pattern(QStringView pattern);

    /// One form for texts that differ only in case or in how an accent is encoded.
    static QString folded(QStringView text);

    /// Whether the whole text fits, without regard to case.
    bool matches(QStringView text) const;
    /// The same for a text that is folded already, for lists that are searched again and again.
    bool matchesFolded(QStringView foldedText) const;

    /// What every text that fits begins with once it is folded: all that stands before the first special character.
    QStringView beginning() const { return QStringView(m_folded).left(m_beginning); }

    /// Whether every text with that beginning fits.
    bool endsFreely() const { return m_endsFreely; }

private:
    QString m_folded;
    qsizetype m_beginning = 0;
    bool m_endsFreely = false;
};

/// The same for a single text.
bool MatchesPattern(QStringView text, QStringView pattern);

} // namespace stemwright
