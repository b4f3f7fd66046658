// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

struct sqlite3;

namespace stemwright
{

/// What a connection adds to the engine so that queries compare texts by the rule of base/text.h. They are for
/// statements only: a family file's own schema cannot use them, so that the file opens in any other program too.
inline const QString namesCollation = QStringLiteral("names");
/// matches_pattern(pattern, text) by base/pattern.h; Null when either is Null.
inline const QString likeFunction = QStringLiteral("matches_pattern");

void AddTextFunctions(sqlite3* database);

} // namespace stemwright
