// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "index/familytree.h"
#include "web/run/textwords.h"

#include <QtCore/QSet>
#include <QtCore/QStringList>

#include <string_view>
#include <vector>

/// Finds the names of hidden persons in texts that their author typed: names that stand for no individual of the tree,
/// titles, places and descriptions of pictures, facts of other persons. It errs on the side of hiding: a text that
/// names an ancestor's living namesake is taken to name the namesake. What names nobody to a program (a nickname that
/// the tree does not have, an inflected name) it cannot find. Nothing here fails. Stands on the run.
namespace stemwright
{

struct SiteRun;

class HiddenNames
{
public:
    /// Knows nobody.
    HiddenNames() = default;

    /// Knows everybody whom the site must not name, with aliases, and with the surnames of spouses beside the own one.
    explicit HiddenNames(const SiteRun& run);

    /// Whether the text (UTF-8) names a hidden person: a given name and a surname close to each other, in any order and
    /// letter case, or, in scripts that do not part words, in a row; or nothing but what there is of a name that has
    /// one part only.
    bool isAnyNamedIn(std::string_view text) const;

    /// Whether a date, a place or another text of a fact does. Places are full of names: here both have to stand
    /// between the same commas, or as "Surname, Given", since "St Mary, Preston" is no Mary Preston.
    bool isAnyNamedInFact(std::string_view text) const;

    /// Whether the text of a picture names a hidden person: as above, or by the given name alone of a hidden person
    /// whom the picture shows, unless somebody beside him who may be named has the name as well.
    bool isAnyNamedIn(std::string_view text, const SiteRun& run, const std::vector<TreePosition>& inPicture) const;

private:
    /// Where given name and surname may stand.
    enum class Reach { Text, Clause };

    bool isEmpty() const { return m_pairs.isEmpty() && m_wholeNames.isEmpty(); }

    void add(const SiteRun& run, TreePosition person);
    void addPair(const QString& given, const QString& surname);
    void addWhole(const QStringList& words);
    void addRow(const QString& row);
    bool isFullyNamedIn(const TextWords& text, Reach reach) const;
    bool isAnyNamedIn(const TextWords& text) const;
    bool isNamedInRow(const QString& row) const;

    // Names are kept as the hashes of their words. With as many bits as these no two names of a tree will ever be
    // mistaken for each other; if they were, a text too many would be left out.

    /// The words that may be half of a name.
    QSet<quint64> m_words;
    /// The pairs of given name and surname, in this order, and the same written in a row without a blank.
    QSet<quint64> m_pairs;
    QSet<quint64> m_rows;
    QSet<quint64> m_wholeNames;
    /// Of the rows in scripts that do not part words, in UTF-16 units.
    qsizetype m_longestRow = 0;
};

} // namespace stemwright
