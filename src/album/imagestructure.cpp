// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/imagestructure.h"

#include "base/error.h"

namespace stemwright
{

namespace
{

[[noreturn]] void RefuseIncomplete()
{
    throw Error(QStringLiteral("The picture is damaged or not complete."));
}

/// A position in the bytes that never leaves them.
class Walker
{
public:
    explicit Walker(const QByteArray& bytes) : m_bytes(bytes) {}

    bool atEnd() const { return m_position == m_bytes.size(); }

    qsizetype position() const { return m_position; }

    /// Whether these bytes come next.
    bool isAt(QByteArrayView bytes) const { return QByteArrayView(m_bytes).sliced(m_position).startsWith(bytes); }

    /// From a place that was passed up to here.
    ByteRange since(qsizetype place) const { return {place, m_position - place}; }

    ByteRange rest() const { return {m_position, m_bytes.size() - m_position}; }

    int byte()
    {
        skip(1);
        return static_cast<unsigned char>(m_bytes[m_position - 1]);
    }

    /// Two bytes, the low one first (GIF).
    int lowFirst()
    {
        const int low = byte();
        return low | byte() << 8;
    }

    /// Two bytes, the high one first (JPEG).
    int highFirst()
    {
        const int high = byte();
        return high << 8 | byte();
    }

    void skip(qsizetype count)
    {
        if (count > m_bytes.size() - m_position) {
            RefuseIncomplete();
        }
        m_position += count;
    }

