// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/sitebuild.h"

#include "base/files.h"
#include "web/siteworld.h"

#include <QtCore/QDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;

/// How often `text` stands in `page`.
int Count(const std::string& page, const std::string& text)
{
    int count = 0;
    for (std::size_t at = page.find(text); at != std::string::npos; at = page.find(text, at + 1)) {
        ++count;
    }
    return count;
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
    const QStringList reviewed = QDir(TestData("web/harts")).entryList(QDir::Files);
    ASSERT_EQ(reviewed.size(), 10);
    for (const QString& name : reviewed) {
        EXPECT_EQ(world.page(name), TestDataText("web/harts/" + name).toStdString()) << name;
    }
    EXPECT_EQ(world.page("left.html"), "left of Memories\n");
    EXPECT_EQ(world.page("graphics/center.gif"), "Memories");
}

TEST(SiteBuild, TreesOfRectanglesAreAsTheyWereReviewed)
{
    SiteWorld world;
    AddHarts(world);
    world.setup("PersPages = 1, MaxGenOnPage = 3, CellFg = 0x102030, CellBg = 0xFFE");
    world.build.run("UPDATE TreeHeads SET GenDisplayType = 'descendant tree'");
    world.head(13, "Vivid, Vera", "Ancestor Tree");
    ASSERT_TRUE(world.publish());
    const QStringList reviewed = QDir(TestData("web/rectangles")).entryList(QDir::Files);
    ASSERT_EQ(reviewed.size(), 3);
    for (const QString& name : reviewed) {
        EXPECT_EQ(world.page(name), TestDataText("web/rectangles/" + name).toStdString()) << name;
    }
    // Nobody descends from the head of a tree of ancestors.
    EXPECT_EQ(Count(world.page("PersPage_2.html"), "Descendant of:"), 0);
    EXPECT_THAT(world.column("SELECT * FROM Indi2Page WHERE GenDisplayType = 'AncTree' AND AncestorChain IS NOT NULL"),
                IsEmpty());
}

TEST(SiteBuild, NothingOfHiddenPersonsIsPublished)
{
    SiteWorld world;
    AddHarts(world);
    // 13 is protected: child of 11 and 12, wife of 6, mother of 16, who died and heads a tree, as does 12.
    world.build.person(16, "Dead", "Vivid", {{"DEAT_Date", "2020"}})
        .person(17, "Grand", "Hidden")
        .person(18, "Ina", "Law")
        .person(19, "Secreta", "Child")
        .person(20, "Secretita", "Grandchild")
        .family(9, 6, 13, {16, 19}, {{"Marriage_Place", "Secrethall"}})
        .family(11, 15, 19, {20}, {{"Marriage_Place", "Secretchurch"}})
        .run("INSERT INTO AlbumTOC (PicId, Picture, PicType, Title) VALUES (1, 'x', 'jpg', 'Secreta, Jane')")
        .run("INSERT INTO Pic2Person (PicId, PersId, Name) VALUES (1, 19, 'Child, Secreta'), (1, 5, 'Hart, Jane')")
        .family(10, 16, 18, {17});
    world.setup("PersPages = 1, HideLiving = 1").item("Marriage Status|_MSTAT|r|Yes|||||Fam");
    world.head(12, "Abaj", "CollapsiTree")
        .head(16, "Vivid, Dead", "Descendant Tree")
        .head(17, "Hidden", "Ancestor Tree");
    world.talk.expect("The output folder").expect("Hidden persons in picture texts");
    ASSERT_TRUE(BuildWebPages(world.file, {"Default", world.site()}, world.environment));
    for (const auto& [name, bytes] : world.files()) {
        for (const char* secret : {"Vera", "1990", "Mar 1990", "ecret", "PersPage_13", "_13.html", "#13\"", "\"13\""}) {
            EXPECT_EQ(Count(bytes, secret), 0) << secret << " in " << name;
            EXPECT_FALSE(name.contains(secret)) << name;
        }
    }
    EXPECT_THAT(world.page("PersPage_16.html"), HasSubstr("<TD> &lt;Private&gt;</TD>"));
    EXPECT_THAT(world.page("PersPage_6.html"), HasSubstr("<BR><I>1.  &lt;Private&gt;</I>\n"));
    EXPECT_THAT(world.column("SELECT * FROM Indi2Page WHERE IndiId IN (13, 19, 20)"), IsEmpty());
}

