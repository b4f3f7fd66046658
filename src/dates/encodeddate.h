// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

#include <QtCore/QString>

#include <cstdint>
#include <optional>

/// Picture dates in the form that sorts as plain text: nine digits YYYYMMDDQ, with 00 for an unknown month or day (99
/// in an "Aft." date) and Q the precision, so that within one day "Bef." sorts first, then the exact date, "Abt." and
/// "Aft.". Stands on base only.
namespace stemwright
{

/// What an empty date encodes to; it sorts after every real date. Test for it before decoding.
inline const QString noEncodedDate = QStringLiteral("999999999");

/// The precision of a date; its number is the index in lists of precisions.
enum class DateQualifier { Exact = 0, About = 1, Before = 2, After = 3 };

/// "", "Abt.", "Bef." or "Aft.".
QString QualifierText(DateQualifier qualifier);

/// "Jan", "Feb", ... "May", "June", "July", "Aug", ... for months 1 to 12; empty for any other number.
QString MonthName(int month);

struct DecodedDate {
    DateQualifier qualifier = DateQualifier::Exact;
    /// 0 stands for unknown.
    std::int16_t year = 0;
    std::int16_t month = 0;
    std::int16_t day = 0;
};

/// Encodes a date. The qualifier's text is compared without regard to case; any text other than the three qualifiers
/// means exact. Values below 1 mean unknown and become 0 in the caller's variables.
QString EncodeDate(const QString& qualifier, std::int16_t& year, std::int16_t& month, std::int16_t& day);

/// Takes an encoded date apart. A last character that is no precision is told to the user and gives no value.
std::optional<DecodedDate> DecodeDate(const QString& encoded, Talk& talk);

/// The text of an encoded date, for example "Aft. 1950" or " 12 Jan 1950": qualifier, day, month and year joined by
/// single spaces, so that a date without qualifier begins with one. Empty for no date.
QString EncodedDateToText(const QString& encoded, Talk& talk);

/// The same from its parts. A year of no value is left out.
QString DateText(DateQualifier qualifier, int day, int month, std::optional<int> year);

} // namespace stemwright
