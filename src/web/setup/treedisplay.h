// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringList>

#include <cstdint>
#include <optional>
#include <string_view>

/// The displays in which a tree can be published, and what they are called. Nothing here fails. Stands on nothing.
namespace stemwright
{

enum class TreeDisplay : std::uint8_t { Outline, DescendantTree, CollapsiTree, AncestorTree };

/// The names of all displays, as tree definitions store them, in the order in which they are offered.
const QStringList& TreeDisplays();

/// As tree definitions store it: "Descendant Tree".
QString DisplayName(TreeDisplay display);

/// With which the names of the display's pages begin: "DescTree".
std::string_view FilePrefix(TreeDisplay display);

/// Finds a display by its name, without regard to case; no value for an unknown name.
std::optional<TreeDisplay> FindDisplay(const QString& name);

} // namespace stemwright
