// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/siterun.h"

/// The pieces that the lines of all tree displays are made of. Stands on the run.
namespace stemwright
{

/// Appends the items that follow the name, each after `separator`: those that the setup shows in trees, in their order,
/// without the private ones of protected persons. A spouse's line has the family's items as well, a child's those of
/// the link to its parents. Among ancestors the father, or else the mother, has the items of the parents' family.
void AppendEntryItems(std::string& page, const SiteRun& run, const TreeWalk& walk, const TreeEntry& entry,
                      std::string_view separator = " ");

/// The entry's name, plain UTF-8.
std::string EntryName(const SiteRun& run, const TreeEntry& entry);

/// Appends the entry's name as element text.
void AppendEntryName(std::string& page, const SiteRun& run, const TreeEntry& entry);

/// "2nd Wife", "3rd Partner": what the second or a later spouse is to the individual.
std::string SpouseTitle(const SiteRun& run, const TreeWalk& walk, const TreeEntry& spouse);

/// Appends " <A HREF=...>(Duplicate: ...)</A>", which leads to the main entry of the same person.
void AppendDuplicateLink(std::string& page, const SiteRun& run, const PublishedTree& tree, const TreeEntry& entry);

/// The indentation of a line grows with its level up to here only; a line of descent of thousands would otherwise be
/// made of hardly anything else.
inline constexpr int deepestIndentation = 250;

/// Appends `count` times `text`.
void AppendRepeated(std::string& page, int count, std::string_view text);

} // namespace stemwright
