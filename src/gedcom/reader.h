// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "gedcom/linesource.h"

#include <string_view>

/// The GEDCOM reader: a file as a stream of lines, each split into level, cross-reference number, tag and value,
/// without a grammar and without a record tree; and the text routines that the importer needs. Values stay in the
/// file's bytes. Only reading the file can fail (Error). Stands on base.
namespace stemwright
{

/// One line. The views point into the source's buffer and are valid until the next line is read.
struct GedcomLine {
    /// The line's first character, '\0' for an empty line. Levels of 10 and more are not supported: their second digit
    /// belongs to the rest of the line.
    char Level = '\0';
    /// -1 without a usable cross-reference; 0 when the line holds no blank after the level.
    int XrefId = -1;
    std::string_view Tag;
    std::string_view Value;
    /// The physical line's number, from 1.
    qint64 number = 0;
    /// What was dropped around the value: blanks in front of it, beyond the one that ends the tag, and blanks and a
    /// final comma behind it. A CONC line joins what stood there.
    std::string_view droppedBefore;
    std::string_view droppedAfter;
    /// Whether the line has a cross-reference in front of its tag, usable or not.
    bool hasXref = false;
};

/// A NAME value's parts, untrimmed.
struct GedcomName {
    std::string_view GivenName;
    std::string_view Surname;
    std::string_view Suffix;
};

/// Reads the next physical line and splits it; false at the end of the file. Blanks and tabs at both ends are dropped,
/// a final comma of the value is removed, and runs of up to eight commas in it shrink to one.
bool ReadGedcomLine(LineSource& source, GedcomLine& line);

/// Turns a cross-reference such as @I123@ into 123: every "@", "I", "F", "U" and "S" is dropped, "-" and "_" count as
/// 0. -1 when what is left is not a whole number of at most 32 bits.
int XrefToNumber(std::string_view text);

/// Splits a NAME value at its slashes; without a slash all of it is the given name.
GedcomName SplitGedcomName(std::string_view value);

/// The first of BURI, EDUC, MIGR, OCCU and RESI that a custom fact's label begins with, without regard to case; empty
/// when there is none.
std::string_view StandardTagForLabel(std::string_view label);

/// Whether a tag stands for a custom fact: not before "_FA1" and not behind "_FA99" as text, without regard to case.
bool IsCustomFactTag(std::string_view tag);

/// Shrinks runs of commas as in every value: ",," becomes "," three times over. Returns the new length.
std::size_t CollapseCommas(char* text, std::size_t length);

/// Compares ASCII text without regard to case.
bool SameText(std::string_view left, std::string_view right);

/// Whether `text` begins with `prefix`, without regard to the case of ASCII letters.
bool StartsWith(std::string_view text, std::string_view prefix);

/// A tag of up to eight characters, in upper case, as one number, so that tags can be told apart by a switch. Longer
/// ones give 0.
constexpr quint64 PackTag(std::string_view tag)
{
    quint64 packed = 0;
    for (const char raw : tag.size() <= sizeof packed ? tag : std::string_view()) {
        const char upper = raw >= 'a' && raw <= 'z' ? static_cast<char>(raw - 'a' + 'A') : raw;
        packed = packed << 8U | static_cast<unsigned char>(upper);
    }
    return packed;
}

} // namespace stemwright
