// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

/// The texts about dates, word for word.
namespace stemwright::datemessages
{

Message BadLastCharacter();

/// `date` is the day, month and year as typed, joined by spaces.
Message NoSuchDay(const QString& date);

/// In these, `date` is the qualifier, day, month and year as typed, joined by spaces.
Message DayWithoutMonth(const QString& date);
Message MonthWithoutYear(const QString& date);
Message YearMissing(const QString& date);

Message YearOutOfRange(int year, int minimum, int maximum);

/// A typed date of which nothing can be made.
Message CannotReadDate(const QString& text);

} // namespace stemwright::datemessages
