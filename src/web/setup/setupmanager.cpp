// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/setupmanager.h"

#include "base/error.h"
#include "store/engine/schema.h"
#include "store/tables/defaultrows.h"
#include "web/setup/setupmessages.h"
#include "web/setup/setupmodel.h"

#include <QtCore/QRegularExpression>

#include <array>

namespace stemwright
{

namespace
{

/// The tables of a setup's items and trees.
const std::array tablesBelow = {QStringLiteral("SelectedItems"), QStringLiteral("TreeHeads")};

const QRegularExpression& Separators()
{
    static const QRegularExpression separators(QStringLiteral(R"([/\\])"));
    return separators;
}

/// The name of a setup is also the last part of its output folder, whose files are replaced when pages are built: it
/// must not lead anywhere else, nor to the images of another site.
void RequireNameOfFolder(const QString& name)
{
    const QStringList parts = name.split(Separators());
    for (qsizetype place = 0; place < parts.size(); ++place) {
        const QString part = parts[place].trimmed();
        const bool isInSite = place > 0 && part.compare(u"graphics", Qt::CaseInsensitive) == 0;
        if (part.isEmpty() || part == QStringLiteral(".") || part == QStringLiteral("..") || isInSite) {
            throw Error(
                QStringLiteral("\"%1\" cannot be the name of a setup, because it is also the name of its folder.")
                    .arg(name));
        }
    }
}

void RequireStorableFolder(const QString& folder)
{
    if (folder.size() > maxTextLength) {
        throw Error(QStringLiteral("This name is too long: the output folder %1 would have more than %2 characters.")
                        .arg(folder)
                        .arg(maxTextLength));
    }
}

/// Copies the rows that belong to a setup in one of the other two tables, in their order.
void CloneRows(Connection& connection, const QString& table, const QString& columns, const QString& source,
               const QString& name)
{
    Statement statement = connection.prepare(
        QStringLiteral("INSERT INTO %1 (SetupName, %2) SELECT ?1, %2 FROM %1 WHERE %3 ORDER BY rowid")
            .arg(table, columns, RowsOfSetup(2)));
    statement.bind(1, name).bind(2, source).run();
}

QString FolderOf(Connection& connection, const SetupRow& setup)
{
    Statement statement = connection.prepare(QStringLiteral("SELECT WebPageFolder FROM WebSiteInfo WHERE rowid = ?1"));
    statement.bind(1, setup.row).step();
    return statement.text(0);
}

} // namespace

QString FolderOfClone(const QString& sourceFolder, const QString& name)
{
    QString source = sourceFolder;
    const QChar separator = source.contains(u'\\') && !source.contains(u'/') ? u'\\' : u'/';
    static const QRegularExpression superfluousEnd(QStringLiteral(R"((?<=[^/\\:])[/\\]+$)"));
    source.remove(superfluousEnd);
    const qsizetype end = source.lastIndexOf(Separators());
    const bool isPagesFolder = source.mid(end + 1).compare(QStringLiteral("fampages"), Qt::CaseInsensitive) == 0;
    const QString parent = isPagesFolder ? source + separator : source.left(end + 1);
    return parent + name;
}

SetupManager::SetupManager(Connection& connection, Environment& environment)
    : NamedRowManager(connection, environment, SetupKind(),
                      {setupmessages::NoSetupName, setupmessages::DuplicateSetupName, setupmessages::ConfirmSetupDelete,
                       setupmessages::NewNameOfSetup, setupmessages::SetupFailed})
{
}

void SetupManager::requireUsableName(const QString& name) const
{
    RequireNameOfFolder(name);
}

void SetupManager::writeNew(const QString& name)
{
    const ApplicationFolder& application = environment().application;
    RequireStorableFolder(application.pagesFolder() + u'/' + name);
    WriteDefaultSetup(connection(), name, application);
    WriteDefaultSelectedItems(connection(), name);
    WriteDefaultTreeHead(connection(), name);
    FollowModel(connection(), name, environment());
}

void SetupManager::writeClone(const NamedRow& source, const QString& name)
{
    const QString sourceFolder = FolderOf(connection(), source);
    const QString folder =
        FolderOfClone(sourceFolder.isEmpty() ? environment().application.pagesFolder() : sourceFolder, name);
    RequireStorableFolder(folder);
    CloneRow(connection(), QStringLiteral("WebSiteInfo"), source.row,
             {{QStringLiteral("SetupName"), name}, {QStringLiteral("WebPageFolder"), folder}});
    CloneRows(connection(), QStringLiteral("SelectedItems"), QStringLiteral("ItemValue"), source.name, name);
    CloneRows(connection(), QStringLiteral("TreeHeads"),
              QStringLiteral("TreeHeadId, TreeHeadName, GenDisplayType, IconNo"), source.name, name);
}

void SetupManager::giveName(const NamedRow& setup, const QString& name)
{
    NamedRowManager::giveName(setup, name);
    for (const QString& table : tablesBelow) {
        Statement statement =
            connection().prepare(QStringLiteral("UPDATE %1 SET SetupName = ?1 WHERE %2").arg(table, RowsOfSetup(2)));
        // The blank after the new name is how earlier releases store these rows; comparing names passes over it.
        statement.bind(1, name + u' ').bind(2, setup.name).run();
    }
}

void SetupManager::erase(const NamedRow& setup)
{
    for (const QString& table : tablesBelow) {
        Statement statement =
            connection().prepare(QStringLiteral("DELETE FROM %1 WHERE %2").arg(table, RowsOfSetup(1)));
        statement.bind(1, setup.name).run();
    }
    NamedRowManager::erase(setup);
}

} // namespace stemwright
