// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/pictureediting.h"
#include "album/testpictures.h"
#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

/// A family file with two individuals and no picture, and the editor of its picture records.
class AlbumWorld : public TestWorld
{
public:
    AlbumWorld() : connection(newFamilyFile().connection()), editing(connection, environment)
    {
        connection.execute(QStringLiteral("INSERT INTO Indi (Id, Surname, GivenName, Title, Suffix) VALUES "
                                          "(7, 'Smith', 'John', '', ''), (9, 'Žižka', 'Jan', 'Sir', 'jr.')"));
    }

    /// Stores a picture of 400 x 300 pixels whose persons are marked with this tool, and opens it in the editor.
    int openPicture(PointerTool tool)
    {
        editing.AddPicRec();
        EXPECT_TRUE(editing.choosePicture(write(QStringLiteral("Beach.JPG"), JpegOf(CornersPicture({400, 300})))));
        EXPECT_TRUE(editing.RectangleOnOff(tool));
        const int id = editing.apply();
        editing.EditPicRec(id);
        return id;
    }

    /// The marks in the family file, a line each, by their rows; Null shows as NULL.
    QStringList storedMarks()
    {
        Statement marks = connection.prepare(
            QStringLiteral("SELECT PicId || ' ' || quote(PersId) || ' ' || quote(Name) || ' ' || quote(X) || ' ' || "
                           "quote(Y) || ' ' || quote(Width) || ' ' || quote(Height) FROM Pic2Person ORDER BY rowid"));
        QStringList lines;
        while (marks.step()) {
            lines << marks.text(0).remove(u'\'');
        }
        return lines;
    }

    /// One value of the first picture's row.
    QString stored(const char* expression)
    {
        Statement value = connection.prepare(
            QStringLiteral("SELECT %1 FROM AlbumTOC ORDER BY PicId").arg(QString::fromLatin1(expression)));
        return value.step() ? value.text(0) : QStringLiteral("(no row)");
    }

    Connection& connection;
    PictureEditing editing;
};

} // namespace stemwright::test
