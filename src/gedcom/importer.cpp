// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/importer.h"

#include "base/error.h"
#include "gedcom/encoding.h"
#include "gedcom/familyrecord.h"
#include "gedcom/importprogress.h"
#include "gedcom/individualrecord.h"
#include "gedcom/messages.h"
#include "gedcom/passedrecord.h"
#include "gedcom/schemarecord.h"
#include "index/fullname.h"
#include "store/engine/tablesql.h"

#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

std::vector<const TableDefinition*> TreeTables()
{
    std::vector<const TableDefinition*> tables;
    for (const QStringView name : {u"Indi", u"Fam", u"Fam2Child", u"SchemaIndi", u"SchemaFam", u"Spouse2Fam"}) {
        tables.push_back(&TableNamed(name));
    }
    return tables;
}

enum class RecordKind { Individual, Family, Schema, Trailer, Other };

RecordKind KindOf(std::string_view tag)
{
    switch (PackTag(tag)) {
    case PackTag("INDI"):
        return RecordKind::Individual;
    case PackTag("FAM"):
        return RecordKind::Family;
    case PackTag("HEAD"):
    case PackTag("_SCHEMA"):
        return RecordKind::Schema;
    case PackTag("TRLR"):
        return RecordKind::Trailer;
    default:
        return RecordKind::Other;
    }
}

/// One run over a file's records. The tables are there and empty.
class TreeImport
{
public:
    TreeImport(Connection& connection, LineSource& source, const FileEncoding& encoding, ImportReport& report);

    /// Reads all records; stops with a message at a duplicate.
    std::optional<Message> run(ImportProgress& progress);

    void writeSchema();

private:
    void beginRecord(const GedcomLine& line);
    std::optional<Message> endRecord();
    ImportRecord* recordFor(const GedcomLine& line, RecordKind kind);
    void skip(RecordKind kind, const GedcomLine& line, std::string_view identifier);

    Connection& m_connection;
    LineSource& m_source;
    ImportReport& m_report;
    ColumnText m_text;
    RowWriter m_individuals;
    RowWriter m_families;
    RowWriter m_childLinks;
    RowWriter m_spouseLinks;
    CustomFacts m_individualFacts;
    CustomFacts m_familyFacts;
    IndividualRecord m_individual;
    FamilyRecord m_family;
    SchemaRecord m_schema;
    PassedRecord m_passed;
    /// The record being read; null while one is passed over.
    ImportRecord* m_current = nullptr;
    bool m_anyRecord = false;
};

TreeImport::TreeImport(Connection& connection, LineSource& source, const FileEncoding& encoding, ImportReport& report)
    : m_connection(connection), m_source(source), m_report(report), m_text(encoding, report),
      m_individuals(connection, TableNamed(u"Indi")), m_families(connection, TableNamed(u"Fam")),
      m_childLinks(connection, TableNamed(u"Fam2Child")), m_spouseLinks(connection, TableNamed(u"Spouse2Fam")),
      m_individualFacts(m_individuals, individualEventSlots), m_familyFacts(m_families, familyEventSlots),
      m_individual(m_individuals, m_spouseLinks, m_individualFacts, m_text),
      m_family(m_families, m_childLinks, m_familyFacts, m_text), m_schema(m_individualFacts, m_familyFacts, m_text),
      m_passed(report)
{
}

std::optional<Message> TreeImport::run(ImportProgress& progress)
{
    GedcomLine line;
    while (ReadGedcomLine(m_source, line)) {
        ++m_report.lines;
        progress.countLine();
        if (line.Level != '0') {
            if (m_current != nullptr) {
                m_current->take(line);
            }
            continue;
        }
        if (std::optional<Message> duplicate = endRecord()) {
            return duplicate;
        }
        progress.recordEnded(m_source.position());
        beginRecord(line);
    }
    std::optional<Message> duplicate = endRecord();
    progress.recordEnded(m_source.position());
    if (!duplicate && !m_anyRecord) {
        throw Error(gedcommessages::NoRecords());
    }
    return duplicate;
}

void TreeImport::beginRecord(const GedcomLine& line)
{
    // An identifier that is no number stands where the tag should be, and the tag is the first word behind it.
    const bool tagBehind = line.hasXref && line.XrefId < 0;
    const RecordKind kind = KindOf(tagBehind ? line.Value.substr(0, line.Value.find_first_of(" \t")) : line.Tag);
    m_report.hasTrailer = m_report.hasTrailer || kind == RecordKind::Trailer;
    m_anyRecord = m_anyRecord || kind != RecordKind::Other || line.hasXref;
    m_current = recordFor(line, kind);
    if (m_current != nullptr) {
        m_current->begin(line);
    }
}

/// What takes the lines of a record; null for one that is left out.
ImportRecord* TreeImport::recordFor(const GedcomLine& line, RecordKind kind)
{
    switch (kind) {
    case RecordKind::Individual:
    case RecordKind::Family:
        if (!line.hasXref || line.XrefId < 0) {
            skip(kind, line, line.Tag);
            return nullptr;
        }
        return kind == RecordKind::Individual ? static_cast<ImportRecord*>(&m_individual) : &m_family;
    case RecordKind::Schema:
        return line.XrefId < 0 && line.hasXref ? nullptr : &m_schema;
    case RecordKind::Trailer:
        return nullptr;
    case RecordKind::Other:
        return &m_passed;
    }
    return nullptr;
}

