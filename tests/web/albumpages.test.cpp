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
        build.run(QStringLiteral("INSERT INTO AlbumTOC (PicId, Picture, Thumb, PicType, PicWidth, PicHeight, "
                                 "ModificationDate) VALUES (%1, 'bytes of %1', 'thumb', 'jpg', 400, 300, "
                                 "'2003-05-02T10:00:00')")
                      .arg(id));
        if (!assignments.isEmpty()) {
            build.run(QStringLiteral("UPDATE AlbumTOC SET %2 WHERE PicId = %1").arg(id).arg(assignments));
        }
        return *this;
    }

    AlbumSite& mark(int picture, int person, const QString& name, const QString& place = QStringLiteral("'', '', 0, 0"))
    {
        build.run(QStringLiteral("INSERT INTO Pic2Person (PicId, PersId, Name, X, Y, Width, Height) VALUES "
                                 "(%1, %2, '%3', %4)")
                      .arg(picture)
                      .arg(person)
                      .arg(name, place));
        return *this;
    }

    /// The pictures of the site in the order of its list, as "3 1 2".
    std::string listed() const
    {
        std::string numbers;
        const std::string list = page(QStringLiteral("ListOfPics.html"));
        const std::string start = "<TD WIDTH=8%>";
        for (std::size_t at = list.find(start); at != std::string::npos; at = list.find(start, at + 1)) {
            numbers += list.substr(at + start.size(), list.find('<', at + 1) - at - start.size()) + ' ';
        }
        return numbers;
    }

    bool has(const char* name) const { return !page(QString::fromLatin1(name)).empty(); }
};

} // namespace

TEST(AlbumPages, PagesOfAnAlbumAreAsTheyWereReviewed)
{
    AlbumSite site;
    site.setup("PersPages = 1, Pictures4ThisTreeOnly = 0").head(4, "Hart, John", "CollapsiTree");
    site.picture(1, QStringLiteral("Title = 'At the \"sea\" <1>', PictureDate = ' 12 Jan 1850', Place = 'Łódź', "
                                   "EncodPicDate = '185001120', Rectangle = -1, NamesLeft = -1, "
                                   "PicDescr = 'One & two' || char(13, 10) || '$Place'"))
        .mark(1, 4, QStringLiteral("Hart,  John Jr"), QStringLiteral("'10', '20', '30', '40'"))
        .mark(1, 0, QStringLiteral("\"Nan\""), QStringLiteral("5, 6, 7, 8"))
        .mark(1, 7, QStringLiteral(", Élise"));
    site.picture(2, QStringLiteral("EncodPicDate = '999999999', PicType = 'GIF', Thumb = NULL"))
        .mark(2, 4, QStringLiteral("John"), QStringLiteral("100, 50, 0, 0"))
        .mark(2, 14, QStringLiteral("Otto"), QStringLiteral("'a', '5', 0, 0"))
        .mark(2, 0, QStringLiteral("x"))
        .mark(2, 4, QStringLiteral("John again"), QStringLiteral("1, 2, 0, 0"));
    ASSERT_TRUE(site.publish());
    for (const char* name : {"ListOfPics", "PicPage1", "PicPage2", "PicList4", "Thumbs_All_1", "Thumbs_4_1"}) {
        const QString file = QString::fromLatin1(name) + QStringLiteral(".html");
        EXPECT_EQ(site.page(file), ReadWholeFile(TestData(QStringLiteral("web/album/") + file)).toStdString()) << name;
    }
    EXPECT_EQ(site.page(QStringLiteral("Pic2.GIF")) + site.page(QStringLiteral("Thumb_1.bmp")), "bytes of 2thumb");
    const std::string both =
        "<A HREF=\"PicList4.html\"><IMG SRC=\"graphics/photo.gif\" ALT=\"List of Pictures with This "
        "Person\" ALIGN=\"Absmiddle\" VSPACE=\"0\" BORDER=\"0\"></A>";
    for (const char* name : {"Outline_1_1", "CTree_2_4", "NameIndex", "PersPage_4", "PersPage_8"}) {
        EXPECT_THAT(site.page(QString::fromLatin1(name) + QStringLiteral(".html")), HasSubstr(both)) << name;
    }
    EXPECT_EQ(site.rows(QStringLiteral("SELECT Links2Info FROM Indi2Page WHERE IndiId = 4 LIMIT 1")).join(QString()),
              QString::fromStdString(both));
    EXPECT_THAT(
        site.page(QStringLiteral("NameIndex.html")),
        HasSubstr("<A HREF=\"PicPage1.html\"><IMG SRC=\"graphics/photo.gif\" ALT=\"Picture with This Person\""));
    EXPECT_THAT(site.page(QStringLiteral("main.html")),
                HasSubstr(" or at the <A HREF=\"ListOfPics.html\">list of pictures."));
    EXPECT_THAT(site.page(QStringLiteral("topright.html")),
                HasSubstr("<A HREF=\"ListOfPics.html\"><IMG SRC=\"graphics/btn_pic"));
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
        site.picture(1).mark(1, 14, QStringLiteral("Otto"));
        site.picture(2, QStringLiteral("EncodPicDate = '190000000'")).mark(2, 13, QStringLiteral("Vera"));
        site.picture(3, QStringLiteral("EncodPicDate = '999999999'")).mark(3, 0, QStringLiteral("Nobody"));
        site.picture(4, QStringLiteral("EncodPicDate = '180000000'")).mark(4, 5, QStringLiteral("Jane"));
        site.picture(5).mark(5, 13, QStringLiteral("Vera")).mark(5, 0, QStringLiteral("Nobody"));
        site.picture(6, QStringLiteral("Picture = NULL")).mark(6, 5, QStringLiteral("Jane"));
        site.picture(7).mark(7, 16, QStringLiteral("Dead"));
        site.picture(8).mark(8, 13, QStringLiteral("Vera")).mark(8, 5, QStringLiteral("Jane"));
        site.picture(9).mark(9, 13, QStringLiteral("Vera")).mark(9, 999, QStringLiteral("Removed"));
        site.setup(settings);
        ASSERT_TRUE(site.publish());
        EXPECT_EQ(site.listed(), listed) << settings;
    }
}

