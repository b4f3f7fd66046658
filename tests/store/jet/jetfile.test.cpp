// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/jet/jetfile.h"

#include "base/files.h"
#include "store/jet/jetvalues.h"
#include "support/testworld.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QtEndian>

#include <gtest/gtest.h>

#include <random>

namespace stemwright::test
{

namespace
{

QString TypeName(JetType type)
{
    switch (type) {
    case JetType::YesNo:
        return "bool";
    case JetType::LongInteger:
        return "int";
    case JetType::Date:
        return "date";
    case JetType::Text:
        return "text";
    case JetType::Memo:
        return "memo";
    case JetType::LongBinary:
        return "ole";
    default:
        return "?";
    }
}

QJsonValue ValueOf(const JetRows& rows, int column)
{
    const JetType type = rows.table().columns[static_cast<std::size_t>(column)].type;
    if (type == JetType::YesNo) {
        return rows.yesNo(column);
    }
    if (type == JetType::LongInteger) {
        return rows.integer(column);
    }
    if (type == JetType::Date) {
        return rows.date(column);
    }
    if (type == JetType::LongBinary) {
        const QByteArray bytes = rows.bytes(column);
        const QByteArray sum = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
        return QJsonObject{{"bytes", bytes.size()}, {"sha256", QString::fromLatin1(sum)}};
    }
    return rows.text(column);
}

/// A table in the form of the descriptions beside the fixtures: what is Null is left out.
QJsonObject Described(JetRows rows)
{
    QJsonArray columns;
    for (const JetColumn& column : rows.table().columns) {
        columns << column.name + ' ' + TypeName(column.type);
    }
    QJsonArray values;
    while (rows.next()) {
        QJsonObject row;
        for (int i = 0; i < columns.size(); ++i) {
            if (!rows.isNull(i)) {
                row[rows.table().columns[static_cast<std::size_t>(i)].name] = ValueOf(rows, i);
            }
        }
        values << row;
    }
    return {{"columns", columns}, {"rows", values}};
}

QJsonObject Described(const JetFile& file)
{
    QJsonObject tables;
    for (const QString& name : file.tableNames()) {
        tables[name] = Described(file.rows(name));
    }
    return tables;
}

QStringList DescribedFixtures()
{
    QStringList files;
    for (QDirIterator it(TestData("jet"), {"*.contents.json"}, QDir::Files, QDirIterator::Subdirectories);
         it.hasNext();) {
        files << it.next().chopped(QString(".contents.json").size());
    }
    return files;
}

QByteArray OldFamilyFile()
{
    return ReadWholeFile(TestData("jet/family-2.2.9930/cats-2.2.9930.kvf"));
}

/// Reads everything that a file holds. Returns why that failed.
QString ReadingFails(const QString& path)
{
    return ErrorOf([&path] { Described(JetFile(path)); });
}

} // namespace

TEST(JetFile, EveryFixtureIsReadAsItIsDescribed)
{
    // Whatever the user's environment says to the library behind the reader is not heard.
    for (const char* variable : {"MDBICONV", "MDB_JET3_CHARSET", "MDBPATH", "MDBOPTS"}) {
        qputenv(variable, "debug_all");
    }
    const QStringList files = DescribedFixtures();
    ASSERT_EQ(files.size(), 7);
    for (const QString& path : files) {
        const QJsonObject expected = QJsonDocument::fromJson(ReadWholeFile(path + ".contents.json")).object();
        const QJsonObject actual = Described(JetFile(path));
        EXPECT_EQ(actual.keys(), expected.keys()) << path;
        for (const QString& table : expected.keys()) {
            EXPECT_EQ(actual[table]["columns"].toVariant().toStringList(),
                      expected[table]["columns"].toVariant().toStringList())
                << path << table;
            const QJsonArray rows = actual[table]["rows"].toArray();
            const QJsonArray expectedRows = expected[table]["rows"].toArray();
            ASSERT_EQ(rows.size(), expectedRows.size()) << path << table;
            for (qsizetype i = 0; i < rows.size(); ++i) {
                EXPECT_EQ(rows[i], expectedRows[i])
                    << path << table << QJsonDocument(rows[i].toObject()).toJson().constData();
            }
        }
    }
    for (const char* variable : {"MDBICONV", "MDB_JET3_CHARSET", "MDBPATH", "MDBOPTS"}) {
        qunsetenv(variable);
    }
}

TEST(JetFile, NumbersGoOnBehindTheLastOneGiven)
{
    const JetFile file(TestData("jet/family-3.0.2/cats-3.0.2.kvf"));
    const JetTable album = file.table(u"albumtoc");
    EXPECT_EQ(album.lastAutoNumber, 10);
    EXPECT_TRUE(album.columns[static_cast<std::size_t>(*album.column(u"picid"))].autoNumber);
    EXPECT_FALSE(album.columns[static_cast<std::size_t>(*album.column(u"Title"))].autoNumber);
    EXPECT_TRUE(ErrorOf([&file] { file.rows(u"Nothing"); }).contains("Nothing"));
    JetRows rows = file.rows(u"AlbumTOC");
    ASSERT_TRUE(rows.next());
    EXPECT_TRUE(ErrorOf([&] { rows.text(*album.column(u"PicId")); }).contains("of another type"));
}

TEST(JetFile, TextsAndDates)
{
    const std::pair<QByteArray, QString> texts[] = {
        {"", ""},
        {"\xFF\xFE", ""},
        {QByteArray("\x3D\xD8\x00\xDE", 4), "😀"},
        {QByteArray("\xFF\xFE\x41\xE9\0\x3D\xD8\x01\xDE\0z", 11), "Aé😁z"},
    };
    for (const auto& [bytes, text] : texts) {
        EXPECT_EQ(DecodeJetText(bytes), text);
        EXPECT_FALSE(DecodeJetText(bytes).isNull());
    }
    EXPECT_TRUE(ErrorOf([] { DecodeJetText("abc"); }).contains("damaged"));
    EXPECT_EQ(DecodeJetDate(0.75), "1899-12-30T18:00:00");
    EXPECT_EQ(DecodeJetDate(-1.25), "1899-12-29T06:00:00");
    EXPECT_EQ(DecodeJetDate(36584 - 1e-6), "2000-02-28T00:00:00");
    for (const double wrong : {std::nan(""), 1e300, -1e9}) {
        EXPECT_TRUE(ErrorOf([wrong] { DecodeJetDate(wrong); }).contains("damaged"));
    }
}

TEST(JetFile, WhatCannotBeReadSaysWhatToDo)
{
    const QByteArray whole = OldFamilyFile();
    QByteArray jet3 = whole;
    jet3[0x14] = 0;
    QByteArray later = whole;
    later.replace(4, 15, "Standard ACE DB");
    // The head is masked by a fixed key, so that a changed byte of the password stays a changed one.
    QByteArray locked = whole;
    locked[0x42] = static_cast<char>(locked[0x42] ^ 'x');
    const std::pair<QByteArray, QString> contents[] = {{"", "not a Jet database"},
                                                       {"SQLite format 3", "not a Jet database"},
                                                       {jet3, "Access 97"},
                                                       {later, "2002-2003"},
                                                       {locked, "remove the password"},
                                                       {whole.left(3000), "Open a backup"},
                                                       {whole.left(4096), "Open a backup"}};
    TestWorld world;
    for (const auto& [content, reason] : contents) {
        const QString text = ReadingFails(world.write("x.mdb", content));
        EXPECT_TRUE(text.contains(reason)) << reason << ": " << text;
    }
    for (const char* broken : {"truncated", "truncated-catalog"}) {
        const QString text = ReadingFails(TestData("jet/broken/%1.kvf").replace("%1", broken));
        EXPECT_TRUE(text.contains("is damaged")) << text;
    }
}

TEST(JetFile, RandomDamageEndsInAnErrorOrInRows)
{
    const QByteArray whole = OldFamilyFile();
    std::mt19937 random(20260312);
    const auto below = [&random](qsizetype limit) {
        return static_cast<qsizetype>(random() % static_cast<std::mt19937::result_type>(limit));
    };
    TestWorld world;
    int failed = 0;
    ::testing::internal::CaptureStderr();
    for (int i = 0; i < 200; ++i) {
        failed += ReadingFails(world.write("x.kvf", whole.left(below(whole.size())))).isEmpty() ? 0 : 1;
    }
    for (int i = 0; i < 500; ++i) {
        QByteArray damaged = whole;
        for (int bytes = 1 << (i % 12); bytes > 0; --bytes) {
            damaged[below(damaged.size())] = static_cast<char>(random());
        }
        failed += ReadingFails(world.write("x.kvf", damaged)).isEmpty() ? 0 : 1;
    }
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "") << "nothing is said behind the user's back";
    EXPECT_GT(failed, 300);
}

TEST(JetFile, PlacesThatLeadInCirclesEnd)
{
    // Every number that could lead to another page leads back to its own.
    const QByteArray whole = ReadWholeFile(TestData("jet/albums/album-8.mdb"));
    TestWorld world;
    int endless = 0;
    for (qsizetype page = 1; page < whole.size() / jetPageSize; ++page) {
        for (const int place : {4, 55, 59}) {
            QByteArray damaged = whole;
            qToLittleEndian(static_cast<quint32>(page << (place == 4 ? 0 : 8)),
                            damaged.data() + page * jetPageSize + place);
            const QString reason = ReadingFails(world.write("x.mdb", damaged));
            EXPECT_TRUE(reason.isEmpty() || reason.startsWith("The database is damaged: ")) << reason;
            endless += reason.contains("the definition of a table has no end") ? 1 : 0;
        }
    }
    EXPECT_GT(endless, 0);
}

} // namespace stemwright::test
