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
    AlbumWorld() : editing(newFamilyFile().connection(), environment)
    {
        execute("INSERT INTO Indi (Id, Surname, GivenName, Title, Suffix) VALUES "
                "(7, 'Smith', 'John', '', ''), (9, 'Žižka', 'Jan', 'Sir', 'jr.')");
    }

    /// Stores a picture of 400 x 300 pixels whose persons are marked with this tool, and opens it in the editor.
    int openPicture(PointerTool tool)
    {
        editing.AddPicRec();
        EXPECT_TRUE(editing.choosePicture(write("Beach.JPG", JpegOf(CornersPicture({400, 300})))));
        EXPECT_TRUE(editing.RectangleOnOff(tool));
        const int id = editing.apply();
        editing.EditPicRec(id);
        return id;
    }

    /// The marks in the family file, a line each, by their rows.
    QStringList storedMarks()
    {
        return Rows(connection(), "SELECT PicId, PersId, Name, X, Y, Width, Height FROM Pic2Person ORDER BY rowid",
                    " ");
    }

    /// Expressions over the first picture's row, with "|" between them.
    QString stored(const QString& expressions)
    {
        return column("SELECT " + expressions + " FROM AlbumTOC ORDER BY PicId").value(0);
    }

    PictureEditing editing;
};

} // namespace stemwright::test
