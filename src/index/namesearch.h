// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "index/nameindex.h"

/// The search for a person by name, whoever drives it: the text box, the buttons and the current row of a window
/// without the window. Nothing here fails. Stands on the name index.
namespace stemwright
{

/// What a text looks for: a beginning, in which the first blank stands for two so that "Smith, John" finds the untitled
/// "Smith,  John", and the text anywhere in the name.
struct NameCriteria {
    explicit NameCriteria(const QString& text);

    Pattern beginning;
    Pattern anywhere;
};

/// The person that was picked.
struct ChosenPerson {
    int id = 0;
    QString name;
};

class NameSearch
{
public:
    /// The index must hold somebody and outlive the search. The first row is current.
    explicit NameSearch(NameIndex& index);

    NameRow currentRow() const { return m_current; }

    /// Whether somebody was found by what was typed last, or chosen since. Otherwise the current row is that of before.
    bool fits() const { return m_fits; }

    /// What the text box shows.
    const QString& text() const { return m_text; }

    bool canFindNext() const { return m_canFindNext; }

    bool canFindPrevious() const { return m_canFindPrevious; }

    /// The user typed: the row follows the text. Goes to the first name with this beginning; stays where it is when
    /// there is none. An apostrophe and what follows it do not count; nothing at all leads to the first row.
    void setText(const QString& text);

    /// The user chose a row: the text follows the row.
    void goTo(NameRow row);

    /// Sorts as NameIndex::sortBy() does; the current row stays current.
    void sortBy(NameColumn column) { m_index.sortBy(column); }

    /// Asks what to find and goes to the first name with this beginning, or else to the first name that contains it.
    /// False when nothing was asked for, or nothing found, of which the user is told.
    bool find(Talk& talk);
    /// Goes on to the next or back to the previous match of what was to be found last. False when there is none, of
    /// which the user is told.
    bool findNext(Talk& talk);
    bool findPrevious(Talk& talk);

    ChosenPerson chosen() const { return {m_index.id(m_current), m_index.fullName(m_current)}; }

private:
    NameIndex& m_index;
    NameRow m_current;
    QString m_text;
    QString m_lastText;
    bool m_fits = true;
    bool m_canFindNext = false;
    bool m_canFindPrevious = false;
};

} // namespace stemwright
