// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace stemwright::jet
{

/// A date of the query dialect as the family file stores it, for example "2026-03-12T14:05:00". Taken are
/// month/day/year (a first number above 12 is the day) and ISO dates, each with a time of 24 or 12 hours or without.
/// Throws Error for anything else.
QString IsoDate(const QString& literal);

} // namespace stemwright::jet
