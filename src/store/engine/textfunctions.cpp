// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/textfunctions.h"

#include "base/pattern.h"
#include "base/text.h"

#include <SQLiteCpp/Exception.h>

#include <sqlite3.h>

namespace stemwright
{

namespace
{

int Compare(void*, int firstSize, const void* first, int secondSize, const void* second)
{
    return CompareTexts(std::string_view(static_cast<const char*>(first), static_cast<std::size_t>(firstSize)),
                        std::string_view(static_cast<const char*>(second), static_cast<std::size_t>(secondSize)));
}

QString TextOf(sqlite3_value* value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return QString::fromUtf8(text, sqlite3_value_bytes(value));
}

/// The pattern of the call, made once for all rows when it is the same for all.
const Pattern& PatternOf(sqlite3_context* context, sqlite3_value* value)
{
    auto* pattern = static_cast<Pattern*>(sqlite3_get_auxdata(context, 0));
    if (pattern == nullptr) {
        pattern = new Pattern(TextOf(value));
        sqlite3_set_auxdata(context, 0, pattern, [](void* stored) { delete static_cast<Pattern*>(stored); });
    }
    return *pattern;
}

void Like(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL) {
        sqlite3_result_null(context);
        return;
    }
    const QString text = TextOf(arguments[1]);
    sqlite3_result_int(context, PatternOf(context, arguments[0]).matches(text) ? 1 : 0);
}

} // namespace

void AddTextFunctions(sqlite3* database)
{
    const QByteArray collation = namesCollation.toUtf8();
    const QByteArray like = likeFunction.toUtf8();
    int result = sqlite3_create_collation(database, collation.constData(), SQLITE_UTF8, nullptr, Compare);
    if (result == SQLITE_OK) {
        result = sqlite3_create_function(database, like.constData(), 2,
                                         SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY, nullptr, Like, nullptr,
                                         nullptr);
    }
    if (result != SQLITE_OK) {
        throw SQLite::Exception(database, result);
    }
}

} // namespace stemwright
