// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/setupmodel.h"

#include "web/setup/setupediting.h"
#include "web/setup/setupmanager.h"
#include "web/setupworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

const QString documentName = "newsetups.json";

class SetupModelTest : public testing::Test
{
protected:
    /// Makes the first setup the model, with facts that only the family tree names.
    void saveModel()
    {
        startAnew();
        world.execute("INSERT INTO SchemaIndi (Fact, Label) VALUES ('_FA1', 'Military'), ('_FA2', 'Nickname')");
        SetupEditing editing(world.connection(), world.environment, "Default");
        for (const auto& [column, value] : {std::pair("SiteTitle", "The <B>Härts</B>"),
                                            {"HideLiving", "1"},
                                            {"CellBg", "#102030"},
                                            {"WebPageFolder", "/sites/mine"},
                                            {"Standalone", "0"},
                                            {"PageStyle", "1"}}) {
            editing.set(column, value);
        }
        editing.set("EmblemPicture", world.write("arms.gif", "GIF89a arms"));
        ASSERT_TRUE(editing.save());
        world.execute("DELETE FROM SelectedItems; INSERT INTO SelectedItems (SetupName, ItemValue) VALUES"
                      " ('Default', replace('Nickname|_FA2|dp|Yes|\"||\"|P|Indi', '|', char(9))),"
                      " ('Default', replace('Military|_FA1|dp||||||Indi', '|', char(9))),"
                      " ('Default', replace('Surname|Surname|n|Yes|||||Indi', '|', char(9)))");
        ASSERT_TRUE(SaveAsModel(world.connection(), "Default", world.environment));
    }

    /// Makes a new setup in another family file and shows it.
    QStringList made()
    {
        startAnew();
        // The same tag is another fact here.
        world.execute("INSERT INTO SchemaIndi (Fact, Label) VALUES ('_FA2', 'Secret'), ('_FA7', 'Nickname')");
        EXPECT_TRUE(SetupManager(world.connection(), world.environment).create("New"));
        return world.column("SELECT SiteTitle, HideLiving, CellBg, Standalone, PageStyle, EmblemPicture,"
                            " EmblemFiletype, WebPageFolder LIKE '%/fampages/New' FROM WebSiteInfo"
                            " WHERE SetupName = 'New'") +
               world.column("SELECT replace(ItemValue, char(9), '|') FROM SelectedItems WHERE SetupName = 'New'") +
               world.column("SELECT TreeHeadName FROM TreeHeads WHERE SetupName = 'New'");
    }

    void startAnew()
    {
        world.file.close();
        world.newFamilyFile();
    }

    SetupWorld world;
};

} // namespace

TEST_F(SetupModelTest, NewSetupsOfEveryFamilyFileFollowIt)
{
    saveModel();
    EXPECT_EQ(made(), (QStringList{"The <B>Härts</B>|1|1056816|0|1|GIF89a arms|gif|1",
                                   "Nickname|_FA7|dp|Yes|\"||\"|P|Indi", "Surname|Surname|n|Yes|||||Indi", "-"}));
}

TEST_F(SetupModelTest, WithoutAWholeModelNewSetupsHaveTheBuiltInValues)
{
    const QStringList builtIn = made();
    EXPECT_EQ(builtIn.size(), 7);
    saveModel();
    const QByteArray whole = world.settings.document(documentName);
    const QByteArray cases[] = {{},
                                "{}",
                                whole.left(whole.size() / 2),
                                whole.chopped(1),
                                QByteArray(whole).replace("\"HideLiving\": \"1\"", "\"HideLiving\": \"0\""),
                                QByteArray(1000, '\n')};
    for (const QByteArray& damaged : cases) {
        world.settings.setDocument(documentName, damaged);
        EXPECT_EQ(made(), builtIn) << damaged.left(100).toStdString();
    }
    world.talk.expect("Web Site Setup");
    EXPECT_FALSE(SaveAsModel(world.connection(), "Nobody", world.environment));
}

} // namespace stemwright::test
