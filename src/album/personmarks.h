// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/markplace.h"
#include "base/talk.h"
#include "store/engine/connection.h"

#include <QtCore/QString>

#include <optional>
#include <vector>

/// The persons marked on pictures: read for pages, or of one picture as a pending batch, whose changes are held until
/// write() and lost with the object.
/// Failures: Error, SQLite::Exception. Stands on the connection.
namespace stemwright
{

/// The size of the rectangle, in pixels, with which a person is marked before the user gave it another one.
inline constexpr QSize defaultPointerSize{48, 64};

struct PersonMark {
    /// The individual's number; 0 for a name that was typed.
    int personId = 0;
    QString name;
    /// No place for a name that is not marked in the picture.
    std::optional<MarkPlace> place;
    /// The row in the family file; 0 for a mark that it does not hold yet.
    qint64 row = 0;
    /// What is pending of a mark that has a row.
    bool isRenamed = false;
    bool isMoved = false;
};

/// Reads the marks of one picture after another, each picture's in the order in which they were added.
class PictureMarks
{
public:
    explicit PictureMarks(Connection& connection);

    std::vector<PersonMark> of(int pictureId);

private:
    Statement m_select;
};

class PersonMarks
{
public:
    /// Replaces all that is pending by the marks that the family file holds for a picture; none for number 0.
    void LoadPersonList(Connection& connection, int pictureId);

    /// The marks in the order of their names. Marks are numbered from 0 by their position here.
    const std::vector<PersonMark>& all() const { return m_marks; }

    /// Whether anything is pending.
    bool changed() const { return m_changed; }

    /// Adds a name, after asking when the individual features in the picture already. False when the answer is No.
    /// Throws Error for a name that is empty or too long.
    bool add(PersonMark mark, Talk& talk);

    /// Gives a mark another name and, where `place` is given, another place.
    void change(std::size_t mark, const QString& name, const std::optional<MarkPlace>& place);

    void remove(std::size_t mark);

    /// Writes what is pending to the picture with this number, and gives all its marks the sizes that the tool asks
    /// for: rectangles without a size get the default one, arrows have the size 0 x 0. Whatever else the family file
    /// holds stays as it was written. Must be called within a transaction; afterwards load the list again.
    void write(Connection& connection, int pictureId, PointerTool tool) const;

private:
    void sort();

    std::vector<PersonMark> m_marks;
    std::vector<qint64> m_removedRows;
    bool m_changed = false;
};

} // namespace stemwright
