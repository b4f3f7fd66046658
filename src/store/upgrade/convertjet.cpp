// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/upgrade/convertjet.h"

#include "base/error.h"
#include "store/engine/tablesql.h"
#include "store/tables/tableshape.h"
#include "store/upgrade/messages.h"
#include "store/upgrade/tablechanges.h"
#include "store/upgrade/upgradesteps.h"

#include <sqlite3.h>

namespace stemwright
{

namespace
{

std::optional<ColumnType> KeptType(JetType type)
{
    switch (type) {
    case JetType::YesNo:
        return ColumnType::YesNo;
    case JetType::Byte:
    case JetType::Integer:
    case JetType::LongInteger:
        return ColumnType::Integer;
    case JetType::Date:
        return ColumnType::Date;
    case JetType::Text:
        return ColumnType::Text;
    case JetType::Memo:
        return ColumnType::Memo;
    case JetType::Binary:
    case JetType::LongBinary:
        return ColumnType::Binary;
    }
    return std::nullopt;
}

/// A column that is taken over: its number in the source, its type and name in the family file.
struct KeptColumn {
    int number;
    ColumnType type;
    QString name;
    bool autoNumber;
};

/// One table on its way.
class TableConversion
{
public:
    TableConversion(const JetFile& source, const QString& name, Connection& work, QStringList& leftBehind)
        : m_source(source), m_work(work), m_name(TableNamed(name).name)
    {
        const std::vector<JetColumn> columns = source.table(name).columns;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            keep(columns[i], static_cast<int>(i), leftBehind);
        }
    }

    void createTable() const
    {
        QStringList columns;
        for (const KeptColumn& column : m_columns) {
            const QString key = column.autoNumber ? QStringLiteral(" PRIMARY KEY AUTOINCREMENT") : QString();
            columns << QuotedName(column.name) + u' ' + DeclaredType(column.type) + key;
        }
        m_work.execute(
            QStringLiteral("CREATE TABLE %1 (%2)").arg(QuotedName(m_name), columns.join(QStringLiteral(", "))));
    }

    /// Copies the rows; `rowDone` is called after each.
    void copyRows(const std::function<void()>& rowDone) const
    {
        JetRows rows = m_source.rows(m_name);
        Statement insert = m_work.prepare(QStringLiteral("INSERT INTO %1 VALUES (%2?)")
                                              .arg(QuotedName(m_name), QStringLiteral("?, ").repeated(lastColumn())));
        while (rows.next()) {
            for (std::size_t i = 0; i < m_columns.size(); ++i) {
                bind(insert, static_cast<int>(i) + 1, rows, m_columns[i]);
            }
            insert.run();
            rowDone();
        }
        continueNumbers(rows.table());
    }

    /// Throws Error unless the new table has as many rows as the old one, with the same pictures.
    void verify() const
    {
        JetRows rows = m_source.rows(m_name);
        if (m_work.countRows(m_name) != rows.table().rowCount) {
            FailNotWhole(m_name);
        }
        for (const KeptColumn& column : m_columns) {
            if (column.type == ColumnType::Binary) {
                verifyBytes(m_source.rows(m_name), column);
            }
        }
    }

private:
    void keep(const JetColumn& column, int number, QStringList& leftBehind)
    {
        if (const std::optional<ColumnType> type = KeptType(column.type)) {
            m_columns.push_back({number, *type, column.name, column.autoNumber});
        } else if (FindColumn(TableNamed(m_name), column.name) == nullptr) {
            leftBehind << QStringLiteral("column %1 of table %2").arg(column.name, m_name);
        } else {
            throw Error(QStringLiteral("Column %1 of its table %2 is of another type than it should be.")
                            .arg(column.name, m_name));
        }
    }

    int lastColumn() const { return static_cast<int>(m_columns.size()) - 1; }

    static void bind(Statement& insert, int parameter, const JetRows& rows, const KeptColumn& column)
    {
        switch (column.type) {
        case ColumnType::YesNo:
            insert.bind(parameter, rows.yesNo(column.number) ? -1 : 0);
            break;
        case ColumnType::Integer:
            insert.bind(parameter,
                        rows.isNull(column.number) ? std::nullopt : std::optional<int>(rows.integer(column.number)));
            break;
        case ColumnType::Date:
            insert.bind(parameter, rows.date(column.number));
            break;
        case ColumnType::Text:
        case ColumnType::Memo:
            insert.bind(parameter, rows.text(column.number));
            break;
        case ColumnType::Binary:
            insert.bindBytes(parameter, rows.bytes(column.number));
            break;
        }
    }

