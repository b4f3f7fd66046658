// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/treelinks.h"

#include "web/escape.h"

#include <array>

namespace stemwright
{

namespace
{

struct Display {
    QLatin1StringView name;
    std::string_view prefix;
};

constexpr std::array<Display, 4> displays = {{{QLatin1StringView("Outline"), "Outline"},
                                              {QLatin1StringView("Descendant Tree"), "DescTree"},
                                              {QLatin1StringView("CollapsiTree"), "CTree"},
                                              {QLatin1StringView("Ancestor Tree"), "AncTree"}}};

/// What a display is called in the links to its entries.
QLatin1StringView DisplayName(std::string_view prefix)
{
    const auto display =
        std::find_if(displays.begin(), displays.end(), [prefix](const Display& each) { return each.prefix == prefix; });
    return display == displays.end() ? QLatin1StringView() : display->name;
}

} // namespace

std::optional<std::string> FilePrefix(const QString& display)
{
    for (const Display& each : displays) {
        if (each.name.compare(display, Qt::CaseInsensitive) == 0) {
            return std::string(each.prefix);
        }
    }
    return std::nullopt;
}

std::string TreePageName(const PublishedTree& tree, int pageOwnerId)
{
    return tree.prefix + '_' + std::to_string(tree.definition.number) + '_' + std::to_string(pageOwnerId) + ".html";
}

std::string FirstPageName(const PublishedTree& tree, const FamilyTree& family)
{
    return TreePageName(tree, family.individualId(tree.walk.entries().front().person));
}

std::string TreeIcon(const TreeDefinition& tree)
{
    constexpr int twoDigits = 10;
    const int number = std::max(tree.icon - 1, 0);
    return std::string("graphics/icons_tree_") + (number < twoDigits ? "0" : "") + std::to_string(number) + ".gif";
}

std::string PersonalPageName(int individualId)
{
    return "PersPage_" + std::to_string(individualId) + ".html";
}

std::string MainEntryAddress(const SiteRun& run, const PublishedTree& tree, TreePosition person)
{
    return TreePageName(tree, run.tree.individualId(tree.walk.pageOwner(person))) + '#' +
           std::to_string(run.tree.individualId(person));
}

void AppendTreeLinks(std::string& page, const SiteRun& run, TreePosition person)
{
    for (const PublishedTree& tree : run.trees) {
        if (tree.walk.mainEntry(person) == noEntry) {
            continue;
        }
        page.append("<A HREF=\"").append(MainEntryAddress(run, tree, person));
        page.append("\" TARGET=\"frmCenter\" TITLE=\"This person's entry in ");
        page.append(DisplayName(tree.prefix).latin1()).append(" of '");
        AppendText(page, tree.headName);
        page.append("'\"><IMG SRC=\"").append(TreeIcon(tree.definition));
        page.append("\" ALIGN=\"ABSMIDDLE\" VSPACE=\"0\" BORDER=\"0\"></A>");
    }
}

} // namespace stemwright
