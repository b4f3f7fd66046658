// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/jettokens.h"
#include "store/engine/schema.h"

#include <optional>
#include <set>

/// Expressions of the query dialect, written anew in the engine's SQL. What kind of value an expression has decides how
/// it compares: texts by the rule of base/text.h, dates as ISO text, yes/no as 0 and -1. Columns of the family file
/// have the kind that the schema gives them. Fails with Error. Stands on the schema.
namespace stemwright::jet
{

enum class Kind { Unknown, Number, Text, Date, YesNo, Binary };

struct Expression {
    /// Complete in itself: it stands in parentheses where it has operators.
    QString sql;
    Kind kind = Kind::Unknown;
    /// For a literal in quotes, its text.
    std::optional<QString> literal = std::nullopt;
};

/// A table of the statement, under the name by which the statement calls it.
struct Source {
    QString table;
    QString name;
};

/// What names stand for in a statement.
class Scope
{
public:
    void add(const Source& source) { m_sources.push_back(source); }

    const std::vector<Source>& sources() const { return m_sources; }

    /// Notes the kind of a column that the statement itself names with AS.
    void addAlias(const QString& name, Kind kind) { m_aliases.emplace_back(name, kind); }

    /// The number of the source that has the column; no value when none is known to have it.
    std::optional<std::size_t> sourceOf(const QString& qualifier, const QString& column) const;
    Kind kindOf(const QString& qualifier, const QString& column) const;

private:
    std::vector<Source> m_sources;
    std::vector<std::pair<QString, Kind>> m_aliases;
};

/// An expression that sorts and groups as its kind does.
QString WithOrder(const Expression& expression);

/// An expression as a column of this type stores it.
QString AsStored(const Expression& expression, ColumnType type);

/// Reads expressions from a stream of tokens.
class ExpressionReader
{
public:
    ExpressionReader(TokenStream& tokens, const Scope& scope) : m_tokens(tokens), m_scope(scope) {}

    /// Reads one expression, up to the first token that does not belong to it.
    Expression read();

    /// The numbers of the sources whose columns were read.
    const std::set<std::size_t>& usedSources() const { return m_usedSources; }

    void use(std::size_t source) { m_usedSources.insert(source); }

private:
    Expression conjunction();
    Expression negation();
    Expression comparison();
    Expression concatenation();
    Expression sum();
    Expression product();
    Expression primary();
    Expression literalOrName();
    Expression call(const QString& function);
    Expression column(const QString& first);
    Expression inList(const Expression& left);
    Expression between(const Expression& left);

    TokenStream& m_tokens;
    const Scope& m_scope;
    std::set<std::size_t> m_usedSources;
    int m_depth = 0;
};

} // namespace stemwright::jet