std::optional<Message> TreeImport::endRecord()
{
    ImportRecord* const ended = std::exchange(m_current, nullptr);
    if (ended == nullptr || ended->finish() == RowResult::Written) {
        return std::nullopt;
    }
    return ended == &m_family ? gedcommessages::DuplicateFamily(m_family.duplicateId())
                              : gedcommessages::DuplicateIndividual(m_individual.duplicateId(), m_individual.surname(),
                                                                    m_individual.givenName());
}

void TreeImport::skip(RecordKind kind, const GedcomLine& line, std::string_view identifier)
{
    ++(kind == RecordKind::Individual ? m_report.skippedIndividuals : m_report.skippedFamilies);
    m_report.note(Loss::SkippedRecord, line.number, m_text.decode(identifier));
}

void TreeImport::writeSchema()
{
    for (const auto& [facts, table] :
         {std::pair(&m_individualFacts, u"SchemaIndi"), std::pair(&m_familyFacts, u"SchemaFam")}) {
        RowWriter rows(m_connection, TableNamed(table));
        for (const CustomFact& fact : facts->all()) {
            rows.setText(rows.column(u"Fact"), fact.stem);
            if (facts == &m_individualFacts) {
                rows.setText(rows.column(u"Tag"), fact.tag);
            }
            rows.setText(rows.column(u"Label"), fact.label);
            rows.write();
        }
    }
}

/// The families with a husband or wife who is in the tree, but has no link to the family.
std::vector<int> OneSidedFamilies(Connection& connection)
{
    Statement family = connection.prepare(
        QStringLiteral("SELECT Id FROM Fam WHERE EXISTS (SELECT 1 FROM Indi WHERE Indi.Id IN (HusbandId, WifeId) AND "
                       "NOT EXISTS (SELECT 1 FROM Spouse2Fam WHERE SpouseId = Indi.Id AND FamId = Fam.Id)) "
                       "ORDER BY Id"));
    std::vector<int> ids;
    while (family.step()) {
        ids.push_back(family.integer(0));
    }
    return ids;
}

/// Tells why a file would leave nobody in the tree.
[[noreturn]] void RefuseEmptyTree(const ImportReport& report)
{
    if (report.skippedIndividuals == 0) {
        throw Error(gedcommessages::NoIndividuals());
    }
    const LossNote& first = report.of(Loss::SkippedRecord).notes.front();
    throw Error(gedcommessages::NobodyTaken(report.skippedIndividuals, first.line, first.subject));
}

/// Rebuilds the tree in a transaction. What stood before a duplicate is kept; an exception undoes everything.
std::optional<Message> ImportInOneAction(Connection& connection, const QString& path, Talk& talk, ImportReport& report)
{
    QFile file(path);
    OpenGedcomFile(file);
    const std::unique_ptr<Progress> progress =
        talk.progress(gedcommessages::progressTitle, gedcommessages::progressCaption);
    Transaction transaction(connection);
    const bool hadIndividuals = HasIndividuals(connection);
    std::optional<Message> duplicate = RebuildTree(file, connection, *progress, report);
    if (hadIndividuals && report.individuals == 0) {
        RefuseEmptyTree(report);
    }
    transaction.commit();
    report.outcome = duplicate ? ImportOutcome::StoppedAtDuplicate : ImportOutcome::Completed;
    return duplicate;
}

} // namespace

void OpenGedcomFile(QFile& file)
{
    if (QFileInfo info(file); info.exists() && !info.isFile()) {
        throw Error(gedcommessages::NotAFile(file.fileName()));
    }
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        throw Error(gedcommessages::CannotOpen(file.fileName(), file.errorString()));
    }
    RequireText(file);
}

std::optional<Message> RebuildTree(QIODevice& input, Connection& connection, Progress& progress, ImportReport& report)
{
    const FileEncoding encoding = DetectEncoding(input);
    report.charset = encoding.name.isEmpty() ? CharsetName(encoding.charset) : encoding.name;
    report.isCharsetGuessed = encoding.isGuessed;
    report.declaredCharset = encoding.declared;
    const std::vector<const TableDefinition*> tables = TreeTables();
    for (const TableDefinition* table : tables) {
        DropTable(connection, *table);
        CreateBareTable(connection, *table);
    }
    LineSource source(input, encoding.charset, encoding.start);
    ImportProgress steps(progress, input.size());
    std::optional<Message> duplicate;
    {
        TreeImport import(connection, source, encoding, report);
        duplicate = import.run(steps);
        import.writeSchema();
    }
    for (const TableDefinition* table : tables) {
        CreateIndexes(connection, *table);
    }
    // Where a program wrote both sides of every link, there are as many of each, and nothing has to be looked for.
    if (!duplicate && report.partners != report.spouseLinks) {
        report.oneSidedFamilies = OneSidedFamilies(connection);
    }
    return duplicate;
}

bool ImportGedcom(Connection& connection, const QString& path, Environment& environment, ImportReport& report)
{
    report = {};
    try {
        const std::optional<Message> duplicate = ImportInOneAction(connection, path, environment.talk, report);
        if (duplicate) {
            environment.talk.tell(*duplicate);
        }
        return !duplicate;
    } catch (const std::exception& exception) {
        environment.talk.tell(gedcommessages::ImportFailed(connection.path(), exception));
        return false;
    }
}

} // namespace stemwright
