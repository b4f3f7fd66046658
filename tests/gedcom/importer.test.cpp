// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/importer.h"

#include "base/error.h"
#include "base/files.h"
#include "gedcom/familyrecord.h"
#include "gedcom/treedump.h"
#include "support/testworld.h"

#include <QtCore/QElapsedTimer>

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

/// A file with `events` below one individual or family.
QByteArray Record(const QByteArray& tag, const QByteArray& lines)
{
    return "0 HEAD\n0 @I1@ " + tag + '\n' + lines + "0 TRLR\n";
}

QString Value(ImportedTree& tree, const QString& sql)
{
    return Rows(tree.connection, sql).value(0);
}

/// An individual with events of `count` different types.
QByteArray ManyEvents(const QByteArray& tag, int count)
{
    QByteArray lines;
    for (int number = 1; number <= count; ++number) {
        lines += "1 EVEN\n2 TYPE Event " + QByteArray::number(number) + "\n2 DATE 1900\n";
    }
    return Record(tag, lines);
}

} // namespace

TEST(Importer, FillsEveryTable)
{
    ImportedTree tree(ReadWholeFile(TestData("gedcom/facts.ged")));
    EXPECT_EQ(tree.dump(), TestDataText("gedcom/facts.txt"));
    EXPECT_EQ(QString::fromUtf8(ReportJson(tree.report)), TestDataText("gedcom/facts.report.json"));
    EXPECT_FALSE(tree.duplicate);
}

TEST(Importer, TakesTheSchemaRecordOfLevelZeroAsTheOneInTheHead)
{
    ImportedTree tree(
        "0 HEAD\n0 _SCHEMA\n1 INDI\n2 _FA1\n3 LABL Burial\n2 _FA3\n3 LABL Gap\n1 FAM\n2 _FA1\n3 LABL Vow\n"
        "0 @I1@ INDI\n1 BURI\n2 DATE 1900\n1 CHR\n2 DATE 1850\n1 CONF\n2 DATE 1860\n");
    EXPECT_EQ(tree.dump(), "Indi\n Id=[1] _FA1_Date=[1900] _FA4_Date=[1850] _FA5_Date=[1860]\n"
                           "Fam\nFam2Child\nSpouse2Fam\n"
                           "SchemaIndi\n Fact=[_FA1] Tag=[BURI] Label=[Burial]\n"
                           " Fact=[_FA3] Tag=[] Label=[Gap]\n"
                           " Fact=[_FA4] Tag=[CHR] Label=[Christening]\n"
                           " Fact=[_FA5] Tag=[CONF] Label=[Confirmation]\n"
                           "SchemaFam\n Fact=[_FA1] Label=[Vow]\n");
}

TEST(Importer, StopsAtADuplicateAndKeepsWhatStoodBefore)
{
    const QByteArray first = "0 HEAD\n0 @I1@ INDI\n1 NAME Ann /Ash/\n1 FAMS @F1@\n0 @F1@ FAM\n1 CHIL @I1@\n";
    const std::pair<const char*, const char*> cases[] = {
        {"0 @U1@ INDI\n1 NAME Bob /%1/ Jr\n1 FAMS @F2@\n",
         "Your GEDCOM file has a duplicate entry for individual ID # 1 (%1, Bob ). Please click OK, correct the "
         "condition and import the GEDCOM again."},
        {"0 @F01@ FAM\n1 CHIL @I2@\n",
         "Your GEDCOM file has a duplicate entry for family ID # 1. Please click OK, correct the condition and "
         "import the GEDCOM again."}};
    for (const auto& [records, message] : cases) {
        ImportedTree tree(first + records + "0 @I5@ INDI\n");
        ASSERT_TRUE(tree.duplicate) << records;
        EXPECT_EQ(tree.duplicate->text, message);
        EXPECT_EQ(tree.dump(), "Indi\n Id=[1] Surname=[Ash] GivenName=[Ann ] Suffix=[]\nFam\n Id=[1]\n"
                               "Fam2Child\n FamId=[1] ChildId=[1]\nSpouse2Fam\n SpouseId=[1] FamId=[1]\n"
                               "SchemaIndi\nSchemaFam\n");
    }
}

