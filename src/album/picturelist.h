// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "store/engine/connection.h"

#include <optional>
#include <vector>

/// The pictures that a query selected, with the one that is current: what a window browses. Nothing here reads a
/// picture. Deleting fails as the engine fails, with nothing changed. Stands on picture records.
namespace stemwright
{

class PictureList
{
public:
    /// The pictures' numbers in the order of the list; the first one becomes current.
    PictureList(QString queryName, std::vector<int> pictureIds);

    const std::vector<int>& pictureIds() const { return m_ids; }

    /// The current picture's number; no value in an empty list.
    std::optional<int> current() const;

    /// Makes a picture current. False, and the current one stays, when the list does not contain it.
    bool goTo(qint64 pictureId);

    /// Asks for a picture's number and makes that picture current. False when it stays at the current one.
    bool find(Talk& talk);

    /// Asks whether to delete the current record and deletes it with its marks; the next one becomes current, or the
    /// last. False when nothing was deleted.
    bool removeCurrent(Connection& connection, Talk& talk);

private:
    QString m_queryName;
    std::vector<int> m_ids;
    std::size_t m_current = 0;
};

/// Asks whether to delete a record and deletes it with its marks. False when the answer is No.
bool DeletePicture(Connection& connection, int pictureId, Talk& talk);

} // namespace stemwright
