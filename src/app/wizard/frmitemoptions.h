// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/setup/itemselection.h"

#include <functional>

class QWidget;

namespace stemwright
{

/// Shows how an item is displayed and lets the user change it. `apply` takes the changes when OK is pressed; with false
/// the window stays.
void EditItemOptions(const SelectedItem& item, const std::function<bool(const ItemOptions&)>& apply, QWidget* parent);

} // namespace stemwright
