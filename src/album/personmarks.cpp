// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/personmarks.h"

#include "album/messages.h"
#include "base/error.h"
#include "base/text.h"
#include "store/engine/schema.h"

namespace stemwright
{

namespace
{

/// Numbers stand in the family file as text, and a name without a place has empty ones.
std::optional<int> NumberOf(const QString& text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
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

void BindPlace(Statement& write, const std::optional<MarkPlace>& place, PointerTool tool, QSize defaultSize)
{
    const bool arrow = tool == PointerTool::Arrow;
    const MarkPlace stands = place.value_or(MarkPlace{});
    const QString none = QStringLiteral("");
    write.bind(5, place ? QString::number(stands.x) : none).bind(6, place ? QString::number(stands.y) : none);
    write.bind(7, QString::number(arrow ? 0 : stands.width.value_or(defaultSize.width())));
    write.bind(8, QString::number(arrow ? 0 : stands.height.value_or(defaultSize.height())));
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
    if (place) {
        changed.place = place;
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

void PersonMarks::write(Connection& connection, int pictureId, PointerTool tool, QSize defaultSize) const
{
    Statement remove = connection.prepare(QStringLiteral("DELETE FROM Pic2Person WHERE rowid = ?1"));
    for (const qint64 row : m_removedRows) {
        remove.bind(1, row).run();
    }
    // Marks keep their rows, since the pages list the persons in the order in which they were added.
    Statement insert = connection.prepare(QStringLiteral(
        "INSERT INTO Pic2Person (PicId, PersId, Name, X, Y, Width, Height) VALUES (?2, ?3, ?4, ?5, ?6, ?7, ?8)"));
    Statement update = connection.prepare(
        QStringLiteral("UPDATE Pic2Person SET PicId = ?2, PersId = ?3, Name = ?4, X = ?5, Y = ?6, Width = ?7, "
                       "Height = ?8 WHERE rowid = ?1"));
    for (const PersonMark& mark : m_marks) {
        Statement& statement = mark.row == 0 ? insert : update;
        if (mark.row != 0) {
            statement.bind(1, mark.row);
        }
        statement.bind(2, pictureId).bind(3, mark.personId).bind(4, mark.name);
        BindPlace(statement, mark.place, tool, defaultSize);
        statement.run();
    }
}

void PersonMarks::sort()
{
    std::stable_sort(m_marks.begin(), m_marks.end(), [](const PersonMark& first, const PersonMark& second) {
        return CompareTexts(first.name, second.name) < 0;
    });
}

} // namespace stemwright
