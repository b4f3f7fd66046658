// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "oldalbum/namematching.h"

#include "oldalbum/messages.h"
#include "store/engine/schema.h"

namespace stemwright
{

namespace
{

/// How well an individual's name fits an old one; the best first.
enum class Fit { Exact, Word, Beginning, Pattern };

Fit FitOf(const QString& foldedName, const QString& foldedOldName)
{
    if (!foldedName.startsWith(foldedOldName)) {
        return Fit::Pattern;
    }
    if (foldedName.trimmed() == foldedOldName.trimmed()) {
        return Fit::Exact;
    }
    return foldedName.at(foldedOldName.size()).isLetterOrNumber() ? Fit::Beginning : Fit::Word;
}

bool IsBlank(const QString& name)
{
    return name.trimmed().isEmpty();
}

/// The rows of all names that begin with an old name, and, where the old name has characters that stand for others in a
/// search, of those that fit it as a pattern.
std::vector<NameRow> Candidates(const NameIndex& individuals, const QString& oldName)
{
    const QString folded = Pattern::folded(oldName);
    const auto beginning = individuals.beginningWith(folded);
    std::vector<NameRow> found(beginning.begin(), beginning.end());
    const Pattern pattern(oldName + u'*');
    if (pattern.endsFreely() && pattern.beginning() == folded) {
        return found;
    }
    for (std::size_t position = 0; position < individuals.size(); ++position) {
        if (individuals.matches(individuals.rowAt(position), pattern)) {
            found.push_back(individuals.rowAt(position));
        }
    }
    return found;
}

std::vector<NameRow> ProposalsFor(const NameIndex& individuals, const QString& oldName)
{
    if (IsBlank(oldName)) {
        return {};
    }

    struct Ranked {
        Fit fit;
        std::size_t position;

        auto operator<=>(const Ranked&) const = default;
    };

    const QString folded = Pattern::folded(oldName);
    std::vector<Ranked> ranked;
    for (const NameRow row : Candidates(individuals, oldName)) {
        ranked.push_back({FitOf(Pattern::folded(individuals.fullName(row)), folded), individuals.positionOf(row)});
    }
    std::sort(ranked.begin(), ranked.end());
    ranked.erase(std::unique(ranked.begin(), ranked.end()), ranked.end());
    std::vector<NameRow> proposals;
    std::transform(ranked.begin(), ranked.end(), std::back_inserter(proposals),
                   [&individuals](const Ranked& one) { return individuals.rowAt(one.position); });
    return proposals;
}

} // namespace

NameMatching::NameMatching(Connection& connection, Talk& talk)
    : m_connection(connection), m_talk(talk), m_names(LoadOldNames(connection)),
      m_individuals(NameIndex::load(connection, NameForm::WithoutTitle)), m_current(m_names.size())
{
}

std::size_t NameMatching::firstUnmarked() const
{
    const auto found = std::find_if(m_names.begin(), m_names.end(), [](const OldName& name) { return !name.marked; });
    return found == m_names.end() ? 0 : static_cast<std::size_t>(found - m_names.begin());
}

QString NameMatching::prompt() const
{
    const bool hasIndex = m_individuals.size() > 0;
    return m_proposals.empty() ? oldalbummessages::NoMatches(current().name, hasIndex)
                               : oldalbummessages::ChooseMatch();
}

bool NameMatching::accept(const ChosenPerson& person)
{
    return mark(person, MarkedBy::Individual);
}

bool NameMatching::accept(NameRow proposal)
{
    return accept(ChosenPerson{m_individuals.id(proposal), m_individuals.fullName(proposal)});
}

bool NameMatching::next()
{
    if (IsBlank(current().name)) {
        passOver();
        return true;
    }
    return mark({0, current().name}, MarkedBy::Name);
}

void NameMatching::cancel()
{
    if (m_talk.ask(oldalbummessages::StopMatching()) == Button::Yes) {
        m_current = m_names.size();
    } else {
        passOver();
    }
}

bool NameMatching::mark(const ChosenPerson& person, MarkedBy marked)
{
    try {
        write(person, marked);
    } catch (const std::exception& exception) {
        m_talk.tell(oldalbummessages::MatchingFailed(current().name, exception));
        return false;
    }
    m_names[m_current].marked = true;
    passOver();
    return true;
}

void NameMatching::write(const ChosenPerson& person, MarkedBy marked)
{
    Transaction transaction(m_connection);
    const QString name = CutToColumn(person.name);
    Statement find = m_connection.prepare(
        marked == MarkedBy::Individual
            ? QStringLiteral("SELECT 1 FROM Pic2Person WHERE PicId = ?1 AND PersId = ?2")
            : QStringLiteral("SELECT 1 FROM Pic2Person WHERE PicId = ?1 AND Name = ?3 COLLATE names"));
    Statement insert = m_connection.prepare(
        QStringLiteral("INSERT INTO Pic2Person (PicId, PersId, Name, X, Y) VALUES (?1, ?2, ?3, ?4, ?5)"));
    for (const OldPlace& place : current().places) {
        find.bind(1, place.pictureId);
        marked == MarkedBy::Individual ? find.bind(2, person.id) : find.bind(3, name);
        const bool stands = find.step();
        find.reset();
        if (!stands) {
            insert.bind(1, place.pictureId).bind(2, person.id).bind(3, name);
            insert.bind(4, place.x).bind(5, place.y).run();
        }
    }
    transaction.commit();
}

void NameMatching::goTo(std::size_t name)
{
    m_current = name;
    m_proposals = ProposalsFor(m_individuals, current().name);
}

void NameMatching::passOver()
{
    if (m_current + 1 < m_names.size()) {
        goTo(m_current + 1);
        return;
    }
    m_current = m_names.size();
    m_talk.tell(oldalbummessages::MatchingCompleted());
}

} // namespace stemwright
