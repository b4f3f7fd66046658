// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/siterun.h"

/// The names of tree pages and personal pages, the tree icons, and the links into trees. Stands on the run.
namespace stemwright
{

/// The display of a tree definition. One whose display is unknown, as family files of earlier releases may have it, is
/// an Outline.
TreeDisplay DisplayOf(const TreeDefinition& definition);

/// A tree that is on the site from now on.
PublishedTree MakePublishedTree(const SiteRun& run, const TreeDefinition& definition, TreeWalk walk);

/// "Outline_3_17.html": the page that this individual owns.
std::string TreePageName(const PublishedTree& tree, int pageOwnerId);

/// The tree's first page.
std::string FirstPageName(const PublishedTree& tree, const FamilyTree& family);

/// "PersPage_42.html"
std::string PersonalPageName(int individualId);

/// Appends the same.
void AppendPersonalPageName(std::string& page, int individualId);

/// Appends the page of the main entry of a person of this tree, with the entry's anchor: "Outline_3_17.html#42".
void AppendMainEntryAddress(std::string& page, const SiteRun& run, const PublishedTree& tree, TreePosition person);

/// Appends one icon link for each tree that the person is in, to the main entry there.
void AppendTreeLinks(std::string& page, const SiteRun& run, TreePosition person);

} // namespace stemwright
