// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/sitebuild.h"

#include "base/files.h"
#include "web/sitelinks.h"
#include "web/siteworld.h"

#include <QtCore/QDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// How often `text` stands in `page`.
int Count(const std::string& page, const std::string& text)
{
    int count = 0;
    for (std::size_t at = page.find(text); at != std::string::npos; at = page.find(text, at + 1)) {
        ++count;
    }
    return count;
}

void ExpectGolden(const SiteWorld& world, const QStringList& pages)
{
    for (const QString& name : pages) {
        const QString golden = TestData(QStringLiteral("web/harts/") + name);
        EXPECT_EQ(world.page(name), ReadWholeFile(golden).toStdString()) << name.toStdString();
    }
}

} // namespace

TEST(SiteBuild, PagesOfAFamilyAreAsTheyWereReviewed)
{
    SiteWorld world;
    AddHarts(world);
    world.setup("PersPages = 1, MaxGenOnPage = 3, MaxPrivacyAge = 100, TitleStory = '<B>\u0416</B>', PageStyle = 1,"
                " Standalone = 0, HomePageName = '../a&b.html'");
    world.head(4, "Hart, John", "CollapsiTree");
    ASSERT_TRUE(world.publish());
    ExpectGolden(world,
                 {QStringLiteral("Outline_1_1.html"), QStringLiteral("Outline_1_11.html"),
                  QStringLiteral("CTree_2_4.html"), QStringLiteral("NameIndex.html"), QStringLiteral("TreeList.html"),
                  QStringLiteral("PersPage_4.html"), QStringLiteral("PersPage_11.html"), QStringLiteral("main.html"),
                  QStringLiteral("bottom.html"), QStringLiteral("topright.html")});
    EXPECT_EQ(world.page(QStringLiteral("left.html")), "left of Memories\n");
    EXPECT_EQ(world.page(QStringLiteral("graphics/center.gif")), "Memories");
}

TEST(SiteBuild, SameInputGivesTheSameBytes)
{
    SiteWorld first;
    SiteWorld second;
    for (SiteWorld* world : {&first, &second}) {
        AddHarts(*world);
        world->setup("PersPages = 1");
        ASSERT_TRUE(world->publish());
    }
    EXPECT_EQ(first.files(), second.files());
}

TEST(SiteBuild, NothingClickableLeadsNowhere)
{
    for (const bool personalPages : {false, true}) {
        for (const char* display : {"Outline", "CollapsiTree", "several"}) {
            SiteWorld world(QStringLiteral(STEMWRIGHT_SHARE));
            AddHarts(world);
            world.setup(personalPages ? "PersPages = 1, MaxGenOnPage = 2" : "PersPages = 0, MaxGenOnPage = 2");
            if (display == std::string("several")) {
                world.head(14, "Old, Otto").head(8, "Hart, Rose", "CollapsiTree").head(5, "Hart, Jane");
            } else {
                world.build.run(
                    QStringLiteral("UPDATE TreeHeads SET GenDisplayType = '%1'").arg(QString::fromLatin1(display)));
            }
            ASSERT_TRUE(world.publish());
            EXPECT_THAT(DeadLinks(world.files()), IsEmpty()) << display << personalPages;
            EXPECT_EQ(world.files().count(QStringLiteral("PersPage_11.html")), personalPages ? 1U : 0U);
            for (const auto& [name, bytes] : world.files()) {
                EXPECT_TRUE(personalPages || bytes.find("PersPage_") == std::string::npos) << name.toStdString();
            }
        }
    }
}

TEST(SiteBuild, NothingOfHiddenPersonsIsPublished)
{
    SiteWorld world;
    AddHarts(world);
    // 13 is protected: child of 11 and 12, wife of 6, mother of 16, who died and heads a tree, as does 12.
    world.build.person(16, "Dead", "Vivid", {{"DEAT_Date", "2020"}})
        .person(17, "Grand", "Hidden")
        .person(18, "Ina", "Law")
        .family(9, 6, 13, {16}, {{"Marriage_Place", "Secrethall"}})
        .family(10, 16, 18, {17});
    world.setup("PersPages = 1, HideLiving = 1").item("Marriage Status|_MSTAT|r|Yes|||||Fam");
    world.head(12, "Abaj", "CollapsiTree").head(16, "Vivid, Dead");
    ASSERT_TRUE(world.publish());
    for (const auto& [name, bytes] : world.files()) {
        for (const char* secret : {"Vera", "1990", "Mar 1990", "ecret", "PersPage_13", "_13.html", "#13\"", "\"13\""}) {
            EXPECT_EQ(Count(bytes, secret), 0) << secret << " in " << name.toStdString();
            EXPECT_FALSE(name.contains(QLatin1StringView(secret))) << name.toStdString();
        }
    }
    EXPECT_THAT(world.page(QStringLiteral("PersPage_16.html")), HasSubstr("<TD> &lt;Private&gt;</TD>"));
    EXPECT_THAT(world.page(QStringLiteral("PersPage_6.html")), HasSubstr("<BR><I>1.  &lt;Private&gt;</I>\n"));
    EXPECT_THAT(world.rows(QStringLiteral("SELECT * FROM Indi2Page WHERE IndiId = 13")), IsEmpty());
}

