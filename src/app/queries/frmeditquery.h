// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/common/personpicking.h"
#include "base/environment.h"
#include "store/engine/connection.h"

class QWidget;

namespace stemwright
{

enum class QueryEditingEnd { Closed, Run };

/// Shows the query editor until it is closed or the query is to be run. `picker` chooses the person of the person
/// filter. A failure is told and closes it.
QueryEditingEnd EditQuery(Connection& connection, Environment& environment, const QString& name,
                          const PersonPicker& picker, QWidget* parent);

} // namespace stemwright
