// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

/// What a typed text means for a column of the family file. Each throws Error, which names the column, for what the
/// column cannot hold. Stands on the schema.
namespace stemwright
{

/// A whole number between the limits; blanks around it do not count.
int ParseTypedNumber(const QString& column, const QString& typed, int lowest, int highest);

/// 0, 1, -1, yes, no, true or false.
bool ParseTypedYesNo(const QString& column, const QString& typed);

/// A text that a text column holds.
QString ParseTypedText(const QString& column, const QString& typed);

} // namespace stemwright