TEST(AlbumPages, NothingNamesHiddenPersons)
{
    AlbumSite site;
    site.setup("PersPages = 1, HideLiving = 1, Pictures4ThisTreeOnly = 0");
    site.picture(1, QStringLiteral("Rectangle = -1, Title = 'Old Vera and Jane', Place = 'With VERA at sea', "
                                   "PicDescr = 'Jane, then' || char(10) || 'Vera.'"))
        .mark(1, 13, QStringLiteral("Vivid, Vera"), QStringLiteral("71, 72, 73, 74"))
        .mark(1, 5, QStringLiteral("Hart, Jane"), QStringLiteral("1, 2, 3, 4"))
        .mark(1, 0, QStringLiteral("Aunt vera, née VIVID"), QStringLiteral("81, 82, 83, 84"));
    site.picture(2, QStringLiteral("Title = 'Veranda with Vivid lights'")).mark(2, 5, QStringLiteral("Jane"));
    site.picture(3).mark(3, 13, QStringLiteral("Vera Vivid"));
    site.talk.expect(QStringLiteral("The output folder"))
        .expect(QStringLiteral("Hidden persons in picture texts"))
        .expect(QStringLiteral("Web Pages Created"));
    ASSERT_TRUE(BuildWebPages(site.file, {QStringLiteral("Default"), site.site()}, site.own));
    EXPECT_THAT(site.talk.shown()[1].text.toStdString(), HasSubstr("Texts of 1 of"));
    for (const auto& [name, bytes] : site.files()) {
        EXPECT_FALSE(QString::fromLatin1(bytes).contains(QRegularExpression(
            QStringLiteral("\\bvera\\b|_13\\b|\\b71px|81px"), QRegularExpression::CaseInsensitiveOption)))
            << name.toStdString();
    }
    EXPECT_THAT(site.page(QStringLiteral("PicPage1.html")), AllOf(HasSubstr("&lt;No title&gt;"), HasSubstr("ID=\"R1\""),
                                                                  Not(HasSubstr("R2")), HasSubstr("Jane</A>")));
    EXPECT_THAT(site.page(QStringLiteral("ListOfPics.html")), HasSubstr("Veranda with Vivid lights"));
    EXPECT_FALSE(site.has("PicPage3.html") || site.has("Pic3.jpg") || site.has("Thumb_3.bmp"));
    EXPECT_FALSE(site.has("PicList13.html") || site.has("Thumbs_13_1.html"));
}

