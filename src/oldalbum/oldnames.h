// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"

#include <QtCore/QString>

#include <vector>

/// The names that the import of an old album has left in the family file, and where they stand. Fails as the engine
/// fails. Stands on the connection.
namespace stemwright
{

/// A person's place on a picture, as the old album wrote it: texts, which may be empty.
struct OldPlace {
    int pictureId = 0;
    QString x;
    QString y;
};

struct OldName {
    int id = 0;
    QString name;
    /// Its places on pictures that are still in the album, in the order in which they were imported.
    std::vector<OldPlace> places;
    /// Whether a person is marked already on all of those pictures. One who may be somebody else does not count.
    bool marked = false;

    /// The number of pictures on which it stands, on some more than once.
    std::size_t pictureCount() const;
};

/// Whether there are names to match at all.
bool HasOldNames(Connection& connection);

/// All names in the order in which they were imported; none where no album was.
std::vector<OldName> LoadOldNames(Connection& connection);

/// The number of those that stand on pictures but are not marked there yet.
qint64 CountUnmarkedNames(Connection& connection);

} // namespace stemwright
