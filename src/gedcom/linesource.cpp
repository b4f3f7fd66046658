// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/linesource.h"

#include "base/error.h"
#include "gedcom/messages.h"

namespace stemwright
{

namespace
{

constexpr std::size_t blockSize = 131'072;

bool IsWide(Charset charset)
{
    return charset == Charset::Utf16LittleEndian || charset == Charset::Utf16BigEndian;
}

QStringDecoder DecoderOf(Charset charset)
{
    switch (charset) {
    case Charset::Utf16LittleEndian:
        return QStringDecoder(QStringConverter::Utf16LE);
    case Charset::Utf16BigEndian:
        return QStringDecoder(QStringConverter::Utf16BE);
    default:
        return {};
    }
}

/// The byte that makes a pair with a line end, as in CRLF and LFCR.
char OtherHalf(char lineEnd)
{
    return lineEnd == '\n' ? '\r' : '\n';
}

} // namespace

LineSource::LineSource(QIODevice& device, Charset charset, qint64 start)
    : m_device(device), m_wide(IsWide(charset)), m_decoder(DecoderOf(charset)), m_read(start)
{
    m_buffer.reserve(longestLine + 2 * blockSize);
    if (!m_device.seek(start)) {
        throw Error(gedcommessages::CannotRead(m_device.errorString()));
    }
}

bool LineSource::next(SourceLine& line)
{
    if (m_restToSkip) {
        skipRestOfLine();
    }
    passOtherHalf();
    std::size_t end = lineEnd();
    while (end == std::string::npos && unread() < longestLine && fill()) {
        end = lineEnd();
    }
    if (end == std::string::npos && unread() == 0) {
        return false;
    }
    const std::size_t length = (end == std::string::npos ? m_buffer.size() : end) - m_begin;
    m_restToSkip = end == std::string::npos;
    line = {m_buffer.data() + m_begin, std::min(length, longestLine), ++m_number};
    if (m_restToSkip || line.length < length) {
        line.length -= IncompleteTail({line.bytes, line.length});
    }
    m_begin += length;
    if (!m_restToSkip) {
        m_lastEnd = m_buffer[m_begin++];
    }
    return true;
}

qint64 LineSource::position() const
{
    // In UTF-16 most characters of a GEDCOM file are two bytes of the file and one of the buffer.
    return std::max<qint64>(0, m_read - static_cast<qint64>(unread()) * (m_wide ? 2 : 1));
}

/// Reads the next block behind what is unread. False at the end of the file.
bool LineSource::fill()
{
    m_buffer.erase(0, m_begin);
    m_begin = 0;
    m_lineFeed = 0;
    m_carriageReturn = 0;
    const std::size_t old = m_buffer.size();
    m_buffer.resize(old + blockSize);
    const qint64 count = m_device.read(m_buffer.data() + old, blockSize);
    m_buffer.resize(old + static_cast<std::size_t>(std::max<qint64>(0, count)));
    if (count < 0) {
        throw Error(gedcommessages::CannotRead(m_device.errorString()));
    }
    m_read += count;
    if (m_wide) {
        const QString text = m_decoder.decode(QByteArrayView(m_buffer.data() + old, count));
        m_buffer.replace(old, std::string::npos, text.toStdString());
    }
    if (m_buffer.find('\0', old) != std::string::npos) {
        m_buffer.erase(std::remove(m_buffer.begin() + static_cast<std::ptrdiff_t>(old), m_buffer.end(), '\0'),
                       m_buffer.end());
    }
    return count > 0;
}

/// The place of the next `wanted` byte in the unread text, which `known` remembers; npos when there is none.
std::size_t LineSource::find(char wanted, std::size_t& known) const
{
    if (known < m_begin || known == 0) {
        known = m_buffer.find(wanted, m_begin);
    }
    return known;
}

std::size_t LineSource::lineEnd()
{
    return std::min(find('\n', m_lineFeed), find('\r', m_carriageReturn));
}

void LineSource::passOtherHalf()
{
    if (m_lastEnd != '\0' && (unread() > 0 || fill()) && unread() > 0 && m_buffer[m_begin] == OtherHalf(m_lastEnd)) {
        ++m_begin;
    }
    m_lastEnd = '\0';
}

void LineSource::skipRestOfLine()
{
    m_restToSkip = false;
    std::size_t end = lineEnd();
    while (end == std::string::npos) {
        m_begin = m_buffer.size();
        if (!fill()) {
            return;
        }
        end = lineEnd();
    }
    m_begin = end;
    m_lastEnd = m_buffer[m_begin++];
}

} // namespace stemwright
