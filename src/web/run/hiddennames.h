// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "index/familytree.h"

#include <QtCore/QSet>
#include <QtCore/QString>

#include <string_view>
#include <vector>

/// Finds the names of hidden persons in texts that their author typed: names that stand for no individual of the tree,
/// titles, places and descriptions of pictures. It errs on the side of hiding: a text that names an ancestor's living
/// namesake is taken to name the namesake. What names nobody to a program (a nickname, an inflected name) it cannot
/// find. Nothing here fails. Stands on the run.
namespace stemwright
{

struct SiteRun;

class HiddenNames
{
public:
    /// Knows nobody.
    HiddenNames() = default;

    explicit HiddenNames(const SiteRun& run);

    /// Whether the text (UTF-8) names a hidden person: given name and surname close to each other, in any order and
    /// letter case, or just what there is of a name that has one part only.
    bool isAnyNamedIn(std::string_view text) const;

    /// Whether the text of a picture names a hidden person: as above, or by the given name alone of a hidden person
    /// whom the picture shows, unless somebody beside him who may be named has the name as well.
    bool isAnyNamedIn(std::string_view text, const SiteRun& run, const std::vector<TreePosition>& inPicture) const;

private:
    void add(const QStringList& givenNames, const QStringList& surnames);

    /// The pairs of given name and surname, each pair in both orders as "first second" and as one word, for scripts
    /// that do not part them; and names of one part.
    QSet<QString> m_pairs;
    QSet<QString> m_wholeNames;
};

} // namespace stemwright