    /// Goes behind the next byte of this value.
    void goBehind(char value)
    {
        const qsizetype found = m_bytes.indexOf(value, m_position);
        if (found < 0) {
            RefuseIncomplete();
        }
        m_position = found + 1;
    }

private:
    const QByteArray& m_bytes;
    qsizetype m_position = 0;
};

namespace jpeg
{
constexpr int temporary = 0x01;
constexpr int firstFrame = 0xC0;
constexpr int huffmanTables = 0xC4;
constexpr int reserved = 0xC8;
constexpr int arithmeticConditions = 0xCC;
constexpr int lastFrame = 0xCF;
constexpr int firstRestart = 0xD0;
constexpr int lastRestart = 0xD7;
constexpr int startOfImage = 0xD8;
constexpr int endOfImage = 0xD9;
constexpr int startOfScan = 0xDA;
constexpr int firstApplicationData = 0xE0;
constexpr int lastApplicationData = 0xEF;
constexpr int comment = 0xFE;

bool IsFrame(int marker)
{
    return marker >= firstFrame && marker <= lastFrame && marker != huffmanTables && marker != reserved &&
           marker != arithmeticConditions;
}

/// Whether the marker stands within entropy-coded data and does not end it.
bool IsWithinScan(int marker)
{
    return marker == 0 || (marker >= firstRestart && marker <= lastRestart);
}

int NextMarker(Walker& walker)
{
    if (walker.byte() != 0xFF) {
        RefuseIncomplete();
    }
    int marker = 0xFF;
    while (marker == 0xFF) {
        marker = walker.byte();
    }
    return marker;
}

/// Goes through the coded data of a scan and returns the marker that ends it.
int MarkerBehindScan(Walker& walker)
{
    int marker = 0;
    while (IsWithinScan(marker)) {
        walker.goBehind('\xFF');
        do {
            marker = walker.byte();
        } while (marker == 0xFF);
    }
    return marker;
}

QSize FrameSize(Walker& walker)
{
    walker.skip(1); // The sample precision.
    const int height = walker.highFirst();
    return {walker.highFirst(), height};
}

/// Whether a segment whose content comes next only tells of the picture. The kind of file, the colour profile and the
/// meaning of the colour components are needed to show it.
bool IsMetadata(int marker, const Walker& content)
{
    if (marker == comment) {
        return true;
    }
    return marker >= firstApplicationData && marker <= lastApplicationData && !content.isAt("JFIF") &&
           !content.isAt("ICC_PROFILE") && !content.isAt("Adobe");
}

} // namespace jpeg

void WalkJpeg(Walker& walker, ImageStructure& structure)
{
    structure.passes = 0;
    walker.skip(2);
    int marker = jpeg::NextMarker(walker);
    while (marker != jpeg::endOfImage) {
        if (marker == jpeg::startOfImage) {
            RefuseIncomplete();
        }
        if (marker == jpeg::temporary || jpeg::IsWithinScan(marker)) {
            marker = jpeg::NextMarker(walker);
            continue;
        }
        const qsizetype begin = walker.position() - 2;
        const int length = walker.highFirst() - 2;
        Walker segment = walker;
        walker.skip(std::max(length, 0));
        if (jpeg::IsMetadata(marker, segment)) {
            structure.metadata.push_back(walker.since(begin));
        }
        if (jpeg::IsFrame(marker) && !structure.size.isValid()) {
            structure.size = jpeg::FrameSize(segment);
        }
        if (marker == jpeg::startOfScan) {
            ++structure.passes;
            marker = jpeg::MarkerBehindScan(walker);
        } else {
            marker = jpeg::NextMarker(walker);
        }
    }
    if (structure.size.isEmpty() || structure.passes == 0) {
        RefuseIncomplete();
    }
}

namespace gif
{
constexpr int frame = 0x2C;
constexpr int extension = 0x21;
constexpr int trailer = 0x3B;
constexpr int commentExtension = 0xFE;
constexpr int applicationExtension = 0xFF;

/// Skips the colour table that a descriptor's flags announce.
void SkipColourTable(Walker& walker, int flags)
{
    if ((flags & 0x80) != 0) {
        walker.skip(3 * (2 << (flags & 0x07)));
    }
}

void SkipSubBlocks(Walker& walker)
{
    for (int length = walker.byte(); length != 0; length = walker.byte()) {
        walker.skip(length);
    }
}

/// Whether an extension whose content comes next only tells of the picture. How often an animation runs and the colour
/// profile are needed to show it.
bool IsMetadata(int label, const Walker& content)
{
    return label == commentExtension || (label == applicationExtension && !content.isAt("NETSCAPE2.0") &&
                                         !content.isAt("ANIMEXTS1.0") && !content.isAt("ICCRGBG1012"));
}

/// Skips a frame and returns the corner that is farthest from the picture's origin.
QSize SkipFrame(Walker& walker)
{
    const int left = walker.lowFirst();
    const int top = walker.lowFirst();
    const int width = walker.lowFirst();
    const int height = walker.lowFirst();
    SkipColourTable(walker, walker.byte());
    walker.skip(1); // The code size of the compression.
    SkipSubBlocks(walker);
    return {left + width, top + height};
}

} // namespace gif

void WalkGif(Walker& walker, ImageStructure& structure)
{
    walker.skip(6);
    structure.size.setWidth(walker.lowFirst());
    structure.size.setHeight(walker.lowFirst());
    const int flags = walker.byte();
    walker.skip(2);
    gif::SkipColourTable(walker, flags);
    QSize firstFrame;
    // Some writers leave out the trailer; whoever shows the picture does not miss it either.
    while (!walker.atEnd()) {
        const int block = walker.byte();
        if (block == gif::trailer) {
            break;
        }
        if (block == gif::frame) {
            const QSize corner = gif::SkipFrame(walker);
            firstFrame = firstFrame.isValid() ? firstFrame : corner;
        } else if (block == gif::extension) {
            const qsizetype begin = walker.position() - 1;
            const int label = walker.byte();
            Walker content = walker;
            content.skip(1); // The length of the first sub-block.
            gif::SkipSubBlocks(walker);
            if (gif::IsMetadata(label, content)) {
                structure.metadata.push_back(walker.since(begin));
            }
        } else {
            RefuseIncomplete();
        }
    }
    if (structure.size.isEmpty()) {
        structure.size = firstFrame;
    }
    if (firstFrame.isEmpty() || structure.size.isEmpty()) {
        RefuseIncomplete();
    }
}

/// Fills the structure as far as the file is whole; then throws.
void WalkImage(const QByteArray& bytes, ImageStructure& structure)
{
    Walker walker(bytes);
    structure.format == ImageFormat::Jpeg ? WalkJpeg(walker, structure) : WalkGif(walker, structure);
    if (!walker.atEnd()) {
        structure.metadata.push_back(walker.rest());
    }
}

} // namespace

std::optional<ImageFormat> ClaimedFormat(const QByteArray& beginning)
{
    if (beginning.startsWith("\xFF\xD8\xFF")) {
        return ImageFormat::Jpeg;
    }
    if (beginning.startsWith("GIF87a") || beginning.startsWith("GIF89a")) {
        return ImageFormat::Gif;
    }
    return std::nullopt;
}

ImageStructure StructureOfImage(const QByteArray& bytes)
{
    const std::optional<ImageFormat> format = ClaimedFormat(bytes);
    if (!format) {
        throw Error(bytes.isEmpty() ? QStringLiteral("The file is empty.")
                                    : QStringLiteral("It is neither a GIF nor a JPEG picture."));
    }
    ImageStructure structure{.format = *format};
    WalkImage(bytes, structure);
    return structure;
}

std::vector<ByteRange> MetadataOfImage(const QByteArray& bytes)
{
    const std::optional<ImageFormat> format = ClaimedFormat(bytes);
    if (!format) {
        return {};
    }
    ImageStructure structure{.format = *format};
    try {
        WalkImage(bytes, structure);
    } catch (const Error&) {
        // A browser shows a damaged picture as far as it goes.
    }
    return std::move(structure.metadata);
}

} // namespace stemwright
