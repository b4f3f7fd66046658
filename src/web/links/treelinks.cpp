// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/links/treelinks.h"

#include "web/html/escape.h"
#include "web/setup/treeediting.h"

#include <array>
#include <charconv>
#include <limits>

namespace stemwright
{

namespace
{

/// What follows the address in a link to an entry; the same for all entries of a tree.
std::string LinkEnd(const PublishedTree& tree)
{
    std::string end("\" TARGET=\"frmCenter\" TITLE=\"This person's entry in ");
    end.append(DisplayName(tree.display).toStdString()).append(" of '");
    AppendText(end, tree.headName);
    end.append("'\"><IMG SRC=\"").append(tree.icon);
    return end + "\" ALIGN=\"ABSMIDDLE\" VSPACE=\"0\" BORDER=\"0\"></A>";
}

void AppendNumber(std::string& page, int number)
{
    std::array<char, std::numeric_limits<int>::digits10 + 2> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    page.append(digits.data(), static_cast<std::size_t>(end - digits.data()));
}

void AppendTreePageName(std::string& page, const PublishedTree& tree, int pageOwnerId)
{
    page.append(tree.pageNameStart);
    AppendNumber(page, pageOwnerId);
    page.append(".html");
}

} // namespace

TreeDisplay DisplayOf(const TreeDefinition& definition)
{
    return FindDisplay(definition.display).value_or(TreeDisplay::Outline);
}

PublishedTree MakePublishedTree(const SiteRun& run, const TreeDefinition& definition, TreeWalk walk)
{
    const TreeDisplay display = DisplayOf(definition);
    const TreePosition head = walk.entries().front().person;
    const std::string stored = TidyHeadName(definition);
    const bool mayTellStored = !run.names.isWithheldFrom(head);
    PublishedTree tree{.definition = definition,
                       .display = display,
                       .headName = mayTellStored && !stored.empty() ? stored : run.names.indexName(head),
                       .pageNameStart =
                           std::string(FilePrefix(display)) + '_' + std::to_string(definition.number) + '_',
                       .icon = TreeIconName(definition.icon, run.application).toStdString(),
                       .linkEnd = {},
                       .walk = std::move(walk)};
    tree.linkEnd = LinkEnd(tree);
    return tree;
}

std::string TreePageName(const PublishedTree& tree, int pageOwnerId)
{
    std::string name;
    AppendTreePageName(name, tree, pageOwnerId);
    return name;
}

std::string FirstPageName(const PublishedTree& tree, const FamilyTree& family)
{
    return TreePageName(tree, family.individualId(tree.walk.entries().front().person));
}

std::string PersonalPageName(int individualId)
{
    std::string name;
    AppendPersonalPageName(name, individualId);
    return name;
}

void AppendPersonalPageName(std::string& page, int individualId)
{
    page.append("PersPage_");
    AppendNumber(page, individualId);
    page.append(".html");
}

void AppendMainEntryAddress(std::string& page, const SiteRun& run, const PublishedTree& tree, TreePosition person)
{
    AppendTreePageName(page, tree, run.tree.individualId(tree.walk.pageOwner(person)));
    page.push_back('#');
    AppendNumber(page, run.tree.individualId(person));
}

void AppendTreeLinks(std::string& page, const SiteRun& run, TreePosition person)
{
    for (const PublishedTree& tree : run.trees) {
        if (tree.walk.mainEntry(person) != noEntry) {
            page.append("<A HREF=\"");
            AppendMainEntryAddress(page, run, tree, person);
            page.append(tree.linkEnd);
        }
    }
}

} // namespace stemwright
