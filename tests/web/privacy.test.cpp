// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/privacy.h"

#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(Privacy, TestLooksAtDeathAndYearOfBirth)
{
    for (const QStringList& row : TestTable("web/privacy.txt")) {
        const std::array<std::string, 3> texts = {row[0].toStdString(), row[1].toStdString(), row[2].toStdString()};
        const auto value = [&](int column) -> std::optional<std::string_view> {
            return row[column].isNull() ? std::nullopt : std::optional<std::string_view>(texts[std::size_t(column)]);
        };
        EXPECT_EQ(IsPrivacyProtected(value(0), value(1), value(2), row[3].toInt(), 2002), row[4] == "yes")
            << row.join(u'|');
    }
}

} // namespace stemwright::test
