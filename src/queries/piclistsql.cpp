// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "queries/piclistsql.h"

#include "base/error.h"
#include "queries/relatives.h"
#include "store/engine/schema.h"
#include "store/engine/tablesql.h"
#include "store/tables/createtables.h"

#include <QtCore/QStringList>

namespace stemwright
{

namespace
{

/// How conditions call the picture's number.
struct NumberName {
    QString from;
    QString to;
};

const NumberName plainNumber = {QStringLiteral("AlbumToc.PicId"), QStringLiteral("AlbumTOC.PicId")};
/// As an expression, the number does not tempt the engine to look the rows up by it.
const NumberName numberOfList = {QStringLiteral("(0 + AlbumTOC.PicId)"), QStringLiteral("(0 + AlbumTOC.PicId)")};

/// The date between the # signs. Anything else that the column may hold stays as it is, for the engine to refuse.
QString DateLiteral(QString stored)
{
    return stored.replace(u'T', u' ');
}

/// The condition of each filter that is on, in the order of the list's columns.
class ConditionText
{
public:
    ConditionText(const PictureQuery& query, const NumberName& number) : m_query(query)
    {
        if (filters("Id")) {
            addNumber(number.from, QStringLiteral(">="), QStringLiteral("IdFrom"));
            addNumber(number.to, QStringLiteral("<="), QStringLiteral("IdTo"));
        }
        if (filters("PicDate")) {
            addPictureDate(QStringLiteral(">="), QStringLiteral("PicDateFrom"));
            addPictureDate(QStringLiteral("<="), QStringLiteral("PicDateTo"));
        }
        if (filters("Place")) {
            add(QStringLiteral(" AlbumTOC.Place = '") + query.text(QStringLiteral("Place")) + u'\'');
        }
        addPart("Title", QStringLiteral("Title"), QStringLiteral("TitleContains"));
        // The table has no column of this name, so that the engine refuses a query with this filter, in every release.
        addPart("Filename", QStringLiteral("Filename"), QStringLiteral("FilenameContains"));
        if (filters("ModifDate")) {
            add(QStringLiteral(" AlbumTOC.ModificationDate >= #") +
                DateLiteral(query.text(QStringLiteral("ModifDateFrom"))) +
                QStringLiteral("# AND AlbumTOC.ModificationDate <= #") +
                DateLiteral(query.text(QStringLiteral("ModifDateTo"))) + u'#');
        }
        addYesNo("NamesLeft");
        addYesNo("Rectangle");
    }

    const QString& text() const { return m_text; }

private:
    bool filters(const char* key) const { return m_query.yes(QString::fromLatin1(key) + QStringLiteral("Filter")); }

    void add(const QString& condition)
    {
        if (!m_text.isEmpty()) {
            m_text += QStringLiteral(" AND");
        }
        m_text += condition;
    }

    void addNumber(const QString& name, const QString& comparison, const QString& operand)
    {
        if (const std::optional<int> number = m_query.number(operand)) {
            add(u' ' + name + u' ' + comparison + u' ' + QString::number(*number));
        }
    }

    void addPictureDate(const QString& comparison, const QString& operand)
    {
        const QString date = m_query.text(operand);
        if (!date.isNull()) {
            add(QStringLiteral(" AlbumTOC.EncodPicDate ") + comparison + QStringLiteral(" '") + date + u'\'');
        }
    }

    void addPart(const char* key, const QString& column, const QString& operand)
    {
        if (filters(key)) {
            add(QStringLiteral(" AlbumTOC.") + column + QStringLiteral(" LIKE '%") + m_query.text(operand) +
                QStringLiteral("%'"));
        }
    }

    void addYesNo(const char* key)
    {
        if (filters(key)) {
            const QString column = QString::fromLatin1(key);
            add(QStringLiteral(" AlbumTOC.") + column + QStringLiteral(" = ") +
                QString::number(m_query.number(column).value_or(0)));
        }
    }

