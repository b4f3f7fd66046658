// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/engine/connection.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <utility>
#include <vector>

/// Rows of the family file that the user keeps under names, such as web site setups and picture list queries: finding
/// them, and the list in which they are made, cloned, renamed and deleted. Names are told apart by the rule of
/// base/text.h. Stands on the connection and the talk port.
namespace stemwright
{

/// Where rows of one kind stand.
struct NamedRowKind {
    /// What users call one, for example "web site setup".
    QString caption;
    QString table;
    QString nameColumn;
    /// In characters.
    int maxNameLength;
};

/// A row and its name as stored.
struct NamedRow {
    QString name;
    qint64 row = 0;
};

std::optional<NamedRow> FindNamedRow(Connection& connection, const NamedRowKind& kind, const QString& name);

/// The same, for a row that must be there. Throws Error when it is not.
NamedRow RequireNamedRow(Connection& connection, const NamedRowKind& kind, const QString& name);

/// Inserts a copy of a row, column by column by their names, whatever columns a later release may have added. The
/// columns in `others` get the values that stand there.
void CloneRow(Connection& connection, const QString& table, qint64 sourceRow,
              const std::vector<std::pair<QString, QString>>& others);

/// What is said while such rows are managed.
struct NamedRowTexts {
    Message (*noName)();
    Message (*duplicateName)(const QString& name);
    Message (*confirmDelete)(const QString& name);
    InputRequest (*newName)();
    /// Why nothing was done, as a whole sentence.
    Message (*failure)(const QString& reason);
};

/// The list of all rows of one kind. Every procedure that returns a truth value is a catch boundary and one action: it
/// tells the user once why it did nothing, and returns false. Blanks around a typed name do not count.
class NamedRowManager
{
public:
    NamedRowManager(const NamedRowManager&) = delete;
    NamedRowManager& operator=(const NamedRowManager&) = delete;
    virtual ~NamedRowManager() = default;

    /// All rows by name.
    QStringList names();

    /// The row that is chosen in the list; empty when there is none. At first the first one of the list.
    const QString& selected() const { return m_selected; }

    /// Whether that row was just made.
    bool isNew() const { return m_isNew; }

    /// Makes a row with the default values, and selects it.
    bool create(const QString& typedName);
    /// Makes a copy of a row, and selects it.
    bool clone(const QString& source, const QString& typedName);

    /// Asks for the new name of a row and gives it. An empty answer does nothing.
    bool rename(const QString& name);
    bool rename(const QString& name, const QString& typedName);

    /// Deletes a row after asking and selects the next one, or the first one after the last.
    bool remove(const QString& name);

protected:
    NamedRowManager(Connection& connection, Environment& environment, NamedRowKind kind, NamedRowTexts texts);

    Connection& connection() { return m_connection; }

    Environment& environment() { return m_environment; }

    /// Chooses a row. Throws Error when there is none with this name.
    void selectRow(const QString& name);

    // What differs by kind. These are called within the action's transaction with a name that was checked.
    virtual void writeNew(const QString& name) = 0;
    virtual void writeClone(const NamedRow& source, const QString& name) = 0;
    /// Gives the row its new name; overridden where more than the row has it.
    virtual void giveName(const NamedRow& row, const QString& name);
    virtual void erase(const NamedRow& row);
    /// Throws Error for a name that no row of this kind can have, beyond the checks that hold for all.
    virtual void requireUsableName(const QString& name) const;

private:
    bool isFree(const QString& name);
    template <typename Action>
    bool perform(Action action);
    template <typename Write>
    bool give(const QString& typedName, Write write);
    template <typename Write>
    bool make(const QString& typedName, Write write);

    Connection& m_connection;
    Environment& m_environment;
    NamedRowKind m_kind;
    NamedRowTexts m_texts;
    QString m_selected;
    bool m_isNew = false;
};

} // namespace stemwright
