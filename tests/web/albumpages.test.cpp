// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/files.h"
#include "web/sitebuild.h"
#include "web/siteworld.h"

#include <QtCore/QRegularExpression>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

/// The Harts, whose 13 is protected as living, with pictures added by number.
class AlbumSite : public SiteWorld
{
public:
    AlbumSite() { AddHarts(*this); }

    AlbumSite& picture(int id, const QString& assignments = {})
    {
        const QString insert("INSERT INTO AlbumTOC (PicId, Picture, Thumb, PicType, PicWidth, PicHeight, "
                             "ModificationDate) VALUES (%1, 'bytes of %1', 'thumb', 'jpg', 400, 300, "
                             "'2003-05-02T10:00:00')");
        execute(insert.arg(id));
        if (!assignments.isEmpty()) {
            execute(QString("UPDATE AlbumTOC SET %2 WHERE PicId = %1").arg(id).arg(assignments));
        }
        return *this;
    }

    AlbumSite& mark(int picture, int person, const QString& name, const QString& place = "'', '', 0, 0")
    {
        const QString insert("INSERT INTO Pic2Person (PicId, PersId, Name, X, Y, Width, Height)"
                             " VALUES (%1, %2, '%3', %4)");
        execute(insert.arg(picture).arg(person).arg(name, place));
        return *this;
    }

    /// The pictures of the site in the order of its list, as "3 1 2".
    std::string listed() const
    {
        std::string numbers;
        const std::string list = page("ListOfPics.html");
        const std::string start = "<TD WIDTH=8%>";
        for (std::size_t at = list.find(start); at != std::string::npos; at = list.find(start, at + 1)) {
            numbers += list.substr(at + start.size(), list.find('<', at + 1) - at - start.size()) + ' ';
        }
        return numbers;
    }

    bool has(const char* name) const { return !page(name).empty(); }
};

} // namespace

TEST(AlbumPages, PagesOfAnAlbumAreAsTheyWereReviewed)
{
    AlbumSite site;
    site.setup("PersPages = 1, Pictures4ThisTreeOnly = 0").head(4, "Hart, John", "CollapsiTree");
    site.picture(1, "Title = 'At the \"sea\" <1>', PictureDate = ' 12 Jan 1850', Place = 'Łódź', "
                    "EncodPicDate = '185001120', Rectangle = -1, NamesLeft = -1, "
                    "PicDescr = 'One & two' || char(13, 10) || '$Place'")
        .mark(1, 4, "Hart,  John Jr", "'10', '20', '30', '40'")
        .mark(1, 0, "\"Nan\"", "5, 6, 7, 8")
        .mark(1, 7, ", Élise");
    site.picture(2, "EncodPicDate = '999999999', PicType = 'GIF', Thumb = NULL")
        .mark(2, 4, "John", "100, 50, 0, 0")
        .mark(2, 14, "Otto", "'a', '5', 0, 0")
        .mark(2, 0, "x")
        .mark(2, 4, "John again", "1, 2, 0, 0");
    ASSERT_TRUE(site.publish());
    for (const char* name : {"ListOfPics", "PicPage1", "PicPage2", "PicList4", "Thumbs_All_1", "Thumbs_4_1"}) {
        const QString file = QString(name) + ".html";
        EXPECT_EQ(site.page(file), ReadWholeFile(TestData("web/album/" + file)).toStdString()) << name;
    }
    EXPECT_EQ(site.page("Pic2.GIF") + site.page("Thumb_1.bmp"), "bytes of 2thumb");
    const std::string both =
        "<A HREF=\"PicList4.html\"><IMG SRC=\"graphics/photo.gif\" ALT=\"List of Pictures with This "
        "Person\" ALIGN=\"Absmiddle\" VSPACE=\"0\" BORDER=\"0\"></A>";
    for (const char* name : {"Outline_1_1", "CTree_2_4", "NameIndex", "PersPage_4", "PersPage_8"}) {
        EXPECT_THAT(site.page(QString(name) + ".html"), HasSubstr(both)) << name;
    }
    EXPECT_EQ(site.column("SELECT Links2Info FROM Indi2Page WHERE IndiId = 4 LIMIT 1").value(0),
              QString::fromStdString(both));
    EXPECT_THAT(
        site.page("NameIndex.html"),
        HasSubstr("<A HREF=\"PicPage1.html\"><IMG SRC=\"graphics/photo.gif\" ALT=\"Picture with This Person\""));
    EXPECT_THAT(site.page("main.html"), HasSubstr(" or at the <A HREF=\"ListOfPics.html\">list of pictures.</A>"));
    EXPECT_THAT(site.page("topright.html"), HasSubstr("<A HREF=\"ListOfPics.html\"><IMG SRC=\"graphics/btn_pic"));
}

