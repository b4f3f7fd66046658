// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/encoding.h"

#include "base/error.h"
#include "base/text.h"
#include "gedcom/importreport.h"
#include "gedcom/messages.h"
#include "gedcom/reader.h"

#include <QtCore/QBuffer>
#include <QtCore/QRegularExpression>
#include <QtCore/QUtf8StringView>

namespace stemwright
{

namespace
{

constexpr qint64 headSize = 65'536;
constexpr qint64 scanBlockSize = 131'072;

/// What the bytes of a whole file tell.
struct ByteScan {
    std::array<qint64, 128> highBytes{};
    bool hasHighBytes = false;
    bool validUtf8 = true;
};

void ScanBlock(std::string_view block, ByteScan& scan)
{
    if (IsAscii(block)) {
        return;
    }
    scan.hasHighBytes = true;
    for (const char raw : block) {
        const auto byte = static_cast<unsigned char>(raw);
        if (byte >= 0x80) {
            ++scan.highBytes[byte - 0x80U];
        }
    }
    scan.validUtf8 =
        scan.validUtf8 && QUtf8StringView(block.data(), static_cast<qsizetype>(block.size())).isValidUtf8();
}

ByteScan ScanBytes(QIODevice& file)
{
    ByteScan scan;
    file.seek(0);
    std::string block;
    while (true) {
        const std::size_t kept = block.size();
        block.resize(kept + scanBlockSize);
        const qint64 count = file.read(block.data() + kept, scanBlockSize);
        if (count < 0) {
            throw Error(gedcommessages::CannotRead(file.errorString()));
        }
        block.resize(kept + static_cast<std::size_t>(count));
        const std::size_t tail = count == 0 ? 0 : IncompleteTail(block);
        ScanBlock(std::string_view(block).substr(0, block.size() - tail), scan);
        if (count == 0) {
            return scan;
        }
        block.erase(0, block.size() - tail);
    }
}

/// The value of the CHAR line below HEAD.
QString DeclaredCharset(QByteArray head)
{
    QBuffer buffer(&head);
    buffer.open(QIODevice::ReadOnly);
    LineSource source(buffer, Charset::Utf8, 0);
    GedcomLine line;
    bool inHead = false;
    while (ReadGedcomLine(source, line)) {
        if (line.Level == '0') {
            if (inHead) {
                break;
            }
            inHead = SameText(line.Tag, "HEAD");
        } else if (inHead && line.Level == '1' && SameText(line.Tag, "CHAR")) {
            return ReportedText(line.Value);
        }
    }
    return {};
}

/// UTF-16 without a mark shows by its NUL bytes: nearly every second byte of a header is one.
std::optional<Charset> WideCharset(const QByteArray& head)
{
    constexpr qsizetype sampleSize = 512;
    const qsizetype size = std::min(head.size(), sampleSize) / 2 * 2;
    qsizetype evenNuls = 0;
    qsizetype oddNuls = 0;
    for (qsizetype index = 0; index < size; index += 2) {
        evenNuls += head[index] == '\0' ? 1 : 0;
        oddNuls += head[index + 1] == '\0' ? 1 : 0;
    }
    if (evenNuls > size / 4 && oddNuls < size / 20) {
        return Charset::Utf16BigEndian;
    }
    if (oddNuls > size / 4 && evenNuls < size / 20) {
        return Charset::Utf16LittleEndian;
    }
    return std::nullopt;
}

/// Whether the file has letters that code page 850 has where 437 has drawing characters, Greek and the like.
bool HasLettersOf850(const ByteScan& scan)
{
    const std::u16string_view dos437 = HighCharacters(Charset::Dos437);
    const std::u16string_view dos850 = HighCharacters(Charset::Dos850);
    for (std::size_t index = 0; index < scan.highBytes.size(); ++index) {
        if (scan.highBytes[index] > 0 && dos437[index] != dos850[index] && QChar(dos850[index]).isLetter()) {
            return true;
        }
    }
    return false;
}

/// The name under which ICU knows a declared character set: the whole declaration, or the number of a code page in it.
QString KnownName(const QString& declared)
{
    static const QRegularExpression number(QStringLiteral("\\d{3,}"));
    for (const QString& name : {declared, QStringLiteral("cp") + number.match(declared).captured()}) {
        if (NamedCharset::open(name)) {
            return name;
        }
    }
    return {};
}

/// The encoding of a file in which nothing but its header tells one.
FileEncoding DeclaredEncoding(const QString& declared, const ByteScan& scan)
{
    const auto names = [&declared](std::initializer_list<const char*> parts) {
        return std::any_of(parts.begin(), parts.end(), [&declared](const char* part) {
            return declared.contains(QLatin1String(part), Qt::CaseInsensitive);
        });
    };
    const auto is = [&declared](Charset charset) { return FileEncoding{.charset = charset, .declared = declared}; };
    if (names({"ANSEL"})) {
        return is(Charset::Ansel);
    }
    if (names({"1252"})) {
        return is(Charset::Windows1252);
    }
    if (names({"MACINTOSH", "MACROMAN", "MAC OS"})) {
        return is(Charset::MacRoman);
    }
    if (names({"437"})) {
        return is(Charset::Dos437);
    }
    if (names({"850"})) {
        return is(Charset::Dos850);
    }
    if (const QString name = KnownName(declared); !name.isEmpty()) {
        return {.charset = Charset::Named, .name = name, .declared = declared};
    }
    if (names({"WINDOWS", "ANSI"})) {
        return is(Charset::Windows1252);
    }
    if (names({"IBM", "DOS", "OEM"})) {
        return is(HasLettersOf850(scan) ? Charset::Dos850 : Charset::Dos437);
    }
    FileEncoding guess = is(scan.hasHighBytes ? Charset::Windows1252 : Charset::Utf8);
    guess.isGuessed = scan.hasHighBytes && !declared.isEmpty() && !IsWithinWindows1252(declared);
    return guess;
}

/// The encoding that a byte-order mark tells, or the NUL bytes of UTF-16.
std::optional<FileEncoding> MarkedEncoding(const QByteArray& head)
{
    if (head.startsWith("\xEF\xBB\xBF")) {
        return FileEncoding{.charset = Charset::Utf8, .start = 3};
    }
    if (head.startsWith("\xFF\xFE")) {
        return FileEncoding{.charset = Charset::Utf16LittleEndian, .start = 2};
    }
    if (head.startsWith("\xFE\xFF")) {
        return FileEncoding{.charset = Charset::Utf16BigEndian, .start = 2};
    }
    if (const std::optional<Charset> wide = WideCharset(head)) {
        return FileEncoding{.charset = *wide};
    }
    return std::nullopt;
}

/// The first bytes of a file, which must be text.
QByteArray ReadHead(QIODevice& file)
{
    file.seek(0);
    QByteArray head = file.read(headSize);
    if (head.isEmpty()) {
        throw Error(file.size() > 0 ? gedcommessages::CannotRead(file.errorString()) : gedcommessages::EmptyFile());
    }
    if (head.startsWith("PK\x03\x04")) {
        throw Error(gedcommessages::ZipArchive());
    }
    if (!MarkedEncoding(head) && head.count('\0') > head.size() / 20) {
        throw Error(gedcommessages::BinaryFile());
    }
    return head;
}

} // namespace

FileEncoding DetectEncoding(QIODevice& file)
{
    const QByteArray head = ReadHead(file);
    if (const std::optional<FileEncoding> marked = MarkedEncoding(head)) {
        return *marked;
    }
    const QString declared = DeclaredCharset(head);
    if (declared.startsWith(u"UTF-8", Qt::CaseInsensitive) || declared.startsWith(u"UTF8", Qt::CaseInsensitive)) {
        return {.charset = Charset::Utf8, .declared = declared};
    }
    const ByteScan scan = ScanBytes(file);
    if (scan.hasHighBytes && scan.validUtf8) {
        return {.charset = Charset::Utf8, .declared = declared};
    }
    return DeclaredEncoding(declared, scan);
}

void RequireText(QIODevice& file)
{
    ReadHead(file);
}

} // namespace stemwright
