// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/siterun.h"

namespace stemwright
{

RunSettings RunSettings::of(const Setup& setup, const Clock& clock)
{
    constexpr int highest = std::numeric_limits<std::int16_t>::max();
    return {.generationsOnPage = std::clamp(setup.maxGenerationsOnPage, 1, highest),
            .totalGenerations = std::clamp(setup.maxTotalGenerations, 1, highest),
            .maxPrivacyAge = std::clamp(setup.maxPrivacyAge, 0, highest),
            .protectedPersons = setup.hideLiving ? ProtectedPersons::Hidden : ProtectedPersons::Shown,
            .personalPages = setup.personalPages,
            .currentYear = clock.now().date().year()};
}

bool SiteRun::isOnSite(TreePosition person) const
{
    return std::any_of(trees.begin(), trees.end(),
                       [person](const PublishedTree& each) { return each.walk.mainEntry(person) != noEntry; });
}

bool SiteRun::mayBeNamed(TreePosition person) const
{
    return isOnSite(person) ? !privacy.isLeftOut(person) : !privacy.isHiddenBranch(person);
}

bool SiteRun::mayShow(const PublishedItem& item, TreePosition person, TreePosition partner) const
{
    const auto isProtected = [this](TreePosition each) { return each != nowhere && privacy.isProtected(each); };
    return !item.isPrivate || !(isProtected(person) || (item.table == ItemTable::Family && isProtected(partner)));
}

} // namespace stemwright
