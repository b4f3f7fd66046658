// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/files.h"
#include "store/engine/schema.h"
#include "store/file/checkfamilyfile.h"
#include "store/file/recognise.h"
#include "store/upgrade/convertjet.h"
#include "store/upgrade/messages.h"
#include "store/upgrade/upgradesteps.h"
#include "support/testworld.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QtEndian>

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

const QString question = "Before FamilyFile Upgrade";
const QString backedUp = "Creating Backup Family File";
const QString upgrading = "Upgrading Family File";
const QString cannotOpen = "Cannot open family file";

/// A column's value of the row on which a statement stands, in the form of the descriptions beside the fixtures.
QJsonValue ValueOf(const Statement& row, int column, ColumnType type)
{
    if (type == ColumnType::YesNo) {
        return row.integer(column) == -1;
    }
    if (type == ColumnType::Integer) {
        return row.integer(column);
    }
    return row.text(column);
}

bool IsBitmap(const QByteArray& bytes, const QJsonArray& size)
{
    const auto side = [&bytes](qsizetype place) { return qFromLittleEndian<qint32>(bytes.constData() + place); };
    return bytes.size() > 54 && bytes.startsWith("BM") && std::abs(side(18) - size[0].toInt()) <= 1 &&
           std::abs(std::abs(side(22)) - size[1].toInt()) <= 1;
}

bool IsAsDescribed(const Statement& row, int column, ColumnType type, const QJsonValue& expected)
{
    const QJsonObject described = expected.toObject();
    if (described.contains("any")) {
        return true;
    }
    if (expected.isUndefined() || row.isNull(column)) {
        return expected.isUndefined() && row.isNull(column);
    }
    const QByteArray bytes = type == ColumnType::Binary ? row.bytes(column) : QByteArray();
    if (described.contains("bmp")) {
        return IsBitmap(bytes, described["bmp"].toArray());
    }
    if (type == ColumnType::Binary) {
        const QByteArray sum = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
        return bytes.size() == described["bytes"].toInteger() && sum == described["sha256"].toString().toLatin1();
    }
    return ValueOf(row, column, type) == expected;
}

void ExpectRows(Connection& connection, const QString& name, const QJsonArray& expected)
{
    SCOPED_TRACE(name.toStdString());
    const TableDefinition& table = TableNamed(name);
    Statement row = connection.prepare(QString("SELECT * FROM \"%1\" ORDER BY rowid").arg(name));
    ASSERT_EQ(row.columnCount(), static_cast<int>(table.columns.size()));
    for (const QJsonValue& expectedRow : expected) {
        ASSERT_TRUE(row.step());
        for (int i = 0; i < row.columnCount(); ++i) {
            const ColumnDefinition& column = table.columns[static_cast<std::size_t>(i)];
            EXPECT_EQ(row.columnName(i), column.name);
            EXPECT_TRUE(IsAsDescribed(row, i, column.type, expectedRow[column.name]))
                << column.name << " is " << row.text(i) << " in "
                << QJsonDocument(expectedRow.toObject()).toJson().left(300).constData();
        }
    }
    EXPECT_FALSE(row.step()) << "has more rows";
}

/// A copy of a fixture with the pictures beside it.
QString CopyOfFixture(const TestWorld& world, const QString& version)
{
    const QDir from(TestData("jet/family-" + version));
    QDirIterator files(from.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = from.relativeFilePath(files.next());
        EXPECT_TRUE(CreateFolderPath(QFileInfo(world.path(name)).path()));
        EXPECT_TRUE(QFile::copy(from.filePath(name), world.path(name)));
    }
    return world.path("cats-" + version + ".kvf");
}

QJsonObject ExpectedAfter(const QString& path)
{
    return QJsonDocument::fromJson(ReadWholeFile(path + ".after-opening.json")).object();
}

/// Puts a file of the engine with the same tables, as its release would have written it, in the place of a database.
void BecomeEngineFile(const QString& path)
{
    ScriptedTalk talk;
    const JetFile source(path);
    ASSERT_TRUE(QFile::remove(path));
    Connection engine(path, OpenMode::CreateNew);
    EXPECT_EQ(ConvertJetFile(source, engine, talk), QStringList());
    engine.execute("CREATE INDEX PictureDates ON AlbumTOC (PictureDate)");
}

