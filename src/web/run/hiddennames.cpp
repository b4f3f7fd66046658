// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/hiddennames.h"

#include "web/run/siterun.h"

#include <algorithm>
#include <numeric>

namespace stemwright
{

namespace
{

/// Between given name and surname there is room for further names, a title, "von der".
constexpr std::size_t furthestApart = 4;

/// One letter is an initial, or one of the few surnames that stand in many other words.
constexpr qsizetype shortestTellingName = 2;

quint64 PairOf(quint64 given, quint64 surname)
{
    return HashedFurther(HashedFurther(hashStart, given), surname);
}

QStringList NameWords(const SiteRun& run, TreePosition person, std::size_t column)
{
    return Words(run.texts.individual(person, column).value_or(""));
}

bool IsParticle(const QString& word)
{
    static const QStringList particles =
        QStringLiteral("af al av ben bin d da das de del della den der des di do dos du el ibn la las le les los o of"
                       " ten ter the und van vom von y zu zum zur")
            .split(u' ');
    return particles.contains(word);
}

QStringList GivenNameWords(const SiteRun& run, TreePosition person)
{
    return NameWords(run, person, individualcolumn::givenName) + NameWords(run, person, individualcolumn::alias);
}

/// The words of a name by which its bearer is told; particles where there is nothing else.
QStringList TellingWords(QStringList words)
{
    const QStringList all = words;
    words.removeIf(IsParticle);
    return words.isEmpty() ? all : words;
}

} // namespace

HiddenNames::HiddenNames(const SiteRun& run)
{
    if (run.settings.protectedPersons == ProtectedPersons::Shown) {
        return;
    }
    for (TreePosition person = 0; person < run.tree.individuals(); ++person) {
        if (!run.mayBeNamed(person)) {
            add(run, person);
        }
    }
}

void HiddenNames::add(const SiteRun& run, TreePosition person)
{
    const QStringList given = NameWords(run, person, individualcolumn::givenName);
    const QStringList alias = NameWords(run, person, individualcolumn::alias);
    const QStringList surname = NameWords(run, person, individualcolumn::surname);
    addWhole(alias);
    if (given.isEmpty() || surname.isEmpty()) {
        addWhole(given + surname);
    }
    QStringList surnames = TellingWords(surname);
    for (const TreePosition family : run.tree.spouseFamilies(person)) {
        if (const TreePosition partner = run.tree.partner(family, person); partner != nowhere) {
            surnames += TellingWords(NameWords(run, partner, individualcolumn::surname));
        }
    }
    for (const QString& first : TellingWords(given + alias)) {
        for (const QString& second : surnames) {
            addPair(first, second);
        }
    }
}

void HiddenNames::addPair(const QString& given, const QString& surname)
{
    const quint64 first = HashOf(given);
    const quint64 second = HashOf(surname);
    m_words << first << second;
    m_pairs << PairOf(first, second);
    addRow(given + surname);
    addRow(surname + given);
}

/// A name that stands whole in one of the places for its parts is one to be found among other words as well: its last
/// word may be the surname.
void HiddenNames::addWhole(const QStringList& words)
{
    if (words.isEmpty()) {
        return;
    }
    quint64 whole = hashStart;
    for (const QString& word : words) {
        whole = HashedFurther(whole, HashOf(word));
    }
    m_wholeNames << whole;
    const QStringList telling = TellingWords(words);
    for (const QString& word : telling.first(telling.size() - 1)) {
        addPair(word, telling.back());
    }
    if (const QString row = words.join(QString()); IsUnparted(row) && row.size() >= shortestTellingName) {
        addRow(row);
    }
}

void HiddenNames::addRow(const QString& row)
{
    m_rows << HashOf(row);
    if (row.size() > m_longestRow && IsUnparted(row)) {
        m_longestRow = row.size();
    }
}

bool HiddenNames::isNamedInRow(const QString& row) const
{
    for (qsizetype begin = 0; begin < row.size(); ++begin) {
        quint64 hash = hashStart;
        for (qsizetype end = begin; end < std::min(begin + m_longestRow, row.size()); ++end) {
            hash = HashedFurther(hash, row[end].unicode());
            if (m_rows.contains(hash)) {
                return true;
            }
        }
    }
    return false;
}

bool HiddenNames::isFullyNamedIn(const TextWords& text, Reach reach) const
{
    const std::vector<TextWord>& words = text.words;
    for (std::size_t first = 0; first < words.size(); ++first) {
        if (m_rows.contains(words[first].hash)) {
            return true;
        }
        if (!m_words.contains(words[first].hash)) {
            continue;
        }
        const std::size_t end = std::min(first + furthestApart + 2, words.size());
        for (std::size_t second = first + 1; second < end; ++second) {
            const bool together = reach == Reach::Text || words[first].clause == words[second].clause;
            if ((together && m_pairs.contains(PairOf(words[first].hash, words[second].hash))) ||
                ((together || second == first + 1) &&
                 m_pairs.contains(PairOf(words[second].hash, words[first].hash)))) {
                return true;
            }
        }
    }
    return isNamedInRow(text.unparted);
}

bool HiddenNames::isAnyNamedIn(const TextWords& text) const
{
    const quint64 whole = std::accumulate(text.words.begin(), text.words.end(), hashStart,
                                          [](quint64 hash, TextWord word) { return HashedFurther(hash, word.hash); });
    return m_wholeNames.contains(whole) || isFullyNamedIn(text, Reach::Text);
}

bool HiddenNames::isAnyNamedIn(std::string_view text) const
{
    return !isEmpty() && isAnyNamedIn(TextWords::of(text));
}

bool HiddenNames::isAnyNamedInFact(std::string_view text) const
{
    return !isEmpty() && isFullyNamedIn(TextWords::of(text), Reach::Clause);
}

bool HiddenNames::isAnyNamedIn(std::string_view text, const SiteRun& run,
                               const std::vector<TreePosition>& inPicture) const
{
    if (isEmpty()) {
        return false;
    }
    QStringList hidden;
    QStringList open;
    for (const TreePosition person : inPicture) {
        (run.mayBeNamed(person) ? open : hidden) += GivenNameWords(run, person);
    }
    const TextWords found = TextWords::of(text);
    return isAnyNamedIn(found) || std::any_of(hidden.begin(), hidden.end(), [&](const QString& name) {
               const auto isName = [hash = HashOf(name)](const TextWord& word) { return word.hash == hash; };
               return name.size() >= shortestTellingName && !open.contains(name) &&
                      (std::any_of(found.words.begin(), found.words.end(), isName) || found.unparted.contains(name));
           });
}

} // namespace stemwright