TEST(AlbumPages, WhichPicturesArePublishedAndInWhatOrder)
{
    struct Case {
        const char* settings;
        const char* listed;
    };

    // 14 is in the family but not in the tree; 13 is living, 16 her dead child, 5 an ancestor.
    for (const auto& [settings, listed] : std::vector<Case>{{"Pictures4ThisTreeOnly = 0", "4 2 1 3 5 7 8 9 "},
                                                            {"Pictures4ThisTreeOnly = -1", "4 2 5 7 8 9 "},
                                                            {"Pictures4ThisTreeOnly = 0, HideLiving = 1", "4 1 3 8 "},
                                                            {"Pictures4ThisTreeOnly = -1, HideLiving = 1", "4 8 "}}) {
        AlbumSite site;
        site.build.person(16, "Dead", "Child", {{"DEAT_Date", "2020"}}).family(9, 6, 13, {16});
        site.picture(1).mark(1, 14, "Otto");
        site.picture(2, "EncodPicDate = '190000000'").mark(2, 13, "Vera");
        site.picture(3, "EncodPicDate = '999999999'").mark(3, 0, "Nobody");
        site.picture(4, "EncodPicDate = '180000000'").mark(4, 5, "Jane");
        site.picture(5).mark(5, 13, "Vera").mark(5, 0, "Nobody");
        site.picture(6, "Picture = NULL").mark(6, 5, "Jane");
        site.picture(7).mark(7, 16, "Dead");
        site.picture(8).mark(8, 13, "Vera").mark(8, 5, "Jane");
        site.picture(9).mark(9, 13, "Vera").mark(9, 999, "Removed");
        site.setup(settings);
        ASSERT_TRUE(site.publish());
        EXPECT_EQ(site.listed(), listed) << settings;
    }
}

TEST(AlbumPages, NothingNamesHiddenPersons)
{
    AlbumSite site;
    // A JPEG begins with a comment. A small picture, a large one and the emblem are copied in different ways.
    const QString comment("CAST(X'FFD8FFFE000656455241FFDB' || printf('%.*c', %1, 'x') AS BLOB)");
    site.setup("PersPages = 1, HideLiving = 1, Pictures4ThisTreeOnly = 0, EmblemFiletype = 'jpg', EmblemPicture = " +
               comment.arg(10));
    site.picture(1, "Picture = " + comment.arg(1000) +
                        ", Rectangle = -1, Title = 'Old Vera and Jane', Place = 'With VERA at sea', "
                        "PicDescr = 'Jane, then' || char(10) || 'Vera.'")
        .mark(1, 13, "Vivid, Vera", "71, 72, 73, 74")
        .mark(1, 5, "Hart, Jane", "1, 2, 3, 4")
        .mark(1, 0, "Aunt vera, née VIVID", "81, 82, 83, 84");
    site.picture(2, "Picture = " + comment.arg(2'000'000) + ", Title = 'Veranda with Vivid lights'").mark(2, 5, "Jane");
    site.picture(3).mark(3, 13, "Vera Vivid");
    site.talk.expect("The output folder").expect("Hidden persons in picture texts");
    ASSERT_TRUE(BuildWebPages(site.file, {"Default", site.site()}, site.environment));
    EXPECT_THAT(site.talk.shown()[1].text.toStdString(), HasSubstr("Texts of 1 of"));
    for (const auto& [name, bytes] : site.files()) {
        EXPECT_FALSE(QString::fromLatin1(bytes).contains(
            QRegularExpression("\\bvera\\b|_13\\b|\\b71px|81px", QRegularExpression::CaseInsensitiveOption)))
            << name.toStdString();
    }
    EXPECT_THAT(site.page("PicPage1.html"), AllOf(HasSubstr("&lt;No title&gt;"), HasSubstr("ID=\"R1\""),
                                                  Not(HasSubstr("R2")), HasSubstr("Jane</A>")));
    EXPECT_THAT(site.page("ListOfPics.html"), HasSubstr("Veranda with Vivid lights"));
    EXPECT_EQ(site.page("Pic2.jpg"), "\xFF\xD8\xFF\xDB" + std::string(2'000'000, 'x'));
    EXPECT_EQ(site.page("emblem.jpg"), "\xFF\xD8\xFF\xDBxxxxxxxxxx");
    EXPECT_FALSE(site.has("PicPage3.html") || site.has("Pic3.jpg") || site.has("Thumb_3.bmp"));
    EXPECT_FALSE(site.has("PicList13.html") || site.has("Thumbs_13_1.html"));
}

TEST(AlbumPages, TypedNamesAreSearchedForHiddenPersons)
{
    for (const QStringList& row : TestTable("web/hiddennames.txt")) {
        AlbumSite site;
        site.setup("HideLiving = 1, Pictures4ThisTreeOnly = 0");
        const auto living = [&site](int id, const char* given, const char* surname, const char* alias) {
            site.build.person(id, given, surname, {{"BIRT_Date", "1990"}, {"Alias", alias}});
        };
        living(21, "太郎", "山田", nullptr);
        living(22, "สมชาย", "ใจดี", nullptr);
        living(23, "Mary", "of England", "Bess");
        living(24, "Lee", nullptr, nullptr);
        site.build.person(25, "Henry", "Percy", {{"DEAT_Date", "2001"}}).family(21, 25, 23, {});
        site.picture(1).mark(1, 0, row[0]).mark(1, 5, "Jane");
        ASSERT_TRUE(site.publish());
        const qsizetype names = QString::fromStdString(site.page("PicPage1.html")).count("33.3%");
        EXPECT_EQ(names, row[1] == "yes" ? 1 : 2) << row[0];
    }
}

