// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "oldalbum/participants.h"

#include <QtCore/QStringList>

namespace stemwright
{

std::vector<Participant> SplitParticipants(const QString& participants)
{
    constexpr qsizetype fieldsOfOne = 3;
    QStringList fields = participants.split(u'|');
    // Nothing ends what stands behind the last bar.
    fields.removeLast();
    std::vector<Participant> persons;
    for (qsizetype field = 0; field + fieldsOfOne <= fields.size(); field += fieldsOfOne) {
        persons.push_back({fields[field], fields[field + 1], fields[field + 2]});
    }
    return persons;
}

} // namespace stemwright
