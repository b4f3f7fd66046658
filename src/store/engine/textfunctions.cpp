// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/textfunctions.h"

#include "base/pattern.h"
#include "base/text.h"

#include <SQLiteCpp/Exception.h>

#include <sqlite3.h>

#include <memory>
#include <new>

namespace stemwright
{

namespace
{

/// The engine is written in C, through which no exception can pass. Only the first comparison can fail, and all others
/// with it, where the rule's data are missing; then there is no order but that of the bytes.
int Compare(void*, int firstSize, const void* first, int secondSize, const void* second) noexcept
{
    const std::string_view left(static_cast<const char*>(first), static_cast<std::size_t>(firstSize));
    const std::string_view right(static_cast<const char*>(second), static_cast<std::size_t>(secondSize));
    try {
        return CompareTexts(left, right);
    } catch (const std::exception&) {
        return left.compare(right);
    }
}

QString TextOf(sqlite3_value* value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return QString::fromUtf8(text, sqlite3_value_bytes(value));
}

/// The pattern is made once for all rows when it is the same for all.
void Match(sqlite3_context* context, sqlite3_value* patternText, sqlite3_value* text)
{
    const auto* kept = static_cast<const Pattern*>(sqlite3_get_auxdata(context, 0));
    auto made = kept == nullptr ? std::make_unique<Pattern>(TextOf(patternText)) : nullptr;
    sqlite3_result_int(context, (made ? *made : *kept).matches(TextOf(text)) ? 1 : 0);
    if (made) {
        // Comes last: the engine may delete the pattern at once.
        sqlite3_set_auxdata(context, 0, made.release(), [](void* stored) { delete static_cast<Pattern*>(stored); });
    }
}

void Like(sqlite3_context* context, int, sqlite3_value** arguments) noexcept
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL) {
        sqlite3_result_null(context);
        return;
    }
    try {
        Match(context, arguments[0], arguments[1]);
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    } catch (const std::exception& exception) {
        sqlite3_result_error(context, exception.what(), -1);
    }
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
