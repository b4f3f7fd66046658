// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/personmarks.h"

#include "album/messages.h"
#include "base/error.h"
#include "base/text.h"
#include "store/engine/schema.h"

#include <cmath>
#include <limits>

namespace stemwright
{

namespace
{

/// Numbers stand in the family file as text, and a name without a place has empty ones. Old albums have fractions, with
/// the comma of their user's country.
std::optional<int> NumberOf(QString text)
{
    bool isNumber = false;
    const double number = std::nearbyint(text.replace(u',', u'.').toDouble(&isNumber));
    const bool fits = std::abs(number) <= std::numeric_limits<int>::max();
    return isNumber && fits ? std::optional(static_cast<int>(number)) : std::nullopt;
}

PersonMark MarkOf(const Statement& row)
{
    PersonMark mark{row.integer(1), row.text(0), std::nullopt, row.integer64(6)};
    const auto x = NumberOf(row.text(2));
    const auto y = NumberOf(row.text(3));
    if (x && y) {
        mark.place = MarkPlace{*x, *y, NumberOf(row.text(4)), NumberOf(row.text(5))};
    }
    return mark;
}

QString TextOf(std::optional<int> number)
{
    return number ? QString::number(*number) : QString();
}

/// Binds the place from the parameter `first` on. What it does not have is bound as Null.
void BindPlace(Statement& write, int first, const std::optional<MarkPlace>& place)
{
    const MarkPlace stands = place.value_or(MarkPlace{});
    write.bind(first, place ? TextOf(stands.x) : QString()).bind(first + 1, place ? TextOf(stands.y) : QString());
    write.bind(first + 2, TextOf(stands.width)).bind(first + 3, TextOf(stands.height));
}

void WriteSizes(Connection& connection, int pictureId, PointerTool tool)
{
    if (tool == PointerTool::Arrow) {
        connection
            .prepare(QStringLiteral("UPDATE Pic2Person SET Width = '0', Height = '0' WHERE PicId = ?1 AND "
                                    "(Width IS NOT '0' OR Height IS NOT '0')"))
            .bind(1, pictureId)
            .run();
        return;
    }
    connection
        .prepare(QStringLiteral("UPDATE Pic2Person SET Width = coalesce(nullif(Width, ''), ?2), "
                                "Height = coalesce(nullif(Height, ''), ?3) WHERE PicId = ?1 AND "
                                "(coalesce(Width, '') = '' OR coalesce(Height, '') = '')"))
        .bind(1, pictureId)
        .bind(2, TextOf(defaultPointerSize.width()))
        .bind(3, TextOf(defaultPointerSize.height()))
        .run();
}

void RequireName(const QString& name)
{
    if (name.trimmed().isEmpty()) {
        throw Error(QStringLiteral("A person in a picture needs a name."));
    }
    RequireShortText(name, QStringLiteral("The person's name"));
}

} // namespace

PictureMarks::PictureMarks(Connection& connection)
    : m_select(connection.prepare(QStringLiteral(
          "SELECT Name, PersId, X, Y, Width, Height, rowid FROM Pic2Person WHERE PicId = ?1 ORDER BY rowid")))
{
}

std::vector<PersonMark> PictureMarks::of(int pictureId)
{
    std::vector<PersonMark> marks;
    m_select.bind(1, pictureId);
    while (m_select.step()) {
        marks.push_back(MarkOf(m_select));
    }
    m_select.reset();
    return marks;
}

void PersonMarks::LoadPersonList(Connection& connection, int pictureId)
{
    *this = PersonMarks();
    m_marks = PictureMarks(connection).of(pictureId);
    sort();
}

bool PersonMarks::add(PersonMark mark, Talk& talk)
{
    RequireName(mark.name);
    const bool features = mark.personId > 0 && std::any_of(m_marks.begin(), m_marks.end(), [&mark](const auto& other) {
                              return other.personId == mark.personId;
                          });
    if (features && talk.ask(albummessages::ConfirmDuplicateEntry()) != Button::Yes) {
        return false;
    }
    m_marks.push_back(std::move(mark));
    m_changed = true;
    sort();
    return true;
}

void PersonMarks::change(std::size_t mark, const QString& name, const std::optional<MarkPlace>& place)
{
    RequireName(name);
    PersonMark& changed = m_marks.at(mark);
    changed.name = name;
    changed.isRenamed = true;
    if (place && place != changed.place) {
        changed.place = place;
        changed.isMoved = true;
    }
    m_changed = true;
    sort();
}

void PersonMarks::remove(std::size_t mark)
{
    if (const qint64 row = m_marks.at(mark).row; row != 0) {
        m_removedRows.push_back(row);
    }
    m_marks.erase(m_marks.begin() + static_cast<std::ptrdiff_t>(mark));
    m_changed = true;
}

void PersonMarks::write(Connection& connection, int pictureId, PointerTool tool) const
{
    Statement remove = connection.prepare(QStringLiteral("DELETE FROM Pic2Person WHERE rowid = ?1"));
    for (const qint64 row : m_removedRows) {
        remove.bind(1, row).run();
    }
    // Marks keep their rows, since the pages list the persons in the order in which they were added.
    Statement insert =
        connection.prepare(QStringLiteral("INSERT INTO Pic2Person (PicId, PersId, Name, X, Y, Width, Height) "
                                          "VALUES (?1, ?2, ?3, coalesce(?4, ''), coalesce(?5, ''), ?6, ?7)"));
    Statement rename = connection.prepare(QStringLiteral("UPDATE Pic2Person SET Name = ?2 WHERE rowid = ?1"));
    Statement move = connection.prepare(
        QStringLiteral("UPDATE Pic2Person SET X = ?2, Y = ?3, Width = ?4, Height = ?5 WHERE rowid = ?1"));
    for (const PersonMark& mark : m_marks) {
        if (mark.row == 0) {
            insert.bind(1, pictureId).bind(2, mark.personId).bind(3, mark.name);
            BindPlace(insert, 4, mark.place);
            insert.run();
            continue;
        }
        if (mark.isRenamed) {
            rename.bind(1, mark.row).bind(2, mark.name).run();
        }
        if (mark.isMoved) {
            move.bind(1, mark.row);
            BindPlace(move, 2, mark.place);
            move.run();
        }
    }
    WriteSizes(connection, pictureId, tool);
}

void PersonMarks::sort()
{
    std::stable_sort(m_marks.begin(), m_marks.end(), [](const PersonMark& first, const PersonMark& second) {
        return CompareTexts(first.name, second.name) < 0;
    });
}

} // namespace stemwright
