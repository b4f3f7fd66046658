// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "index/namesearch.h"

class QWidget;

namespace stemwright
{

/// Shows the person picker until the user chose somebody. No value when he cancelled. `index` must hold somebody.
std::optional<ChosenPerson> ChoosePerson(NameIndex& index, Environment& environment, QWidget* parent);

} // namespace stemwright
