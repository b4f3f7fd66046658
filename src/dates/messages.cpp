// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "dates/messages.h"

namespace stemwright::datemessages
{

namespace
{

Message Warning(const QString& text)
{
    return {{}, text, Icon::Warning};
}

const QString correctIt = QStringLiteral("\n\nPlease press OK and correct the date.");

} // namespace

Message BadLastCharacter()
{
    return {{}, QStringLiteral("Internal Error: Bad last character in the date string"), Icon::Critical};
}

Message NoSuchDay(const QString& date)
{
    return Warning(QStringLiteral("Date \"%1\" is invalid. ").arg(date) + correctIt);
}

Message DayWithoutMonth(const QString& date)
{
    return Warning(QStringLiteral("Date \"%1\" is invalid. \nYou can't supply the day without the month. ").arg(date) +
                   correctIt);
}

Message MonthWithoutYear(const QString& date)
{
    return Warning(
        QStringLiteral("Date \"%1\" is invalid.  \nYou can't supply the month without the year. ").arg(date) +
        correctIt);
}

Message YearMissing(const QString& date)
{
    return Warning(QStringLiteral("Date \"%1\" is invalid.  \nYou must provide at least the year value. ").arg(date) +
                   correctIt);
}

Message YearOutOfRange(int year, int minimum, int maximum)
{
    return Warning(QStringLiteral("Year \"%1\" is invalid. The year must be between %2 and %3.")
                       .arg(QString::number(year), QString::number(minimum), QString::number(maximum)) +
                   correctIt);
}

Message CannotReadDate(const QString& text)
{
    return Warning(QStringLiteral("\"%1\" is not a date that Stemwright can read. Please write it as in \"Abt. 12 Mar "
                                  "1950\", \"June 1931\" or \"Bef. 1900\".")
                       .arg(text));
}

} // namespace stemwright::datemessages
