// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/picturelist.h"

#include "album/messages.h"
#include "album/picturerecord.h"

#include <QtCore/QRegularExpression>

namespace stemwright
{

PictureList::PictureList(QString queryName, std::vector<int> pictureIds)
    : m_queryName(std::move(queryName)), m_ids(std::move(pictureIds))
{
}

std::optional<int> PictureList::current() const
{
    return m_ids.empty() ? std::nullopt : std::optional(m_ids[m_current]);
}

bool PictureList::goTo(qint64 pictureId)
{
    const auto found = std::find(m_ids.begin(), m_ids.end(), pictureId);
    if (found == m_ids.end()) {
        return false;
    }
    m_current = static_cast<std::size_t>(found - m_ids.begin());
    return true;
}

bool PictureList::find(Talk& talk)
{
    static const QRegularExpression wholeNumber(QStringLiteral("^[+-]?\\d+$"));
    while (true) {
        const QString answer = talk.input(albummessages::SearchByPictureId()).value_or(QString()).trimmed();
        if (answer.isEmpty()) {
            return false;
        }
        if (wholeNumber.match(answer).hasMatch()) {
            const bool found = goTo(answer.toLongLong());
            if (!found) {
                talk.tell(albummessages::NoSuchPicture(m_queryName, answer));
            }
            return found;
        }
        if (talk.ask(albummessages::IllegalPictureId()) != Button::Retry) {
            return false;
        }
    }
}

bool PictureList::removeCurrent(Connection& connection, Talk& talk)
{
    if (m_ids.empty() || !DeletePicture(connection, m_ids[m_current], talk)) {
        return false;
    }
    m_ids.erase(m_ids.begin() + static_cast<std::ptrdiff_t>(m_current));
    m_current = m_ids.empty() ? 0 : std::min(m_current, m_ids.size() - 1);
    return true;
}

bool DeletePicture(Connection& connection, int pictureId, Talk& talk)
{
    if (talk.ask(albummessages::ConfirmRecordDelete()) != Button::Yes) {
        return false;
    }
    RemovePictureRecord(connection, pictureId);
    return true;
}

} // namespace stemwright
