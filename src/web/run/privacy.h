// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/sitetexts.h"

/// Who is protected as possibly living, and who may be named on a site at all. Nothing here fails. Stands on the texts
/// of a run.
namespace stemwright
{

/// The privacy test. Protected is who has neither a death date nor a death place (Null, not empty) and a birth date
/// that ends in a year from which no more than `maxPrivacyAge` calendar years have passed.
bool IsPrivacyProtected(std::optional<std::string_view> birthDate, std::optional<std::string_view> deathDate,
                        std::optional<std::string_view> deathPlace, int maxPrivacyAge, int currentYear);

/// What a site does with protected persons: shows them without their private items, or leaves them out.
enum class ProtectedPersons { Shown, Hidden };

class Privacy
{
public:
    Privacy(const FamilyTree& tree, const SiteTexts& texts, ProtectedPersons handling, int maxPrivacyAge,
            int currentYear);

    bool isProtected(TreePosition individual) const { return m_protected[individual]; }

    /// Whether the walk leaves the person out, with spouse and children or with all descendants: a protected person, or
    /// a descendant of one of whom nothing tells that he or she is not alive.
    bool isLeftOut(TreePosition individual) const { return m_hides && m_leftOut[individual]; }

    /// Whether someone who is on no page of the site must not be named on a relative's page either: a protected person,
    /// or any descendant of one.
    bool isHiddenBranch(TreePosition individual) const { return m_hides && m_hiddenBranch[individual]; }

    /// Whether the person is not protected only because the birth date does not end in its year, as in "1990/91".
    bool isDoubtful(TreePosition individual) const { return m_hides && m_doubtful[individual]; }

private:
    void hideDescendants(const FamilyTree& tree);
    void leaveOut(const FamilyTree& tree, const SiteTexts& texts);

    bool m_hides;
    std::vector<bool> m_protected;
    /// Known only where protected persons are hidden.
    std::vector<bool> m_hiddenBranch;
    std::vector<bool> m_leftOut;
    std::vector<bool> m_doubtful;
};

} // namespace stemwright
