// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "treegenerator.h"

#include "treeplan.h"

#include <QtCore/QCryptographicHash>

#include <gtest/gtest.h>

#include <set>
#include <sstream>

namespace stemwright::bench
{

namespace
{

/// Every line of a kind as "record: value", such as "@F3@: @I7@" for HUSB.
std::multiset<std::string> Links(const std::string& gedcom, const std::string& tag, bool recordFirst)
{
    std::multiset<std::string> links;
    std::istringstream lines(gedcom);
    std::string record;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("0 @")) {
            record = line.substr(2, line.find(' ', 2) - 2);
        } else if (line.starts_with("1 " + tag + " @")) {
            const std::string value = line.substr(3 + tag.size());
            links.insert(recordFirst ? record + ": " + value : value + ": " + record);
        }
    }
    return links;
}

} // namespace

TEST(TreeGenerator, GivesTheSameBytesOnEveryMachine)
{
    QByteArray bytes;
    GenerateTree(1000,
                 [&bytes](std::string_view piece) { bytes += QByteArray(piece.data(), qsizetype(piece.size())); });
    EXPECT_EQ(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex(),
              "8c0fc65135815ec35ff99546502fbb8df7f77f2186eb90f8dc43ef1e0a15f903");
    EXPECT_EQ(QString(bytes).toUtf8(), bytes);
}

TEST(TreeGenerator, LinksOfIndividualsAndFamiliesAgree)
{
    std::string text;
    const TreeCounts counts = GenerateTree(20'000, [&text](std::string_view piece) { text += piece; });
    EXPECT_EQ(Links(text, "FAMC", false), Links(text, "CHIL", true));
    EXPECT_EQ(Links(text, "FAMC", false).size(), counts.children);
    auto spouses = Links(text, "HUSB", true);
    spouses.merge(Links(text, "WIFE", true));
    EXPECT_EQ(Links(text, "FAMS", false), spouses);
}

TEST(TreePlan, IsForTheMostPartOneCouplesOffspringWithRemarriagesAndCousins)
{
    constexpr std::uint32_t individuals = 20'000;
    const TreePlan plan(individuals);
    std::uint32_t descendants = 0;
    std::uint32_t remarried = 0;
    for (Number number = 1; number <= individuals; ++number) {
        const Person& person = plan.person(number);
        descendants += person.descendant ? 1U : 0U;
        remarried += person.families[1] != 0 ? 1U : 0U;
        // Only the first of all descendants has no parents: the line never died out.
        EXPECT_EQ(person.descendant && person.birthFamily == 0, number == 1) << number;
    }
    std::uint32_t cousins = 0;
    for (Number number = 1; number <= plan.families(); ++number) {
        const Family& family = plan.family(number);
        cousins += plan.person(family.husband).descendant && plan.person(family.wife).descendant ? 1U : 0U;
        EXPECT_LT(plan.person(family.husband).birthYear, family.marriageYear) << number;
    }
    EXPECT_GT(descendants, individuals / 2);
    EXPECT_GT(remarried, individuals / 50);
    EXPECT_GT(cousins, plan.families() / 100);
}

} // namespace stemwright::bench