TEST(SiteBuild, DescendantsOfHiddenPersonsAreNotNamedByRelatives)
{
    SiteWorld world;
    AddHarts(world);
    world.build.person(16, "Dead", "Child", {{"DEAT_Date", "2020"}}).family(9, 6, 13, {16});
    world.setup("PersPages = 1, HideLiving = 1");
    ASSERT_TRUE(world.publish());
    for (const auto& [name, bytes] : world.files()) {
        EXPECT_EQ(Count(bytes, "Dead"), 0) << name;
    }
}

TEST(SiteBuild, WarnsOfPersonsWhoMayBeLivingAndAreShown)
{
    SiteWorld world;
    AddHarts(world);
    world.build.run("UPDATE Indi SET BIRT_Date = '1990', DEAT_Date = NULL, DEAT_Place = NULL WHERE Id = 1");
    int id = 21;
    for (const char* birth : {"1990/91", "1990-05-12", "INT 1990 (approx)", "12345 A", "1850?", "(1990)"}) {
        world.build.person(id, birth, "Doubt", {{"BIRT_Date", birth}}).family(id, id, 0, {});
        world.head(id++, birth, "Descendant Tree");
    }
    world.build.run("UPDATE Indi SET DEAT_Place = 'at sea' WHERE Id = 26");
    world.head(1, "Hart, Sir Thomas", "Descendant Tree").head(12, "Abaj", "CollapsiTree");
    ASSERT_TRUE(world.publish());
    world.setup("HideLiving = 1");
    world.talk.expect("There are already some files").expect("Protected tree heads").expect("Possibly living persons");
    ASSERT_TRUE(BuildWebPages(world.file, {"Default", world.site()}, world.environment));
    const auto told = [&world](std::size_t fromEnd) {
        return world.talk.shown()[world.talk.shown().size() - fromEnd].text.toStdString();
    };
    EXPECT_THAT(told(2), testing::EndsWith("heads: Sir Thomas Hart (1)"));
    EXPECT_THAT(told(1),
                testing::EndsWith("Persons: 1990/91 Doubt (21), 1990-05-12 Doubt (22), INT 1990 (approx) Doubt (23)"));
}

TEST(SiteBuild, FactsThatNameHiddenPersonsAreLeftOut)
{
    for (const bool hides : {true, false}) {
        SiteWorld world;
        AddHarts(world);
        world.item("Alias|Alias|n|Yes|||||Indi").item("To father|_FREL|r|Yes|||||Fam2Child");
        world.setup(hides ? "PersPages = 1, HideLiving = 1" : "PersPages = 1");
        world.build.run("UPDATE Indi SET BIRT_Place = 'told by Vera Vivid' WHERE Id = 4;"
                        "UPDATE Indi SET DEAT_Date = '1870 (VIVID, Vera)' WHERE Id = 1;"
                        "UPDATE Indi SET Alias = 'Vera Vivid''s Nan' WHERE Id = 2;"
                        "UPDATE Fam SET Marriage_Place = 'at Vera Vivid''s' WHERE Id = 6;"
                        "UPDATE Indi SET BIRT_Place = 'St. Vera, Vivid' WHERE Id = 6;"
                        "UPDATE Fam2Child SET _FREL = 'says Vera Vivid' WHERE ChildId = 8");
        world.head(12, "Abaj", "CollapsiTree").head(11, "Katz", "Descendant Tree").head(11, "Katz", "Ancestor Tree");
        world.talk.expect("The output folder");
        if (hides) {
            world.talk.expect("Hidden persons in facts");
        }
        ASSERT_TRUE(BuildWebPages(world.file, {"Default", world.site()}, world.environment));
        for (const auto& [name, bytes] : world.files()) {
            QString text = QString::fromStdString(bytes);
            EXPECT_FALSE(hides && text.remove("St. Vera, Vivid").contains("vera", Qt::CaseInsensitive)) << name;
        }
        EXPECT_EQ(Count(world.page("PersPage_6.html"), "St. Vera, Vivid"), 1) << "a place";
        EXPECT_EQ(Count(world.page("PersPage_4.html"), "told by"), hides ? 0 : 1);
        EXPECT_EQ(Count(world.page("PersPage_4.html"), "abt 1825") + Count(world.page("PersPage_4.html"), "Abt 1825"),
                  1);
        if (hides) {
            EXPECT_THAT(world.talk.shown()[1].text.toStdString(),
                        AllOf(HasSubstr("Facts of 4 of"), HasSubstr("Persons: Sir Thomas Hart (1), Ann Reed (2), ")));
        }
    }
}

