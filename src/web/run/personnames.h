// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/privacy.h"
#include "web/setup/setup.h"

#include <array>
#include <string>

/// How persons are called on a site. All texts are plain UTF-8, not yet escaped. Nothing here fails. Stands on the
/// texts of a run.
namespace stemwright
{

/// Stands for a person whose name or whose identity is not known.
inline constexpr std::string_view unknownPerson = "<Unknown>";

/// Stands for a person who must not be named, or of whose name nothing may be told.
inline constexpr std::string_view privatePerson = "<Private>";

/// Title, given name, surname and suffix are the first columns of an individual.
inline constexpr std::size_t partCount = individualcolumn::suffix + 1;

/// The parts of a name that a setup shows in its trees; given name and surname when it chose none. Parts that it marks
/// private are left out of the names of protected persons.
class NameParts
{
public:
    NameParts(const SiteTexts& texts, const Privacy& privacy, std::size_t individuals);

    /// "Title GivenName Surname, Suffix", without the parts that are empty or not shown.
    std::string displayName(TreePosition individual) const;

    /// The display name as element text. The names of all individuals are kept ready, since every page of a relative
    /// needs them again.
    std::string_view displayHtml(TreePosition individual) const
    {
        return std::string_view(m_html).substr(m_htmlBegin[individual],
                                               m_htmlBegin[individual + 1] - m_htmlBegin[individual]);
    }

    /// "Surname, GivenName Suffix, Title", likewise: the name in the index of names and its sort key.
    std::string indexName(TreePosition individual) const;

    /// Whether a part of the person's name must not be told. A name of the person that stands elsewhere in the family
    /// file holds it.
    bool isWithheldFrom(TreePosition individual) const;

private:
    /// A column of the name, and what stands before it unless it comes first.
    struct Part {
        std::size_t column;
        std::string_view separator;
    };

    std::string joined(TreePosition individual, const std::array<Part, partCount>& parts) const;

    const SiteTexts& m_texts;
    const Privacy& m_privacy;
    /// By the number of the part's column.
    std::array<bool, partCount> m_shown{};
    std::array<bool, partCount> m_private{};
    bool m_anyPrivate = false;
    /// The names in the encoding of the pages, one after another, and where each begins.
    std::string m_html;
    std::vector<std::size_t> m_htmlBegin;
};

/// Whether an item is a part of the name itself, as opposed to an alias, which follows the name.
bool IsPartOfName(const PublishedItem& item);

/// The years of birth and death as "(1819-1901)", "(1819-)" or "(-1901)"; empty when neither is known.
std::string LifeYears(const SiteTexts& texts, TreePosition individual);

/// A name that begins with the surname, tidied: without blanks too many and, where the surname or the given name is not
/// known, without the comma between them.
std::string TidyName(std::string_view utf8);

/// The head's name as the tree definition has it, tidied: "Windsor, Elizabeth".
std::string TidyHeadName(const TreeDefinition& tree);

} // namespace stemwright
