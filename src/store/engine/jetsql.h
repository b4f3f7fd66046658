// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace stemwright
{

/// Turns a statement of the dialect that earlier releases wrote (and that the fixed query texts keep) into the engine's
/// SQL.
QString TranslateJetSql(const QString& sql);

} // namespace stemwright