TEST(SiteBuild, ProtectedPersonsLosePrivateItemsOnlyWhenTheyAreShown)
{
    SiteWorld world;
    AddHarts(world);
    world.setup("PersPages = 1");
    world.build.run("UPDATE SelectedItems SET ItemValue = replace(ItemValue, ';' || char(9) || char(9),"
                    " ';' || char(9) || 'P' || char(9)) WHERE ItemValue LIKE 'Birth%'");
    ASSERT_TRUE(world.publish());
    for (const auto& [name, bytes] : world.files()) {
        EXPECT_EQ(Count(bytes, "1990") + Count(bytes, "Secretville"), 0) << name;
    }
    EXPECT_THAT(world.page("PersPage_13.html"), HasSubstr("<H3>Vera Vivid&nbsp;"));
    EXPECT_THAT(world.page("PersPage_10.html"), HasSubstr("<TD> 2 Feb 1852</TD>"));
}

TEST(SiteBuild, PrivatePartsOfNamesAreLeftOutForProtectedPersons)
{
    SiteWorld world;
    AddHarts(world);
    world.build.run("UPDATE SelectedItems SET ItemValue = replace(ItemValue, char(9) || char(9) || 'Indi',"
                    " char(9) || 'P' || char(9) || 'Indi') WHERE ItemValue LIKE 'Given%'");
    world.build.family(9, 6, 13, {}).run("INSERT INTO AlbumTOC (PicId, Picture, PicType) VALUES (1, 'x', 'jpg')");
    world.build.run("INSERT INTO Pic2Person (PicId, PersId, Name) VALUES (1, 13, 'Vivid, Vera'), (1, 4, 'Jack')");
    world.setup("PersPages = 1").head(12, "Abaj", "CollapsiTree").head(11, "Katz, Lucy", "Descendant Tree");
    world.head(13, "Vivid, Vera", "Ancestor Tree").head(13, "Vivid, Vera");
    ASSERT_TRUE(world.publish());
    for (const auto& [name, bytes] : world.files()) {
        EXPECT_EQ(Count(bytes, "Vera"), 0) << name;
    }
    EXPECT_THAT(world.column("SELECT * FROM Indi2Page WHERE Name || Name4Index LIKE '%Vera%'"), IsEmpty());
    EXPECT_THAT(world.page("PersPage_13.html"), HasSubstr("<H3>Vivid&nbsp;"));
    EXPECT_THAT(world.page("PersPage_1.html"), HasSubstr("<H3>Sir Thomas Hart&nbsp;"));
    EXPECT_THAT(world.page("PicPage1.html"), AllOf(HasSubstr(">Vivid</A>"), HasSubstr(">Jack</A>")));
    // With nothing else to show, there is nothing to tell.
    world.build.run("UPDATE Indi SET Surname = NULL WHERE Id = 13");
    world.talk.expect("There are already some files");
    ASSERT_TRUE(BuildWebPages(world.file, {"Default", world.site()}, world.environment));
    EXPECT_THAT(world.page("PersPage_13.html"), HasSubstr("<H3>&lt;Private&gt;&nbsp;"));
}

