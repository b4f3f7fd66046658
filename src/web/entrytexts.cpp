// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/entrytexts.h"

#include "web/escape.h"
#include "web/treelinks.h"

namespace stemwright
{

namespace
{

/// The persons and the family that an entry's items are about; `nowhere` where an entry has none.
struct Subject {
    TreePosition person;
    /// The other one of the family, when the entry is a spouse.
    TreePosition partner;
    TreePosition family;
    EntryKind kind;
};

bool IsShown(const SiteRun& run, const Subject& subject, const PublishedItem& item)
{
    if (!item.inTree || IsPartOfName(item) || (item.table == ItemTable::Family && subject.partner == nowhere)) {
        return false;
    }
    const bool isProtected = (subject.person != nowhere && run.privacy.isProtected(subject.person)) ||
                             (item.table == ItemTable::Family && run.privacy.isProtected(subject.partner));
    return !item.isPrivate || !isProtected;
}

/// The text of an item's column for the subject, empty when there is none.
std::string_view Value(const SiteRun& run, const Subject& subject, const PublishedItem& item, std::size_t column)
{
    std::optional<std::string_view> value;
    if (item.table == ItemTable::Individual && subject.person != nowhere) {
        value = run.texts.individual(subject.person, column);
    } else if (item.table == ItemTable::Family) {
        value = run.texts.family(subject.family, column);
    } else if (item.table == ItemTable::ChildInFamily && subject.kind == EntryKind::Individual &&
               subject.family != nowhere) {
        value = run.texts.childInFamily(subject.family, subject.person, column);
    }
    return value.value_or(std::string_view());
}

void AppendItem(std::string& page, const PublishedItem& item, std::string_view value, std::string_view place)
{
    page.push_back(' ');
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

} // namespace

void AppendEntryItems(std::string& page, const SiteRun& run, const TreeWalk& walk, const TreeEntry& entry)
{
    const Subject subject{entry.person,
                          entry.kind == EntryKind::Spouse ? walk.entries()[entry.reachedFrom].person : nowhere,
                          entry.family, entry.kind};
    for (const PublishedItem& item : run.texts.items()) {
        if (!IsShown(run, subject, item)) {
            continue;
        }
        const std::string_view value = Value(run, subject, item, item.value);
        const std::string_view place =
            item.kind == ItemKind::Event ? Value(run, subject, item, item.place) : std::string_view();
        if (!value.empty() || !place.empty()) {
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

void AppendDuplicateLink(std::string& page, const SiteRun& run, const PublishedTree& tree, const TreeEntry& entry)
{
    page.append(" <A HREF=\"");
    AppendMainEntryAddress(page, run, tree, entry.person);
    page.append(entry.kind == EntryKind::Individual ? "\">(Duplicate: Go to the main entry of this person)</A>"
                                                    : "\">(Duplicate: go to the main entry of this person)</A>");
}

void AppendRepeated(std::string& page, int count, std::string_view text)
{
    for (int time = 0; time < count; ++time) {
        page.append(text);
    }
}

} // namespace stemwright
