// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/settings.h"

#include "base/error.h"
#include "base/files.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(Settings, ValuesComeBackAsTheyWereInTheNextRun)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("new folder/s.ini");
    const QString values[] = {"/srv/ann/Smith, John; \"old\" %20.kvf", "C:\\Data\\x.kvf", "Фамилия=é", "@Variant(1)",
                              " blanks "};
    for (const QString& value : values) {
        FileSettings(path).setValue(setting::openCreateFamFile, setting::lastFamilyFile, value);
        EXPECT_EQ(FileSettings(path).value(setting::openCreateFamFile, setting::lastFamilyFile), value);
    }
    FileSettings(path).setDocument("d.json", QByteArray("a\0b", 3));
    EXPECT_EQ(FileSettings(path).document("d.json"), QByteArray("a\0b", 3));
    EXPECT_TRUE(FileSettings(path).value(setting::gedcom, setting::gedcomPath).isEmpty());
    EXPECT_TRUE(FileSettings(path).value(setting::gedcom, setting::lastFamilyFile).isEmpty());
}

TEST(Settings, WhatCannotBeKeptIsLostWithoutAnError)
{
    const QTemporaryDir folder;
    WriteWholeFile(folder.filePath("file"), "x");
    FileSettings settings(folder.filePath("file/s.ini"));
    settings.setValue(setting::gedcom, setting::gedcomPath, "/tmp");
    EXPECT_THROW(settings.setDocument("d.json", "asked for"), Error);
    EXPECT_TRUE(settings.document("d.json").isEmpty());
    EXPECT_TRUE(settings.value(setting::gedcom, setting::gedcomPath).isEmpty());
    constexpr char damaged[] = "\xFF\xFE[\0\n=%%%\n[GEDCOM\nGedcomPath";
    WriteWholeFile(folder.filePath("damaged.ini"), QByteArray(damaged, sizeof damaged - 1));
    EXPECT_TRUE(FileSettings(folder.filePath("damaged.ini")).value(setting::gedcom, setting::gedcomPath).isEmpty());
}

} // namespace stemwright::test
