// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/matchdialogue.h"

#include "cli/listing.h"
#include "index/fullname.h"
#include "index/messages.h"

namespace stemwright
{

namespace
{

/// What is shown of a long list; whoever is not there can be looked up.
constexpr std::size_t mostShown = 20;

class Dialogue
{
public:
    Dialogue(NameMatching& matching, CommandLine& line) : m_matching(matching), m_line(line) {}

    void run()
    {
        while (m_matching.isRunning()) {
            showName();
            const std::size_t name = m_matching.position();
            while (m_matching.isRunning() && m_matching.position() == name) {
                if (!obey()) {
                    return;
                }
            }
        }
    }

private:
    void showName()
    {
        const OldName& name = m_matching.current();
        m_line.out() << QStringLiteral("\n%1 of %2: %3\n")
                            .arg(m_matching.position() + 1)
                            .arg(m_matching.names().size())
                            .arg(OnOneLine(name.name));
        m_offered = m_matching.proposals();
        m_lookedUp = false;
        showOffered();
    }

    void showOffered()
    {
        if (!m_offered.empty()) {
            Listing listing({QStringLiteral("No."), QStringLiteral("Name"), QStringLiteral("Birth Date"),
                             QStringLiteral("Death Date"), QStringLiteral("Person ID")});
            const NameIndex& individuals = m_matching.individuals();
            for (std::size_t i = 0; i < std::min(mostShown, m_offered.size()); ++i) {
                const NameRow row = m_offered[i];
                listing.row({static_cast<int>(i + 1), individuals.fullName(row), individuals.birthDate(row),
                             individuals.deathDate(row), individuals.id(row)});
            }
            listing.print(m_line);
        }
        if (m_offered.size() > mostShown) {
            m_line.out() << QStringLiteral("and %1 more\n").arg(m_offered.size() - mostShown);
        }
        m_line.out().flush();
    }

    /// Does what is typed; false at the end of the input.
    bool obey()
    {
        const std::optional<QString> answer = m_line.environment().talk.input(
            {{},
             QStringLiteral("Number to accept, n for next, c to cancel, or a part of a name to look up"),
             QStringLiteral("n")});
        if (!answer) {
            return false;
        }
        const QString typed = answer->trimmed();
        bool isNumber = false;
        const uint number = typed.toUInt(&isNumber);
        if (isNumber && number >= 1 && number <= m_offered.size()) {
            accept(m_offered[number - 1]);
        } else if (typed.compare(u"n", Qt::CaseInsensitive) == 0) {
            Require(m_matching.next());
        } else if (typed.compare(u"c", Qt::CaseInsensitive) == 0) {
            m_matching.cancel();
        } else {
            lookUp(typed);
        }
        return true;
    }

    /// Who was looked up keeps the name that the index of names has.
    void accept(NameRow row)
    {
        const int id = m_matching.individuals().id(row);
        Require(m_lookedUp ? m_matching.accept(ChosenPerson{id, StoredFullName(m_line.file().connection(), id)})
                           : m_matching.accept(row));
    }

    void lookUp(const QString& text)
    {
        const NameIndex& individuals = m_matching.individuals();
        const Pattern anywhere = NameCriteria(text).anywhere;
        std::vector<NameRow> found;
        for (std::size_t position = 0; position < individuals.size(); ++position) {
            if (individuals.matches(individuals.rowAt(position), anywhere)) {
                found.push_back(individuals.rowAt(position));
            }
        }
        if (found.empty()) {
            m_line.environment().talk.tell(indexmessages::NoMatch());
            return;
        }
        m_offered = std::move(found);
        m_lookedUp = true;
        showOffered();
    }

    NameMatching& m_matching;
    CommandLine& m_line;
    std::vector<NameRow> m_offered;
    bool m_lookedUp = false;
};

} // namespace

void MatchOnTerminal(NameMatching& matching, CommandLine& line)
{
    matching.begin(matching.firstUnmarked());
    Dialogue(matching, line).run();
}

} // namespace stemwright
