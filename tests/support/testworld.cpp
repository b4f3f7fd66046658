// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "support/testworld.h"

#include "base/error.h"
#include "base/files.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

/// What a field of a table stands for.
QString Meant(QString field)
{
    for (const auto& [sign, meant] : {std::pair(u'␣', u' '), {u'⇥', u'\t'}, {u'␤', u'\n'}, {u'␍', u'\r'}}) {
        field.replace(sign, meant);
    }
    return field == "∅" ? QString() : field;
}

} // namespace

TestWorld::TestWorld()
    : clock(QDateTime(QDate(2026, 3, 12), QTime(12, 0))),
      application(STEMWRIGHT_SHARE), environment{talk, settings, clock, application}
{
}

FamilyFile& TestWorld::newFamilyFile()
{
    EXPECT_TRUE(CreateFamilyFile(file, path("Family.kvf"), environment));
    return file;
}

QStringList TestWorld::column(const QString& sql)
{
    return Rows(connection(), sql);
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

std::vector<QStringList> TestTable(const QString& name)
{
    std::vector<QStringList> rows;
    for (const QString& line : TestDataText(name).split(u'\n', Qt::SkipEmptyParts)) {
        if (!line.startsWith(u'#')) {
            rows.emplace_back();
            for (const QString& field : line.split(u'|')) {
                rows.back() << Meant(field.trimmed());
            }
        }
    }
    return rows;
}

QStringList Rows(Connection& connection, const QString& sql, const QString& separator)
{
    Statement statement = connection.prepare(sql);
    QStringList rows;
    while (statement.step()) {
        QStringList values;
        for (int column = 0; column < statement.columnCount(); ++column) {
            values << (statement.isNull(column) ? "-" : statement.text(column));
        }
        rows << values.join(separator);
    }
    return rows;
}

QString ErrorOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const Error& error) {
        return error.text();
    }
    return {};
}

} // namespace stemwright::test

void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text << '"';
}

std::ostream& operator<<(std::ostream& stream, const QString& text)
{
    return stream << text.toStdString();
}
