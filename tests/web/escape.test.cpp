// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/html/escape.h"

#include "support/testworld.h"

#include <gtest/gtest.h>

#include <map>

namespace stemwright::test
{

namespace
{

/// A text as it is written in the place that the table names.
std::string Written(const QString& place, std::string_view utf8)
{
    using Append = std::function<void(std::string&, std::string_view)>;
    const auto script = [](ScriptQuotes quotes) -> Append {
        return [quotes](std::string& page, std::string_view text) { AppendScriptText(page, text, quotes); };
    };
    const std::map<QString, Append> places = {
        {"text", AppendText},        {"author", AppendAuthorHtml},
        {"mail", AppendMailAddress}, {"concatenated", script(ScriptQuotes::Concatenated)},
        {"web", AppendWebAddress},   {"escaped", script(ScriptQuotes::Escaped)}};
    std::string page;
    places.at(place)(page, utf8);
    return page;
}

} // namespace

TEST(Escape, EveryPlaceHasItsEscapes)
{
    for (const QStringList& row : TestTable("web/escape.txt")) {
        EXPECT_EQ(Written(row[0], row[1].toStdString()), row[2].toStdString()) << row.join(u' ');
    }
}

TEST(Escape, WhatIsNoCharacterIsLeftOutOrReplaced)
{
    EXPECT_EQ(Written("text", std::string_view("a\0b\x01\x7F", 5)), "ab");
    EXPECT_EQ(Written("text", "bad \xC3 end \u00a0\u0092"), "bad &#65533; end &#160;&#146;");
    EXPECT_EQ(Written("author", "\u0416\x02"), "&#1046;");
    EXPECT_EQ(Written("concatenated", "\u2028"), "&#8232;");
}

} // namespace stemwright::test
