// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/personmarks.h"

/// The entry of one name for a picture, new or one of the list's: what the name box holds and to which individual it
/// belongs. What is accepted goes into the pending marks. Stands on the marks.
namespace stemwright
{

class NameEntry
{
public:
    /// What to say above the name box.
    QString hint() const;

    const QString& name() const { return m_name; }

    /// The individual to whom a new name belongs; 0 for one that was typed.
    int personId() const { return m_personId; }

    /// The mark whose name is being edited; no value while a new name is entered.
    std::optional<std::size_t> edited() const { return m_edited; }

    /// Takes over what the box holds. The name of an individual may be changed and still be that individual's; an
    /// emptied box begins anew.
    void type(const QString& text);
    void pick(int individualId, const QString& fullName);
    /// Begins to edit a name of the list.
    void edit(const PersonMarks& marks, std::size_t mark);
    /// Forgets what was entered.
    void clear();

    /// Puts the name into the marks, with a place when the pointer is shown. False when the user does not want the
    /// individual twice; the entry is then as before. Throws Error for a name that is empty or too long.
    bool accept(PersonMarks& marks, const std::optional<MarkPlace>& place, Talk& talk);

private:
    QString m_name;
    int m_personId = 0;
    std::optional<std::size_t> m_edited;
};

} // namespace stemwright
