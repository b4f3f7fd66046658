// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/trees/entrytexts.h"

#include "web/html/escape.h"
#include "web/links/treelinks.h"

namespace stemwright
{

namespace
{

/// The person and the families that an entry's items are about; `nowhere` where an entry has none.
struct Subject {
    TreePosition person;
    /// The family whose items the entry shows, and the other one of it.
    TreePosition family;
    TreePosition partner;
    /// The family to which the entry shows the person's relation as a child.
    TreePosition parents;
};

bool IsHidden(const SiteRun& run, TreePosition person)
{
    return person != nowhere && run.privacy.isLeftOut(person);
}

Subject SubjectOf(const SiteRun& run, const TreeWalk& walk, const TreeEntry& entry)
{
    switch (entry.kind) {
    case EntryKind::Individual:
        return {entry.person, nowhere, nowhere, entry.family};
    case EntryKind::Spouse:
        return {entry.person, entry.family, walk.entries()[entry.reachedFrom].person, nowhere};
    case EntryKind::Ancestor:
        break;
    }
    Subject subject{entry.person, nowhere, nowhere, run.tree.parentFamily(entry.person)};
    if (subject.parents != nowhere &&
        (IsHidden(run, run.tree.husband(subject.parents)) || IsHidden(run, run.tree.wife(subject.parents)))) {
        subject.parents = nowhere;
    }
    if (entry.family != nowhere) {
        const TreePosition husband = run.tree.husband(entry.family);
        const TreePosition partner = run.tree.partner(entry.family, entry.person);
        if ((husband == entry.person || husband == nowhere) && !IsHidden(run, partner)) {
            subject.family = entry.family;
            subject.partner = partner;
        }
    }
    return subject;
}

bool IsShown(const SiteRun& run, const Subject& subject, const PublishedItem& item)
{
    return item.inTree && !IsPartOfName(item) && run.mayShow(item, subject.person, subject.partner);
}

/// The text of an item's column for the subject, empty when there is none.
std::string_view Value(const SiteRun& run, const Subject& subject, const PublishedItem& item, std::size_t column)
{
    std::optional<std::string_view> value;
    if (item.table == ItemTable::Individual && subject.person != nowhere) {
        value = run.texts.individual(subject.person, column);
    } else if (item.table == ItemTable::Family && subject.family != nowhere) {
        value = run.texts.family(subject.family, column);
    } else if (item.table == ItemTable::ChildInFamily && subject.parents != nowhere) {
        value = run.texts.childInFamily(subject.parents, subject.person, column);
    }
    return value.value_or(std::string_view());
}

void AppendItem(std::string& page, const PublishedItem& item, std::string_view value, std::string_view place)
{
    AppendAuthorHtml(page, item.beforeItem);
    AppendText(page, value);
    if (!place.empty()) {
        if (!item.beforePlace.empty()) {
            AppendAuthorHtml(page, item.beforePlace);
        } else if (!value.empty()) {
            page.push_back(' ');
        }
        AppendText(page, place);
    }
    AppendAuthorHtml(page, item.afterItem);
}

bool IsStatus(std::string_view value, QLatin1StringView status)
{
    return QLatin1StringView(value.data(), static_cast<qsizetype>(value.size())).compare(status, Qt::CaseInsensitive) ==
           0;
}

/// "Husband", "Wife", "Partner" or "Friend": what the spouse of a family is to the individual.
std::string_view SpouseWord(const SiteRun& run, TreePosition family, TreePosition individual)
{
    const std::string_view status = run.texts.family(family, familycolumn::status).value_or("");
    if (IsStatus(status, QLatin1StringView("Partners"))) {
        return "Partner";
    }
    if (IsStatus(status, QLatin1StringView("Friends"))) {
        return "Friend";
    }
    return run.tree.husband(family) == individual ? "Wife" : "Husband";
}

} // namespace

void AppendEntryItems(std::string& page, const SiteRun& run, const TreeWalk& walk, const TreeEntry& entry,
                      std::string_view separator)
{
    const Subject subject = SubjectOf(run, walk, entry);
    for (const PublishedItem& item : run.texts.items()) {
        if (!IsShown(run, subject, item)) {
            continue;
        }
        const std::string_view value = Value(run, subject, item, item.value);
        const std::string_view place =
            item.kind == ItemKind::Event ? Value(run, subject, item, item.place) : std::string_view();
        if (!value.empty() || !place.empty()) {
            page.append(separator);
            AppendItem(page, item, value, place);
        }
    }
}

std::string EntryName(const SiteRun& run, const TreeEntry& entry)
{
    return entry.person == nowhere ? std::string(unknownPerson) : run.names.displayName(entry.person);
}

void AppendEntryName(std::string& page, const SiteRun& run, const TreeEntry& entry)
{
    if (entry.person == nowhere) {
        AppendText(page, unknownPerson);
    } else {
        page.append(run.names.displayHtml(entry.person));
    }
}

std::string SpouseTitle(const SiteRun& run, const TreeWalk& walk, const TreeEntry& spouse)
{
    const std::string_view ordinal = spouse.families == 2 ? "nd " : spouse.families == 3 ? "rd " : "th ";
    return std::to_string(spouse.families)
        .append(ordinal)
        .append(SpouseWord(run, spouse.family, walk.entries()[spouse.reachedFrom].person));
}

void AppendDuplicateLink(std::string& page, const SiteRun& run, const PublishedTree& tree, const TreeEntry& entry)
{
    page.append(" <A HREF=\"");
    AppendMainEntryAddress(page, run, tree, entry.person);
    page.append(entry.kind == EntryKind::Spouse ? "\">(Duplicate: go to the main entry of this person)</A>"
                                                : "\">(Duplicate: Go to the main entry of this person)</A>");
}

void AppendRepeated(std::string& page, int count, std::string_view text)
{
    for (int time = 0; time < count; ++time) {
        page.append(text);
    }
}

} // namespace stemwright
