// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "web/setup/itemcatalogue.h"
#include "web/setup/itemselection.h"
#include "web/setup/setupmanager.h"
#include "web/setupworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

const QString setupName = "Default";

/// A family tree with facts of every kind, two of which share their label.
class ItemWorld : public SetupWorld
{
public:
    ItemWorld()
    {
        execute(
            "INSERT INTO SchemaIndi (Fact, Label) VALUES ('_FA1', 'Burial'), ('_FREL', 'Father'), ('_mrel', 'Mother'),"
            " ('_XREL', NULL); INSERT INTO SchemaFam (Fact, Label) VALUES ('_FA1', 'Burial'), ('_MSTAT', 'Status')");
    }

    QStringList records()
    {
        return column("SELECT replace(ItemValue, char(9), '|') FROM SelectedItems"
                      " WHERE rtrim(SetupName) = 'Default' ORDER BY rowid");
    }

    ItemSelection selection() { return {connection(), talk, setupName}; }

    SelectedItem item(const char* name) { return CatalogueItemNamed(connection(), name); }
};

} // namespace

TEST(SelectedItem, RecordsKeepTheirNineFields)
{
    const QString record = "Birth\tBIRT\tdp\tYes\t\"\t in \t;\tP\tIndi";
    SelectedItem item = SelectedItem::fromRecord(record);
    EXPECT_EQ(item.beforePlace, " in ");
    EXPECT_TRUE(item.inTree && item.isPrivate);
    EXPECT_EQ(item.toRecord(), record);
    item.afterItem = "a\tb\r\nc";
    EXPECT_EQ(item.toRecord().count(u'\t'), 8);
    EXPECT_EQ(SelectedItem::fromRecord(item.toRecord()).table, "Indi");
    EXPECT_EQ(SelectedItem::fromRecord("Title\tTitle").table, QString());
}

TEST(ItemCatalogue, ListsFixedItemsThenTheFactsOfTheTree)
{
    ItemWorld world;
    QStringList listed;
    for (const SelectedItem& item : LoadItemCatalogue(world.connection())) {
        listed << QStringList{item.name, item.source, item.kind, item.table}.join(u'|');
        EXPECT_FALSE(item.inTree);
    }
    EXPECT_EQ(listed.join(u','), "Title|Title|n|Indi,Given name|GivenName|n|Indi,Surname|Surname|n|Indi,"
                                 "Suffix|Suffix|n|Indi,Alias|Alias|n|Indi,Birth|BIRT|dp|Indi,"
                                 "Marriage|Marriage|dp|Fam,Death|DEAT|dp|Indi,Burial|_FA1|dp|Indi,"
                                 "Father|_FREL|r|Fam2Child,Mother|_mrel|r|Fam2Child,_XREL|_XREL|dp|Indi,"
                                 "Burial|_FA1|dp|Fam,Status|_MSTAT|r|Fam");
    EXPECT_EQ(world.item("given NAME").source, "GivenName");
    EXPECT_EQ(world.item("fam._fa1").table, "Fam");
    EXPECT_TRUE(ErrorOf([&] { world.item("burial"); }).contains("Indi._FA1 or Fam._FA1"));
    EXPECT_FALSE(ErrorOf([&] { world.item("Baptism"); }).isEmpty());
}

TEST(ItemSelection, AddingMovingAndRemovingAreWrittenBackInOrder)
{
    ItemWorld world;
    const QStringList before = world.records();
    ItemSelection selection = world.selection();
    EXPECT_TRUE(selection.add(world.item("Birth")));
    EXPECT_TRUE(selection.add(world.item("Indi._FA1")));
    EXPECT_TRUE(selection.add(world.item("Fam._FA1"))) << "the same slot of another table is another item";
    world.talk.expect("Items to Include");
    EXPECT_FALSE(selection.add(world.item("Alias")));
    EXPECT_EQ(selection.items().size(), 8U);
    EXPECT_EQ(selection.moveUp(5), 4);
    EXPECT_EQ(selection.moveDown(0), 1);
    selection.remove(7);
    EXPECT_EQ(world.records(), before) << "nothing is written before OK";
    selection.save();
    const QString birth = "Birth|BIRT|dp||||||Indi";
    const QString burial = "Burial|_FA1|dp||||||Indi";
    const QStringList expected = {before[1], before[0], before[2], before[3], birth, before[4], burial};
    EXPECT_EQ(world.records(), expected);

    EXPECT_FALSE(selection.canMoveUp(0));
    EXPECT_FALSE(selection.canMoveDown(6));
    EXPECT_THROW(selection.moveUp(0), Error);
    EXPECT_THROW(selection.moveDown(6), Error);
    EXPECT_THROW(selection.moveUp(7), Error);
    EXPECT_THROW(selection.remove(-1), Error);
    selection.save();
    EXPECT_EQ(world.records(), expected);
}

TEST(ItemSelection, OptionsChangeOnlyWhatTheyPermit)
{
    const QString before = "\"";
    const QString place = " in ";
    const std::tuple<int, ItemOptions, QString> cases[] = {
        {0, {true, before, {}, before, true}, "Title|Title|n|Yes|\"||\"|P|Indi"},
        {0, {true, before, place, before, true}, QString()},
        {0, {false, before, {}, {}, false}, QString()},
        {0, {false, {}, {}, {}, true}, "Title|Title|n|||||P|Indi"},
        {5, {false, {}, place, {}, false}, QString()},
        {5, {true, {}, place, {}, false}, "Birth|BIRT|dp|Yes|| in |||Indi"},
        {5, {true, QString(250, u'x'), {}, {}, false}, QString()},
    };
    for (const auto& [row, options, record] : cases) {
        ItemWorld world;
        ItemSelection selection = world.selection();
        selection.add(world.item("Birth"));
        const auto change = [&, row = row, options = options] { selection.setOptions(row, options); };
        EXPECT_EQ(ErrorOf(change).isEmpty(), !record.isEmpty()) << row << record;
        selection.save();
        EXPECT_TRUE(record.isEmpty() || world.records()[row] == record) << record;
    }
}

TEST(ItemSelection, TextsOutlastAnItemThatLeavesTheTreeAndItemsARenamedSetup)
{
    ItemWorld world;
    ItemSelection outlasting = world.selection();
    outlasting.setOptions(4, {true, "'", {}, "'", false});
    ItemOptions hidden = ItemOptions::of(outlasting.items()[4]);
    hidden.inTree = false;
    outlasting.setOptions(4, hidden);
    EXPECT_EQ(outlasting.items()[4].beforeItem, "'");
    SetupManager manager(world.connection(), world.environment);
    ASSERT_TRUE(manager.rename(setupName, "Ann's"));
    ItemSelection selection(world.connection(), world.talk, "Ann's");
    selection.remove(0);
    selection.save();
    EXPECT_EQ(world.connection().countRows("SelectedItems"), 4);
}

} // namespace stemwright::test