void ExpectMessages(TestWorld& world, const QJsonObject& expected, FileFormat format)
{
    const QJsonArray steps = expected["steps"].toArray();
    if (expected["asks for backup"].toBool()) {
        world.talk.expect(question, Button::Yes).expect(backedUp);
    } else if (format == FileFormat::Jet) {
        world.talk.expect(backedUp);
    }
    if (steps.contains("B")) {
        world.talk.expect(upgrading).expect(upgrading);
    }
}

void ExpectAsDescribed(FamilyFile& file, const QJsonObject& expected)
{
    const QJsonObject tables = expected["tables"].toObject();
    for (const QString& name : tables.keys()) {
        ExpectRows(file.connection(), name, tables[name].toArray());
    }
    EXPECT_EQ(Rows(file.connection(), "SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name NOT LIKE "
                                      "'sqlite%'"),
              QStringList(QString::number(tables.size())));
    const FamilyFileReport report = CheckFamilyFile(file.connection());
    EXPECT_EQ(report.faults, QStringList());
    Statement insert = file.connection().prepare("INSERT INTO AlbumTOC (Title) VALUES ('new')");
    insert.run();
    EXPECT_EQ(file.connection().lastInsertId(), 11) << "numbers of deleted pictures are not given again";
}

} // namespace

class Upgrade : public testing::TestWithParam<std::tuple<const char*, FileFormat>>
{
};

