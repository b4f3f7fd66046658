// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setupmanager.h"

#include "base/error.h"
#include "store/engine/schema.h"
#include "store/file/defaultrows.h"
#include "web/setupmessages.h"

#include <QtCore/QRegularExpression>

namespace stemwright
{

namespace
{

/// Renaming stores the name with a blank after it in a column of the usual length.
constexpr int maxSetupNameLength = maxTextLength - 1;

const QRegularExpression& Separators()
{
    static const QRegularExpression separators(QStringLiteral(R"([/\\])"));
    return separators;
}

/// The name of a setup is also the last part of its output folder, whose files are replaced when pages are built: it
/// must not lead anywhere else.
void RequireUsableName(const QString& name)
{
    const auto isControl = [](QChar character) { return character.category() == QChar::Other_Control; };
    if (std::any_of(name.begin(), name.end(), isControl)) {
        throw Error(QStringLiteral("The name of a setup cannot hold line breaks or other control characters."));
    }
    if (name.size() > maxSetupNameLength) {
        throw Error(QStringLiteral("The name of a setup can have at most %1 characters; this one has %2.")
                        .arg(maxSetupNameLength)
                        .arg(name.size()));
    }
    for (const QString& part : name.split(Separators())) {
        if (part.trimmed().isEmpty() || part == QStringLiteral(".") || part == QStringLiteral("..")) {
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

QStringList ColumnsOf(Connection& connection, const QString& table)
{
    const Statement statement = connection.prepare(QStringLiteral("SELECT * FROM %1 LIMIT 0").arg(table));
    QStringList columns;
    for (int column = 0; column < statement.columnCount(); ++column) {
        columns << statement.columnName(column);
    }
    return columns;
}

/// Copies the row by the names of its columns, whatever columns a later release may have added.
void CloneSiteInfo(Connection& connection, qint64 sourceRow, const QString& name, const QString& folder)
{
    QStringList columns;
    QStringList values;
    for (const QString& column : ColumnsOf(connection, QStringLiteral("WebSiteInfo"))) {
        const QString quoted = u'"' + column + u'"';
        const bool isName = column.compare(QStringLiteral("SetupName"), Qt::CaseInsensitive) == 0;
        const bool isFolder = column.compare(QStringLiteral("WebPageFolder"), Qt::CaseInsensitive) == 0;
        columns << quoted;
        values << (isName ? QStringLiteral("?1") : isFolder ? QStringLiteral("?2") : quoted);
    }
    Statement statement =
        connection.prepare(QStringLiteral("INSERT INTO WebSiteInfo (%1) SELECT %2 FROM WebSiteInfo WHERE rowid = ?3")
                               .arg(columns.join(u','), values.join(u',')));
    statement.bind(1, name).bind(2, folder).bind(3, sourceRow).run();
}

/// Copies the rows that belong to a setup in one of the other two tables, in their order.
void CloneRows(Connection& connection, const QString& table, const QString& columns, const QString& source,
               const QString& name)
{
    Statement statement = connection.prepare(
        QStringLiteral("INSERT INTO %1 (SetupName, %2) SELECT ?1, %2 FROM %1 WHERE rtrim(SetupName) = rtrim(?2)"
                       " COLLATE NOCASE ORDER BY rowid")
            .arg(table, columns));
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
    : m_connection(connection), m_environment(environment), m_selected(names().value(0))
{
}

QStringList SetupManager::names()
{
    Statement statement = m_connection.prepareJet(QStringLiteral("SELECT * FROM WebSiteInfo ORDER BY SetupName ASC"));
    const int column = statement.column(u"SetupName");
    QStringList names;
    while (statement.step()) {
        names << statement.text(column);
    }
    return names;
}

void SetupManager::select(const QString& name)
{
    m_selected = RequireSetup(m_connection, name).name;
    m_wizardMode = WizardMode::Edit;
}

/// Runs an action as one transaction; false when it fails, after telling why, and when it returns false itself.
template <typename Action>
bool SetupManager::perform(Action action)
{
    try {
        Transaction transaction(m_connection);
        if (!action()) {
            return false;
        }
        transaction.commit();
        return true;
    } catch (const std::exception& exception) {
        m_environment.talk.tell(setupmessages::SetupFailed(ErrorText(exception)));
        return false;
    }
}

/// Whether a setup can get this name; otherwise the user was told why not. Throws Error for a name that none can have.
bool SetupManager::isFree(const QString& name)
{
    if (name.isEmpty()) {
        m_environment.talk.tell(setupmessages::NoSetupName());
        return false;
    }
    if (FindSetup(m_connection, name)) {
        m_environment.talk.tell(setupmessages::DuplicateSetupName(name));
        return false;
    }
    RequireUsableName(name);
    return true;
}

void SetupManager::selectNew(const QString& name)
{
    m_selected = name;
    m_wizardMode = WizardMode::New;
}

bool SetupManager::create(const QString& typedName)
{
    const QString name = typedName.trimmed();
    return perform([&] {
        if (!isFree(name)) {
            return false;
        }
        RequireStorableFolder(m_environment.application.pagesFolder() + u'/' + name);
        WriteDefaultSetup(m_connection, name, m_environment.application);
        WriteDefaultSelectedItems(m_connection, name);
        WriteDefaultTreeHead(m_connection, name);
        selectNew(name);
        return true;
    });
}

bool SetupManager::clone(const QString& source, const QString& typedName)
{
    const QString name = typedName.trimmed();
    return perform([&] {
        if (!isFree(name)) {
            return false;
        }
        const SetupRow original = RequireSetup(m_connection, source);
        const QString sourceFolder = FolderOf(m_connection, original);
        const QString folder =
            FolderOfClone(sourceFolder.isEmpty() ? m_environment.application.pagesFolder() : sourceFolder, name);
        RequireStorableFolder(folder);
        CloneSiteInfo(m_connection, original.row, name, folder);
        CloneRows(m_connection, QStringLiteral("SelectedItems"), QStringLiteral("ItemValue"), original.name, name);
        CloneRows(m_connection, QStringLiteral("TreeHeads"),
                  QStringLiteral("TreeHeadId, TreeHeadName, GenDisplayType, IconNo"), original.name, name);
        selectNew(name);
        return true;
    });
}

bool SetupManager::rename(const QString& name)
{
    const QString typed = m_environment.talk.input(setupmessages::NewNameOfSetup()).value_or(QString());
    return !typed.trimmed().isEmpty() && rename(name, typed);
}

bool SetupManager::rename(const QString& name, const QString& typedName)
{
    const QString newName = typedName.trimmed();
    return perform([&] {
        if (!isFree(newName)) {
            return false;
        }
        const SetupRow setup = RequireSetup(m_connection, name);
        Statement statement =
            m_connection.prepare(QStringLiteral("UPDATE WebSiteInfo SET SetupName = ?1 WHERE rowid = ?2"));
        statement.bind(1, newName).bind(2, setup.row).run();
        // The blank after the new name is how earlier releases store these rows; comparing names passes over it.
        const QString change = QStringLiteral("SET SetupName = '") + NameInSql(newName) + QStringLiteral(" ' ") +
                               QStringLiteral("WHERE SetupName = '") + NameInSql(setup.name) + u'\'';
        m_connection.executeJet(QStringLiteral("UPDATE SelectedItems ") + change);
        m_connection.executeJet(QStringLiteral("UPDATE TreeHeads ") + change);
        m_selected = newName;
        return true;
    });
}

void SetupManager::erase(const SetupRow& setup)
{
    const QString condition = QStringLiteral("WHERE SetupName = '") + NameInSql(setup.name) + u'\'';
    m_connection.executeJet(QStringLiteral("DELETE FROM SelectedItems ") + condition);
    m_connection.executeJet(QStringLiteral("DELETE FROM TreeHeads ") + condition);
    Statement statement = m_connection.prepare(QStringLiteral("DELETE FROM WebSiteInfo WHERE rowid = ?1"));
    statement.bind(1, setup.row).run();
}

bool SetupManager::remove(const QString& name)
{
    return perform([&] {
        const SetupRow setup = RequireSetup(m_connection, name);
        if (m_environment.talk.ask(setupmessages::ConfirmSetupDelete(setup.name)) != Button::Yes) {
            return false;
        }
        const qsizetype place = names().indexOf(setup.name);
        erase(setup);
        const QStringList remaining = names();
        m_selected = remaining.value(place < remaining.size() ? place : 0);
        return true;
    });
}

} // namespace stemwright
