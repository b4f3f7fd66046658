// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "index/nameindex.h"

class QWidget;

namespace stemwright
{

/// Shows the list of names, from which the contact record of an individual can be opened. `index` must hold somebody.
void ShowListOfNames(NameIndex& index, Connection& connection, Environment& environment, QWidget* parent);

} // namespace stemwright
