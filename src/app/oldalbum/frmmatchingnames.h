// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/common/personpicking.h"
#include "base/environment.h"
#include "oldalbum/namematching.h"

class QWidget;

namespace stemwright
{

/// Goes through the names of a matching that is running, one after the other, until it ends. The first picture on which
/// a name stands is shown with the name's place in it.
void ShowMatching(NameMatching& matching, Connection& connection, Environment& environment, const PersonPicker& picker,
                  QWidget* parent);

} // namespace stemwright
