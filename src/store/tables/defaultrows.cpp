// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/tables/defaultrows.h"

#include "album/modblob.h"
#include "base/version.h"

#include <QtCore/QFileInfo>

#include <array>

namespace stemwright
{

namespace
{

/// Silver, as a number of the form RRGGBB.
constexpr int defaultCellBackground = 0xC0C0C0;

void WriteDefaultEmblem(Connection& connection, qint64 row, const ApplicationFolder& application)
{
    const QFileInfo emblem(application.file(QStringLiteral("graphics/tree.gif")));
    if (!emblem.exists()) {
        return;
    }
    LoadFileIntoField(connection, emblem.filePath(),
                      {QStringLiteral("WebSiteInfo"), QStringLiteral("EmblemPicture"), row});
    Statement statement =
        connection.prepare(QStringLiteral("UPDATE WebSiteInfo SET EmblemFiletype = ?1 WHERE rowid = ?2"));
    statement.bind(1, emblem.suffix()).bind(2, row).run();
}

} // namespace

void WriteFileVersion(Connection& connection)
{
    Statement statement = connection.prepare(QStringLiteral("INSERT INTO GenInfo (StemoraVersion) VALUES (?1)"));
    statement.bind(1, QString::fromLatin1(versionText)).run();
}

void WriteDefaultQuery(Connection& connection, const QString& queryName, const Clock& clock)
{
    Statement statement = connection.prepare(QStringLiteral(
        "INSERT INTO PicListQueries (QueryName,"
        " IdShow, PicDateShow, PlaceShow, TitleShow, FilenameShow, ModifDateShow, NamesLeftShow, RectangleShow,"
        " IdFilter, PicDateFilter, PlaceFilter, TitleFilter, FilenameFilter, ModifDateFilter, NamesLeftFilter,"
        " RectangleFilter, IndiFilter,"
        " IdSort, IdSortOrder, PicDateSort, PlaceSort, TitleSort, FilenameSort, ModifDateSort, NamesLeftSort,"
        " RectangleSort,"
        " NamesLeft, Rectangle, WithAncs, WithDescs, ModifDateFrom, ModifDateTo)"
        " VALUES (?1, -1, -1, -1, -1, -1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 0, 0, 0, 0, 0, 0, 0,"
        " 0, 0, 0, 0, ?2, ?2)"));
    const QString today = clock.now().date().startOfDay().toString(Qt::ISODate);
    statement.bind(1, queryName).bind(2, today).run();
}

void WriteDefaultSetup(Connection& connection, const QString& setupName, const ApplicationFolder& application)
{
    Statement statement = connection.prepare(QStringLiteral(
        "INSERT INTO WebSiteInfo (SetupName, SiteTitle, TitleStory, HomePageName, Standalone, MaxTotalGens, "
        "MaxGenOnPage,"
        " MaxPrivacyAge, HideLiving, PersPages, PageStyle, CellFg, CellBg, WebPageFolder, Pictures4ThisTreeOnly)"
        " VALUES (?1, ?2, ?3, '../index.html', -1, 99, 4, 90, 0, 0, 0, 0, ?4, ?5, -1)"));
    statement.bind(1, setupName)
        .bind(2, QStringLiteral("Family Tree and Photo Album"))
        .bind(3, QStringLiteral("This site contains our family tree and pictures. The tree and the pictures are "
                                "cross-linked: you can go from an individual in the family tree to his/her picture and "
                                "vice versa."))
        .bind(4, defaultCellBackground)
        .bind(5, application.pagesFolder() + u'/' + setupName)
        .run();
    WriteDefaultEmblem(connection, connection.lastInsertId(), application);
}

void WriteDefaultSelectedItems(Connection& connection, const QString& setupName)
{
    struct NameItem {
        const char* caption;
        const char* column;
    };

    constexpr std::array<NameItem, 5> items = {{{"Title", "Title"},
                                                {"Given name", "GivenName"},
                                                {"Surname", "Surname"},
                                                {"Suffix", "Suffix"},
                                                {"Alias", "Alias"}}};
    Statement statement =
        connection.prepare(QStringLiteral("INSERT INTO SelectedItems (SetupName, ItemValue) VALUES (?1, ?2)"));
    for (const NameItem& item : items) {
        const QString record = QStringLiteral("%1\t%2\tn\tYes\t\t\t\t\tIndi")
                                   .arg(QString::fromLatin1(item.caption), QString::fromLatin1(item.column));
        statement.bind(1, setupName).bind(2, record).run();
    }
}

void WriteDefaultTreeHead(Connection& connection, const QString& setupName)
{
    Statement statement = connection.prepare(
        QStringLiteral("INSERT INTO TreeHeads (SetupName, GenDisplayType, IconNo) VALUES (?1, 'Outline', 10)"));
    statement.bind(1, setupName).run();
}

} // namespace stemwright