TEST(Importer, CutsLongValuesAtACharacterAndSaysWhere)
{
    const QByteArray filler(254, 'x');
    const QString keptFiller = filler;
    const std::tuple<QByteArray, QString, int> cases[] = {{filler + "y", keptFiller + u'y', 0},
                                                          {filler + "\xC3\xA9", keptFiller + u'\u00E9', 0},
                                                          {filler + "\xC3\xA9z", keptFiller + u'\u00E9', 1},
                                                          {filler + "e\xCC\x81", keptFiller, 1},
                                                          {filler + "\xF0\x9F\x98\x80z", keptFiller + "\U0001F600", 1},
                                                          {QByteArray(10'000'000, 'y'), QString(255, u'y'), 1}};
    for (const auto& [value, kept, expected] : cases) {
        ImportedTree tree(Record("INDI", "1 TITL " + value + "\n"));
        EXPECT_EQ(Value(tree, "SELECT Title FROM Indi"), kept);
        const LossList& cuts = tree.report.of(Loss::CutValue);
        ASSERT_EQ(cuts.count, expected) << value.right(5).toStdString();
        if (expected > 0) {
            EXPECT_EQ(cuts.notes.front().line, 3);
            EXPECT_EQ(cuts.notes.front().subject, "TITL");
        }
    }
}

TEST(Importer, EndsWhenAnIndividualsEventsNeedMoreColumnsThanThereAre)
{
    EXPECT_EQ(ImportedTree(ManyEvents("INDI", 50)).report.individuals, 1);
    EXPECT_THROW(ImportedTree(ManyEvents("INDI", 51)), Error);
    EXPECT_THROW(ImportedTree(Record("INDI", "1 _FA51\n2 DATE 1900\n")), Error);
    EXPECT_EQ(ImportedTree(Record("INDI", "1 _FA51\n2 NOTE no value\n")).report.individuals, 1);
}

TEST(Importer, KeepsColumnsForPartnershipsWhenAFamilyHasManyEvents)
{
    QByteArray file = ManyEvents("FAM", 25);
    file.replace("0 TRLR\n", "1 DIV\n1 EVEN\n2 TYPE Partners\n");
    ImportedTree tree(file);
    EXPECT_EQ(tree.report.of(Loss::NoColumnLeft).count, 7);
    EXPECT_EQ(Value(tree, "SELECT _FA19_Place || _FA20_Place FROM Fam"), "DivorcedPartners");
}

TEST(Importer, ReportsEveryLineThatHasNoPlace)
{
    for (const QStringList& row : TestTable("gedcom/withoutplace.txt")) {
        const ImportReport report = ImportedTree(Record(row[0].toUtf8(), row[1].toUtf8() + '\n')).report;
        QStringList lines;
        for (const LossNote& note : report.of(Loss::NoPlace).notes) {
            lines << QString("%1 %2").arg(note.line).arg(note.subject);
        }
        EXPECT_EQ(lines.join("; "), row[2]) << row[1];
    }
}

TEST(Importer, ReportsFamiliesThatAPartnerDoesNotPointBackTo)
{
    const QByteArray tree = "0 @I1@ INDI\n1 FAMS @F1@\n0 @I2@ INDI\n0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I77@\n";
    EXPECT_FALSE(ReportText(ImportedTree(tree).report).contains("no link back"));
    QByteArray families;
    for (int number = 2; number <= 13; ++number) {
        families += "0 @F" + QByteArray::number(number) + "@ FAM\n1 WIFE @I2@\n";
    }
    const QString text = ReportText(ImportedTree(tree + families).report);
    EXPECT_TRUE(text.contains("to the family: 12 (numbers 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, and 2 more)\n")) << text;
}

TEST(Importer, CountsTheTagsOfLinesThatHaveNoPlace)
{
    QByteArray lines = "1 NOTE 1\n1 NOTE 2\n1 OCCU 3\n";
    EXPECT_TRUE(
        ReportText(ImportedTree(Record("INDI", lines)).report)
            .endsWith("what they hold: 3 (line 3 NOTE, line 4 NOTE, line 5 OCCU)\nTheir tags: NOTE 2, OCCU 1\n"));
    for (int tag = 0; tag < 5000; ++tag) {
        lines += "1 TAG" + QByteArray::number(tag) + " x\n";
    }
    const ImportReport report = ImportedTree(Record("INDI", lines)).report;
    EXPECT_EQ(report.of(Loss::NoPlace).count, 5003);
    EXPECT_EQ(report.tagsWithoutPlace.sorted().size(), TagCounts::most + 1);
    EXPECT_EQ(report.tagsWithoutPlace.sorted().front(), std::pair(QString("other tags"), qint64(4502)));
}

