// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/personmarks.h"
#include "album/picturerecord.h"
#include "base/environment.h"
#include "dates/datepicker.h"

/// One picture record while it is added or edited, with its pending picture, date and marks, whoever drives it: the
/// record editor of a window, the command line or a test. Nothing reaches the family file before apply(), which writes
/// record and marks in one transaction; whatever was not applied is lost with the object. Failures: Error for values
/// that do not fit, SQLite::Exception for the family file; both leave everything as it was. Stands on the record and
/// its marks.
namespace stemwright
{

class PictureEditing
{
public:
    PictureEditing(Connection& connection, Environment& environment);

    /// Starts a new record. `current` is the picture to which cancel() returns, if any is shown.
    void AddPicRec(std::optional<int> current = std::nullopt);
    /// Opens the record of a picture. Throws Error when there is none with this number.
    void EditPicRec(int pictureId);

    /// The path of the chosen picture file; empty when none was chosen.
    const QString& chosenPath() const { return m_chosenPath; }

    /// The record as it stands in the editor.
    const PictureRecord& record() const { return m_record; }

    const PersonMarks& marks() const { return m_marks; }

    void setTitle(const QString& title) { m_record.title = title; }

    void setDescription(const QString& description) { m_record.description = description; }

    void setPlace(const QString& place) { m_record.place = place; }

    void setDate(const PickedDate& date);

    void setNames(NamePlacement names) { m_record.names = names; }

    /// Takes the picture from a file, after the questions about its size. False, with nothing changed, when the user
    /// does not go on or the file is no fit picture, which the user was told.
    bool choosePicture(const QString& path);
    /// Takes the picture out of the record.
    void removePicture();

    /// Switches between arrows and rectangles. False when rectangles would lose their sizes and the user minds.
    bool RectangleOnOff(PointerTool tool);

    /// The place that was typed as "X,Y" or "X,Y,WIDTH,HEIGHT", checked against the picture and the pointer tool.
    MarkPlace typedPlace(const QString& typed) const;

    /// Marks an individual of the tree, or any name. False when the user does not want her or him twice. Throws Error
    /// when the tree has no such individual.
    bool addIndividual(int individualId, const std::optional<MarkPlace>& place);
    bool addName(const QString& name, const std::optional<MarkPlace>& place);

    PersonMarks& pendingMarks() { return m_marks; }

    /// Writes the record and its marks. Returns the picture's number.
    int apply();
    /// Discards everything that was not applied and returns the picture to show again: the edited one, or the one that
    /// was shown before a new record was begun, if any.
    std::optional<int> cancel();

private:
    void open(const PictureRecord& record);
    void requireMarksWithinNewPicture() const;

    Connection& m_connection;
    Environment& m_environment;
    PictureRecord m_record;
    PersonMarks m_marks;
    std::optional<PictureContent> m_content;
    QString m_chosenPath;
    std::optional<int> m_returnTo;
    PointerTool m_storedTool = PointerTool::Arrow;
};

} // namespace stemwright
