// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/setup.h"

#include "store/engine/schema.h"
#include "store/engine/textfunctions.h"

namespace stemwright
{

QString RowsOfSetup(int parameter)
{
    return QStringLiteral("SetupName = ?%1 COLLATE %2").arg(parameter).arg(namesCollation);
}

const NamedRowKind& SetupKind()
{
    // Renaming stores the name with a blank after it in a column of the usual length.
    static const NamedRowKind kind = {QStringLiteral("web site setup"), QStringLiteral("WebSiteInfo"),
                                      QStringLiteral("SetupName"), maxTextLength - 1};
    return kind;
}

SetupRow RequireSetup(Connection& connection, const QString& name)
{
    return RequireNamedRow(connection, SetupKind(), name);
}

std::vector<TreeDefinition> LoadTreeDefinitions(Connection& connection, const QString& setupName)
{
    Statement statement =
        connection.prepare(QStringLiteral("SELECT TreeHeadName, GenDisplayType, TreeHeadId, IconNo, TreeNumber"
                                          " FROM TreeHeads WHERE %1 ORDER BY TreeNumber")
                               .arg(RowsOfSetup(1)));
    statement.bind(1, setupName);
    std::vector<TreeDefinition> trees;
    while (statement.step()) {
        trees.push_back({statement.integer(4), statement.optionalInteger(2), statement.text(0), statement.text(1),
                         statement.integer(3)});
    }
    return trees;
}

std::vector<SelectedItem> LoadSelectedItems(Connection& connection, const QString& setupName)
{
    Statement statement = connection.prepare(
        QStringLiteral("SELECT ItemValue FROM SelectedItems WHERE %1 ORDER BY rowid").arg(RowsOfSetup(1)));
    statement.bind(1, setupName);
    std::vector<SelectedItem> items;
    while (statement.step()) {
        items.push_back(SelectedItem::fromRecord(statement.text(0)));
    }
    return items;
}

std::optional<Setup> LoadSetup(Connection& connection, const QString& name)
{
    const std::optional<SetupRow> found = FindNamedRow(connection, SetupKind(), name);
    if (!found) {
        return std::nullopt;
    }
    Statement statement = connection.prepare(QStringLiteral(
        "SELECT SetupName, SiteTitle, TitleStory, HomePageName, Standalone, PersPages, PageStyle, CellFg,"
        " CellBg, MaxGenOnPage, MaxTotalGens, MaxPrivacyAge, HideLiving, WebPageFolder,"
        " Pictures4ThisTreeOnly, EmblemFiletype FROM WebSiteInfo WHERE rowid = ?1"));
    statement.bind(1, found->row).step();
    Setup setup;
    setup.name = statement.text(0);
    setup.siteTitle = statement.text(1);
    setup.titleStory = statement.text(2);
    setup.homePageName = statement.text(3);
    setup.standalone = statement.integer(4) != 0;
    setup.personalPages = statement.integer(5) != 0;
    setup.pageStyle = statement.integer(6);
    setup.cellForeground = statement.integer(7);
    setup.cellBackground = statement.integer(8);
    setup.maxGenerationsOnPage = statement.integer(9);
    setup.maxTotalGenerations = statement.integer(10);
    setup.maxPrivacyAge = statement.integer(11);
    setup.hideLiving = statement.integer(12) != 0;
    setup.folder = statement.text(13);
    setup.picturesForThisTreeOnly = statement.integer(14) != 0;
    setup.emblemFileType = statement.text(15);
    setup.row = found->row;
    setup.trees = LoadTreeDefinitions(connection, setup.name);
    setup.items = LoadSelectedItems(connection, setup.name);
    return setup;
}

} // namespace stemwright
