// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/common/personpicking.h"
#include "base/environment.h"
#include "store/engine/connection.h"

class QWidget;

namespace stemwright
{

/// Shows the list of picture list queries, with `current` selected. The name of the query to run, or no value when the
/// window was just closed. `picker` chooses the person of a person filter.
std::optional<QString> ShowQueries(Connection& connection, Environment& environment, const QString& current,
                                   const PersonPicker& picker, QWidget* parent);

} // namespace stemwright
