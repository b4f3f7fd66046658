// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "dates/datepicker.h"

#include "dates/messages.h"

#include <QtCore/QDate>
#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>

namespace stemwright
{

namespace
{

/// Whether the month has that day. Without a year (0) February has 29 days; the missing year is found by a later check.
bool DayExists(int day, int month, int year)
{
    if (day == 0 || month == 0) {
        return true;
    }
    const int leapYear = 2000;
    const int ordinaryYear = 2001;
    const bool leap = year % 4 == 0 && (year % 400 == 0 || year % 100 != 0);
    return day <= QDate(leap ? leapYear : ordinaryYear, month, 1).daysInMonth();
}

/// The qualifier by its first three letters; exact for an empty text.
DateQualifier QualifierOfText(QStringView text)
{
    for (const auto qualifier : {DateQualifier::About, DateQualifier::Before, DateQualifier::After}) {
        if (text.compare(QualifierText(qualifier).chopped(1), Qt::CaseInsensitive) == 0) {
            return qualifier;
        }
    }
    return DateQualifier::Exact;
}

/// The number of a month by at least its first three letters, 0 for an empty text.
std::optional<int> MonthOfText(const QString& text)
{
    if (text.isEmpty()) {
        return 0;
    }
    for (int month = 1; month <= 12; ++month) {
        const QString name = QLocale::c().monthName(month);
        if (text.size() >= 3 && name.startsWith(text, Qt::CaseInsensitive)) {
            return month;
        }
    }
    return std::nullopt;
}

/// The fields as a typed text fills them; no value when it cannot be read.
std::optional<DatePicker> PickerOfText(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral(
            "^(?:(abt|bef|aft)\\.?(?:\\s+|$))?(?:(\\d{1,2})(?:\\s+|$))?(?:([a-z]+)\\.?(?:\\s+|$))?(-?\\d+)?$"),
        QRegularExpression::CaseInsensitiveOption);
    const auto match = form.match(text.simplified());
    const auto month = MonthOfText(match.captured(3));
    if (!match.hasMatch() || !month) {
        return std::nullopt;
    }
    DatePicker picker;
    picker.qualifier = QualifierOfText(match.capturedView(1));
    picker.day = match.capturedView(2).toInt();
    picker.month = *month;
    picker.year = match.captured(4);
    return picker;
}

} // namespace

void DatePicker::ShowEncodedDate(const QString& encoded, Talk& talk)
{
    if (encoded.isNull() || encoded == noEncodedDate) {
        *this = DatePicker();
        return;
    }
    if (const auto date = DecodeDate(encoded, talk)) {
        qualifier = date->qualifier;
        day = date->day;
        month = date->month;
        year = QString::number(date->year);
    }
}

QString DatePicker::typedDate() const
{
    const QString dayText = day == 0 ? QString() : QString::number(day);
    return QStringLiteral("%1 %2 %3").arg(dayText, MonthName(month), year);
}

std::optional<Message> DatePicker::fault() const
{
    const int years = year.toInt();
    if (!DayExists(day, month, years)) {
        return datemessages::NoSuchDay(typedDate());
    }
    const QString date = QualifierText(qualifier) + u' ' + typedDate();
    if (day != 0 && month == 0) {
        return datemessages::DayWithoutMonth(date);
    }
    if (month != 0 && year.isEmpty()) {
        return datemessages::MonthWithoutYear(date);
    }
    if (!year.isEmpty() && years < 1) {
        return datemessages::YearMissing(date);
    }
    if (!year.isEmpty() && (years < earliestYear || years > latestYear)) {
        return datemessages::YearOutOfRange(years, earliestYear, latestYear);
    }
    return std::nullopt;
}

std::optional<PickedDate> DatePicker::accept(Talk& talk) const
{
    if (const auto message = fault()) {
        talk.tell(*message);
        return std::nullopt;
    }
    const std::optional<int> years = year.isEmpty() ? std::nullopt : std::optional(year.toInt());
    auto encodedYear = static_cast<std::int16_t>(years.value_or(0));
    auto encodedMonth = static_cast<std::int16_t>(month);
    auto encodedDay = static_cast<std::int16_t>(day);
    const QString name = QualifierText(qualifier);
    return PickedDate{name, DateText(qualifier, day, month, years),
                      EncodeDate(name, encodedYear, encodedMonth, encodedDay)};
}

std::optional<PickedDate> PickTypedDate(const QString& text, Talk& talk)
{
    const std::optional<DatePicker> picker = PickerOfText(text);
    if (!picker) {
        talk.tell(datemessages::CannotReadDate(text));
        return std::nullopt;
    }
    return picker->accept(talk);
}

} // namespace stemwright
