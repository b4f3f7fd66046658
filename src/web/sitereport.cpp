// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/sitereport.h"

#include "web/messages.h"

#include <set>

namespace stemwright
{

namespace
{

QString NameAndNumber(const SiteRun& run, TreePosition person)
{
    return QStringLiteral("%1 (%2)")
        .arg(QString::fromStdString(run.names.displayName(person)))
        .arg(run.tree.individualId(person));
}

} // namespace

void TellMissingFamilies(const SiteRun& run, Talk& talk)
{
    constexpr std::size_t mostMessages = 5;
    std::set<TreePosition> missing;
    for (const PublishedTree& tree : run.trees) {
        for (const TreePosition family : tree.walk.missingFamilies()) {
            if (missing.insert(family).second && missing.size() <= mostMessages) {
                talk.tell(webmessages::MissingFamilyRecord(run.tree.familyId(family)));
            }
        }
    }
    if (missing.size() > mostMessages) {
        talk.tell(webmessages::MoreMissingFamilyRecords(missing.size() - mostMessages));
    }
}

void TellProtectedHeads(const SiteRun& run, Talk& talk)
{
    if (run.settings.protectedPersons != ProtectedPersons::Hidden) {
        return;
    }
    QStringList heads;
    for (const PublishedTree& tree : run.trees) {
        const TreePosition head = tree.walk.entries().front().person;
        if (const QString name = NameAndNumber(run, head); run.privacy.isProtected(head) && !heads.contains(name)) {
            heads << name;
        }
    }
    if (!heads.isEmpty()) {
        talk.tell(webmessages::ProtectedHeads(heads));
    }
}

void TellPossiblyLiving(const SiteRun& run, Talk& talk)
{
    QStringList persons;
    for (TreePosition person = 0; person < run.tree.individuals(); ++person) {
        if (run.privacy.isDoubtful(person) && run.isOnSite(person)) {
            persons << NameAndNumber(run, person);
        }
    }
    if (!persons.isEmpty()) {
        talk.tell(webmessages::PossiblyLiving(persons));
    }
}

void TellFactsLeftOut(const std::vector<TreePosition>& persons, const SiteRun& run, Talk& talk)
{
    QStringList names;
    for (const TreePosition person : persons) {
        names << NameAndNumber(run, person);
    }
    if (!names.isEmpty()) {
        talk.tell(webmessages::FactsLeftOut(names));
    }
}

} // namespace stemwright
