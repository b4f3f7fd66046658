// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/treeediting.h"

#include "base/error.h"
#include "index/fullname.h"
#include "web/setup/setupmessages.h"

#include <QtCore/QFileInfo>

#include <utility>

namespace stemwright
{

namespace
{

QString IconName(int icon)
{
    return QStringLiteral("graphics/icons_tree_%1.gif").arg(icon - 1, 2, 10, QChar(u'0'));
}

} // namespace

std::optional<QString> TreeIconFile(int icon, const ApplicationFolder& application)
{
    const QString path = application.file(IconName(icon));
    return icon >= 1 && QFileInfo::exists(path) ? std::optional(path) : std::nullopt;
}

QString TreeIconName(int icon, const ApplicationFolder& application)
{
    return IconName(TreeIconFile(icon, application) ? icon : 1);
}

TreeEditing::TreeEditing(Connection& connection, Environment& environment, PendingChanges& changes, QString setupName)
    : m_connection(connection), m_environment(environment), m_changes(changes), m_setupName(std::move(setupName))
{
}

std::vector<TreeDefinition> TreeEditing::definitions() const
{
    return LoadTreeDefinitions(m_connection, m_setupName);
}

TreeDefinition TreeEditing::definition(int number) const
{
    const std::vector<TreeDefinition> trees = definitions();
    const auto found = std::find_if(trees.begin(), trees.end(),
                                    [number](const TreeDefinition& tree) { return tree.number == number; });
    if (found == trees.end()) {
        throw Error(QStringLiteral("Setup \"%1\" has no tree with number %2.").arg(m_setupName).arg(number));
    }
    return *found;
}

TreeDefinition& TreeEditing::taken()
{
    if (!m_edited) {
        throw Error(QStringLiteral("No tree definition is being edited."));
    }
    return *m_edited;
}

void TreeEditing::take(TreeDefinition definition)
{
    keep();
    m_edited = std::move(definition);
}

void TreeEditing::add()
{
    int number = 0;
    m_changes.make([&] {
        Statement statement = m_connection.prepare(
            QStringLiteral("INSERT INTO TreeHeads (SetupName, GenDisplayType, IconNo) VALUES (?1, 'Outline', 1)"));
        statement.bind(1, m_setupName).run();
        number = static_cast<int>(m_connection.lastInsertId());
    });
    edit(number);
}

void TreeEditing::addOrFillFirst()
{
    const std::vector<TreeDefinition> trees = definitions();
    if (trees.size() == 1 && !trees.front().headId) {
        take(trees.front());
    } else {
        add();
    }
}

void TreeEditing::edit(int number)
{
    take(definition(number));
}

void TreeEditing::setDisplay(const QString& display)
{
    const std::optional<TreeDisplay> known = FindDisplay(display);
    if (!known) {
        throw Error(QStringLiteral("There is no tree display \"%1\"; choose one of %2.")
                        .arg(display, TreeDisplays().join(QStringLiteral(", "))));
    }
    taken().display = DisplayName(*known);
}

void TreeEditing::setIcon(int icon)
{
    if (!TreeIconFile(icon, m_environment.application)) {
        throw Error(QStringLiteral("There is no tree icon with number %1.").arg(icon));
    }
    taken().icon = icon;
}

bool TreeEditing::mayChooseHead() const
{
    const bool anybody = HasIndividuals(m_connection);
    if (!anybody) {
        m_environment.talk.tell(setupmessages::NoNameIndex());
    }
    return anybody;
}

bool TreeEditing::setHead(int individualId)
{
    if (!mayChooseHead()) {
        return false;
    }
    taken().headName = StoredFullName(m_connection, individualId);
    taken().headId = individualId;
    return true;
}

bool TreeEditing::changed() const
{
    return m_edited && *m_edited != definition(m_edited->number);
}

void TreeEditing::keep()
{
    if (!changed()) {
        return;
    }
    Statement statement =
        m_connection.prepare(QStringLiteral("UPDATE TreeHeads SET TreeHeadId = ?1, TreeHeadName = ?2,"
                                            " GenDisplayType = ?3, IconNo = ?4 WHERE TreeNumber = ?5"));
    const TreeDefinition& tree = taken();
    statement.bind(1, tree.headId).bind(2, tree.headName).bind(3, tree.display).bind(4, tree.icon).bind(5, tree.number);
    m_changes.make([&statement] { statement.run(); });
}

bool TreeEditing::apply()
{
    const bool hasHead = taken().headId.has_value();
    keep();
    if (!hasHead) {
        m_environment.talk.tell(setupmessages::NoTreeHeadYet());
        return false;
    }
    m_edited.reset();
    return true;
}

bool TreeEditing::remove(int number)
{
    const TreeDefinition doomed = definition(number);
    if (definitions().size() == 1) {
        m_environment.talk.tell(setupmessages::LastTreeDefinition());
        return false;
    }
    if (m_environment.talk.ask(setupmessages::DeletingFamilyTree()) != Button::Yes) {
        return false;
    }
    Statement statement = m_connection.prepare(QStringLiteral("DELETE FROM TreeHeads WHERE TreeNumber = ?1"));
    statement.bind(1, doomed.number);
    m_changes.make([&statement] { statement.run(); });
    if (m_edited && m_edited->number == doomed.number) {
        m_edited.reset();
    }
    return true;
}

} // namespace stemwright
