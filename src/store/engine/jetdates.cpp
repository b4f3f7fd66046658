// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/jetdates.h"

#include "base/error.h"

#include <QtCore/QDateTime>
#include <QtCore/QRegularExpression>

namespace stemwright::jet
{

namespace
{

QDate DateOf(const QRegularExpressionMatch& match)
{
    const auto number = [&match](const char16_t* group) { return match.captured(QStringView(group)).toInt(); };
    if (!match.captured(QStringLiteral("isoYear")).isEmpty()) {
        return {number(u"isoYear"), number(u"isoMonth"), number(u"isoDay")};
    }
    const int first = number(u"first");
    const int second = number(u"second");
    return first > 12 ? QDate(number(u"year"), second, first) : QDate(number(u"year"), first, second);
}

QTime TimeOf(const QRegularExpressionMatch& match)
{
    if (match.captured(QStringLiteral("hour")).isEmpty()) {
        return {0, 0};
    }
    int hour = match.captured(QStringLiteral("hour")).toInt();
    const QString half = match.captured(QStringLiteral("half")).toLower();
    if (!half.isEmpty()) {
        // Twelve stands before one: 12 AM is midnight, 12 PM is noon; 13 PM is no time at all.
        hour = hour < 1 || hour > 12 ? -1 : hour % 12 + (half == u"pm" ? 12 : 0);
    }
    return {hour, match.captured(QStringLiteral("minute")).toInt(), match.captured(QStringLiteral("seconds")).toInt()};
}

} // namespace

QString IsoDate(const QString& literal)
{
    static const QRegularExpression form(
        QStringLiteral(R"(^\s*(?:(?<isoYear>\d{4})-(?<isoMonth>\d{1,2})-(?<isoDay>\d{1,2}))"
                       R"(|(?<first>\d{1,2})/(?<second>\d{1,2})/(?<year>\d{4})))"
                       R"((?:[T\s]+(?<hour>\d{1,2}):(?<minute>\d{2})(?::(?<seconds>\d{2})(?:\.\d+)?)?)"
                       R"((?:\s*(?<half>AM|PM))?)?\s*$)"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(literal);
    const QDate date = match.hasMatch() ? DateOf(match) : QDate();
    const QTime time = match.hasMatch() ? TimeOf(match) : QTime();
    if (!date.isValid() || !time.isValid()) {
        throw Error(QStringLiteral("The query cannot be understood: \"%1\" is not a date.").arg(literal));
    }
    return date.toString(Qt::ISODate) + u'T' + time.toString(Qt::ISODate);
}

} // namespace stemwright::jet
