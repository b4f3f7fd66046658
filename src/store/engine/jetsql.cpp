// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/jetsql.h"

#include "base/error.h"
#include "store/engine/jetexpression.h"
#include "store/engine/schema.h"
#include "store/engine/tablesql.h"

#include <QtCore/QStringList>

namespace stemwright
{

namespace
{

using namespace jet;

const QString separator = QStringLiteral(", ");

/// Rewrites one statement.
class StatementWriter
{
public:
    explicit StatementWriter(const QString& sql) : m_tokens(sql), m_reader(m_tokens, m_scope) {}

    QString write()
    {
        const QString sql = statement();
        m_tokens.takeSymbol(u";");
        if (!m_tokens.atEnd()) {
            m_tokens.fail(QStringLiteral("the end of the query"));
        }
        return sql;
    }

private:
    QString statement()
    {
        if (m_tokens.takeWord(u"SELECT")) {
            return select();
        }
        if (m_tokens.takeWord(u"UPDATE")) {
            return update();
        }
        if (m_tokens.takeWord(u"DELETE")) {
            return deletion();
        }
        if (m_tokens.takeWord(u"ALTER")) {
            return alteration();
        }
        m_tokens.fail(QStringLiteral("SELECT, UPDATE, DELETE or ALTER"));
    }

    /// The tables stand behind the columns, but what the columns are is known only with the tables: they are read
    /// first.
    QString select()
    {
        const bool distinctRow = m_tokens.takeWord(u"DISTINCTROW");
        const std::size_t columns = m_tokens.position();
        while (!m_tokens.isWord(u"FROM")) {
            if (m_tokens.atEnd()) {
                m_tokens.fail(QStringLiteral("FROM"));
            }
            m_tokens.take();
        }
        m_tokens.take();
        readSources();
        const std::size_t rest = m_tokens.position();
        m_tokens.seek(columns);
        const QString list = selectList();
        m_tokens.expectWord(u"FROM");
        m_tokens.seek(rest);
        const std::set<std::size_t> shown = m_reader.usedSources();
        const QString where = whereClause();
        const bool rowsMayRepeat = distinctRow && !shown.empty() && shown.size() < m_scope.sources().size();
        const QString from = rowsMayRepeat ? distinctRows(shown, where) : fromList() + where;
        const QString groups = groupClause();
        const QString order = orderClause();
        return QStringLiteral("SELECT ") + list + QStringLiteral(" FROM ") + from + groups + order;
    }

    void readSources()
    {
        do {
            const QString table = m_tokens.takeName();
            const bool renamed = m_tokens.takeWord(u"AS");
            m_scope.add({table, renamed ? m_tokens.takeName() : table});
        } while (m_tokens.takeSymbol(u","));
    }

    QString selectList()
    {
        QStringList items;
        do {
            items << selectItem();
        } while (m_tokens.takeSymbol(u","));
        return items.join(separator);
    }

    QString selectItem()
    {
        if (m_tokens.takeSymbol(u"*")) {
            for (std::size_t source = 0; source < m_scope.sources().size(); ++source) {
                m_reader.use(source);
            }
            return QStringLiteral("*");
        }
        if (const std::optional<QString> whole = wholeTable()) {
            return *whole;
        }
        const Expression expression = m_reader.read();
        if (!m_tokens.takeWord(u"AS")) {
            return expression.sql;
        }
        const QString name = m_tokens.takeName();
        m_scope.addAlias(name, expression.kind);
        return expression.sql + QStringLiteral(" AS ") + QuotedName(name);
    }

    /// All columns of one table, "Indi2Page.*".
    std::optional<QString> wholeTable()
    {
        const std::size_t begin = m_tokens.position();
        const Token name = m_tokens.take();
        if (!m_tokens.takeSymbol(u".") || !m_tokens.takeSymbol(u"*")) {
            m_tokens.seek(begin);
            return std::nullopt;
        }
        if (const auto source = m_scope.sourceOf(name.text, {})) {
            m_reader.use(*source);
        }
        return QuotedName(name.text) + QStringLiteral(".*");
    }

    static QString declaration(const Source& source)
    {
        return source.table == source.name
                   ? QuotedName(source.table)
                   : QuotedName(source.table) + QStringLiteral(" AS ") + QuotedName(source.name);
    }

    QString fromList() const
    {
        QStringList sources;
        for (const Source& source : m_scope.sources()) {
            sources << declaration(source);
        }
        return sources.join(separator);
    }

