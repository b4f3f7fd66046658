// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/html/textextent.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace stemwright
{

namespace
{

/// Widths are counted in hundredths of the font size.
constexpr int fontSizeUnits = 100;

/// Of the printable ASCII characters, beginning with the blank: the larger one of DejaVu Sans and DejaVu Serif, which
/// are wider than nearly all others.
constexpr std::array<unsigned char, 95> asciiWidths = {
    32, 41, 46, 84, 64, 96, 90, 28,  40,  40, 50, 84, 32, 37, 32, 34, 64, 64, 64, 64, 64, 64,  64, 64,
    64, 64, 34, 34, 84, 84, 84, 54,  100, 73, 74, 77, 81, 73, 70, 80, 88, 40, 41, 75, 67, 103, 88, 82,
    68, 82, 76, 69, 67, 85, 73, 103, 72,  67, 70, 40, 34, 40, 84, 50, 50, 62, 65, 57, 65, 62,  38, 65,
    65, 32, 32, 61, 32, 98, 65, 62,  65,  65, 48, 53, 41, 65, 60, 86, 60, 60, 53, 64, 34, 64,  84};

constexpr unsigned firstPrintable = 0x20;
constexpr unsigned noBreakSpace = 0xA0;
constexpr unsigned zeroWidthSpace = 0x200B;

/// Characters from `first` on, up to the next block.
struct Block {
    unsigned first;
    int width;
    /// Whether a line may end before and after each of them.
    bool breaksAnywhere;
};

constexpr std::array<Block, 12> blocks = {{{0x7F, 80, false},      // Latin, Greek
                                           {0x300, 0, false},      // combining marks
                                           {0x370, 85, false},     // Greek, Cyrillic
                                           {0x590, 80, false},     // Hebrew, Arabic
                                           {0x900, 100, false},    // the scripts of India and their neighbours
                                           {0x1E00, 85, false},    // Latin, Greek
                                           {0x2000, 100, false},   // signs
                                           {0x2E80, 105, true},    // Chinese, Japanese, Korean
                                           {0xA000, 105, false},   //
                                           {0xAC00, 105, true},    // Korean, Chinese
                                           {0xFB00, 105, false},   //
                                           {0x1F000, 140, true}}}; // pictures, rare Chinese

const Block& BlockOf(unsigned character)
{
    return *std::prev(std::upper_bound(blocks.begin(), blocks.end(), character,
                                       [](unsigned wanted, const Block& block) { return wanted < block.first; }));
}

/// Lines while they are being filled: words are kept together where they fit into a line.
class LineFiller
{
public:
    explicit LineFiller(int width) : m_width(width) {}

    void setBold(bool bold) { m_bold = bold; }

    void add(unsigned character)
    {
        if (character == ' ') {
            endWord();
            m_blank = true;
            return;
        }
        if (character < firstPrintable + asciiWidths.size()) {
            m_word += weighted(asciiWidths.at(character - firstPrintable));
        } else if (character == noBreakSpace) {
            m_word += asciiWidths.front();
        } else if (character == zeroWidthSpace) {
            allowBreak();
        } else if (const Block& block = BlockOf(character); block.breaksAnywhere) {
            addBox(weighted(block.width));
        } else {
            m_word += weighted(block.width);
        }
    }

    void allowBreak() { endWord(); }

    /// Something that is not parted, but may be from its neighbours.
    void addBox(int width)
    {
        endWord();
        m_word = width;
        endWord();
    }

    void breakLine()
    {
        endWord();
        ++m_lines;
        m_used = 0;
        m_blank = false;
    }

    int lines()
    {
        endWord();
        return m_lines;
    }

private:
    int weighted(int width) const
    {
        constexpr int boldPercent = 118;
        constexpr int hundred = 100;
        return m_bold ? width * boldPercent / hundred : width;
    }

    void endWord()
    {
        if (m_word == 0) {
            return;
        }
        const int before = m_used > 0 && m_blank ? asciiWidths.front() : 0;
        if (m_used > 0 && m_used + before + m_word > m_width) {
            ++m_lines;
            m_used = 0;
        } else {
            m_used += before;
        }
        // A word that is too long for a line is parted, and never quite fills the line.
        const int filled = std::max(m_width - fontSizeUnits, fontSizeUnits);
        for (; m_word > m_width; m_word -= filled) {
            ++m_lines;
        }
        m_used += m_word;
        m_word = 0;
        m_blank = false;
    }

    int m_width;
    int m_lines = 1;
    int m_used = 0;
    int m_word = 0;
    bool m_blank = false;
    bool m_bold = false;
};

/// The name of the tag that `html` begins with, in upper case; "/B" for an end tag.
std::string_view TagName(std::string_view html, std::array<char, 4>& name)
{
    std::size_t length = 0;
    for (const char character : html.substr(1, name.size())) {
        const bool isLetter = (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
        if (!isLetter && !(character == '/' && length == 0)) {
            break;
        }
        name.at(length++) = character >= 'a' ? static_cast<char>(character - 'a' + 'A') : character;
    }
    return {name.data(), length};
}

void AddTag(LineFiller& lines, std::string_view html, int fontSize)
{
    std::array<char, 4> name{};
    const std::string_view tag = TagName(html, name);
    if (tag == "B" || tag == "/B") {
        lines.setBold(tag == "B");
    } else if (tag == "WBR") {
        lines.allowBreak();
    } else if (tag == "IMG") {
        lines.addBox(iconWidth * fontSizeUnits / fontSize);
    } else if (tag == "BR" || tag == "DIV" || tag == "/DIV" || tag == "P" || tag == "LI" || tag == "TR") {
        lines.breakLine();
    }
}

/// The character that a reference ("amp", "#1046", without the semicolon) stands for; of named ones only the blank
/// matters.
unsigned ReferredCharacter(std::string_view reference)
{
    unsigned character = 'm';
    if (reference.starts_with('#')) {
        std::from_chars(reference.data() + 1, reference.data() + reference.size(), character);
    } else if (reference == "nbsp") {
        character = noBreakSpace;
    }
    return std::max(character, firstPrintable);
}

} // namespace

int LinesOf(std::string_view html, int fontSize, int width)
{
    constexpr std::size_t longestReference = 10;
    LineFiller lines(width * fontSizeUnits / fontSize);
    std::size_t position = 0;
    while (position < html.size()) {
        const std::string_view rest = html.substr(position);
        std::size_t length = 1;
        if (rest.front() == '<') {
            AddTag(lines, rest, fontSize);
            length = std::min(rest.find('>'), rest.size() - 1) + 1;
        } else if (const std::size_t end = rest.front() == '&' ? rest.find(';') : 0;
                   end > 0 && end < longestReference) {
            lines.add(ReferredCharacter(rest.substr(1, end - 1)));
            length = end + 1;
        } else {
            lines.add(std::max<unsigned>(static_cast<unsigned char>(rest.front()), firstPrintable));
        }
        position += length;
    }
    return lines.lines();
}

} // namespace stemwright
