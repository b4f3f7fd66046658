// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/tablesql.h"
#include "store/tables/createtables.h"
#include "store/upgrade/tablechanges.h"
#include "store/upgrade/upgradesteps.h"

#include <array>

namespace stemwright
{

namespace
{

const QString album = QStringLiteral("AlbumTOC");
const QString setups = QStringLiteral("WebSiteInfo");
const QString items = QStringLiteral("SelectedItems");
const QString marks = QStringLiteral("Pic2Person");

// An item is a record of fields with tabs between them.
constexpr qsizetype tabsOfItem = 8;
constexpr int tabBeforeIncluded = 3;

/// The record with a further field "Yes" behind its third one. A record that has all fields stays.
QString WithIncluded(const QString& item)
{
    if (item.count(u'\t') >= tabsOfItem) {
        return item;
    }
    qsizetype tab = -1;
    for (int number = 0; number < tabBeforeIncluded; ++number) {
        tab = item.indexOf(u'\t', tab + 1);
        if (tab < 0) {
            return item;
        }
    }
    return QString(item).insert(tab, QStringLiteral("\tYes"));
}

void IncludeAllItems(Connection& work)
{
    Statement select = work.prepareJet(QStringLiteral("SELECT * FROM SelectedItems"));
    const int value = select.column(u"ItemValue");
    QStringList values;
    while (select.step()) {
        values << select.text(value);
    }
    Statement update = work.prepare(QStringLiteral("UPDATE SelectedItems SET ItemValue = ?2 WHERE ItemValue = ?1"));
    for (const QString& item : values) {
        update.bind(1, item).bind(2, WithIncluded(item)).run();
    }
}

/// The number that stands for a display of trees, from a switch that had only two of them.
void NumberTreeDisplay(Connection& work)
{
    Statement select = work.prepare(QStringLiteral("SELECT GenDisplayType FROM WebSiteInfo ORDER BY rowid LIMIT 1"));
    const bool wasYes = select.step() && select.integer(0) != 0;
    work.executeJet(QStringLiteral("UPDATE WebSiteInfo SET GenDisplayType = %1").arg(wasYes ? 0 : 1));
}

QString DisplayOf(const std::optional<int>& number)
{
    static const std::array<QString, 4> displays = {QStringLiteral("Outline"), QStringLiteral("Descendant Tree"),
                                                    QStringLiteral("CollapsiTree"), QStringLiteral("Ancestor Tree")};
    const auto index = static_cast<std::size_t>(number.value_or(-1));
    return index < displays.size() ? displays[index] : QString();
}

void FillTreeHeads(Connection& work)
{
    Statement select = work.prepare(
        QStringLiteral("SELECT SetupName, AncestorId, AncestorName, GenDisplayType FROM WebSiteInfo ORDER BY rowid"));
    Statement insert = work.prepare(
        QStringLiteral("INSERT INTO TreeHeads (SetupName, TreeHeadId, TreeHeadName, IconNo, GenDisplayType)"
                       " VALUES (?1, ?2, ?3, 10, ?4)"));
    while (select.step()) {
        insert.bind(1, select.text(0)).bind(2, select.optionalInteger(1)).bind(3, select.text(2));
        insert.bind(4, DisplayOf(select.optionalInteger(3))).run();
    }
}

} // namespace

void AddTotalGenerations(UpgradeRun& run)
{
    if (HasColumn(run.work, setups, u"MaxTotalGens")) {
        return;
    }
    AddColumn(run.work, setups, QStringLiteral("MaxTotalGens"), ColumnType::Integer);
    AddColumn(run.work, setups, QStringLiteral("HideLiving"), ColumnType::Integer);
    run.work.execute(QStringLiteral("UPDATE WebSiteInfo SET MaxTotalGens = 99, HideLiving = 0"
                                    " WHERE rowid = (SELECT min(rowid) FROM WebSiteInfo)"));
}

void AddNamePlacement(UpgradeRun& run)
{
    AddColumn(run.work, album, QStringLiteral("NamesLeft"), ColumnType::YesNo);
    run.work.executeJet(QStringLiteral("UPDATE AlbumTOC SET NamesLeft = 1"));
    AddColumn(run.work, setups, QStringLiteral("PersPages"), ColumnType::Integer);
    IncludeAllItems(run.work);
}

void NameSetups(UpgradeRun& run)
{
    if (!HasColumn(run.work, setups, u"SetupName")) {
        AddColumn(run.work, setups, QStringLiteral("SetupName"), ColumnType::Text);
        NumberTreeDisplay(run.work);
    }
    AddColumn(run.work, setups, QStringLiteral("Pictures4ThisTreeOnly"), ColumnType::YesNo);
    run.work.execute(QStringLiteral("UPDATE WebSiteInfo SET SetupName = 'Default', Pictures4ThisTreeOnly = -1,"
                                    " PersPages = coalesce(PersPages, 0)"));
    AddColumn(run.work, items, QStringLiteral("SetupName"), ColumnType::Text);
    run.work.executeJet(QStringLiteral("UPDATE SelectedItems SET SetupName = 'Default'"));
    DropColumn(run.work, items, QStringLiteral("ItemName"));
    AddColumn(run.work, album, QStringLiteral("PicFilename"), ColumnType::Text);
    AddColumn(run.work, album, QStringLiteral("Rectangle"), ColumnType::YesNo);
    run.work.executeJet(QStringLiteral("UPDATE AlbumTOC SET Rectangle = False"));
    AddColumn(run.work, marks, QStringLiteral("Width"), ColumnType::Text);
    AddColumn(run.work, marks, QStringLiteral("Height"), ColumnType::Text);
}

void MoveTreeHeads(UpgradeRun& run)
{
    if (HasColumn(run.work, setups, u"AncestorId")) {
        DropTable(run.work, TableNamed(u"TreeHeads"));
        CreateTreeHeadsTable(run.work);
        run.work.executeJet(QStringLiteral("DELETE FROM TreeHeads"));
        FillTreeHeads(run.work);
    }
    for (const char* column : {"AncestorId", "AncestorName", "GenDisplayType"}) {
        DropColumn(run.work, setups, QString::fromLatin1(column));
    }
    if (!run.work.hasTable(u"Indi2Page")) {
        CreateIndi2PageTable(run.work);
    }
    run.work.executeJet(QStringLiteral("ALTER TABLE AlbumTOC ALTER COLUMN PicDescr TEXT"));
}

} // namespace stemwright
