// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// What the bytes of a value of a Jet database mean. Fails with Error. Stands on base.
namespace stemwright
{

/// A text: UTF-16, or behind a mark "compressed", where bytes of 0 switch between one byte a character and two. The
/// result is never Null.
QString DecodeJetText(const QByteArray& bytes);

/// The date and time, to the nearest second, that is this number of days after 30 December 1899, as the family file
/// stores it ("2026-03-12T14:05:00"). Before that day the fraction still counts forward from midnight.
QString DecodeJetDate(double days);

} // namespace stemwright
