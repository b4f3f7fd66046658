// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/namedrows.h"

#include "base/error.h"
#include "base/text.h"
#include "store/engine/engineerror.h"
#include "store/engine/tablesql.h"
#include "store/tables/tableshape.h"

namespace stemwright
{

namespace
{

void RequireStorableName(const NamedRowKind& kind, const QString& name)
{
    const auto isControl = [](QChar character) { return character.category() == QChar::Other_Control; };
    if (std::any_of(name.begin(), name.end(), isControl)) {
        throw Error(
            QStringLiteral("The name of a %1 cannot hold line breaks or other control characters.").arg(kind.caption));
    }
    if (name.size() > kind.maxNameLength) {
        throw Error(QStringLiteral("The name of a %1 can have at most %2 characters; this one has %3.")
                        .arg(kind.caption)
                        .arg(kind.maxNameLength)
                        .arg(name.size()));
    }
}

} // namespace

std::optional<NamedRow> FindNamedRow(Connection& connection, const NamedRowKind& kind, const QString& name)
{
    Statement statement =
        connection.prepare(QStringLiteral("SELECT %1, rowid FROM %2 ORDER BY rowid").arg(kind.nameColumn, kind.table));
    while (statement.step()) {
        if (QString stored = statement.text(0); SameName(stored, name)) {
            return NamedRow{std::move(stored), statement.integer64(1)};
        }
    }
    return std::nullopt;
}

NamedRow RequireNamedRow(Connection& connection, const NamedRowKind& kind, const QString& name)
{
    if (std::optional<NamedRow> found = FindNamedRow(connection, kind, name)) {
        return *std::move(found);
    }
    throw Error(QStringLiteral("There is no %1 named \"%2\".").arg(kind.caption, name));
}

void CloneRow(Connection& connection, const QString& table, qint64 sourceRow,
              const std::vector<std::pair<QString, QString>>& others)
{
    QStringList columns;
    QStringList values;
    for (const QString& column : ColumnsOf(connection, table)) {
        const auto other = std::find_if(others.begin(), others.end(), [&column](const auto& entry) {
            return column.compare(entry.first, Qt::CaseInsensitive) == 0;
        });
        columns << QuotedName(column);
        values << (other == others.end() ? QuotedName(column)
                                         : QStringLiteral("?%1").arg(std::distance(others.begin(), other) + 2));
    }
    Statement statement = connection.prepare(QStringLiteral("INSERT INTO %1 (%2) SELECT %3 FROM %1 WHERE rowid = ?1")
                                                 .arg(table, columns.join(u','), values.join(u',')));
    statement.bind(1, sourceRow);
    for (std::size_t index = 0; index < others.size(); ++index) {
        statement.bind(static_cast<int>(index) + 2, others[index].second);
    }
    statement.run();
}

NamedRowManager::NamedRowManager(Connection& connection, Environment& environment, NamedRowKind kind,
                                 NamedRowTexts texts)
    : m_connection(connection), m_environment(environment), m_kind(std::move(kind)), m_texts(texts),
      m_selected(names().value(0))
{
}

QStringList NamedRowManager::names()
{
    Statement statement = m_connection.prepareJet(
        QStringLiteral("SELECT %1 FROM %2 ORDER BY %1 ASC").arg(m_kind.nameColumn, m_kind.table));
    QStringList names;
    while (statement.step()) {
        names << statement.text(0);
    }
    return names;
}

void NamedRowManager::selectRow(const QString& name)
{
    m_selected = RequireNamedRow(m_connection, m_kind, name).name;
    m_isNew = false;
}

/// Runs an action; false when it fails, after telling why, and when it returns false itself.
template <typename Action>
bool NamedRowManager::perform(Action action)
{
    try {
        return action();
    } catch (const std::exception& exception) {
        m_environment.talk.tell(m_texts.failure(ReasonText(exception)));
        return false;
    }
}

/// Whether a row can get this name; otherwise the user was told why not. Throws Error for a name that none can have.
bool NamedRowManager::isFree(const QString& name)
{
    if (name.isEmpty()) {
        m_environment.talk.tell(m_texts.noName());
        return false;
    }
    if (FindNamedRow(m_connection, m_kind, name)) {
        m_environment.talk.tell(m_texts.duplicateName(name));
        return false;
    }
    RequireStorableName(m_kind, name);
    requireUsableName(name);
    return true;
}

/// Does what gives a row this name and selects it, if the name is free.
template <typename Write>
bool NamedRowManager::give(const QString& typedName, Write write)
{
    const QString name = typedName.trimmed();
    return perform([&] {
        if (!isFree(name)) {
            return false;
        }
        Transaction transaction(m_connection);
        write(name);
        transaction.commit();
        m_selected = name;
        m_isNew = false;
        return true;
    });
}

/// The same for a name that a new row gets.
template <typename Write>
bool NamedRowManager::make(const QString& typedName, Write write)
{
    if (!give(typedName, write)) {
        return false;
    }
    m_isNew = true;
    return true;
}

bool NamedRowManager::create(const QString& typedName)
{
    return make(typedName, [this](const QString& name) { writeNew(name); });
}

bool NamedRowManager::clone(const QString& source, const QString& typedName)
{
    return make(typedName,
                [&](const QString& name) { writeClone(RequireNamedRow(m_connection, m_kind, source), name); });
}

bool NamedRowManager::rename(const QString& name)
{
    const QString typed = m_environment.talk.input(m_texts.newName()).value_or(QString());
    return !typed.trimmed().isEmpty() && rename(name, typed);
}

bool NamedRowManager::rename(const QString& name, const QString& typedName)
{
    return give(typedName,
                [&](const QString& newName) { giveName(RequireNamedRow(m_connection, m_kind, name), newName); });
}

bool NamedRowManager::remove(const QString& name)
{
    return perform([&] {
        const NamedRow row = RequireNamedRow(m_connection, m_kind, name);
        if (m_environment.talk.ask(m_texts.confirmDelete(row.name)) != Button::Yes) {
            return false;
        }
        const qsizetype place = names().indexOf(row.name);
        Transaction transaction(m_connection);
        erase(row);
        const QStringList remaining = names();
        transaction.commit();
        m_isNew = false;
        m_selected = remaining.value(place < remaining.size() ? place : 0);
        return true;
    });
}

void NamedRowManager::giveName(const NamedRow& row, const QString& name)
{
    Statement statement = m_connection.prepare(
        QStringLiteral("UPDATE %1 SET %2 = ?1 WHERE rowid = ?2").arg(m_kind.table, m_kind.nameColumn));
    statement.bind(1, name).bind(2, row.row).run();
}

void NamedRowManager::erase(const NamedRow& row)
{
    Statement statement = m_connection.prepare(QStringLiteral("DELETE FROM %1 WHERE rowid = ?1").arg(m_kind.table));
    statement.bind(1, row.row).run();
}

void NamedRowManager::requireUsableName(const QString&) const {}

} // namespace stemwright