TEST(SiteBuild, DescendantsOfHiddenPersonsAreNotNamedByRelatives)
{
    SiteWorld world;
    AddHarts(world);
    world.build.person(16, "Dead", "Child", {{"DEAT_Date", "2020"}}).family(9, 6, 13, {16});
    world.setup("PersPages = 1, HideLiving = 1");
    ASSERT_TRUE(world.publish());
    for (const auto& [name, bytes] : world.files()) {
        EXPECT_EQ(Count(bytes, "Dead"), 0) << name.toStdString();
    }
}

TEST(SiteBuild, ProtectedPersonsLosePrivateItemsOnlyWhenTheyAreShown)
{
    SiteWorld world;
    AddHarts(world);
    world.setup("PersPages = 1");
    world.build.run(QStringLiteral("UPDATE SelectedItems SET ItemValue = replace(ItemValue, ';' || char(9) || char(9),"
                                   " ';' || char(9) || 'P' || char(9)) WHERE ItemValue LIKE 'Birth%'"));
    ASSERT_TRUE(world.publish());
    for (const auto& [name, bytes] : world.files()) {
        EXPECT_EQ(Count(bytes, "1990") + Count(bytes, "Secretville"), 0) << name.toStdString();
    }
    EXPECT_THAT(world.page(QStringLiteral("PersPage_13.html")), HasSubstr("<H3>Vera Vivid&nbsp;"));
    EXPECT_THAT(world.page(QStringLiteral("PersPage_10.html")), HasSubstr("<TD> 2 Feb 1852</TD>"));
}

TEST(SiteBuild, WorkTablesTellWhoIsWhere)
{
    SiteWorld world;
    AddHarts(world);
    world.setup("MaxGenOnPage = 2");
    ASSERT_TRUE(world.publish());
    EXPECT_THAT(world.rows(QStringLiteral("SELECT IndiId, AncestorId, TreeNumber, PageOwnerId, GenDisplayType, Name,"
                                          " Name4Index, AfterName, AncestorChain FROM Indi2Page WHERE IndiId IN"
                                          " (1, 9, 10, 11) ORDER BY rowid")),
                ElementsAre(QStringLiteral("1 - 1 1 Outline Sir Thomas Hart Hart, Thomas, Sir (1800-1870) -"),
                            QStringLiteral("10 8 1 10 Outline Peter Katz Katz, Peter (1852-) 8"),
                            QStringLiteral("11 8 1 8 Outline Lucy Katz Katz, Lucy (1880-) 8|4|1"),
                            QStringLiteral("9 5 1 1 Outline Paul Katz Katz, Paul - 5"),
                            QStringLiteral("10 5 1 10 Outline Peter Katz Katz, Peter (1852-) 5|1"),
                            QStringLiteral("11 10 1 8 Outline Lucy Katz Katz, Lucy (1880-) 10|5|1")));
    EXPECT_THAT(world.rows(QStringLiteral("SELECT Id FROM UniqueIds WHERE DuplicatesAlreadyFound")),
                ElementsAre(QStringLiteral("8"), QStringLiteral("10"), QStringLiteral("11"), QStringLiteral("12")));
}

TEST(SiteBuild, NamesOfAnyScriptAndShapeShowAndRunNothing)
{
    SiteWorld world(QStringLiteral(STEMWRIGHT_SHARE));
    const char* evil = "\"><script>alert(1)</script> \u0416\u03a9\u05d0\u738b \\\"";
    const std::string shown = "&lt;script&gt;alert(1)&lt;/script&gt; &#1046;&#937;&#1488;&#29579;";
    world.build.person(1, evil, evil, {{"BIRT_Date", evil}, {"BIRT_Place", evil}}).person(2, "B", "");
    world.build.family(1, 1, 2, {}).contact(1, evil, evil, evil);
    world.item("Birth|BIRT|dp|Yes|||||Indi").setup("PersPages = 1").head(1, evil).head(1, evil, "CollapsiTree");
    ASSERT_TRUE(world.publish());
    for (const char* name :
         {"Outline_1_1.html", "CTree_2_1.html", "NameIndex.html", "TreeList.html", "PersPage_1.html"}) {
        const std::string page = world.page(QLatin1StringView(name));
        EXPECT_EQ(Count(page, "<script>alert"), 0) << name;
        EXPECT_GE(Count(page, shown), 1) << name;
    }
    EXPECT_THAT(world.page(QStringLiteral("Outline_1_1.html")),
                HasSubstr("innerHTML = \"Descendants of \"+'\"'+\"&gt;&lt;script&gt;"));
    EXPECT_THAT(world.page(QStringLiteral("CTree_2_1.html")), HasSubstr("\\\"&gt;&lt;script&gt;"));
}

