// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

/// The query dialect of earlier releases, which the fixed query texts and the saved queries keep, turned into the
/// engine's SQL. It knows SELECT with DISTINCTROW, tables joined by commas, WHERE, GROUP BY, HAVING and ORDER BY;
/// UPDATE; DELETE; ALTER COLUMN; `&`, LIKE, IsNull, CStr, #dates#, [names], yes/no words and numbered parameters (?1).
/// Texts compare by the rules of base/text.h and base/pattern.h. A text that it does not understand fails with Error; a
/// name that the family file does not have is left for the engine to refuse. Stands on the schema.
namespace stemwright
{

/// The engine's SQL for a whole statement.
QString TranslateJetSql(const QString& sql);

} // namespace stemwright
