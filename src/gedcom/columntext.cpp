// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/columntext.h"

#include "store/engine/schema.h"

#include <QtCore/QTextBoundaryFinder>

namespace stemwright
{

std::string_view ColumnText::cut(std::string_view utf8, std::string_view tag, qint64 line)
{
    if (utf8.size() <= maxTextLength) {
        return utf8;
    }
    const std::size_t limit = BytesOfCharacters(utf8, maxTextLength);
    if (limit == utf8.size()) {
        return utf8;
    }
    m_report.note(Loss::CutValue, line, tag);
    // The character behind the limit shows whether the limit stands inside what a reader sees as one character.
    const std::string_view sample = utf8.substr(0, BytesOfCharacters(utf8, maxTextLength + 1));
    const QString text = QString::fromUtf8(sample);
    const qsizetype wanted = QString::fromUtf8(utf8.substr(0, limit)).size();
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(wanted);
    const qsizetype boundary = finder.isAtBoundary() ? wanted : finder.toPreviousBoundary();
    return boundary > 0 ? utf8.substr(0, static_cast<std::size_t>(text.left(boundary).toUtf8().size()))
                        : utf8.substr(0, limit);
}

void ContinuedText::clear()
{
    m_bytes.clear();
    m_dropped.clear();
    m_isSet = false;
    m_hasJoints = false;
}

void ContinuedText::start(const GedcomLine& line)
{
    m_bytes.assign(line.Value);
    m_dropped.assign(line.droppedAfter);
    m_line = line.number;
    m_isSet = true;
    m_hasJoints = false;
}

void ContinuedText::continueWith(const GedcomLine& line)
{
    const bool isJoined = SameText(line.Tag, "CONC");
    const bool holdsNothing = line.Value.empty() && line.droppedAfter.empty();
    if (m_bytes.size() > LineSource::longestLine || (isJoined && holdsNothing)) {
        return;
    }
    if (isJoined) {
        m_bytes.append(m_dropped).append(line.droppedBefore).append(line.Value);
        m_hasJoints = true;
    } else {
        m_bytes.append("\r\n").append(line.Value);
    }
    m_dropped.assign(line.droppedAfter);
}

std::string_view ContinuedText::bytes()
{
    if (m_hasJoints) {
        m_bytes.resize(CollapseCommas(m_bytes.data(), m_bytes.size()));
        m_hasJoints = false;
    }
    return m_bytes;
}

} // namespace stemwright
