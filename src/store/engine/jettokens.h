// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <vector>

/// The words of the query dialect that jetsql.h translates. A text that cannot be cut into words, such as one with a
/// quote that is never closed, fails with Error. Stands on base.
namespace stemwright::jet
{

enum class TokenKind {
    Word,      ///< a keyword or a plain name
    Name,      ///< a name that stood in square brackets
    Text,      ///< a literal in single or double quotes, with doubled quotes made single
    Number,    ///< digits, with a fraction or without
    Date,      ///< what stood between two # signs
    Parameter, ///< ?, ?1, ?2 ...
    Symbol,    ///< an operator or a punctuation mark
    End
};

struct Token {
    TokenKind kind = TokenKind::End;
    QString text;
};

/// The tokens of a statement, with a place in them.
class TokenStream
{
public:
    explicit TokenStream(QStringView sql);

    const Token& peek() const { return m_tokens[m_position]; }

    Token take();

    std::size_t position() const { return m_position; }

    void seek(std::size_t position) { m_position = position; }

    bool atEnd() const { return peek().kind == TokenKind::End; }

    /// Whether the next token is this keyword, in any case, or this symbol.
    bool isWord(QStringView word) const;
    bool isSymbol(QStringView symbol) const;
    /// Passes the keyword or symbol if it is next.
    bool takeWord(QStringView word);
    bool takeSymbol(QStringView symbol);
    void expectWord(QStringView word);
    void expectSymbol(QStringView symbol);
    /// Takes a name, in brackets or plain.
    QString takeName();

    /// Throws the Error that says that the next token is not what should stand there.
    [[noreturn]] void fail(const QString& expected) const;

private:
    std::vector<Token> m_tokens;
    std::size_t m_position = 0;
};

} // namespace stemwright::jet
