// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/sitetexts.h"

#include <string>

/// How persons are called on a site. All texts are plain UTF-8, not yet escaped. Nothing here fails. Stands on the
/// texts of a run.
namespace stemwright
{

/// Stands for a person whose name or whose identity is not known.
inline constexpr std::string_view unknownPerson = "<Unknown>";

/// Stands for a person who must not be named.
inline constexpr std::string_view privatePerson = "<Private>";

/// The parts of a name that a setup shows in its trees; given name and surname when it chose none.
class NameParts
{
public:
    explicit NameParts(const SiteTexts& texts);

    /// "Title GivenName Surname, Suffix", without the parts that are empty or not shown.
    std::string displayName(TreePosition individual) const;

    /// "Surname, Title GivenName Suffix", likewise: the name in the index of names and its sort key.
    std::string indexName(TreePosition individual) const;

private:
    const SiteTexts& m_texts;
    bool m_title = false;
    bool m_givenName = false;
    bool m_surname = false;
    bool m_suffix = false;
};

/// Whether an item is a part of the name itself, as opposed to an alias, which follows the name.
bool IsPartOfName(const PublishedItem& item);

/// The years of birth and death as "(1819-1901)", "(1819-)" or "(-1901)"; empty when neither is known.
std::string LifeYears(const SiteTexts& texts, TreePosition individual);

/// The text without blanks at its ends and with one blank for several.
std::string Collapsed(std::string_view utf8);

} // namespace stemwright
