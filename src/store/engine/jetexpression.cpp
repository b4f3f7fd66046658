// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/jetexpression.h"

#include "base/error.h"
#include "store/engine/jetdates.h"
#include "store/engine/schema.h"
#include "store/engine/tablesql.h"
#include "store/engine/textfunctions.h"

namespace stemwright::jet
{

namespace
{

Kind KindOf(ColumnType type)
{
    switch (type) {
    case ColumnType::Integer:
        return Kind::Number;
    case ColumnType::Text:
    case ColumnType::Memo:
        return Kind::Text;
    case ColumnType::Binary:
        return Kind::Binary;
    case ColumnType::Date:
        return Kind::Date;
    case ColumnType::YesNo:
        return Kind::YesNo;
    }
    return Kind::Unknown;
}

const ColumnDefinition* FindColumn(const Source& source, const QString& column)
{
    const TableDefinition* table = FindTable(source.table);
    return table == nullptr ? nullptr : FindColumn(*table, column);
}

/// Brackets within brackets; each costs the stack some frames.
constexpr int maxDepth = 100;

bool SameWord(const QString& first, QStringView second)
{
    return second.compare(first, Qt::CaseInsensitive) == 0;
}

QString Literal(QString text)
{
    return u'\'' + text.replace(u'\'', QStringLiteral("''")) + u'\'';
}

/// An operand of a comparison with a date: a literal in quotes is a date there too.
QString DateOperand(const Expression& operand)
{
    return operand.literal ? Literal(IsoDate(*operand.literal)) : operand.sql;
}

/// An operand of a comparison with a yes/no value: Null is no, and every number but 0 is yes.
QString YesNoOperand(const Expression& operand)
{
    return QStringLiteral("(-(ifnull(%1, 0) <> 0))").arg(operand.sql);
}

/// The two sides of a comparison, made comparable.
std::pair<QString, QString> Comparable(const Expression& left, const Expression& right)
{
    const auto either = [&left, &right](Kind kind) { return left.kind == kind || right.kind == kind; };
    if (either(Kind::Date)) {
        return {DateOperand(left), DateOperand(right)};
    }
    if (either(Kind::YesNo)) {
        return {YesNoOperand(left), YesNoOperand(right)};
    }
    if (either(Kind::Text)) {
        return {left.sql + QStringLiteral(" COLLATE ") + namesCollation, right.sql};
    }
    return {left.sql, right.sql};
}

Expression Compared(const Expression& left, const QString& comparison, const Expression& right)
{
    const auto [first, second] = Comparable(left, right);
    return {QStringLiteral("(%1 %2 %3)").arg(first, comparison, second), Kind::Number};
}

Expression Joined(const Expression& left, const QString& operation, const Expression& right, Kind kind = Kind::Number)
{
    return {QStringLiteral("(%1 %2 %3)").arg(left.sql, operation, right.sql), kind};
}

Expression Negated(const Expression& operand)
{
    return {QStringLiteral("(NOT %1)").arg(operand.sql), Kind::Number};
}

/// The engine finds the type of a long value without reading the value only when asked in this way.
Expression IsNull(const Expression& operand)
{
    const QString form =
        operand.kind == Kind::Binary ? QStringLiteral("(typeof(%1) = 'null')") : QStringLiteral("(%1 IS NULL)");
    return {form.arg(operand.sql), Kind::Number};
}

QString NullAsEmpty(const Expression& operand)
{
    return operand.literal ? operand.sql : QStringLiteral("ifnull(%1, '')").arg(operand.sql);
}

} // namespace

std::optional<std::size_t> Scope::sourceOf(const QString& qualifier, const QString& column) const
{
    for (std::size_t index = 0; index < m_sources.size(); ++index) {
        const Source& source = m_sources[index];
        if (qualifier.isEmpty() ? FindColumn(source, column) != nullptr : SameWord(qualifier, source.name)) {
            return index;
        }
    }
    return std::nullopt;
}

Kind Scope::kindOf(const QString& qualifier, const QString& column) const
{
    if (const auto index = sourceOf(qualifier, column)) {
        const ColumnDefinition* definition = FindColumn(m_sources[*index], column);
        return definition == nullptr ? Kind::Unknown : KindOf(definition->type);
    }
    for (const auto& [name, kind] : m_aliases) {
        if (qualifier.isEmpty() && SameWord(name, column)) {
            return kind;
        }
    }
    return Kind::Unknown;
}

QString WithOrder(const Expression& expression)
{
    return expression.kind == Kind::Text ? expression.sql + QStringLiteral(" COLLATE ") + namesCollation
                                         : expression.sql;
}

QString AsStored(const Expression& expression, ColumnType type)
{
    switch (type) {
    case ColumnType::YesNo:
        return QStringLiteral("(-(%1 <> 0))").arg(expression.sql);
    case ColumnType::Date:
        return DateOperand(expression);
    default:
        return expression.sql;
    }
}

Expression ExpressionReader::read()
{
    if (++m_depth > maxDepth) {
        throw Error(QStringLiteral("The query cannot be understood: it has too many brackets within brackets."));
    }
    Expression left = conjunction();
    while (m_tokens.takeWord(u"OR")) {
        left = Joined(left, QStringLiteral("OR"), conjunction());
    }
    --m_depth;
    return left;
}

Expression ExpressionReader::conjunction()
{
    Expression left = negation();
    while (m_tokens.takeWord(u"AND")) {
        left = Joined(left, QStringLiteral("AND"), negation());
    }
    return left;
}

Expression ExpressionReader::negation()
{
    bool negated = false;
    while (m_tokens.takeWord(u"NOT")) {
        negated = !negated;
    }
    return negated ? Negated(comparison()) : comparison();
}

Expression ExpressionReader::comparison()
{
    const Expression left = concatenation();
    for (const QStringView symbol : {u"=", u"<>", u"<=", u">=", u"<", u">"}) {
        if (m_tokens.takeSymbol(symbol)) {
            return Compared(left, symbol.toString(), concatenation());
        }
    }
    if (m_tokens.takeWord(u"IS")) {
        const bool negated = m_tokens.takeWord(u"NOT");
        m_tokens.expectWord(u"NULL");
        return negated ? Negated(IsNull(left)) : IsNull(left);
    }
    const bool negated = m_tokens.takeWord(u"NOT");
    Expression result;
    if (m_tokens.takeWord(u"LIKE")) {
        result = {QStringLiteral("%1(%2, %3)").arg(likeFunction, concatenation().sql, left.sql), Kind::Number};
    } else if (m_tokens.takeWord(u"IN")) {
        result = inList(left);
    } else if (m_tokens.takeWord(u"BETWEEN")) {
        result = between(left);
    } else if (negated) {
        m_tokens.fail(QStringLiteral("LIKE, IN or BETWEEN"));
    } else {
        return left;
    }
    return negated ? Negated(result) : result;
}

Expression ExpressionReader::inList(const Expression& left)
{
    m_tokens.expectSymbol(u"(");
    Expression result = Compared(left, QStringLiteral("="), read());
    while (m_tokens.takeSymbol(u",")) {
        result = Joined(result, QStringLiteral("OR"), Compared(left, QStringLiteral("="), read()));
    }
    m_tokens.expectSymbol(u")");
    return result;
}

Expression ExpressionReader::between(const Expression& left)
{
    const Expression from = Compared(left, QStringLiteral(">="), concatenation());
    m_tokens.expectWord(u"AND");
    return Joined(from, QStringLiteral("AND"), Compared(left, QStringLiteral("<="), concatenation()));
}

Expression ExpressionReader::concatenation()
{
    const Expression first = sum();
    if (!m_tokens.isSymbol(u"&")) {
        return first;
    }
    QString sql = NullAsEmpty(first);
    while (m_tokens.takeSymbol(u"&")) {
        sql += QStringLiteral(" || ") + NullAsEmpty(sum());
    }
    return {u'(' + sql + u')', Kind::Text};
}

Expression ExpressionReader::sum()
{
    Expression left = product();
    while (m_tokens.isSymbol(u"+") || m_tokens.isSymbol(u"-")) {
        const QString operation = m_tokens.take().text;
        const Expression right = product();
        const bool texts = operation == u"+" && (left.kind == Kind::Text || right.kind == Kind::Text);
        left = texts ? Joined(left, QStringLiteral("||"), right, Kind::Text) : Joined(left, operation, right);
    }
    return left;
}

Expression ExpressionReader::product()
{
    Expression left = primary();
    while (m_tokens.isSymbol(u"*") || m_tokens.isSymbol(u"/")) {
        const QString operation = m_tokens.take().text;
        left = Joined(left, operation, primary());
    }
    return left;
}

Expression ExpressionReader::primary()
{
    if (m_tokens.takeSymbol(u"(")) {
        Expression inner = read();
        m_tokens.expectSymbol(u")");
        return inner;
    }
    if (m_tokens.takeSymbol(u"-")) {
        return {QStringLiteral("(-%1)").arg(literalOrName().sql), Kind::Number};
    }
    return literalOrName();
}

Expression ExpressionReader::literalOrName()
{
    const Token token = m_tokens.peek();
    switch (token.kind) {
    case TokenKind::Text:
        m_tokens.take();
        return {Literal(token.text), Kind::Text, token.text};
    case TokenKind::Number:
        m_tokens.take();
        return {token.text, Kind::Number};
    case TokenKind::Date:
        m_tokens.take();
        return {Literal(IsoDate(token.text)), Kind::Date};
    case TokenKind::Parameter:
        m_tokens.take();
        return {token.text, Kind::Unknown};
    case TokenKind::Word:
    case TokenKind::Name:
        break;
    case TokenKind::Symbol:
    case TokenKind::End:
        m_tokens.fail(QStringLiteral("a value"));
    }
    for (const auto& [word, value] : {std::pair(u"True", "-1"), std::pair(u"Yes", "-1"), std::pair(u"False", "0"),
                                      std::pair(u"No", "0"), std::pair(u"Null", "NULL")}) {
        if (m_tokens.takeWord(word)) {
            return {QString::fromLatin1(value), *value == 'N' ? Kind::Unknown : Kind::YesNo};
        }
    }
    const QString name = m_tokens.takeName();
    return token.kind == TokenKind::Word && m_tokens.isSymbol(u"(") ? call(name) : column(name);
}

Expression ExpressionReader::call(const QString& function)
{
    m_tokens.expectSymbol(u"(");
    const Expression argument = read();
    m_tokens.expectSymbol(u")");
    if (SameWord(function, u"IsNull")) {
        return IsNull(argument);
    }
    if (SameWord(function, u"CStr")) {
        return {QStringLiteral("CAST(%1 AS TEXT)").arg(argument.sql), Kind::Text};
    }
    throw Error(QStringLiteral("The query cannot be understood: there is no function named %1.").arg(function));
}

Expression ExpressionReader::column(const QString& first)
{
    QString qualifier;
    QString name = first;
    if (m_tokens.takeSymbol(u".")) {
        qualifier = first;
        name = m_tokens.takeName();
    }
    if (const auto source = m_scope.sourceOf(qualifier, name)) {
        use(*source);
    }
    const QString sql = qualifier.isEmpty() ? QuotedName(name) : QuotedName(qualifier) + u'.' + QuotedName(name);
    return {sql, m_scope.kindOf(qualifier, name)};
}

} // namespace stemwright::jet
