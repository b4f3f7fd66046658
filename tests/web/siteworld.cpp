// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/siteworld.h"

#include "base/files.h"
#include "web/sitebuild.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>

namespace stemwright::test
{

SiteWorld::SiteWorld(const QString& application_)
    : build(newFamilyFile().connection()), ownApplication(application_), own{talk, settings, clock, ownApplication}
{
    setup("EmblemPicture = NULL");
}

SiteWorld& SiteWorld::setup(const char* assignments)
{
    build.run(QStringLiteral("UPDATE WebSiteInfo SET ") + QString::fromUtf8(assignments));
    return *this;
}

SiteWorld& SiteWorld::head(int id, const char* name, const char* display)
{
    if (m_trees++ > 0) {
        build.run(QStringLiteral("INSERT INTO TreeHeads (SetupName, IconNo) VALUES ('Default', %1)").arg(m_trees));
    }
    Statement update = file.connection().prepare(
        QStringLiteral("UPDATE TreeHeads SET TreeHeadId = ?1, TreeHeadName = ?2, GenDisplayType = ?3"
                       " WHERE TreeNumber = (SELECT max(TreeNumber) FROM TreeHeads)"));
    update.bind(1, id).bind(2, QString::fromUtf8(name)).bind(3, QString::fromUtf8(display)).run();
    return *this;
}

SiteWorld& SiteWorld::item(const char* record)
{
    Statement insert = file.connection().prepare(
        QStringLiteral("INSERT INTO SelectedItems (SetupName, ItemValue) VALUES ('Default', ?1)"));
    insert.bind(1, QString::fromUtf8(record).replace(u'|', u'\t')).run();
    return *this;
}

bool SiteWorld::publish()
{
    talk.expect(QStringLiteral("The output folder"));
    talk.expect(QStringLiteral("Web Pages Created"));
    const std::optional<QString> index = BuildWebPages(file, {QStringLiteral("Default"), site()}, own);
    return index == site() + QStringLiteral("/index.html");
}

std::string SiteWorld::page(const QString& name) const
{
    const QString path = site() + u'/' + name;
    return QFile::exists(path) ? ReadWholeFile(path).replace("\r\n", "\n").toStdString() : std::string();
}

std::map<QString, std::string> SiteWorld::files() const
{
    std::map<QString, std::string> files;
    QDirIterator iterator(site(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        const QString path = iterator.next();
        files.emplace(QDir(site()).relativeFilePath(path), ReadWholeFile(path).toStdString());
    }
    return files;
}

QStringList SiteWorld::rows(const QString& sql)
{
    Statement statement = file.connection().prepare(sql);
    QStringList rows;
    while (statement.step()) {
        QStringList columns;
        for (int column = 0; column < statement.columnCount(); ++column) {
            columns << (statement.isNull(column) ? QStringLiteral("-") : statement.text(column));
        }
        rows << columns.join(u' ');
    }
    return rows;
}

void AddHarts(SiteWorld& world)
{
    world.build
        .person(1, "Thomas ", " Hart",
                {{"Sex", "M"},
                 {"Title", "Sir"},
                 {"BIRT_Date", "1 JAN 1800"},
                 {"BIRT_Place", "York"},
                 {"DEAT_Date", "1870"}})
        .person(2, "Ann", "Reed", {{"Sex", "F"}, {"Alias", "Nan"}})
        .person(3, "Mary", "Wood", {{"Sex", "F"}})
        .person(4, "John", "Hart", {{"Sex", "M"}, {"Suffix", "Jr"}, {"BIRT_Date", "abt 1825"}, {"DEAT_Date", "1890"}})
        .person(5, "Jane", "Hart", {{"Sex", "F"}, {"BIRT_Place", "Leeds\r\nYorkshire"}})
        .person(6, "William", "Hart", {{"Sex", "M"}})
        .person(7, "\u00c9lise \"Lili\"", "O'Neil & <Co>\\", {{"Sex", "F"}})
        .person(8, "Rose", "Hart", {{"Sex", "F"}, {"BIRT_Date", "1850"}})
        .person(9, "Paul", "Katz", {{"Sex", "M"}})
        .person(10, "Peter", "Katz", {{"Sex", "M"}, {"BIRT_Date", "2 FEB 1852"}})
        .person(11, "Lucy", "Katz", {{"Sex", "F"}, {"BIRT_Date", "1880"}})
        .person(12, "\u0416\u0430\u043d", "\u0410\u0431\u0430\u0439", {{"Sex", "M"}})
        .person(13, "Vera", "Vivid", {{"Sex", "F"}, {"BIRT_Date", "3 MAR 1990"}, {"BIRT_Place", "Secretville"}})
        .person(14, "Otto", "Old", {{"Sex", "M"}, {"BIRT_Date", "1801"}})
        .person(15, nullptr, nullptr, {{"Sex", "M"}});
    world.build.family(1, 1, 2, {4, 5}, {{"Marriage_Date", "1824"}, {"Marriage_Place", "York"}})
        .family(2, 1, 3, {6})
        .family(3, 1, 0, {15}, {{"_MSTAT", "Friends"}})
        .family(4, 4, 7, {8})
        .family(5, 9, 5, {10})
        .family(6, 10, 8, {11})
        .family(7, 12, 11, {13})
        .family(8, 14, 0, {9});
    world.build.run(QStringLiteral("UPDATE Fam2Child SET _FREL = 'Natural' WHERE ChildId = 13"));
    world.build.contact(6, "will@example.org", nullptr, "example.org/~will")
        .contact(11, "a@example.org", "b@example.org", nullptr)
        .contact(13, "vera@secret.example", nullptr, "https://secret.example");
    world.item("Birth|BIRT|dp|Yes|b. | in |;||Indi")
        .item("Death|DEAT|dp|Yes|d. | in |;|P|Indi")
        .item("Marriage|Marriage|dp|Yes|m. | in |;||Fam");
    world.head(1, "Hart, Sir Thomas ");
}

} // namespace stemwright::test
