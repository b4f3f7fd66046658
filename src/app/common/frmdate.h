// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "dates/datepicker.h"

class QWidget;

namespace stemwright
{

/// Shows the date picker, loaded with an encoded date (null for none), until the user entered a date that passes its
/// checks. No value when he cancelled.
std::optional<PickedDate> ChooseDate(const QString& encoded, Environment& environment, QWidget* parent);

} // namespace stemwright
