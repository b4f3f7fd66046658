// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/jetsql.h"

namespace stemwright
{

QString TranslateJetSql(const QString& sql)
{
    return sql;
}

} // namespace stemwright
