// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "index/nameindex.h"
#include "index/namesearch.h"
#include "oldalbum/oldnames.h"

/// The matching of an old album's names with the individuals of the tree, whoever drives it: a window, the command line
/// or a test. It goes through the names one after the other and proposes individuals for each. What is decided is
/// written as person marks at once, name by name, each in a transaction of its own, so that stopping loses nothing; and
/// a mark that stands already is not written twice. Reading fails as the engine fails. Stands on the old names and the
/// index of names.
namespace stemwright
{

class NameMatching
{
public:
    /// Reads the names and all individuals. No name is current.
    NameMatching(Connection& connection, Talk& talk);

    const std::vector<OldName>& names() const { return m_names; }

    /// The individuals to whom names can be proposed, under names without titles.
    const NameIndex& individuals() const { return m_individuals; }

    /// The first name that is not marked yet; the first of all when every one is.
    std::size_t firstUnmarked() const;

    /// Goes to a name, to go on from there to the last one. There must be such a name.
    void begin(std::size_t name) { goTo(name); }

    bool isRunning() const { return m_current < m_names.size(); }

    // While it is running:

    const OldName& current() const { return m_names[m_current]; }

    std::size_t position() const { return m_current; }

    /// The individuals whose names begin like the current name, each once: first those who have exactly that name, then
    /// those in whose name a word ends with it, then the others. Nobody is proposed for a blank name.
    const std::vector<NameRow>& proposals() const { return m_proposals; }

    /// What the user is asked to do.
    QString prompt() const;

    /// Marks a person at all places of the current name, under the name that he was chosen by, and goes on to the next
    /// name. False, with the name still current, when that could not be written; the user was told.
    bool accept(const ChosenPerson& person);
    /// The same for one of the proposals.
    bool accept(NameRow proposal);
    /// Marks the places of the current name with the name alone, and goes on. A blank name is passed over.
    bool next();
    /// Goes on without writing anything for the current name.
    void passOver();
    /// Asks whether to stop. Otherwise the current name is passed over.
    void cancel();

private:
    enum class MarkedBy { Individual, Name };

    bool mark(const ChosenPerson& person, MarkedBy marked);
    void write(const ChosenPerson& person, MarkedBy marked);
    void goTo(std::size_t name);

    Connection& m_connection;
    Talk& m_talk;
    std::vector<OldName> m_names;
    NameIndex m_individuals;
    std::size_t m_current;
    std::vector<NameRow> m_proposals;
};

} // namespace stemwright
