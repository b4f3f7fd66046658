// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "gedcom/charset.h"

#include <QtCore/QIODevice>
#include <QtCore/QStringDecoder>

#include <string>

/// A text file as a stream of physical lines, read in blocks, so that memory does not grow with the file. Lines end in
/// LF, CR, CRLF or LFCR, mixed as they come. Failures of reading throw Error. Stands on base.
namespace stemwright
{

/// One physical line without its end. The bytes may be changed in place and are valid until the next line is read.
struct SourceLine {
    char* bytes = nullptr;
    std::size_t length = 0;
    /// 1 for the first line of the file.
    qint64 number = 0;
};

class LineSource
{
public:
    /// What is kept of a line, in bytes; the rest of a longer one, from the last whole UTF-8 character on, is read
    /// over. No column holds a hundredth of it.
    static constexpr std::size_t longestLine = 65'536;

    /// Reads `device`, which is open and can be positioned, from the byte `start` on. The UTF-16 sets are turned into
    /// UTF-8 on the way; all others are handed out byte for byte. NUL bytes are left out: no text holds them.
    LineSource(QIODevice& device, Charset charset, qint64 start);

    /// Goes to the next line; false at the end of the file.
    bool next(SourceLine& line);

    /// How far the file was read, in bytes: the end of the last line handed out. Exact for byte-sized character sets,
    /// in proportion for UTF-16.
    qint64 position() const;

private:
    bool fill();

    std::size_t unread() const { return m_buffer.size() - m_begin; }

    std::size_t find(char wanted, std::size_t& known) const;
    std::size_t lineEnd();
    void passOtherHalf();
    void skipRestOfLine();

    QIODevice& m_device;
    bool m_wide;
    QStringDecoder m_decoder;
    /// The buffered text; m_begin is the first byte not yet handed out.
    std::string m_buffer;
    std::size_t m_begin = 0;
    /// Where the next LF and CR stand in the buffer, so that a file with only one of them is not searched again and
    /// again.
    std::size_t m_lineFeed = 0;
    std::size_t m_carriageReturn = 0;
    /// The byte that ended the last line; the other one of a pair belongs to the same line end.
    char m_lastEnd = '\0';
    bool m_restToSkip = false;
    qint64 m_number = 0;
    /// Bytes read from the device so far.
    qint64 m_read;
};

} // namespace stemwright