    const PictureQuery& m_query;
    QString m_text;
};

bool AsksForPerson(const PictureQuery& query)
{
    return query.yes(QStringLiteral("IndiFilter"));
}

/// The shown columns stand before the others.
QString ColumnList(const PictureQuery& query)
{
    QStringList shown;
    QString others;
    for (const ListColumn& column : ListColumns()) {
        const QString name = QStringLiteral("AlbumTOC.") + column.column;
        if (query.yes(column.key + QStringLiteral("Show"))) {
            shown << name;
        } else {
            others += QStringLiteral(", ") + name;
        }
    }
    return shown.join(QStringLiteral(", ")) + others + QStringLiteral(", AlbumTOC.EncodPicDate, ") +
           QStringLiteral("AlbumTOC.PicType, AlbumTOC.PicDescr, AlbumTOC.Picture, ") +
           QStringLiteral("AlbumTOC.Thumb, AlbumTOC.PicWidth, AlbumTOC.PicHeight");
}

QString StatementText(const PictureQuery& query)
{
    QString conditions = ConditionText(query, plainNumber).text();
    QString tables;
    if (AsksForPerson(query)) {
        tables = QStringLiteral(", Pic2Person, UniqueIds ");
        conditions += (conditions.isEmpty() ? QString() : QStringLiteral(" AND ")) +
                      QStringLiteral(" AlbumTOC.PicId = Pic2Person.PicId AND") +
                      QStringLiteral(" Pic2Person.PersId = UniqueIds.Id");
    }
    const QString where = conditions.isEmpty() ? QString() : QStringLiteral(" WHERE ") + conditions;
    return QStringLiteral("SELECT DISTINCTROW ") + ColumnList(query) + QStringLiteral(" FROM AlbumTOC ") + tables +
           where + QStringLiteral(" ORDER BY AlbumTOC.PicId");
}

QString ListText(const PictureQuery& query)
{
    QStringList columns = {QStringLiteral("AlbumTOC.PicId"), QStringLiteral("AlbumTOC.EncodPicDate")};
    for (const ListColumn& column : query.shown()) {
        columns << QStringLiteral("AlbumTOC.") + column.column;
    }
    const QString conditions = ConditionText(query, numberOfList).text();
    return QStringLiteral("SELECT ") + columns.join(QStringLiteral(", ")) + QStringLiteral(" FROM AlbumTOC") +
           (conditions.isEmpty() ? QString() : QStringLiteral(" WHERE") + conditions);
}

/// The person of the query with the relatives that it asks for.
std::set<int> PersonsOf(Connection& connection, const PictureQuery& query)
{
    const std::optional<int> person = query.number(QStringLiteral("IndiId"));
    if (!person) {
        throw Error(QStringLiteral("Query \"%1\" lists the pictures of a person, but no person was chosen in it.")
                        .arg(query.name()));
    }
    std::set<int> ids = {*person};
    const bool withAncestors = query.yes(QStringLiteral("WithAncs"));
    const bool withDescendants = query.yes(QStringLiteral("WithDescs"));
    if (withAncestors || withDescendants) {
        const FamilyTree tree = FamilyTree::load(connection);
        if (withAncestors) {
            GetAncIds(tree, *person, ids);
        }
        if (withDescendants) {
            GetDescIds(tree, *person, ids);
        }
    }
    return ids;
}

void FillUniqueIds(Connection& connection, const std::set<int>& ids)
{
    Transaction transaction(connection);
    DropTable(connection, TableNamed(u"UniqueIds"));
    CreateUniqueIdsTable(connection);
    Statement insert = connection.prepare(QStringLiteral("INSERT INTO UniqueIds (Id) VALUES (?1)"));
    for (const int id : ids) {
        insert.bind(1, id).run();
    }
    transaction.commit();
}

} // namespace

PicListSql BuildPicListSQL(Connection& connection, const QString& queryName)
{
    const PictureQuery query(connection, RequireQuery(connection, queryName));
    PicListSql sql{query.name(), StatementText(query), query.shown(), ListText(query), {}};
    if (AsksForPerson(query)) {
        FillUniqueIds(connection, PersonsOf(connection, query));
        sql.personText = QStringLiteral("SELECT Pic2Person.PicId FROM Pic2Person, UniqueIds"
                                        " WHERE Pic2Person.PersId = UniqueIds.Id");
    }
    return sql;
}

} // namespace stemwright
