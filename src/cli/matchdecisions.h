// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "oldalbum/namematching.h"

#include <QtCore/QByteArray>

namespace stemwright
{

/// Does what a JSON document decides, an array of objects with the values "Name", an old name, and "Decision", the
/// number of an individual or "next"; names without a decision are passed over. All decisions are looked over before
/// the first one is done. Throws Error for a document that cannot be followed. False when a decision could not be
/// written; the user was told.
bool FollowDecisions(NameMatching& matching, Connection& connection, const QByteArray& json);

} // namespace stemwright