TEST(SiteBuild, RemarriagesAreCounted)
{
    SiteWorld world;
    world.build.person(1, "A", "").person(2, "B", "");
    for (int family = 1; family <= 22; ++family) {
        world.build.family(family, 1, 2, {}, {{"_MSTAT", family == 3 ? "partners" : "Married"}});
    }
    world.head(1, "A");
    ASSERT_TRUE(world.publish());
    const std::string page = world.page(QStringLiteral("Outline_1_1.html"));
    EXPECT_EQ(Count(page, "Wife of A</B>"), 20);
    for (const char* heading : {"<B>2nd Wife of A</B></FONT>\n", "<B>3rd Partner of A<", "<B>4th Wife", "<B>12th Wife",
                                "<B>21th Wife", "<B>22th Wife"}) {
        EXPECT_EQ(Count(page, heading), 1) << heading;
    }
    EXPECT_EQ(Count(page, "(Duplicate: go to the main entry of this person)"), 21);
}

TEST(SiteBuild, MessagesOfTheWalk)
{
    SiteWorld world;
    AddHarts(world);
    world.build.spouse(1, 99);
    world.head(13, "Vivid, Vera").head(5, "Hart, Jane", "Ancestor Tree");
    world.talk.expect(QStringLiteral("Display not available"))
        .expect(QStringLiteral("The output folder"))
        .expect(QStringLiteral("Missing family record"))
        .expect(QStringLiteral("Family-less Ancestor"))
        .expect(QStringLiteral("Web Pages Created"));
    ASSERT_TRUE(BuildWebPages(world.file, {QStringLiteral("Default"), world.site()}, world.own));
    EXPECT_THAT(world.talk.shown()[2].text.toStdString(), HasSubstr("# 99\n"));
    EXPECT_THAT(world.talk.shown()[3].text.toStdString(), HasSubstr("ancestor, Vera Vivid\nhas no families. \n"));
    EXPECT_THAT(world.page(QStringLiteral("topright.html")), HasSubstr("from the <A HREF=\"Outline_1_1.html\">"));
    EXPECT_EQ(Count(world.page(QStringLiteral("TreeList.html")), "<TR>"), 1);
}

TEST(SiteBuild, StoppedBuildLeavesFolderAndFileAlone)
{
    SiteWorld world;
    AddHarts(world);
    QDir().mkpath(world.site());
    world.write(QStringLiteral("site/mine.txt"), "mine");
    world.talk.expect(QStringLiteral("There are already some files"), Button::Cancel);
    EXPECT_FALSE(BuildWebPages(world.file, {QStringLiteral("Default"), world.site()}, world.own));
    EXPECT_EQ(world.page(QStringLiteral("mine.txt")), "mine");
    world.head(77, "Nobody").talk.expect(QStringLiteral("Building Web Pages"));
    EXPECT_FALSE(BuildWebPages(world.file, {QStringLiteral("Default"), world.site()}, world.own));
    world.setup("MaxGenOnPage = 1").talk.expect(QStringLiteral("The maximum number of generations on a page"));
    EXPECT_FALSE(BuildWebPages(world.file, {QStringLiteral("Default"), world.site()}, world.own));
    EXPECT_EQ(world.files().size(), 1U);
    EXPECT_THAT(world.rows(QStringLiteral("SELECT * FROM Indi2Page")), IsEmpty());
}

TEST(SiteBuild, FailureOfALatePageLeavesTheTablesAsTheyWere)
{
    SiteWorld world;
    AddHarts(world);
    ASSERT_TRUE(world.publish());
    const QStringList before = world.rows(QStringLiteral("SELECT * FROM Indi2Page"));
    world.build.run(QStringLiteral("UPDATE Indi SET Surname = 'Changed'"));
    QFile::remove(world.site() + QStringLiteral("/NameIndex.html"));
    QDir().mkpath(world.site() + QStringLiteral("/NameIndex.html"));
    world.talk.expect(QStringLiteral("There are already some files")).expect(QStringLiteral("Building Web Pages"));
    EXPECT_FALSE(BuildWebPages(world.file, {QStringLiteral("Default"), world.site()}, world.own));
    EXPECT_EQ(world.rows(QStringLiteral("SELECT * FROM Indi2Page")), before);
}

} // namespace stemwright::test
