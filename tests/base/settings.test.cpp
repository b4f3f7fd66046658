// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/settings.h"

#include "base/files.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(Settings, ValuesComeBackAsTheyWereInTheNextRun)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("new folder/s.ini"));
    const QString values[] = {QStringLiteral("/srv/ann/Smith, John; \"old\" %20.kvf"),
                              QStringLiteral("C:\\Data\\x.kvf"), QStringLiteral("Фамилия=é"),
                              QStringLiteral("@Variant(1)"), QStringLiteral(" blanks ")};
    for (const QString& value : values) {
        FileSettings(path).setValue(setting::openCreateFamFile, setting::lastFamilyFile, value);
        EXPECT_EQ(FileSettings(path).value(setting::openCreateFamFile, setting::lastFamilyFile), value);
    }
    EXPECT_TRUE(FileSettings(path).value(setting::gedcom, setting::gedcomPath).isEmpty());
    EXPECT_TRUE(FileSettings(path).value(setting::gedcom, setting::lastFamilyFile).isEmpty());
}

TEST(Settings, WhatCannotBeKeptIsLostWithoutAnError)
{
    const QTemporaryDir folder;
    WriteWholeFile(folder.filePath(QStringLiteral("file")), "x");
    FileSettings settings(folder.filePath(QStringLiteral("file/s.ini")));
    settings.setValue(setting::gedcom, setting::gedcomPath, QStringLiteral("/tmp"));
    EXPECT_TRUE(settings.value(setting::gedcom, setting::gedcomPath).isEmpty());
    constexpr char damaged[] = "\xFF\xFE[\0\n=%%%\n[GEDCOM\nGedcomPath";
    WriteWholeFile(folder.filePath(QStringLiteral("damaged.ini")), QByteArray(damaged, sizeof damaged - 1));
    EXPECT_TRUE(FileSettings(folder.filePath(QStringLiteral("damaged.ini")))
                    .value(setting::gedcom, setting::gedcomPath)
                    .isEmpty());
}

} // namespace stemwright::test
