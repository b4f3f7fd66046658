// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/jet/jettable.h"

#include "store/jet/jetvalues.h"

namespace stemwright
{

namespace
{

// A definition that does not fit its page goes on in others, behind their head.
constexpr int nextPagePlace = 4;
constexpr int continuedPlace = 8;
constexpr int mostDefinitionPages = 64;

constexpr int rowCountPlace = 16;
constexpr int autoNumberPlace = 20;
constexpr int columnCountPlace = 45;
constexpr int indexCountPlace = 51;
constexpr int pageMapPlace = 55;
constexpr int firstIndexPlace = 63;
constexpr int indexLength = 12;
constexpr int mostColumns = 255;

// Within the description of a column.
constexpr int columnLength = 25;
constexpr int columnNumberPlace = 5;
constexpr int variableNumberPlace = 7;
constexpr int flagsPlace = 15;
constexpr int fixedFlag = 0x01;
constexpr int autoNumberFlag = 0x04;
constexpr int fixedPlacePlace = 21;
constexpr int fixedLengthPlace = 23;

/// All pages of a definition as one.
JetBytes JoinedDefinition(const JetPages& pages, quint32 first)
{
    QByteArray joined;
    quint32 next = first;
    for (int count = 0; next != 0; ++count) {
        if (count == mostDefinitionPages) {
            FailDamaged(QStringLiteral("the definition of a table has no end"));
        }
        const JetBytes page = pages.page(next, JetPageKind::Table);
        joined += count == 0 ? page.all() : page.part(continuedPlace, jetPageSize - continuedPlace);
        next = page.number32(nextPagePlace);
    }
    return JetBytes(joined);
}

JetColumn ColumnAt(const JetBytes& definition, qint64 place)
{
    JetColumn column;
    column.type = static_cast<JetType>(definition.number8(place));
    column.number = definition.number16(place + columnNumberPlace);
    column.variableNumber = definition.number16(place + variableNumberPlace);
    const int flags = definition.number8(place + flagsPlace);
    column.fixedSize = (flags & fixedFlag) != 0;
    column.autoNumber = (flags & autoNumberFlag) != 0;
    column.fixedPlace = definition.number16(place + fixedPlacePlace);
    column.fixedLength = definition.number16(place + fixedLengthPlace);
    return column;
}

/// The names follow each other behind the columns, each behind its length in bytes.
void ReadNames(const JetBytes& definition, qint64 place, std::vector<JetColumn>& columns)
{
    for (JetColumn& column : columns) {
        const int length = definition.number16(place);
        column.name = DecodeJetText(definition.part(place + 2, length));
        place += 2 + length;
    }
}

// Maps are bits, one a page, that begin behind the head of their record or page.
constexpr int inlineMapPlace = 5;
constexpr int mapPagePlace = 4;
constexpr quint32 pagesOfMapPage = (jetPageSize - mapPagePlace) * 8;

enum class MapForm : quint8 { Inline = 0, OnPages = 1 };

void AppendPages(const JetBytes& map, qint64 place, quint32 firstPage, quint32 pageCount, std::vector<quint32>& result)
{
    for (qint64 byte = place; byte < map.size(); ++byte) {
        const quint8 bits = map.number8(byte);
        for (quint32 bit = 0; bit < 8; ++bit) {
            const quint64 number = firstPage + static_cast<quint64>(byte - place) * 8 + bit;
            if ((bits >> bit & 1) != 0 && number < pageCount) {
                result.push_back(static_cast<quint32>(number));
            }
        }
    }
}

} // namespace

std::optional<int> JetTable::column(QStringView columnName) const
{
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columnName.compare(columns[i].name, Qt::CaseInsensitive) == 0) {
            return static_cast<int>(i);
        }
    }
    return std::nullopt;
}

JetTable ReadTable(const JetPages& pages, quint32 definitionPage, const QString& name)
{
    const JetBytes definition = JoinedDefinition(pages, definitionPage);
    JetTable table;
    table.name = name;
    table.definitionPage = definitionPage;
    table.rowCount = definition.number32(rowCountPlace);
    table.lastAutoNumber = static_cast<qint32>(definition.number32(autoNumberPlace));
    table.pageMap = JetRecordPlace::of(definition.number32(pageMapPlace));

    const int columnCount = definition.number16(columnCountPlace);
    if (columnCount > mostColumns) {
        FailDamaged(QStringLiteral("a table has more columns than a table can have"));
    }
    qint64 place = firstIndexPlace + qint64(definition.number32(indexCountPlace)) * indexLength;
    for (int i = 0; i < columnCount; ++i, place += columnLength) {
        table.columns.push_back(ColumnAt(definition, place));
    }
    ReadNames(definition, place, table.columns);
    std::sort(table.columns.begin(), table.columns.end(),
              [](const JetColumn& left, const JetColumn& right) { return left.number < right.number; });
    return table;
}

std::vector<quint32> DataPagesOf(const JetPages& pages, const JetTable& table)
{
    const JetBytes map = ReadRecord(pages.page(table.pageMap.page, JetPageKind::Data), table.pageMap.slot).bytes;
    std::vector<quint32> result;
    switch (static_cast<MapForm>(map.number8(0))) {
    case MapForm::Inline:
        AppendPages(map, inlineMapPlace, map.number32(1), pages.count(), result);
        return result;
    case MapForm::OnPages:
        for (qint64 i = 0; 1 + 4 * (i + 1) <= map.size(); ++i) {
            if (const quint32 mapPage = map.number32(1 + 4 * i); mapPage != 0) {
                AppendPages(pages.page(mapPage, JetPageKind::UsageMap), mapPagePlace,
                            static_cast<quint32>(i) * pagesOfMapPage, pages.count(), result);
            }
        }
        return result;
    }
    FailDamaged(QStringLiteral("the list of a table's pages cannot be read"));
}

} // namespace stemwright
