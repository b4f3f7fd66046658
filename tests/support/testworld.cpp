// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "support/testworld.h"

#include "base/files.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TestWorld::TestWorld()
    : clock(QDateTime(QDate(2026, 3, 12), QTime(12, 0))),
      application(QStringLiteral(STEMWRIGHT_SHARE)), environment{talk, settings, clock, application}
{
}

FamilyFile& TestWorld::newFamilyFile()
{
    EXPECT_TRUE(CreateFamilyFile(file, path(QStringLiteral("Family.kvf")), environment));
    return file;
}

QString TestWorld::write(const QString& name, const QByteArray& content) const
{
    WriteWholeFile(path(name), content);
    return path(name);
}

QString TestData(const QString& name)
{
    return QStringLiteral(STEMWRIGHT_TEST_DATA "/") + name;
}

QString TestDataText(const QString& name)
{
    return QString::fromUtf8(ReadWholeFile(TestData(name)));
}

QStringList Column(Connection& connection, const QString& sql)
{
    Statement statement = connection.prepare(sql);
    QStringList values;
    while (statement.step()) {
        values << (statement.isNull(0) ? QStringLiteral("-") : statement.text(0));
    }
    return values;
}

} // namespace stemwright::test

void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}
