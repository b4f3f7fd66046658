// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"

#include <QtCore/QString>

#include <optional>
#include <string>

/// The name under which an individual is shown, searched and kept with pictures and trees: "Surname, Title GivenName
/// Suffix", untrimmed, so that "Smith,  John " has neither title nor suffix. Fails as the engine fails. Stands on the
/// connection.
namespace stemwright
{

/// The columns of Indi that a full name is made from, as AppendFullName() expects them.
inline const QString fullNameColumns = QStringLiteral("Surname, Title, GivenName, Suffix");

/// Whether a full name has the title in it. Albums of earlier releases name nobody by a title: without it, names read
/// "Surname, GivenName Suffix".
enum class NameForm { Full, WithoutTitle };

/// Appends the full name, in UTF-8, of the row at which a statement stands; its columns from `first` on are
/// fullNameColumns.
void AppendFullName(std::string& name, const Statement& row, int first, NameForm form = NameForm::Full);

/// No value when the tree has no individual with this number.
std::optional<QString> FullNameOf(Connection& connection, int individualId);

/// The full name cut to what a text column holds. Throws Error when the tree has no individual with this number.
QString StoredFullName(Connection& connection, int individualId);

bool HasIndividuals(Connection& connection);

} // namespace stemwright