    /// Each combination of rows of the shown tables once. Only row numbers are compared, never what stands in the rows,
    /// which may be pictures.
    QString distinctRows(const std::set<std::size_t>& shown, const QString& where) const
    {
        QStringList numbers;
        QStringList tables;
        QStringList links;
        for (const std::size_t index : shown) {
            const Source& source = m_scope.sources()[index];
            const QString rowNumber = QuotedName(source.name) + QStringLiteral(".rowid");
            const QString picked = QStringLiteral("row_%1").arg(index);
            numbers << rowNumber + QStringLiteral(" AS ") + picked;
            tables << declaration(source);
            links << rowNumber + QStringLiteral(" = picked_rows.") + picked;
        }
        return QStringLiteral("(SELECT DISTINCT %1 FROM %2%3) AS picked_rows, %4 WHERE %5")
            .arg(numbers.join(separator), fromList(), where, tables.join(separator),
                 links.join(QStringLiteral(" AND ")));
    }

    QString whereClause()
    {
        return m_tokens.takeWord(u"WHERE") ? QStringLiteral(" WHERE ") + m_reader.read().sql : QString();
    }

    QString groupClause()
    {
        if (!m_tokens.takeWord(u"GROUP")) {
            return {};
        }
        m_tokens.expectWord(u"BY");
        QStringList groups;
        do {
            groups << WithOrder(m_reader.read());
        } while (m_tokens.takeSymbol(u","));
        const QString having =
            m_tokens.takeWord(u"HAVING") ? QStringLiteral(" HAVING ") + m_reader.read().sql : QString();
        return QStringLiteral(" GROUP BY ") + groups.join(separator) + having;
    }

    QString orderClause()
    {
        if (!m_tokens.takeWord(u"ORDER")) {
            return {};
        }
        m_tokens.expectWord(u"BY");
        QStringList keys;
        do {
            const QString key = WithOrder(m_reader.read());
            keys << key + direction();
        } while (m_tokens.takeSymbol(u","));
        return QStringLiteral(" ORDER BY ") + keys.join(separator);
    }

    QString direction()
    {
        if (m_tokens.takeWord(u"DESC")) {
            return QStringLiteral(" DESC");
        }
        m_tokens.takeWord(u"ASC");
        return {};
    }

    QString update()
    {
        const QString table = m_tokens.takeName();
        m_scope.add({table, table});
        m_tokens.expectWord(u"SET");
        QStringList assignments;
        do {
            assignments << assignment(table);
        } while (m_tokens.takeSymbol(u","));
        return QStringLiteral("UPDATE %1 SET ").arg(QuotedName(table)) + assignments.join(separator) + whereClause();
    }

    QString assignment(const QString& table)
    {
        const QString column = m_tokens.takeName();
        m_tokens.expectSymbol(u"=");
        const Expression value = m_reader.read();
        const TableDefinition* definition = FindTable(table);
        const ColumnDefinition* target = definition == nullptr ? nullptr : FindColumn(*definition, column);
        return QuotedName(column) + QStringLiteral(" = ") +
               (target == nullptr ? value.sql : AsStored(value, target->type));
    }

    QString deletion()
    {
        m_tokens.takeSymbol(u"*");
        m_tokens.expectWord(u"FROM");
        const QString table = m_tokens.takeName();
        m_scope.add({table, table});
        return QStringLiteral("DELETE FROM ") + QuotedName(table) + whereClause();
    }

    /// A column's type is changed only to TEXT, the dialect's word for a memo, and the schema gives the columns that
    /// this is done to that type from the beginning: nothing is left to do.
    QString alteration()
    {
        m_tokens.expectWord(u"TABLE");
        const TableDefinition& table = TableNamed(m_tokens.takeName());
        m_tokens.expectWord(u"ALTER");
        m_tokens.expectWord(u"COLUMN");
        const QString name = m_tokens.takeName();
        m_tokens.expectWord(u"TEXT");
        const ColumnDefinition* column = FindColumn(table, name);
        if (column == nullptr || column->type != ColumnType::Memo) {
            throw Error(QStringLiteral("Column %1 of table %2 cannot become a memo.").arg(name, table.name));
        }
        return QStringLiteral("UPDATE %1 SET %2 = %2 WHERE 0").arg(QuotedName(table.name), QuotedName(column->name));
    }

    TokenStream m_tokens;
    Scope m_scope;
    ExpressionReader m_reader;
};

} // namespace

QString TranslateJetSql(const QString& sql)
{
    return StatementWriter(sql).write();
}

} // namespace stemwright