TEST(SiteBuild, IndentationOfOutlinesEnds)
{
    SiteWorld world;
    for (int generation = 1; generation <= 260; ++generation) {
        world.build.person(generation, "A", "").family(generation, generation, 0, {generation + 1});
    }
    world.build.person(261, "Z", "");
    world.setup("MaxGenOnPage = 400, MaxTotalGens = 400").head(1, "A");
    ASSERT_TRUE(world.publish());
    const std::string page = world.page("Outline_1_1.html");
    EXPECT_EQ(Count(page, ">" + std::string(4 * 249, '.') + "<B>250<"), 1);
    EXPECT_EQ(Count(page, ">" + std::string(4 * 250, '.') + "<B>261<"), 1);
}

TEST(SiteBuild, OldTreeDefinitionsAreTidied)
{
    SiteWorld world;
    AddHarts(world);
    world.build.run("UPDATE TreeHeads SET IconNo = 30, TreeHeadName = 'Hart, '");
    ASSERT_TRUE(world.publish());
    for (const char* name : {"Outline_1_1.html", "TreeList.html", "NameIndex.html"}) {
        EXPECT_THAT(world.page(name), HasSubstr("graphics/icons_tree_00.gif")) << name;
    }
    EXPECT_THAT(world.page("TreeList.html"), HasSubstr("\t\tHart\n"));
    EXPECT_THAT(world.page("NameIndex.html"), HasSubstr("Outline of 'Hart'\""));
}

TEST(SiteBuild, WorkTablesTellWhoIsWhere)
{
    SiteWorld world;
    AddHarts(world);
    world.setup("MaxGenOnPage = 2");
    ASSERT_TRUE(world.publish());
    EXPECT_EQ(Rows(world.connection(),
                   "SELECT IndiId, AncestorId, TreeNumber, PageOwnerId, GenDisplayType, Name,"
                   " Name4Index, AfterName, AncestorChain FROM Indi2Page ORDER BY rowid",
                   " / ")
                      .join(u'\n') +
                  '\n',
              TestDataText("web/indi2page.txt"));
    EXPECT_EQ(world.column("SELECT Id FROM UniqueIds WHERE DuplicatesAlreadyFound"),
              (QStringList{"8", "10", "11", "12"}));
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
    const std::string page = world.page("Outline_1_1.html");
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
    for (int family = 91; family <= 96; ++family) {
        world.build.spouse(family < 93 ? 1 : 5, family);
    }
    world.head(13, "Vivid, Vera").head(12, "Abaj", "Ancestor Tree").head(5, "Hart, Jane", "Unheard of");
    world.talk.expect("The output folder").expect("Family-less Ancestor").expect("Family-less Ancestor");
    for (int message = 0; message < 6; ++message) {
        world.talk.expect("Missing family record");
    }
    ASSERT_TRUE(BuildWebPages(world.file, {"Default", world.site()}, world.environment));
    EXPECT_THAT(world.talk.shown()[1].text.toStdString(), HasSubstr("ancestor, Vera Vivid\nhas no families. \n"));
    // Both trees miss the families of 5.
    EXPECT_THAT(world.talk.shown()[3].text.toStdString(), HasSubstr("# 93\n"));
    EXPECT_THAT(world.talk.shown()[7].text.toStdString(), HasSubstr("# 91\n"));
    EXPECT_THAT(world.talk.shown()[8].text.toStdString(), HasSubstr("1 more family record"));
    EXPECT_EQ(Count(world.page("TreeList.html"), "<TR>"), 2);
    EXPECT_EQ(Count(world.page("TreeList.html"), "HREF=\"Outline_4_5.html\""), 1);
}

TEST(SiteBuild, StoppedBuildLeavesFolderAndFileAlone)
{
    SiteWorld world;
    AddHarts(world);
    QDir().mkpath(world.site());
    world.write("site/mine.txt", "mine");
    world.talk.expect("There are already some files", Button::Cancel);
    EXPECT_FALSE(BuildWebPages(world.file, {"Default", world.site()}, world.environment));
    EXPECT_EQ(world.page("mine.txt"), "mine");
    world.head(77, "Nobody").talk.expect("Building Web Pages");
    EXPECT_FALSE(BuildWebPages(world.file, {"Default", world.site()}, world.environment));
    world.build.person(0, "Zero", "").run("UPDATE TreeHeads SET TreeHeadId = NULL");
    world.talk.expect("Building Web Pages");
    EXPECT_FALSE(BuildWebPages(world.file, {"Default", world.site()}, world.environment));
    world.setup("MaxGenOnPage = 1").talk.expect("The maximum number of generations on a page");
    EXPECT_FALSE(BuildWebPages(world.file, {"Default", world.site()}, world.environment));
    EXPECT_EQ(world.files().size(), 1U);
    EXPECT_THAT(world.column("SELECT * FROM Indi2Page"), IsEmpty());
}

