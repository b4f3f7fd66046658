// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Old albums of any size, as Jet 4.0 databases. There is no library that writes those, so that the rows are put onto
/// new pages behind those of a small album, which lends its table and loses its own rows. Throws stemwright::Error for
/// an album that has no such table. Stands on the Jet reader.
namespace stemwright::bench
{

struct OldAlbumSize {
    int pictures = 0;
    /// Persons on all pictures together; some of them, about a tenth as many as there are pictures, are the same ones
    /// again and again.
    int persons = 0;
};

/// The whole file, the same bytes for the same numbers. `lender` is the path of the small album.
QByteArray GenerateOldAlbum(const QString& lender, OldAlbumSize size);

} // namespace stemwright::bench