TEST(Importer, TellsThePartnershipFromTheType)
{
    for (const QStringList& row : TestTable("gedcom/partnerships.txt")) {
        EXPECT_EQ(PartnershipStatus(row[0].toStdString()), row[1].toStdString()) << row[0];
    }
}

TEST(Importer, JoinsConcLinesAsTheyWereSplit)
{
    for (const QStringList& row : TestTable("gedcom/places.txt")) {
        ImportedTree tree(Record("INDI", "1 BIRT\n" + row[0].toUtf8()));
        EXPECT_EQ(Value(tree, "SELECT BIRT_Place FROM Indi"), row[1]) << row[0];
    }
}

TEST(Importer, JoinsManyLinesInLinearTime)
{
    const QByteArray lines =
        "1 BIRT\n2 PLAC " + QByteArray("a,").repeated(32'000) + "a\n" + QByteArray("3 CONC\n").repeated(200'000);
    QElapsedTimer timer;
    timer.start();
    ImportedTree tree(Record("INDI", lines));
    EXPECT_TRUE(Value(tree, "SELECT BIRT_Place FROM Indi").startsWith("a,a,"));
    EXPECT_LT(timer.elapsed(), 10'000);
}

TEST(Importer, MovesTheBarAtTheEndOfRecordsByTheHundred)
{
    const auto record = [](int lines) {
        QByteArray text = "0 @N1@ NOTE\n";
        for (int line = 1; line < lines; ++line) {
            text += "1 CONT 7\n";
        }
        return text;
    };
    EXPECT_EQ(ImportedTree("0 HEAD\n" + record(99)).talk.percents(), std::vector<int>{});
    EXPECT_EQ(ImportedTree(record(5000)).talk.percents().size(), 1U);
    // 1842 bytes in all. The first record ends when the second's line was read, at byte 933, which is 896 in whole
    // blocks; the last one at 1792.
    EXPECT_EQ(ImportedTree(record(102) + record(102)).talk.percents(), (std::vector<int>{48, 97}));
}

TEST(Importer, LeavesTheOldTreeWhenItFails)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    ImportReport report;
    const QString good = world.write("good.ged", Record("INDI", "1 NAME Old /Tree/\n1 BURI\n"));
    ASSERT_TRUE(ImportGedcom(connection, good, world.environment, report));
    const QString before = DumpTree(connection);
    const std::vector<std::pair<QByteArray, QString>> cases = {
        {QByteArray(), "The GEDCOM file is empty"},
        {"PK\x03\x04", "This is a ZIP archive"},
        {"\xEF\xBB\xBFjunk", "This is not a GEDCOM file: no record"},
        {QByteArray(5000, '\0'), "This is not a GEDCOM file but binary"},
        {ManyEvents("INDI", 51), "The GEDCOM file has more kinds of events"},
        {"0 HEAD\n0 @X1@ INDI\n0 INDI\n0 @F1@ FAM\n0 TRLR\n",
         "None of the 2 individuals in the GEDCOM file can be imported, because their identifiers are not such numbers "
         "as in @I12@ (line 2: @X1@)"},
        {"0 HEAD\n0 @F1@ FAM\n0 TRLR\n", "There is no individual in the GEDCOM file."}};
    for (const auto& [content, reason] : cases) {
        world.talk.expect(reason);
        EXPECT_FALSE(ImportGedcom(connection, world.write("bad.ged", content), world.environment, report));
        EXPECT_EQ(report.outcome, ImportOutcome::Failed);
        EXPECT_EQ(DumpTree(connection), before);
    }
    connection.execute("DELETE FROM Indi");
    EXPECT_TRUE(ImportGedcom(connection, world.path("bad.ged"), world.environment, report)) << "nobody is lost";
    world.talk.expect(world.path({}) + " is not a file");
    EXPECT_FALSE(ImportGedcom(connection, world.path({}), world.environment, report));
}

} // namespace stemwright::test