TEST(AlbumPages, GalleriesTurnThePageAfter24Pictures)
{
    for (const int count : {1, 24, 25, 49}) {
        AlbumSite site;
        site.setup("Pictures4ThisTreeOnly = -1");
        for (int id = 1; id <= count; ++id) {
            site.picture(id).mark(id, 4, QStringLiteral("John"));
        }
        ASSERT_TRUE(site.publish());
        const int pages = (count + 23) / 24;
        for (const char* owner : {"_All_", "_4_"}) {
            const auto page = [&](int number) {
                return site.page(QStringLiteral("Thumbs%1%2.html").arg(QLatin1StringView(owner)).arg(number));
            };
            if (count == 1 && owner == std::string("_4_")) {
                EXPECT_EQ(page(1), "") << "who is in one picture has no list";
                continue;
            }
            EXPECT_THAT(page(1), AllOf(HasSubstr("\tPrevious \n"), HasSubstr("Page 1 of " + std::to_string(pages))));
            EXPECT_THAT(page(pages), AllOf(HasSubstr("\tNext\n"), HasSubstr("_" + std::to_string(count) + ".bmp")));
            EXPECT_EQ(QString::fromStdString(page(pages)).count(QStringLiteral("Thumb_")), count - 24 * (pages - 1));
            EXPECT_EQ(page(pages + 1), "");
        }
    }
}

TEST(AlbumPages, PicturesAreCopiedWhateverTheirSizeAndType)
{
    AlbumSite site;
    site.setup("Pictures4ThisTreeOnly = 0");
    site.picture(1, QStringLiteral("Picture = randomblob(1048576)"));
    site.picture(2, QStringLiteral("Picture = randomblob(3000001), PicType = '../x'"));
    site.picture(3, QStringLiteral("PicType = NULL, PicWidth = NULL, PicHeight = NULL, ModificationDate = '<x>'"));
    ASSERT_TRUE(site.publish());
    const auto files = site.files();
    EXPECT_THAT(site.rows(QStringLiteral("SELECT length(Picture) FROM AlbumTOC")),
                ElementsAre(QString::number(files.at(QStringLiteral("Pic1.jpg")).size()),
                            QString::number(files.at(QStringLiteral("Pic2.jpg")).size()),
                            QString::number(files.at(QStringLiteral("Pic3.jpg")).size())));
    Statement stored = site.file.connection().prepare(QStringLiteral("SELECT Picture FROM AlbumTOC WHERE PicId = 2"));
    ASSERT_TRUE(stored.step());
    EXPECT_EQ(files.at(QStringLiteral("Pic2.jpg")), stored.bytes(0).toStdString());
    EXPECT_THAT(site.page(QStringLiteral("PicPage3.html")), HasSubstr("&lt;x&gt;"));
}

TEST(AlbumPages, SiteWithoutPicturesLeadsToNone)
{
    AlbumSite site;
    site.picture(1).mark(1, 14, QStringLiteral("Otto")).setup("Pictures4ThisTreeOnly = -1");
    ASSERT_TRUE(site.publish());
    for (const auto& [name, bytes] : site.files()) {
        EXPECT_FALSE(name.startsWith(QStringLiteral("Pic1")) || name.startsWith(QStringLiteral("Thumb")))
            << name.toStdString();
        EXPECT_EQ(bytes.find("ListOfPics"), std::string::npos) << name.toStdString();
    }
}

} // namespace stemwright::test
