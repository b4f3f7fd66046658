// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/schema.h"

#include "base/error.h"

namespace stemwright
{

namespace
{

ColumnDefinition Integer(const char* name)
{
    return {QString::fromLatin1(name), ColumnType::Integer};
}

ColumnDefinition AutoNumber(const char* name)
{
    return {QString::fromLatin1(name), ColumnType::Integer, ZeroLength::Refused, Numbering::Auto};
}

ColumnDefinition YesNo(const char* name)
{
    return {QString::fromLatin1(name), ColumnType::YesNo};
}

/// A text column that refuses the empty string.
ColumnDefinition FilledText(const char* name)
{
    return {QString::fromLatin1(name), ColumnType::Text};
}

ColumnDefinition Text(const char* name)
{
    return {QString::fromLatin1(name), ColumnType::Text, ZeroLength::Allowed};
}

ColumnDefinition Memo(const char* name)
{
    return {QString::fromLatin1(name), ColumnType::Memo, ZeroLength::Allowed};
}

ColumnDefinition Date(const char* name)
{
    return {QString::fromLatin1(name), ColumnType::Date, ZeroLength::Allowed};
}

ColumnDefinition Binary(const char* name)
{
    return {QString::fromLatin1(name), ColumnType::Binary, ZeroLength::Allowed};
}

/// The date and place columns of an event.
void AppendEvent(std::vector<ColumnDefinition>& columns, const QString& event)
{
    for (const char* part : {"_Date", "_Place"}) {
        columns.push_back({event + QString::fromLatin1(part), ColumnType::Text, ZeroLength::Allowed});
    }
}

void AppendEventSlots(std::vector<ColumnDefinition>& columns, int slots)
{
    for (int slot = 1; slot <= slots; ++slot) {
        AppendEvent(columns, QStringLiteral("_FA%1").arg(slot));
    }
}

IndexDefinition PrimaryKey(const char* column)
{
    return {QString::fromLatin1(column), IndexKind::Primary, {}};
}

IndexDefinition Index(const char* column)
{
    return {QString::fromLatin1(column), IndexKind::Plain, {}};
}

/// All that lists of pictures show, in an index of its own. A column behind the picture is reached only by stepping
/// over the picture: a list of 2,000 pictures of 1 MB with its Rectangle column took 1100 ms without the index (16 ms
/// in today's file layout, see connection.cpp) and takes 0.6 ms with it, as with pictures of 10 KB. The engine reads an
/// index alone only while it expects it to be narrower than the rows, so that nothing else should be added here.
IndexDefinition PictureListIndex()
{
    return {QStringLiteral("EncodPicDate"),
            IndexKind::Plain,
            {QStringLiteral("PictureDate"), QStringLiteral("Place"), QStringLiteral("Title"),
             QStringLiteral("ModificationDate"), QStringLiteral("PicFilename"), QStringLiteral("NamesLeft"),
             QStringLiteral("Rectangle")}};
}

TableDefinition Indi()
{
    TableDefinition table{
        QStringLiteral("Indi"),
        {Integer("Id"), Text("Surname"), Text("GivenName"), Text("Suffix"), Text("Sex"), Text("Alias"), Text("Title")},
        {PrimaryKey("Id")}};
    AppendEvent(table.columns, QStringLiteral("BIRT"));
    AppendEvent(table.columns, QStringLiteral("DEAT"));
    AppendEventSlots(table.columns, individualEventSlots);
    for (ColumnDefinition column : {Text("Address"), Text("Phone"), Integer("FAMC"), Text("PageOwnerId")}) {
        table.columns.push_back(std::move(column));
    }
    return table;
}

TableDefinition Fam()
{
    TableDefinition table{QStringLiteral("Fam"),
                          {Integer("Id"), Integer("HusbandId"), Integer("WifeId"), Text("Marriage_Date"),
                           Text("Marriage_Place"), Text("Marriage_Status")},
                          {PrimaryKey("Id")}};
    AppendEventSlots(table.columns, familyEventSlots);
    table.columns.push_back(Text("_MSTAT"));
    table.columns.push_back(Text("_MEND"));
    return table;
}

TableDefinition AlbumTOC()
{
    return {QStringLiteral("AlbumTOC"),
            {Text("PictureDate"), Text("Place"), Text("Title"), Date("ModificationDate"), Text("EncodPicDate"),
             AutoNumber("PicId"), Memo("PicDescr"), YesNo("NamesLeft"), Text("PicType"), Text("PicFilename"),
             Binary("Picture"), YesNo("Rectangle"), Binary("Thumb"), Integer("PicWidth"), Integer("PicHeight")},
            {PrimaryKey("PicId"), PictureListIndex()}};
}

TableDefinition PicListQueries()
{
    return {QStringLiteral("PicListQueries"),
            {FilledText("QueryName"),
             YesNo("IdShow"),
             YesNo("IdFilter"),
             Integer("IdFrom"),
             Integer("IdTo"),
             Integer("IdSort"),
             Integer("IdSortOrder"),
             YesNo("PicDateShow"),
             YesNo("PicDateFilter"),
             Text("PicDateFrom"),
             Text("PicDateTo"),
             Integer("PicDateSort"),
             Integer("PicDateSortOrder"),
             YesNo("PlaceShow"),
             YesNo("PlaceFilter"),
             Text("Place"),
             Integer("PlaceSort"),
             Integer("PlaceSortOrder"),
             YesNo("TitleShow"),
             YesNo("TitleFilter"),
             Text("TitleContains"),
             Integer("TitleSort"),
             Integer("TitleSortOrder"),
             YesNo("FilenameShow"),
             YesNo("FilenameFilter"),
             Text("FilenameContains"),
             Integer("FilenameSort"),
             Integer("FilenameSortOrder"),
             YesNo("ModifDateShow"),
             YesNo("ModifDateFilter"),
             Date("ModifDateFrom"),
             Date("ModifDateTo"),
             Integer("ModifDateSort"),
             Integer("ModifDateSortOrder"),
             YesNo("NamesLeftShow"),
             YesNo("NamesLeftFilter"),
             YesNo("NamesLeft"),
             Integer("NamesLeftSort"),
             Integer("NamesLeftSortOrder"),
             YesNo("RectangleShow"),
             YesNo("RectangleFilter"),
             YesNo("Rectangle"),
             Integer("RectangleSort"),
             Integer("RectangleSortOrder"),
             YesNo("IndiFilter"),
             Integer("IndiId"),
             YesNo("WithAncs"),
             YesNo("WithDescs")},
            {}};
}

TableDefinition WebSiteInfo()
{
    return {QStringLiteral("WebSiteInfo"),
            {Text("SiteTitle"), Memo("TitleStory"), Text("HomePageName"), YesNo("Standalone"), Integer("PersPages"),
             Integer("PageStyle"), Integer("CellFg"), Integer("CellBg"), Integer("MaxGenOnPage"),
             Integer("MaxTotalGens"), Integer("MaxPrivacyAge"), Integer("HideLiving"), Text("WebPageFolder"),
             Text("EmblemFiletype"), Binary("EmblemPicture"), FilledText("SetupName"), YesNo("Pictures4ThisTreeOnly")},
            {}};
}

TableDefinition Indi2Page()
{
    return {QStringLiteral("Indi2Page"),
            {Integer("IndiId"), Text("AncestorId"), Text("TreeNumber"), Text("PageOwnerId"),
             FilledText("GenDisplayType"), Text("Name"), Text("Name4Index"), Memo("AfterName"), Memo("Links2Info"),
             Text("AncestorChain")},
            {Index("IndiId"), Index("Name4Index")}};
}

std::vector<TableDefinition> MakeFamilyFileTables()
{
    return {
        {QStringLiteral("GenInfo"), {Text("StemoraVersion"), Text("GEDCOMFile"), Date("ImportDate")}, {}},
        Indi(),
        Fam(),
        AlbumTOC(),
        PicListQueries(),
        {QStringLiteral("SchemaIndi"), {Text("Fact"), Text("Tag"), Text("Label")}, {PrimaryKey("Fact"), Index("Tag")}},
        {QStringLiteral("SchemaFam"), {Text("Fact"), Text("Tag"), Text("Label")}, {PrimaryKey("Fact")}},
        {QStringLiteral("Fam2Child"),
         {Integer("FamId"), Integer("ChildId"), Text("_FREL"), Text("_MREL")},
         {Index("FamId")}},
        {QStringLiteral("Spouse2Fam"), {Integer("SpouseId"), Integer("FamId")}, {Index("SpouseId")}},
        {QStringLiteral("Pic2Person"),
         {Integer("PicId"), Integer("PersId"), Text("X"), Text("Y"), Text("Width"), Text("Height"), Text("Name")},
         {Index("PicId")}},
        {QStringLiteral("WebAddr"), {Integer("Id"), Text("Email1"), Text("Email2"), Text("WebPage")}, {}},
        WebSiteInfo(),
        {QStringLiteral("SelectedItems"), {Text("SetupName"), Text("ItemValue")}, {Index("SetupName")}},
        {QStringLiteral("TreeHeads"),
         {FilledText("SetupName"), Integer("TreeHeadId"), Text("TreeHeadName"), Text("GenDisplayType"),
          Integer("IconNo"), AutoNumber("TreeNumber")},
         {PrimaryKey("TreeNumber")}},
        Indi2Page(),
        {QStringLiteral("UniqueIds"), {Integer("Id"), YesNo("DuplicatesAlreadyFound")}, {PrimaryKey("Id")}},
    };
}

std::vector<TableDefinition> MakeOldAlbumTables()
{
    return {
        {QStringLiteral("PreV2Indi"), {Text("Name"), AutoNumber("Id")}, {PrimaryKey("Id")}},
        {QStringLiteral("PreV2Pic2Person"),
         {Integer("PicId"), Integer("PersId"), Text("X"), Text("Y")},
         {Index("PicId")}},
    };
}

} // namespace

const std::vector<TableDefinition>& FamilyFileTables()
{
    static const std::vector<TableDefinition> tables = MakeFamilyFileTables();
    return tables;
}

const std::vector<TableDefinition>& OldAlbumTables()
{
    static const std::vector<TableDefinition> tables = MakeOldAlbumTables();
    return tables;
}

const TableDefinition* FindTable(QStringView name)
{
    for (const auto* tables : {&FamilyFileTables(), &OldAlbumTables()}) {
        for (const TableDefinition& table : *tables) {
            if (name.compare(table.name, Qt::CaseInsensitive) == 0) {
                return &table;
            }
        }
    }
    return nullptr;
}

const ColumnDefinition* FindColumn(const TableDefinition& table, QStringView name)
{
    for (const ColumnDefinition& column : table.columns) {
        if (name.compare(column.name, Qt::CaseInsensitive) == 0) {
            return &column;
        }
    }
    return nullptr;
}

const TableDefinition& TableNamed(QStringView name)
{
    if (const TableDefinition* table = FindTable(name)) {
        return *table;
    }
    throw Error(QStringLiteral("A family file has no table named %1.").arg(name));
}

void RequireShortText(const QString& text, const QString& what)
{
    if (text.toUcs4().size() > maxTextLength) {
        throw Error(QStringLiteral("%1 is too long: it can have %2 characters.").arg(what).arg(maxTextLength));
    }
}

QString CutToColumn(const QString& text)
{
    if (text.size() <= maxTextLength) {
        return text;
    }
    const std::string utf8 = text.toStdString();
    return QString::fromUtf8(CutToColumn(utf8));
}

std::string_view CutToColumn(std::string_view utf8)
{
    return utf8.substr(0, BytesOfCharacters(utf8, maxTextLength));
}

std::size_t BytesOfCharacters(std::string_view utf8, int count)
{
    // Nearly always: no text has more characters than bytes.
    if (utf8.size() <= static_cast<std::size_t>(count)) {
        return utf8.size();
    }
    for (std::size_t position = 0; position < utf8.size(); ++position) {
        const bool beginsCharacter = (static_cast<unsigned char>(utf8[position]) & 0xC0U) != 0x80U;
        if (beginsCharacter && count-- == 0) {
            return position;
        }
    }
    return utf8.size();
}

} // namespace stemwright