    const KeptColumn* numberedColumn() const
    {
        const auto found = std::find_if(m_columns.begin(), m_columns.end(),
                                        [](const KeptColumn& column) { return column.autoNumber; });
        return found == m_columns.end() ? nullptr : &*found;
    }

    /// Numbers that were given to rows since deleted are not given again.
    void continueNumbers(const JetTable& table) const
    {
        if (numberedColumn() == nullptr) {
            return;
        }
        m_work.execute(QStringLiteral("INSERT INTO sqlite_sequence (name, seq) SELECT '%1', 0 WHERE NOT EXISTS"
                                      " (SELECT 1 FROM sqlite_sequence WHERE name = '%1')")
                           .arg(m_name));
        Statement update =
            m_work.prepare(QStringLiteral("UPDATE sqlite_sequence SET seq = max(seq, ?2) WHERE name = ?1"));
        update.bind(1, m_name).bind(2, table.lastAutoNumber).run();
    }

    void verifyBytes(JetRows rows, const KeptColumn& column) const
    {
        const KeptColumn* numbered = numberedColumn();
        Statement select = m_work.prepare(
            QStringLiteral("SELECT %1 FROM %2 WHERE rowid = ?1").arg(QuotedName(column.name), QuotedName(m_name)));
        while (rows.next()) {
            select.bind(1, numbered == nullptr ? rows.passed() : rows.integer(numbered->number));
            const QByteArray expected = rows.bytes(column.number);
            if (!select.step() || select.isNull(0) != expected.isNull() || select.rawBytes(0) != expected) {
                FailNotWhole(m_name);
            }
            select.reset();
        }
    }

    const JetFile& m_source;
    Connection& m_work;
    QString m_name;
    std::vector<KeptColumn> m_columns;
};

/// What the engine refuses to take in a copy of a sound file can only come from damage.
[[noreturn]] void RethrowAsDamage(const SQLite::Exception& exception)
{
    if (exception.getErrorCode() != SQLITE_CONSTRAINT && exception.getErrorCode() != SQLITE_ERROR) {
        throw;
    }
    FailDamaged(QStringLiteral("its tables contradict themselves (%1)").arg(ErrorText(exception)));
}

} // namespace

QString JetFileVersion(const JetFile& source)
{
    const QString table = QStringLiteral("GenInfo");
    if (!source.hasTable(table)) {
        throw Error(QStringLiteral("It is not a family file."));
    }
    JetRows rows = source.rows(table);
    const std::optional<int> column = rows.table().column(u"StemoraVersion");
    if (!column || !rows.next() || rows.isNull(*column)) {
        throw Error(QStringLiteral("It does not say which version of Stemwright made it."));
    }
    return rows.text(*column);
}

void RequireWholeJetFile(const JetFile& source, QStringView version)
{
    for (const QString& name : TablesOfVersion(version)) {
        if (!source.hasTable(name)) {
            RefuseWithoutTable(name);
        }
    }
    for (const QString& name : source.tableNames()) {
        JetRows rows = source.rows(name);
        while (rows.next()) {
        }
    }
}

QStringList ConvertJetFile(const JetFile& source, Connection& work, Talk& talk)
{
    QStringList leftBehind;
    std::vector<TableConversion> conversions;
    qint64 all = 0;
    for (const QString& name : source.tableNames()) {
        const qint64 rows = source.table(name).rowCount;
        if (FindTable(name) != nullptr) {
            conversions.emplace_back(source, name, work, leftBehind);
            all += rows;
        } else if (rows > 0) {
            leftBehind << QStringLiteral("table %1").arg(name);
        }
    }
    const auto progress = talk.progress(upgrademessages::upgrading, upgrademessages::readingFile);
    qint64 done = 0;
    try {
        Transaction transaction(work);
        for (const TableConversion& conversion : conversions) {
            conversion.createTable();
            conversion.copyRows([&] {
                progress->setPercent(static_cast<int>(100 * ++done / all));
                StopWhenWished(*progress);
            });
        }
        transaction.commit();
        for (const TableConversion& conversion : conversions) {
            conversion.verify();
        }
    } catch (const SQLite::Exception& exception) {
        RethrowAsDamage(exception);
    }
    return leftBehind;
}

} // namespace stemwright
