// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/nameentry.h"

#include "album/messages.h"
#include "store/engine/schema.h"

namespace stemwright
{

QString NameEntry::hint() const
{
    return m_edited ? albummessages::editTheName : albummessages::enterNewName;
}

void NameEntry::type(const QString& text)
{
    m_name = text;
    if (text.isEmpty()) {
        m_personId = 0;
    }
}

void NameEntry::pick(int individualId, const QString& fullName)
{
    m_name = CutToColumn(fullName);
    m_personId = individualId;
}

void NameEntry::edit(const PersonMarks& marks, std::size_t mark)
{
    m_edited = mark;
    m_name = marks.all().at(mark).name;
    m_personId = marks.all().at(mark).personId;
}

void NameEntry::clear()
{
    *this = NameEntry();
}

bool NameEntry::accept(PersonMarks& marks, const std::optional<MarkPlace>& place, Talk& talk)
{
    if (m_edited) {
        marks.change(*m_edited, m_name, place);
    } else if (!marks.add({m_personId, m_name, place}, talk)) {
        return false;
    }
    clear();
    return true;
}

} // namespace stemwright
