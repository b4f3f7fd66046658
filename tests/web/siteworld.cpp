// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/siteworld.h"

#include "base/files.h"
#include "web/sitebuild.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>

namespace stemwright::test
{

SiteWorld::SiteWorld(const QString& application_) : build(newFamilyFile().connection())
{
    application = ApplicationFolder(application_);
    setup("EmblemPicture = NULL");
}

SiteWorld& SiteWorld::setup(const QString& assignments)
{
    build.run("UPDATE WebSiteInfo SET " + assignments);
    return *this;
}

SiteWorld& SiteWorld::head(int id, const char* name, const char* display)
{
    if (m_trees++ > 0) {
        build.run(QString("INSERT INTO TreeHeads (SetupName, IconNo) VALUES ('Default', %1)").arg(m_trees));
    }
    Statement update =
        file.connection().prepare("UPDATE TreeHeads SET TreeHeadId = ?1, TreeHeadName = ?2, GenDisplayType = ?3"
                                  " WHERE TreeNumber = (SELECT max(TreeNumber) FROM TreeHeads)");
    update.bind(1, id).bind(2, name).bind(3, display).run();
    return *this;
}

SiteWorld& SiteWorld::item(const char* record)
{
    Statement insert =
        file.connection().prepare("INSERT INTO SelectedItems (SetupName, ItemValue) VALUES ('Default', ?1)");
    insert.bind(1, QString(record).replace(u'|', u'\t')).run();
    return *this;
}

bool SiteWorld::publish()
{
    talk.expect("The output folder");
    const std::optional<QString> index = BuildWebPages(file, {"Default", site()}, environment);
    return index == site() + "/index.html";
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

void AddHarts(SiteWorld& world)
{
    world.execute(TestDataText("web/harts.sql"));
    world.head(1, "Hart, Sir Thomas ");
}

} // namespace stemwright::test
