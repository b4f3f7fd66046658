// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <string_view>
#include <vector>

/// The schema of the family file as data: every table with its columns in order and its indexes, and the length of what
/// they hold. Table and column names are used verbatim in SQL elsewhere. Stands on texts alone.
namespace stemwright
{

/// The types of the schema. How the engine stores them: integer as a 32-bit number, text and memo as UTF-8, date as ISO
/// text ("2026-03-12T14:05:00"), yes/no as 0 or -1, binary as bytes.
enum class ColumnType { Integer, Text, Memo, Binary, Date, YesNo };

/// Whether a text column accepts the empty string. A column that refuses it holds a non-empty value or Null.
enum class ZeroLength { Allowed, Refused };

/// Whether the engine gives the next number on insert. Numbers are never given twice, even after a deletion.
enum class Numbering { None, Auto };

struct ColumnDefinition {
    QString name;
    ColumnType type = ColumnType::Text;
    ZeroLength zeroLength = ZeroLength::Refused;
    Numbering numbering = Numbering::None;
};

enum class IndexKind { Primary, Plain };

struct IndexDefinition {
    QString column;
    IndexKind kind = IndexKind::Plain;
    /// Columns that stand in the index too, so that whoever needs only those never reads the rows.
    QStringList carried;
};

struct TableDefinition {
    QString name;
    std::vector<ColumnDefinition> columns;
    std::vector<IndexDefinition> indexes;
};

/// The longest text, in characters, that a text column (not a memo) holds.
inline constexpr int maxTextLength = 255;

/// Throws Error when a text is longer than a text column holds. `what` names it: "The title".
void RequireShortText(const QString& text, const QString& what);

/// As much of the beginning of a text as a text column holds. Null stays Null.
QString CutToColumn(const QString& text);
/// The same for UTF-8.
std::string_view CutToColumn(std::string_view utf8);

/// How many bytes the first `count` characters of UTF-8 take; all of them when there are no more.
std::size_t BytesOfCharacters(std::string_view utf8, int count);

/// The number of event slots "_FA1", "_FA2", ... of an individual and of a family.
inline constexpr int individualEventSlots = 50;
inline constexpr int familyEventSlots = 20;

/// The 16 tables of a family file, in the order in which a new file creates them.
const std::vector<TableDefinition>& FamilyFileTables();

/// The two tables that exist only while the names of an old album are being matched.
const std::vector<TableDefinition>& OldAlbumTables();

/// The definition of a table or of a table's column, names compared without regard to case; nullptr for an unknown
/// name.
const TableDefinition* FindTable(QStringView name);
const ColumnDefinition* FindColumn(const TableDefinition& table, QStringView name);

/// The definition of a table, its name compared without regard to case. Throws Error for an unknown name.
const TableDefinition& TableNamed(QStringView name);

} // namespace stemwright
