// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/engine/connection.h"

class QWidget;

namespace stemwright
{

/// Shows the contact record of an individual until it is stored or left. Failures are told.
void EditContact(Connection& connection, int individualId, Environment& environment, QWidget* parent);

} // namespace stemwright