TEST(SiteBuild, NothingIsDeletedBeforeAllHasBeenAskedAndRead)
{
    SiteWorld world;
    AddHarts(world);
    QDir().mkpath(world.site());
    world.write("site/index.html", "old");
    const auto expectNoBuild = [&world](const QString& title, Button answer, const QString& what) {
        world.talk.expect("There are already some files").expect(title, answer);
        EXPECT_FALSE(BuildWebPages(world.file, {"Default", world.site()}, world.environment)) << what;
        EXPECT_EQ(world.page("index.html"), "old") << what;
    };
    for (const char* caption : {"Loading the pictures", "Loading the list", "Copying standard files"}) {
        world.talk.stopAt(caption);
        expectNoBuild("Building Web Pages", Button::Ok, caption);
        EXPECT_TRUE(world.talk.shown().back().text.endsWith("stayed as it was.")) << caption;
    }
    world.talk.stopAt({});
    QDir().mkpath(world.path("application/html"));
    world.application = ApplicationFolder(world.path("application"));
    QFile::link(TestData("web/share/BgStyles"), world.path("application/BgStyles"));
    const QStringList templates = QDir(TestData("web/share/html")).entryList(QDir::Files);
    for (const QString& missing : templates) {
        for (const QString& name : templates) {
            QFile::link(TestData("web/share/html/" + name), world.path("application/html/" + name));
        }
        QFile::remove(world.path("application/html/" + missing));
        expectNoBuild("Building Web Pages", Button::Ok, missing);
    }
    world.head(13, "Vivid, Vera");
    expectNoBuild("Family-less Ancestor", Button::Cancel, "asked");
}

TEST(SiteBuild, CanBeStoppedOnceTheFolderIsPrepared)
{
    SiteWorld world;
    AddHarts(world);
    world.setup("PersPages = 1");
    ASSERT_TRUE(world.publish());
    const QStringList before = world.column("SELECT * FROM Indi2Page");
    world.build.run("UPDATE Indi SET Surname = 'Changed'");
    for (const char* caption : {"Building the family trees", "Outline for: Hart, Sir Thomas",
                                "Building index of names and", "Processing picture:", "Writing the list of trees"}) {
        world.talk.stopAt(caption);
        world.talk.expect("There are already some files").expect("Building Web Pages");
        EXPECT_FALSE(BuildWebPages(world.file, {"Default", world.site()}, world.environment)) << caption;
        EXPECT_TRUE(world.talk.shown().back().text.endsWith("build them again before you use them.")) << caption;
        EXPECT_EQ(world.page("index.html"), "") << "nobody takes it for a finished site";
        EXPECT_EQ(world.column("SELECT * FROM Indi2Page"), before);
        world.write("site/left.html", "rest");
    }
}

TEST(SiteBuild, FailureOfALatePageLeavesTheTablesAsTheyWere)
{
    SiteWorld world;
    AddHarts(world);
    ASSERT_TRUE(world.publish());
    const QStringList before = world.column("SELECT * FROM Indi2Page");
    world.build.run("UPDATE Indi SET Surname = 'Changed'");
    QFile::remove(world.site() + "/NameIndex.html");
    QDir().mkpath(world.site() + "/NameIndex.html");
    world.talk.expect("There are already some files").expect("Building Web Pages");
    EXPECT_FALSE(BuildWebPages(world.file, {"Default", world.site()}, world.environment));
    EXPECT_EQ(world.column("SELECT * FROM Indi2Page"), before);
}

} // namespace stemwright::test
