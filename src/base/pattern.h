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

    /// Whether the whole text fits, without regard to case.
    bool matches(QStringView text) const;

private:
    QString m_folded;
};

/// The same for a single text.
bool MatchesPattern(QStringView text, QStringView pattern);

} // namespace stemwright
