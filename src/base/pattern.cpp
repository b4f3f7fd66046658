// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/pattern.h"

namespace stemwright
{

namespace
{

/// The characters that stand for others in one kind of pattern; a null character stands for none.
struct Wildcards {
    QChar any;
    QChar one;
    QChar digit;
};

Wildcards WildcardsOf(QStringView pattern)
{
    const bool percent = pattern.contains(u'%') && !pattern.startsWith(u'*') && !pattern.endsWith(u'*');
    return percent ? Wildcards{u'%', u'_', {}} : Wildcards{u'*', u'?', u'#'};
}

/// Matches a folded text against a folded pattern. A run of any characters is tried shortest first; when the rest does
/// not fit, only the last run is lengthened, which is enough and keeps the work at most length times length.
class Matcher
{
public:
    Matcher(QStringView text, QStringView pattern) : m_text(text), m_pattern(pattern), m_wildcards(WildcardsOf(pattern))
    {
    }

    bool matches()
    {
        qsizetype retryPattern = -1;
        qsizetype retryText = 0;
        while (m_textPosition < m_text.size()) {
            if (m_patternPosition < m_pattern.size() && m_pattern[m_patternPosition] == m_wildcards.any) {
                retryPattern = ++m_patternPosition;
                retryText = m_textPosition;
            } else if (m_patternPosition < m_pattern.size() && takeOne()) {
                ++m_textPosition;
            } else if (retryPattern >= 0) {
                m_patternPosition = retryPattern;
                m_textPosition = ++retryText;
            } else {
                return false;
            }
        }
        while (m_patternPosition < m_pattern.size() && m_pattern[m_patternPosition] == m_wildcards.any) {
            ++m_patternPosition;
        }
        return m_patternPosition == m_pattern.size();
    }

private:
    /// Whether the next piece of the pattern fits the next character; if so the piece is passed.
    bool takeOne()
    {
        const QChar wanted = m_pattern[m_patternPosition];
        const QChar given = m_text[m_textPosition];
        if (wanted == u'[') {
            const qsizetype end = m_pattern.indexOf(u']', m_patternPosition + 1);
            if (end >= 0) {
                const bool fits = inSet(m_pattern.mid(m_patternPosition + 1, end - m_patternPosition - 1), given);
                m_patternPosition = fits ? end + 1 : m_patternPosition;
                return fits;
            }
        }
        const bool fits = wanted == given || (!wanted.isNull() && wanted == m_wildcards.one) ||
                          (!wanted.isNull() && wanted == m_wildcards.digit && given.isDigit());
        m_patternPosition += fits ? 1 : 0;
        return fits;
    }

    static bool inSet(QStringView set, QChar given)
    {
        const bool negated = set.startsWith(u'!') || set.startsWith(u'^');
        if (negated) {
            set = set.mid(1);
        }
        bool found = false;
        for (qsizetype position = 0; position < set.size() && !found; ++position) {
            const bool isRange = position + 2 < set.size() && set[position + 1] == u'-';
            found = isRange ? given >= set[position] && given <= set[position + 2] : given == set[position];
            position += isRange ? 2 : 0;
        }
        return found != negated;
    }

    QStringView m_text;
    QStringView m_pattern;
    Wildcards m_wildcards;
    qsizetype m_textPosition = 0;
    qsizetype m_patternPosition = 0;
};

} // namespace

Pattern::Pattern(QStringView pattern) : m_folded(folded(pattern))
{
    const Wildcards wildcards = WildcardsOf(m_folded);
    const auto special = std::find_if(m_folded.cbegin(), m_folded.cend(), [&wildcards](QChar character) {
        return character == wildcards.any || character == wildcards.one || character == wildcards.digit ||
               character == u'[';
    });
    m_beginning = special - m_folded.cbegin();
    m_endsFreely = m_beginning + 1 == m_folded.size() && m_folded[m_beginning] == wildcards.any;
}

QString Pattern::folded(QStringView text)
{
    return text.toString().normalized(QString::NormalizationForm_C).toCaseFolded();
}

bool Pattern::matches(QStringView text) const
{
    return matchesFolded(folded(text));
}

bool Pattern::matchesFolded(QStringView foldedText) const
{
    return Matcher(foldedText, m_folded).matches();
}

bool MatchesPattern(QStringView text, QStringView pattern)
{
    return Pattern(pattern).matches(text);
}

} // namespace stemwright