TEST(AlbumPages, TypedNamesBelongToNobody)
{
    // GEDCOM files may number individuals from 0; 13 is protected.
    for (const char* birth : {"1800", "1990"}) {
        AlbumSite site;
        site.setup("HideLiving = 1, Pictures4ThisTreeOnly = 0");
        site.build.person(0, "Zero", "Null", {{"BIRT_Date", birth}});
        site.picture(1).mark(1, 0, "Vera Vivid").mark(1, 0, "Uncle Bob");
        ASSERT_TRUE(site.publish());
        EXPECT_THAT(site.page("PicPage1.html"), AllOf(HasSubstr("Uncle Bob"), Not(HasSubstr("Vera")))) << birth;
    }
}

TEST(AlbumPages, NamesOfMarksThatBecameSomebodyElsesAreNotShown)
{
    AlbumSite site;
    site.setup("PersPages = 1, HideLiving = 1, Pictures4ThisTreeOnly = 0");
    site.picture(1).mark(1, 3, "Vivid, Vera").mark(1, 5, "Aunt Jane");
    ASSERT_TRUE(site.publish());
    EXPECT_THAT(site.page("PicPage1.html"),
                AllOf(Not(HasSubstr("Vera")), HasSubstr("PersPage_3.html\" TARGET=\"frmCenter\">Wood, Mary</A>"),
                      HasSubstr("Aunt Jane</A>")));
}

TEST(AlbumPages, GalleriesTurnThePageAfter24Pictures)
{
    for (const int count : {1, 24, 25, 49}) {
        AlbumSite site;
        site.setup("Pictures4ThisTreeOnly = -1");
        for (int id = 1; id <= count; ++id) {
            site.picture(id).mark(id, 4, "John");
        }
        ASSERT_TRUE(site.publish());
        const int pages = (count + 23) / 24;
        for (const char* owner : {"_All_", "_4_"}) {
            const auto page = [&](int number) { return site.page(QString("Thumbs%1%2.html").arg(owner).arg(number)); };
            if (count == 1 && owner == std::string("_4_")) {
                EXPECT_EQ(page(1), "") << "who is in one picture has no list";
                continue;
            }
            EXPECT_THAT(page(1), AllOf(HasSubstr("\tPrevious \n"), HasSubstr("Page 1 of " + std::to_string(pages))));
            EXPECT_THAT(page(pages), AllOf(HasSubstr("\tNext\n"), HasSubstr("_" + std::to_string(count) + ".bmp")));
            EXPECT_EQ(QString::fromStdString(page(pages)).count("Thumb_"), count - 24 * (pages - 1));
            EXPECT_EQ(page(pages + 1), "");
        }
    }
}

TEST(AlbumPages, PicturesAreCopiedWhateverTheirSizeAndType)
{
    AlbumSite site;
    site.setup("Pictures4ThisTreeOnly = 0");
    site.picture(1, "Picture = randomblob(1048576)");
    site.picture(2, "Picture = randomblob(3000001), PicType = '../x'");
    site.picture(3, "PicType = NULL, PicWidth = NULL, PicHeight = NULL, ModificationDate = '<x>'");
    ASSERT_TRUE(site.publish());
    const auto files = site.files();
    EXPECT_THAT(site.column("SELECT length(Picture) FROM AlbumTOC"),
                ElementsAre(QString::number(files.at("Pic1.jpg").size()), QString::number(files.at("Pic2.jpg").size()),
                            QString::number(files.at("Pic3.jpg").size())));
    Statement stored = site.file.connection().prepare("SELECT Picture FROM AlbumTOC WHERE PicId = 2");
    ASSERT_TRUE(stored.step());
    EXPECT_EQ(files.at("Pic2.jpg"), stored.bytes(0).toStdString());
    EXPECT_THAT(site.page("PicPage3.html"), HasSubstr("&lt;x&gt;"));
}

TEST(AlbumPages, SiteWithoutPicturesLeadsToNone)
{
    AlbumSite site;
    site.picture(1).mark(1, 14, "Otto").setup("Pictures4ThisTreeOnly = -1");
    ASSERT_TRUE(site.publish());
    for (const auto& [name, bytes] : site.files()) {
        EXPECT_FALSE(name.startsWith("Pic1") || name.startsWith("Thumb")) << name.toStdString();
        EXPECT_EQ(bytes.find("ListOfPics"), std::string::npos) << name.toStdString();
    }
}

} // namespace stemwright::test
