// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/fullname.h"

#include "base/error.h"
#include "store/engine/schema.h"

namespace stemwright
{

void AppendFullName(std::string& name, const Statement& row, int first, NameForm form)
{
    name.append(row.utf8(first)).append(", ");
    if (form == NameForm::Full) {
        name.append(row.utf8(first + 1)).append(" ");
    }
    name.append(row.utf8(first + 2)).append(" ").append(row.utf8(first + 3));
}

std::optional<QString> FullNameOf(Connection& connection, int individualId)
{
    Statement select = connection.prepare(QStringLiteral("SELECT %1 FROM Indi WHERE Id = ?1").arg(fullNameColumns));
    if (!select.bind(1, individualId).step()) {
        return std::nullopt;
    }
    std::string name;
    AppendFullName(name, select, 0);
    return QString::fromStdString(name);
}

QString StoredFullName(Connection& connection, int individualId)
{
    const std::optional<QString> whole = FullNameOf(connection, individualId);
    if (!whole) {
        throw Error(QStringLiteral("The family tree has no individual with the ID %1.").arg(individualId));
    }
    return CutToColumn(*whole);
}

bool HasIndividuals(Connection& connection)
{
    return connection.prepare(QStringLiteral("SELECT 1 FROM Indi LIMIT 1")).step();
}

} // namespace stemwright
