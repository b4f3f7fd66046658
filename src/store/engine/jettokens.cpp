// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/jettokens.h"

#include "base/error.h"

namespace stemwright::jet
{

namespace
{

bool BeginsWord(QChar character)
{
    return character.isLetter() || character == u'_';
}

bool ContinuesWord(QChar character)
{
    return character.isLetterOrNumber() || character == u'_' || character == u'$';
}

/// Cuts a statement into tokens. A number ends where its digits end, so that "5AND" is two tokens.
class Tokenizer
{
public:
    explicit Tokenizer(QStringView sql) : m_sql(sql) {}

    std::vector<Token> tokens()
    {
        std::vector<Token> result;
        while (true) {
            while (current().isSpace()) {
                ++m_position;
            }
            result.push_back(next());
            if (result.back().kind == TokenKind::End) {
                return result;
            }
        }
    }

private:
    /// The null character stands for the end.
    QChar current() const { return m_position < m_sql.size() ? m_sql[m_position] : QChar(); }

    Token next()
    {
        const QChar first = current();
        if (m_position >= m_sql.size()) {
            return {};
        }
        if (BeginsWord(first)) {
            return {TokenKind::Word, takeWhile(ContinuesWord)};
        }
        if (first.isDigit() || first == u'.') {
            return numberOrPoint();
        }
        if (first == u'\'' || first == u'"') {
            return {TokenKind::Text, takeQuoted(first)};
        }
        if (first == u'[') {
            return {TokenKind::Name, takeEnclosed(u']')};
        }
        if (first == u'#') {
            return {TokenKind::Date, takeEnclosed(u'#')};
        }
        if (first == u'?') {
            ++m_position;
            return {TokenKind::Parameter, u'?' + takeWhile([](QChar character) { return character.isDigit(); })};
        }
        return {TokenKind::Symbol, takeSymbol()};
    }

    template <typename Predicate>
    QString takeWhile(Predicate belongs)
    {
        const qsizetype begin = m_position;
        while (m_position < m_sql.size() && belongs(m_sql[m_position])) {
            ++m_position;
        }
        return m_sql.mid(begin, m_position - begin).toString();
    }

    Token numberOrPoint()
    {
        const auto isDigit = [](QChar character) { return character.isDigit(); };
        QString number = takeWhile(isDigit);
        const bool fraction = current() == u'.' && m_position + 1 < m_sql.size() && m_sql[m_position + 1].isDigit();
        if (number.isEmpty() && !fraction) {
            ++m_position;
            return {TokenKind::Symbol, QStringLiteral(".")};
        }
        if (fraction) {
            ++m_position;
            number += u'.' + takeWhile(isDigit);
        }
        return {TokenKind::Number, number};
    }

    QString takeQuoted(QChar quote)
    {
        const qsizetype begin = m_position++;
        QString text = QStringLiteral("");
        while (m_position < m_sql.size()) {
            if (m_sql[m_position] != quote) {
                text += m_sql[m_position++];
                continue;
            }
            ++m_position;
            if (current() != quote) {
                return text;
            }
            text += m_sql[m_position++];
        }
        throwUnclosed(begin);
    }

    QString takeEnclosed(QChar close)
    {
        const qsizetype end = m_sql.indexOf(close, m_position + 1);
        if (end < 0) {
            throwUnclosed(m_position);
        }
        const QString inside = m_sql.mid(m_position + 1, end - m_position - 1).toString();
        m_position = end + 1;
        return inside;
    }

    QString takeSymbol()
    {
        for (const QStringView two : {u"<>", u"<=", u">="}) {
            if (m_sql.mid(m_position).startsWith(two)) {
                m_position += 2;
                return two.toString();
            }
        }
        return m_sql[m_position++];
    }

    [[noreturn]] void throwUnclosed(qsizetype begin) const
    {
        throw Error(
            QStringLiteral("The query cannot be understood: a quotation mark or bracket is not closed in \"%1\".")
                .arg(m_sql.mid(begin, 60)));
    }

    QStringView m_sql;
    qsizetype m_position = 0;
};

bool IsName(const Token& token)
{
    return token.kind == TokenKind::Word || token.kind == TokenKind::Name;
}

} // namespace

TokenStream::TokenStream(QStringView sql) : m_tokens(Tokenizer(sql).tokens()) {}

Token TokenStream::take()
{
    const Token token = peek();
    if (!atEnd()) {
        ++m_position;
    }
    return token;
}

bool TokenStream::isWord(QStringView word) const
{
    return peek().kind == TokenKind::Word && word.compare(peek().text, Qt::CaseInsensitive) == 0;
}

bool TokenStream::isSymbol(QStringView symbol) const
{
    return peek().kind == TokenKind::Symbol && symbol == peek().text;
}

bool TokenStream::takeWord(QStringView word)
{
    const bool found = isWord(word);
    m_position += found ? 1 : 0;
    return found;
}

bool TokenStream::takeSymbol(QStringView symbol)
{
    const bool found = isSymbol(symbol);
    m_position += found ? 1 : 0;
    return found;
}

void TokenStream::expectWord(QStringView word)
{
    if (!takeWord(word)) {
        fail(word.toString());
    }
}

void TokenStream::expectSymbol(QStringView symbol)
{
    if (!takeSymbol(symbol)) {
        fail(symbol.toString());
    }
}

QString TokenStream::takeName()
{
    if (!IsName(peek())) {
        fail(QStringLiteral("a name"));
    }
    return take().text;
}

void TokenStream::fail(const QString& expected) const
{
    const QString found = atEnd() ? QStringLiteral("its end") : u'"' + peek().text + u'"';
    throw Error(QStringLiteral("The query cannot be understood: %1 is expected where %2 stands.").arg(expected, found));
}

} // namespace stemwright::jet
