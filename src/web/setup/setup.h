// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"
#include "store/file/namedrows.h"
#include "web/setup/selecteditem.h"

#include <QtCore/QString>

#include <optional>
#include <vector>

/// A web site setup as it is read from the family file: its WebSiteInfo row, its tree definitions and its items.
/// Changing setups is setupmanager.h's. Fails as the engine fails. Stands on
/// store/file/namedrows.h.
namespace stemwright
{

/// One tree that a setup draws.
struct TreeDefinition {
    /// TreeHeads.TreeNumber, which names the tree's pages.
    int number = 0;
    /// The individual at the head; no value until one was chosen.
    std::optional<int> headId;
    QString headName;
    /// "Outline", "Descendant Tree", "CollapsiTree" or "Ancestor Tree".
    QString display;
    /// 1 and up.
    int icon = 1;

    bool operator==(const TreeDefinition&) const = default;
};

struct Setup {
    QString name;
    QString siteTitle;
    QString titleStory;
    QString homePageName;
    bool standalone = true;
    bool personalPages = false;
    int pageStyle = 0;
    /// Colours as stored: numbers of the form RRGGBB.
    int cellForeground = 0;
    int cellBackground = 0;
    int maxGenerationsOnPage = 4;
    int maxTotalGenerations = 99;
    int maxPrivacyAge = 90;
    bool hideLiving = false;
    QString folder;
    bool picturesForThisTreeOnly = true;
    QString emblemFileType;
    /// The WebSiteInfo row, for reading the emblem's bytes.
    qint64 row = 0;

    std::vector<TreeDefinition> trees;
    std::vector<SelectedItem> items;
};

/// Where a setup stands in WebSiteInfo, and its name as stored there.
using SetupRow = NamedRow;

/// Setups as rows that the user keeps under names.
const NamedRowKind& SetupKind();

/// The condition for the rows of a setup in the tables that hold its items and its trees, whose name is the parameter
/// with this number: they have the setup's name by the rule of base/text.h.
QString RowsOfSetup(int parameter);

/// Looks a setup up by its name, in which case and blanks at the end do not count. Throws Error when there is none.
SetupRow RequireSetup(Connection& connection, const QString& name);

/// Reads the setup with this name; no value when there is none.
std::optional<Setup> LoadSetup(Connection& connection, const QString& name);

/// The tree definitions of a setup in their order.
std::vector<TreeDefinition> LoadTreeDefinitions(Connection& connection, const QString& setupName);

/// The items of a setup in their order.
std::vector<SelectedItem> LoadSelectedItems(Connection& connection, const QString& setupName);

} // namespace stemwright
