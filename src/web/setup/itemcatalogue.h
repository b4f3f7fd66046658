// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"
#include "web/setup/selecteditem.h"

#include <QtCore/QString>

#include <vector>

/// The catalogue of items that a setup can include: the eight fixed ones, then the facts that the imported family tree
/// holds. Fails as the engine fails. Stands on selecteditem.h.
namespace stemwright
{

/// All items that can be chosen, in their order, each with empty options.
std::vector<SelectedItem> LoadItemCatalogue(Connection& connection);

/// Finds an item by its name or, since two facts may have the same label, by its table and source ("Fam._FA3"); case
/// does not count. Throws Error when there is none, and when there are several.
SelectedItem CatalogueItemNamed(Connection& connection, const QString& typed);

} // namespace stemwright
