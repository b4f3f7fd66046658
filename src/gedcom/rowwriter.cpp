// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/rowwriter.h"

#include <QtCore/QStringList>

#include <sqlite3.h>

namespace stemwright
{

namespace
{

QByteArray InsertSql(const TableDefinition& table)
{
    QStringList values;
    for (std::size_t index = 0; index < table.columns.size(); ++index) {
        values << QStringLiteral("?%1").arg(index + 1);
    }
    return QStringLiteral("INSERT INTO \"%1\" VALUES (%2)").arg(table.name, values.join(u',')).toUtf8();
}

bool IsKeyConflict(const SQLite::Exception& exception)
{
    const int code = exception.getExtendedErrorCode();
    return code == SQLITE_CONSTRAINT_PRIMARYKEY || code == SQLITE_CONSTRAINT_ROWID;
}

} // namespace

RowWriter::RowWriter(Connection& connection, const TableDefinition& table)
    : m_table(table), m_insert(connection.engine(), InsertSql(table)), m_pieceOf(table.columns.size() + 1),
      m_filled(table.columns.size() + 1)
{
}

int RowWriter::column(QStringView name) const
{
    for (std::size_t index = 0; index < m_table.columns.size(); ++index) {
        if (name.compare(m_table.columns[index].name, Qt::CaseInsensitive) == 0) {
            return static_cast<int>(index) + 1;
        }
    }
    return 0;
}

void RowWriter::setText(int column, std::string_view utf8)
{
    std::size_t& piece = m_pieceOf[static_cast<std::size_t>(column)];
    if (piece == 0) {
        m_pieces.emplace_back();
        piece = m_pieces.size();
    }
    m_pieces[piece - 1] = {column, m_texts.size(), utf8.size()};
    m_texts.append(utf8);
    m_filled[static_cast<std::size_t>(column)] = !utf8.empty();
}

void RowWriter::setInteger(int column, int value)
{
    m_insert.bind(column, value);
    m_integers.push_back(column);
    m_filled[static_cast<std::size_t>(column)] = true;
}

std::string_view RowWriter::text(int column) const
{
    const std::size_t piece = m_pieceOf[static_cast<std::size_t>(column)];
    return piece == 0 ? std::string_view() : textOf(m_pieces[piece - 1]);
}

RowResult RowWriter::write()
{
    for (const Piece& piece : m_pieces) {
        m_insert.bindUtf8(piece.column, textOf(piece));
    }
    try {
        m_insert.run();
    } catch (const SQLite::Exception& exception) {
        m_insert.reset();
        if (!IsKeyConflict(exception)) {
            throw;
        }
        return RowResult::KeyExists;
    }
    clear();
    return RowResult::Written;
}

void RowWriter::clear()
{
    for (const Piece& piece : m_pieces) {
        m_insert.bindNull(piece.column);
        m_pieceOf[static_cast<std::size_t>(piece.column)] = 0;
        m_filled[static_cast<std::size_t>(piece.column)] = false;
    }
    for (const int column : m_integers) {
        m_insert.bindNull(column);
        m_filled[static_cast<std::size_t>(column)] = false;
    }
    m_pieces.clear();
    m_integers.clear();
    m_texts.clear();
}

} // namespace stemwright
