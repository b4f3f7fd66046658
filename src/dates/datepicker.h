// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "dates/encodeddate.h"

/// The state behind the entry of a picture date: what a window shows in its four fields and what the command line makes
/// of a typed text, with the checks that both pass. Nothing here changes stored data. Stands on encoded dates.
namespace stemwright
{

/// The years that can be entered.
inline constexpr int earliestYear = 1;
inline constexpr int latestYear = 2100;

/// A date that passed the checks.
struct PickedDate {
    QString qualifier;
    QString text;
    QString encoded;
};

class DatePicker
{
public:
    /// Loads an encoded date into the fields; a null text and no date empty them. A malformed one is told and leaves
    /// them.
    void ShowEncodedDate(const QString& encoded, Talk& talk);

    /// Checks the fields. The first fault is told and gives no value.
    std::optional<PickedDate> accept(Talk& talk) const;

    /// The fields, for a window to show and set: the precision, the day and the month by their number (0 for empty),
    /// the year as typed.
    DateQualifier qualifier = DateQualifier::Exact;
    int day = 0;
    int month = 0;
    QString year;

private:
    std::optional<Message> fault() const;
    QString typedDate() const;
};

/// Reads and checks a typed date such as "Abt. 12 Mar 1950", "June 1931" or "1900"; month names may be shortened to
/// three letters or written out, in any letter case, and an empty text is no date. A fault is told and gives no value.
std::optional<PickedDate> PickTypedDate(const QString& text, Talk& talk);

} // namespace stemwright
