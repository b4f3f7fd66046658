// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "dates/encodeddate.h"

#include "dates/messages.h"

#include <array>

namespace stemwright
{

namespace
{

constexpr std::array<const char*, 12> monthNames = {"Jan",  "Feb", "Mar", "Apr", "May", "June",
                                                    "July", "Aug", "Sep", "Oct", "Nov", "Dec"};

QString Padded(int value, int width)
{
    return QStringLiteral("%1").arg(value, width, 10, QLatin1Char('0'));
}

bool Is(const QString& text, DateQualifier qualifier)
{
    return text.compare(QualifierText(qualifier), Qt::CaseInsensitive) == 0;
}

/// An unknown month or day, which "Aft." dates write as 99 so that they sort after the known ones.
QString PartAfter(int value)
{
    return value == 0 ? QStringLiteral("99") : Padded(value, 2);
}

std::optional<DateQualifier> QualifierOfDigit(QChar digit)
{
    switch (digit.unicode()) {
    case u'9':
        return DateQualifier::After;
    case u'0':
        return DateQualifier::Before;
    case u'2':
        return DateQualifier::About;
    case u'1':
        return DateQualifier::Exact;
    default:
        return std::nullopt;
    }
}

} // namespace

QString QualifierText(DateQualifier qualifier)
{
    switch (qualifier) {
    case DateQualifier::About:
        return QStringLiteral("Abt.");
    case DateQualifier::Before:
        return QStringLiteral("Bef.");
    case DateQualifier::After:
        return QStringLiteral("Aft.");
    case DateQualifier::Exact:
        break;
    }
    return QStringLiteral("");
}

QString MonthName(int month)
{
    if (month < 1 || month > static_cast<int>(monthNames.size())) {
        return QStringLiteral("");
    }
    return QString::fromLatin1(monthNames[static_cast<std::size_t>(month - 1)]);
}

QString EncodeDate(const QString& qualifier, std::int16_t& year, std::int16_t& month, std::int16_t& day)
{
    for (std::int16_t* part : {&year, &month, &day}) {
        *part = std::max<std::int16_t>(*part, 0);
    }
    const QString years = Padded(year, 4);
    if (Is(qualifier, DateQualifier::After)) {
        return years + PartAfter(month) + PartAfter(day) + u'9';
    }
    const QString date = years + Padded(month, 2) + Padded(day, 2);
    if (Is(qualifier, DateQualifier::Before)) {
        return date + u'0';
    }
    if (Is(qualifier, DateQualifier::About)) {
        return date + u'2';
    }
    return year == 0 && month == 0 && day == 0 ? noEncodedDate : date + u'1';
}

std::optional<DecodedDate> DecodeDate(const QString& encoded, Talk& talk)
{
    const auto qualifier = encoded.isEmpty() ? std::nullopt : QualifierOfDigit(encoded.back());
    if (!qualifier) {
        talk.tell(datemessages::BadLastCharacter());
        return std::nullopt;
    }
    const QStringView view(encoded);
    DecodedDate date{*qualifier, view.mid(0, 4).toShort(), view.mid(4, 2).toShort(), view.mid(6, 2).toShort()};
    if (date.qualifier == DateQualifier::After) {
        date.month = date.month == 99 ? std::int16_t{0} : date.month;
        date.day = date.day == 99 ? std::int16_t{0} : date.day;
    }
    return date;
}

QString EncodedDateToText(const QString& encoded, Talk& talk)
{
    if (encoded == noEncodedDate) {
        return QStringLiteral("");
    }
    const auto date = DecodeDate(encoded, talk);
    return date ? DateText(date->qualifier, date->day, date->month, date->year) : QStringLiteral("");
}

QString DateText(DateQualifier qualifier, int day, int month, std::optional<int> year)
{
    QString text = QualifierText(qualifier);
    if (day != 0) {
        text += QStringLiteral(" %1").arg(day);
    }
    if (month != 0) {
        text += u' ' + MonthName(month);
    }
    if (year) {
        text += QStringLiteral(" %1").arg(*year);
    }
    return text;
}

} // namespace stemwright