TEST_P(Upgrade, LeadsToWhatIsDescribed)
{
    const auto& [version, format] = GetParam();
    TestWorld world;
    const QString path = CopyOfFixture(world, version);
    const QJsonObject expected = ExpectedAfter(path);
    if (format == FileFormat::Engine) {
        BecomeEngineFile(path);
    }
    const QByteArray before = ReadWholeFile(path);
    ExpectMessages(world, expected, format);
    ASSERT_TRUE(OpenFamilyFile(world.file, path, world.environment));
    ExpectAsDescribed(world.file, expected);

    const QString backup = QString(path).replace(".kvf", ".ffb");
    EXPECT_EQ(QFile::exists(backup), format == FileFormat::Jet || expected["asks for backup"].toBool());
    if (format == FileFormat::Jet) {
        EXPECT_EQ(ReadWholeFile(backup), before);
    }
    if (expected["steps"].toArray().contains("B")) {
        EXPECT_TRUE(QFile::exists(world.path("cats-2.0.12_00_00")));
        EXPECT_TRUE(world.talk.shown().back().text.contains("C:\\My Documents\\Cats\\square.jpg"));
        EXPECT_EQ(Rows(world.connection(), "SELECT PicId, PicFilename FROM AlbumTOC WHERE PicId < 11").join(' '),
                  "1|tom 2|mia 4|Zofia 5|C:\\My Documents\\Cats\\square.jpg 7|big121 8|");
    }
    world.file.close();
    EXPECT_TRUE(OpenFamilyFile(world.file, path, world.environment)) << "nothing is asked the second time";
    EXPECT_EQ(QDir(world.path({})).entryList({"*unfinished*", "*journal*"}), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Versions, Upgrade,
                         testing::Combine(testing::Values("2.0", "2.1.2", "2.2", "2.2.9910", "2.2.9930"),
                                          testing::Values(FileFormat::Jet, FileFormat::Engine)));
INSTANTIATE_TEST_SUITE_P(Current, Upgrade, testing::Values(std::tuple("3.0.2", FileFormat::Jet)));

TEST(UpgradeSteps, EachTakesAFileFromTheVersionBeforeItToTheNext)
{
    const std::pair<void (*)(UpgradeRun&), const char*> steps[] = {
        {AddTotalGenerations, "2.1"}, {MovePicturesIn, "2.1.2"},       {AddNamePlacement, "2.2"},
        {NameSetups, "2.2.9900"},     {AddPictureQueries, "2.2.9910"}, {AddThumbnails, "2.2.9920"},
        {AddImportDate, "2.2.9930"},  {MoveTreeHeads, "2.2.9940"}};
    for (std::size_t done = 1; done < std::size(steps); ++done) {
        const QString version = steps[done - 1].second;
        SCOPED_TRACE(version.toStdString());
        TestWorld world;
        const QString path = CopyOfFixture(world, "2.0");
        QJsonObject expected = ExpectedAfter(path);
        BecomeEngineFile(path);
        if (done >= 2) {
            world.talk.expect(upgrading);
        }
        {
            Connection work(path, OpenMode::ReadWrite);
            UpgradeRun run{work, world.environment, path, [](const QString&) {}, {}};
            for (std::size_t i = 0; i < done; ++i) {
                steps[i].first(run);
            }
            work.prepare("UPDATE GenInfo SET StemoraVersion = ?1").bind(1, version).run();
        }
        if (version < "2.2.9920") {
            world.talk.expect(question, Button::No);
        }
        if (done < 2) {
            world.talk.expect(upgrading).expect(upgrading);
        }
        ASSERT_TRUE(OpenFamilyFile(world.file, path, world.environment));
        ExpectAsDescribed(world.file, expected);
        EXPECT_FALSE(QFile::exists(world.path("cats-2.0.ffb")));
    }
}

TEST(UpgradeSteps, OnlyPicturesMoveIn)
{
    TestWorld world;
    const QString path = CopyOfFixture(world, "2.0");
    BecomeEngineFile(path);
    const QString secret = world.write("secret.jpg", "root:x:0:0");
    const QString flawed = world.write("flawed.gif", "GIF89a, and nothing more");
    Connection(path, OpenMode::ReadWrite)
        .execute(QString("DELETE FROM AlbumTOC; UPDATE WebSiteInfo SET EmblemFilename = '%1';"
                         "INSERT INTO AlbumTOC (PicId, PictureFilename) VALUES (1, '%1'), (2, '%2')")
                     .arg(secret, flawed));
    world.talk.expect(question, Button::No).expect(upgrading).expect(upgrading);
    ASSERT_TRUE(OpenFamilyFile(world.file, path, world.environment));
    EXPECT_EQ(world.column("SELECT count(*) FROM WebSiteInfo WHERE EmblemPicture IS NOT NULL"), QStringList("0"));
    EXPECT_EQ(Rows(world.connection(), "SELECT PicId, length(Picture) FROM AlbumTOC").join(' '), "1|- 2|24");
    EXPECT_TRUE(world.talk.shown().back().text.contains("\n" + secret + '\n' + secret + '\n'));
}

TEST(UpgradeSteps, WhatAnEarlierReleaseHadBegunIsNotDoneTwice)
{
    TestWorld world;
    const QString path = CopyOfFixture(world, "2.2.9930");
    const QJsonObject expected = ExpectedAfter(path);
    world.talk.expect(backedUp);
    ASSERT_TRUE(OpenFamilyFile(world.file, path, world.environment));
    world.execute("UPDATE GenInfo SET StemoraVersion = '2.2.9920'; UPDATE TreeHeads SET IconNo = 3;"
                  "ALTER TABLE WebSiteInfo ADD COLUMN GenDisplayType INTEGER");
    world.file.close();
    ASSERT_TRUE(OpenFamilyFile(world.file, path, world.environment));
    EXPECT_EQ(Rows(world.connection(), "SELECT TreeNumber, IconNo FROM TreeHeads").join(' '), "2|3 3|3 4|3");
    world.execute("UPDATE TreeHeads SET IconNo = 10");
    ExpectAsDescribed(world.file, expected);
}

TEST(UpgradeAnswers, DecideAboutTheBackup)
{
    TestWorld world;
    const QString path = CopyOfFixture(world, "2.2");
    const QString backup = world.write("cats-2.2.ffb", "older backup");
    const QByteArray before = ReadWholeFile(path);

    world.talk.expect(question, Button::Cancel);
    EXPECT_FALSE(OpenFamilyFile(world.file, path, world.environment));
    EXPECT_FALSE(world.file.isOpen());
    EXPECT_EQ(ReadWholeFile(path), before);

    world.talk.expect(question, Button::No);
    ASSERT_TRUE(OpenFamilyFile(world.file, path, world.environment));
    EXPECT_EQ(ReadWholeFile(backup), "older backup");
    EXPECT_EQ(
        world.talk.shown()[0].text,
        QString("Your family file '%1' was created with an earlier version of Stemwright. We are going to upgrade "
                "this file to the current version of Stemwright.  First we are going to back up this file. \n\n"
                "Click Yes to back up, No to skip the backup, Cancel not to open '%1'.")
            .arg(path));
    world.file.close();

    WriteWholeFile(path, before);
    world.talk.expect(question, Button::Yes).expect(backedUp);
    ASSERT_TRUE(OpenFamilyFile(world.file, path, world.environment));
    EXPECT_EQ(ReadWholeFile(backup), before);
    EXPECT_EQ(world.talk.shown().back().text,
              QString("Your family file was backed up to '%1'.\n\nIf in the future you will want to use this backup "
                      "file, you will have to change its extension to \".kvf\".")
                  .arg(backup));
}

TEST(UpgradeFailures, LeaveTheFileAsItWas)
{
    for (const char* broken : {"no-geninfo", "truncated", "truncated-catalog"}) {
        TestWorld world;
        const QByteArray before = ReadWholeFile(TestData(QString("jet/broken/%1.kvf").arg(broken)));
        const QString path = world.write("broken.kvf", before);
        world.talk.expect(cannotOpen);
        EXPECT_FALSE(OpenFamilyFile(world.file, path, world.environment));
        EXPECT_EQ(ReadWholeFile(path), before);
        EXPECT_EQ(QDir(world.path({})).entryList(QDir::Files), QStringList("broken.kvf"));
    }
}

TEST(UpgradeFailures, AStoppedOneLeavesTheDefaultQueryToo)
{
    TestWorld world;
    const auto defaultQuery = [&] {
        return world.settings.value(setting::picListQueries, setting::defaultPicListQuery);
    };
    world.settings.setValue(setting::picListQueries, setting::defaultPicListQuery, "Mine");
    const QString path = CopyOfFixture(world, "2.2");
    const QByteArray before = ReadWholeFile(path);
    for (const bool isStopped : {true, false}) {
        world.talk.stopAt(isStopped ? upgrademessages::writingFile : QString());
        world.talk.expect(question, Button::No);
        EXPECT_EQ(OpenFamilyFile(world.file, path, world.environment), !isStopped);
        EXPECT_EQ(ReadWholeFile(path) == before, isStopped);
        EXPECT_EQ(defaultQuery(), isStopped ? "Mine" : "Initial");
    }
}

TEST(UpgradeFailures, WhatHasNoPlaceStaysInABackupThatIsMadeUnasked)
{
    TestWorld world;
    const QString path = CopyOfFixture(world, "2.2.9930");
    BecomeEngineFile(path);
    Connection(path, OpenMode::ReadWrite)
        .execute("ALTER TABLE Indi ADD COLUMN Notes; UPDATE Indi SET Notes = 'x' WHERE Id = 3;"
                 "ALTER TABLE Indi ADD COLUMN Unused; UPDATE Fam SET _MEND = replace(hex(zeroblob(150)), '0', 'y')");
    world.talk.expect(backedUp).expect(upgrading);
    ASSERT_TRUE(OpenFamilyFile(world.file, path, world.environment));
    const QString told = world.talk.shown().back().text;
    EXPECT_TRUE(
        told.contains("\ncolumn Notes of table Indi\nthe ends of long texts in column _MEND of table Fam (5)\n"))
        << told;
    EXPECT_EQ(Rows(world.connection(), "SELECT DISTINCT length(_MEND) FROM Fam"), QStringList("255"));
    Connection backup(world.path("cats-2.2.9930.ffb"), OpenMode::ReadWrite);
    EXPECT_EQ(Rows(backup, "SELECT Notes, (SELECT max(length(_MEND)) FROM Fam) FROM Indi WHERE Id = 3"),
              QStringList("x|300"));
}

} // namespace stemwright::test
