// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "queries/querymanager.h"

class QWidget;

namespace stemwright
{

/// Shows the window that makes a query, new or a clone of `source`, until there is one. False when it was cancelled.
bool AskForNewQuery(QueryManager& manager, const QString& source, QWidget& parent);

} // namespace stemwright
