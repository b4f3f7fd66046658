// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/escape.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

std::string Text(std::string_view utf8)
{
    std::string page;
    AppendText(page, utf8);
    return page;
}

std::string Author(std::string_view utf8)
{
    std::string page;
    AppendAuthorHtml(page, utf8);
    return page;
}

std::string Script(std::string_view utf8, ScriptQuotes quotes)
{
    std::string page;
    AppendScriptText(page, utf8, quotes);
    return page;
}

std::string Mail(std::string_view utf8)
{
    std::string page;
    AppendMailAddress(page, utf8);
    return page;
}

std::string Web(std::string_view utf8)
{
    std::string page;
    AppendWebAddress(page, utf8);
    return page;
}

struct Case {
    std::string_view utf8;
    std::string_view expected;
};

} // namespace

TEST(Escape, TextAndAttributes)
{
    for (const auto& [utf8, expected] :
         std::vector<Case>{{"Smith & Sons", "Smith &amp; Sons"},
                           {"\"><script>alert(1)</script>", "&quot;&gt;&lt;script&gt;alert(1)&lt;/script&gt;"},
                           {"O'Brien \\ x", "O'Brien \\ x"},
                           {"J\u00fcrgen \u00c9", "J&#252;rgen &#201;"},
                           {"\u0416 \u03a9 \u05d0 \u738b \U00020000<", "&#1046; &#937; &#1488; &#29579; &#131072;&lt;"},
                           {"\u2018a\u2019 \u0141 \u0092", "&#8216;a&#8217; &#321; &#146;"},
                           {"a\u00a0b", "a&#160;b"},
                           {std::string_view("a\0b\x01\x7F", 5), "ab"},
                           {"a\tb\r\nc", "a b c"},
                           {"bad \xC3 end", "bad &#65533; end"},
                           {"", ""}}) {
        EXPECT_EQ(Text(utf8), expected) << utf8;
    }
}

TEST(Escape, AuthorsKeepTheirMarkup)
{
    EXPECT_EQ(Author("<B>\u00dcber</B> \"&amp;\"\r\n\u0416\x02"), "<B>&#220;ber</B> \"&amp;\"\r\n&#1046;");
}

TEST(Escape, ScriptStrings)
{
    EXPECT_EQ(Script("a\"b\\c</script>'\n\u2028", ScriptQuotes::Concatenated),
              "a\"+'\"'+\"b\\\\c&lt;/script&gt;' &#8232;");
    EXPECT_EQ(Script("a\"b\\", ScriptQuotes::Escaped), "a\\\"b\\\\");
}

TEST(Escape, Addresses)
{
    EXPECT_EQ(Mail("john.o'neil+x@example.org"), "john.o%27neil+x@example.org");
    EXPECT_EQ(Mail("a@b?subject=\"x\"&cc=c@d\n"), "a@b%3Fsubject=%22x%22%26cc=c@d");
    EXPECT_EQ(Mail("j\u00fcrgen@x.de"), "j%C3%BCrgen@x.de");
    for (const auto& [utf8, expected] :
         std::vector<Case>{{"example.org/a b?x=1&y=%20#z", "http://example.org/a%20b?x=1&amp;y=%20#z"},
                           {"HTTPS://example.org", "HTTPS://example.org"},
                           {"http://example.org", "http://example.org"},
                           {"javascript:alert(1)", "http://javascript:alert(1)"},
                           {"x\"><b>\\'", "http://x%22%3E%3Cb%3E%5C%27"}}) {
        EXPECT_EQ(Web(utf8), expected) << utf8;
    }
}

} // namespace stemwright::test
