// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/importcommand.h"

#include "gedcom/treedump.h"
#include "store/file/copyfamilyfile.h"
#include "support/testworld.h"

#include <QtCore/QFileInfo>

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

class ImportCommand : public testing::Test
{
protected:
    bool import(const QString& name, const QByteArray& lines)
    {
        return ImportGedcomFile(file, world.write(name, "0 HEAD\n0 @I1@ INDI\n" + lines + "0 TRLR\n"),
                                world.environment, report);
    }

    /// The GenInfo row and the names of the individuals.
    QString state()
    {
        const QString state =
            "SELECT GEDCOMFile || '|' || ImportDate || '|' || (SELECT group_concat(GivenName) FROM Indi) FROM GenInfo";
        return Rows(file.connection(), state).value(0).section(u'/', -1);
    }

    bool hasBackup() const { return QFileInfo::exists(BackupPath(file.path())); }

    TestWorld world;
    FamilyFile& file = world.newFamilyFile();
    ImportReport report;
};

} // namespace

TEST_F(ImportCommand, FirstImportMakesNoBackupAndAsksNothing)
{
    EXPECT_TRUE(import("a.ged", "1 NAME Ann\n"));
    EXPECT_EQ(state(), "a.ged|2026-03-12T12:00:00|Ann");
    EXPECT_FALSE(hasBackup());
    EXPECT_EQ(world.settings.value(setting::gedcom, setting::gedcomPath), QFileInfo(world.path("a.ged")).path());
    EXPECT_EQ(world.talk.captions(), QStringList{"Importing GEDCOM file"});
}

TEST_F(ImportCommand, SecondImportOfTheSameFileBacksUpAndAsksNothing)
{
    ASSERT_TRUE(import("a.ged", "1 NAME Ann\n"));
    file.connection().execute("INSERT INTO Pic2Person (PicId, PersId) VALUES (1, 1)");
    world.talk.expect("Creating Backup Family File");
    EXPECT_TRUE(import("a.ged", "1 NAME Bea\n"));
    EXPECT_EQ(state(), "a.ged|2026-03-12T12:00:00|Bea");
    EXPECT_EQ(file.connection().countRows("Pic2Person"), 1);
    Connection backup(BackupPath(file.path()), OpenMode::ReadWrite);
    EXPECT_TRUE(DumpTree(backup).contains("GivenName=[Ann]"));
}

TEST_F(ImportCommand, AnotherFileIsAskedAbout)
{
    ASSERT_TRUE(import("a.ged", "1 NAME Ann\n"));
    const QString before = state();
    for (const Button answer : {Button::No, Button::Yes}) {
        world.talk.expect("Creating Backup Family File");
        world.talk.expect("Potential GEDCOM File Conflict", answer);
        EXPECT_EQ(import("b.ged", "1 NAME Bea\n"), answer == Button::Yes);
        EXPECT_EQ(state() == before, answer == Button::No);
        EXPECT_TRUE(hasBackup());
    }
    const Message& conflict = world.talk.shown().back();
    EXPECT_EQ(conflict.preset, Button::No);
    EXPECT_TRUE(conflict.text.contains("b.ged\nThe current family file already contains \n"));
    EXPECT_TRUE(conflict.text.contains("a.ged.\nIf the new GEDCOM file"));
}

TEST_F(ImportCommand, ATreeOfUnknownOriginIsBackedUpToo)
{
    file.connection().execute("INSERT INTO Indi (Id) VALUES (5)");
    world.talk.expect("Creating Backup Family File");
    EXPECT_TRUE(import("a.ged", "1 NAME Ann\n"));
    EXPECT_TRUE(hasBackup());
}

TEST_F(ImportCommand, WhatIsNoTextIsRefusedBeforeAnythingElse)
{
    ASSERT_TRUE(import("a.ged", "1 NAME Ann\n"));
    for (const QByteArray& content : {QByteArray(), QByteArray("PK\x03\x04"), QByteArray(5000, '\0')}) {
        world.talk.expect("");
        EXPECT_FALSE(ImportGedcomFile(file, world.write("b.ged", content), world.environment, report));
        EXPECT_FALSE(hasBackup());
    }
}

TEST_F(ImportCommand, AFailureLeavesTreeAndNoteAsTheyWere)
{
    ASSERT_TRUE(import("a.ged", "1 NAME Ann\n"));
    const QString before = state();
    world.talk.expect("Creating Backup Family File");
    world.talk.expect("Potential GEDCOM File Conflict", Button::Yes);
    world.talk.expect("The GEDCOM file has more kinds of events");
    EXPECT_FALSE(import("b.ged", "1 NAME Bea\n1 _FA77\n2 DATE 1900\n"));
    EXPECT_EQ(state(), before);
    world.talk.expect("Cannot open the GEDCOM file");
    EXPECT_FALSE(ImportGedcomFile(file, world.path("none.ged"), world.environment, report));
    EXPECT_EQ(state(), before);
}

TEST_F(ImportCommand, ABackupOfTheWholeTreeOutlivesImportsThatAreStopped)
{
    const QByteArray whole = "1 NAME Ann\n0 @I2@ INDI\n0 @I3@ INDI\n";
    const QByteArray stopped = "1 NAME Bea\n0 @I1@ INDI\n";
    ASSERT_TRUE(import("a.ged", whole));
    const QString backup = "Creating Backup Family File";
    const QString duplicate = "Your GEDCOM file has a duplicate entry for individual ID # 1";
    world.talk.expect(backup).expect(duplicate).expect(backup).expect(backup).expect(duplicate);
    EXPECT_FALSE(import("a.ged", stopped));
    EXPECT_FALSE(import("a.ged", stopped));
    const QString kept = world.path("Family.kept-1.ffb");
    EXPECT_TRUE(world.talk.shown()[3].text.contains("\n" + kept + "\n"));
    EXPECT_EQ(Rows(*std::make_unique<Connection>(kept, OpenMode::ReadWrite), "SELECT count(*) FROM Indi").join(' '),
              "3");
    world.talk.expect(backup).expect(backup);
    EXPECT_TRUE(import("a.ged", whole));
    EXPECT_TRUE(import("a.ged", whole));
    const QStringList backups = {"Family.ffb", "Family.kept-1.ffb"};
    EXPECT_EQ(QDir(world.path({})).entryList({"*.ffb"}), backups);
}

TEST_F(ImportCommand, ADuplicateKeepsWhatWasReadAndTheNote)
{
    world.talk.expect("Your GEDCOM file has a duplicate entry for individual ID # 1");
    EXPECT_FALSE(import("a.ged", "1 NAME Ann\n0 @I1@ INDI\n1 NAME Bea\n"));
    EXPECT_EQ(report.outcome, ImportOutcome::StoppedAtDuplicate);
    EXPECT_EQ(state(), "a.ged|2026-03-12T12:00:00|Ann");
}

} // namespace stemwright::test
