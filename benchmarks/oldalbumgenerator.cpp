// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "oldalbumgenerator.h"

#include "base/error.h"
#include "base/files.h"
#include "random.h"
#include "store/jet/jetfile.h"
#include "treewords.h"

#include <QtCore/QDateTime>
#include <QtCore/QHash>
#include <QtCore/QtEndian>

#include <bit>
#include <vector>

namespace stemwright::bench
{

namespace
{

// Where things stand on the pages.
constexpr int rowCountPlace = 16;
constexpr int autoNumberPlace = 20;
constexpr int pageHead = 14;
constexpr int freeSpacePlace = 2;
constexpr int ownerPlace = 4;
constexpr int recordCountPlace = 12;
constexpr int placeMask = 0x1FFF;
/// A table's map is a list of pages that have a bit for each page of the file, behind a head.
constexpr char mapOnPages = 1;
constexpr int mapHead = 4;
constexpr quint32 memoInRow = 0x8000'0000;

void Put16(QByteArray& bytes, qsizetype place, qsizetype value)
{
    qToLittleEndian(static_cast<quint16>(value), bytes.data() + place);
}

void Put32(QByteArray& bytes, qsizetype place, quint32 value)
{
    qToLittleEndian(value, bytes.data() + place);
}

QByteArray Utf16(const QString& text)
{
    return {reinterpret_cast<const char*>(text.utf16()), text.size() * 2};
}

/// The values of a row that are not Null, by the names of their columns, as they stand in it.
using Values = QHash<QString, QByteArray>;

QByteArray RowOf(const JetTable& table, const Values& values)
{
    qsizetype fixedLength = 0;
    int variables = 0;
    int highest = 0;
    for (const JetColumn& column : table.columns) {
        highest = std::max(highest, column.number);
        if (column.fixedSize) {
            fixedLength = std::max<qsizetype>(fixedLength, column.fixedPlace + column.fixedLength);
        } else {
            variables = std::max(variables, column.variableNumber + 1);
        }
    }
    QByteArray row(2 + fixedLength, '\0');
    Put16(row, 0, highest + 1);
    QByteArray nulls((highest + 8) / 8, '\0');
    std::vector<QByteArray> variable(static_cast<std::size_t>(variables));
    for (const JetColumn& column : table.columns) {
        const auto value = values.constFind(column.name);
        if (value == values.constEnd()) {
            continue;
        }
        nulls[column.number / 8] = static_cast<char>(nulls[column.number / 8] | 1 << column.number % 8);
        if (column.fixedSize) {
            row.replace(2 + column.fixedPlace, column.fixedLength, *value);
        } else {
            variable[static_cast<std::size_t>(column.variableNumber)] = *value;
        }
    }
    // Behind the values stand their places, the last one first, their number, and what is Null.
    std::vector<qsizetype> places;
    for (const QByteArray& value : variable) {
        places.push_back(row.size());
        row += value;
    }
    places.push_back(row.size());
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
        row.resize(row.size() + 2);
        Put16(row, row.size() - 2, *place);
    }
    row.resize(row.size() + 2);
    Put16(row, row.size() - 2, variables);
    return row + nulls;
}

QString NameOf(Random& random, int people)
{
    const auto text = [](std::string_view word) {
        return QString::fromUtf8(word.data(), static_cast<qsizetype>(word.size()));
    };
    Random person(random.below(static_cast<std::uint32_t>(people)));
    return QStringLiteral("%1, %2").arg(
        text(Surnames()[person.below(static_cast<std::uint32_t>(Surnames().size()))]),
        text(FemaleNames()[person.below(static_cast<std::uint32_t>(FemaleNames().size()))]));
}

Values PictureOf(Random& random, int number, int persons, int people)
{
    QString participants;
    for (int i = 0; i < persons; ++i) {
        participants += QStringLiteral("%1|%2|%3|")
                            .arg(NameOf(random, people))
                            .arg(random.between(0, 600))
                            .arg(random.between(0, 400));
    }
    const auto places = Places();
    const std::string_view place = places[random.below(static_cast<std::uint32_t>(places.size()))];
    QByteArray memo(12, '\0');
    const QByteArray text = Utf16(participants);
    Put32(memo, 0, static_cast<quint32>(text.size()) | memoInRow);
    QByteArray id(4, '\0');
    Put32(id, 0, static_cast<quint32>(number));
    QByteArray changed(8, '\0');
    qToLittleEndian(std::bit_cast<quint64>(36'000.0 + number), changed.data());
    const int year = random.between(1880, 1999);
    return {{QStringLiteral("PicNo"), id},
            {QStringLiteral("PictureFilename"), Utf16(QStringLiteral("C:\\Album\\Scan%1.jpg").arg(number))},
            {QStringLiteral("PictureDate"), Utf16(QString::number(year))},
            {QStringLiteral("Place"), Utf16(QString::fromUtf8(place.data(), static_cast<qsizetype>(place.size())))},
            {QStringLiteral("PicDescr"), Utf16(QStringLiteral("Picture %1 of the old album").arg(number))},
            {QStringLiteral("ModificationDate"), changed},
            {QStringLiteral("EncodPicDate"), Utf16(QString::number(year) + QStringLiteral("00001"))},
            {QStringLiteral("Participants"), memo + text}};
}

/// Puts rows onto new pages of a table.
class PageWriter
{
public:
    PageWriter(QByteArray& file, const JetTable& table) : m_file(file), m_table(table) {}

    void add(const QByteArray& row)
    {
        if (m_end - row.size() < pageHead + 2 * (m_rows + 1)) {
            finishPage();
        }
        m_end -= row.size();
        m_page.replace(m_end, row.size(), row);
        Put16(m_page, pageHead + 2 * m_rows, m_end);
        ++m_rows;
    }

    void finishPage()
    {
        m_page[0] = static_cast<char>(JetPageKind::Data);
        m_page[1] = 1;
        Put16(m_page, freeSpacePlace, m_end - pageHead - 2 * m_rows);
        Put32(m_page, ownerPlace, m_table.definitionPage);
        Put16(m_page, recordCountPlace, m_rows);
        m_file += m_page;
        m_page.fill('\0');
        m_end = jetPageSize;
        m_rows = 0;
    }

private:
    QByteArray& m_file;
    const JetTable& m_table;
    QByteArray m_page = QByteArray(jetPageSize, '\0');
    qsizetype m_end = jetPageSize;
    qsizetype m_rows = 0;
};

/// Makes the pages from `first` to the end of the file those of the table, and no others.
void MapPages(QByteArray& file, const JetTable& table, quint32 first)
{
    QByteArray map(jetPageSize, '\0');
    map[0] = static_cast<char>(JetPageKind::UsageMap);
    map[1] = 1;
    const auto mapPage = static_cast<quint32>(file.size() / jetPageSize);
    for (quint32 page = first; page < mapPage; ++page) {
        const qsizetype byte = mapHead + page / 8;
        if (byte >= jetPageSize) {
            throw Error(QStringLiteral("The album has no room for so many pages."));
        }
        map[byte] = static_cast<char>(map[byte] | 1 << page % 8);
    }
    file += map;

    const qsizetype holder = qsizetype{table.pageMap.page} * jetPageSize;
    const qsizetype entry = holder + pageHead + 2 * table.pageMap.slot;
    const qsizetype record = holder + (qFromLittleEndian<quint16>(file.constData() + entry) & placeMask);
    file[record] = mapOnPages;
    // Of the list there is room for many more pages, which stay 0.
    constexpr qsizetype listLength = 64;
    file.replace(record + 1, listLength, QByteArray(listLength, '\0'));
    Put32(file, record + 1, mapPage);
}

} // namespace

QByteArray GenerateOldAlbum(const QString& lender, OldAlbumSize size)
{
    const JetTable table = JetFile(lender).table(u"AlbumTOC");
    QByteArray file = ReadWholeFile(lender);
    const auto firstPage = static_cast<quint32>(file.size() / jetPageSize);
    PageWriter pages(file, table);
    Random random(1);
    for (int number = 0; number < size.pictures; ++number) {
        const auto share = [&size](int pictures) { return qint64{size.persons} * pictures / size.pictures; };
        const auto persons = static_cast<int>(share(number + 1) - share(number));
        pages.add(RowOf(table, PictureOf(random, number + 1, persons, std::max(1, size.pictures / 10))));
    }
    pages.finishPage();
    MapPages(file, table, firstPage);
    const qsizetype definition = qsizetype{table.definitionPage} * jetPageSize;
    Put32(file, definition + rowCountPlace, static_cast<quint32>(size.pictures));
    Put32(file, definition + autoNumberPlace, static_cast<quint32>(size.pictures));
    return file;
}

} // namespace stemwright::bench
