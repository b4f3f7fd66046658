// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <array>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// What a GEDCOM import did: how much it read, and every line whose text did not go into the family file whole. Plain
/// values that nothing here can make fail.
namespace stemwright
{

enum class ImportOutcome {
    /// Nothing was changed.
    Failed,
    /// A duplicate identifier ended the import; what was read before it stays.
    StoppedAtDuplicate,
    Completed
};

/// Why a line's text is not in the family file, or not all of it.
enum class Loss {
    /// The value is longer than its column and was cut.
    CutValue,
    /// The record's identifier is missing or no number, so the record was left out.
    SkippedRecord,
    /// The record has a value for the same column before this one; the first is kept.
    RepeatedValue,
    /// A family event for which no column pair is left.
    NoColumnLeft,
    /// A line of a kind that a family file has no place for.
    NoPlace
};

inline constexpr std::size_t lossKinds = 5;

struct LossNote {
    qint64 line = 0;
    /// The tag, also with the tag of level 1 in front of it, or the identifier of a skipped record.
    QString subject;
};

/// The lines of one kind of loss. The first ones are kept, all are counted.
struct LossList {
    static constexpr std::size_t longest = 1000;

    qint64 count = 0;
    std::vector<LossNote> notes;
};

/// How many lines there are of each tag. Of a file with no end of tags, the later ones are counted together.
class TagCounts
{
public:
    static constexpr std::size_t most = 500;
    static constexpr std::size_t longestTag = 80;
    static constexpr std::string_view others = "other tags";

    void add(std::string_view tag);

    /// The tags, as ReportedText(), with their counts; the most frequent first.
    std::vector<std::pair<QString, qint64>> sorted() const;

private:
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };

    std::unordered_map<std::string, qint64, Hash, std::equal_to<>> m_counts;
};

struct ImportReport {
    ImportOutcome outcome = ImportOutcome::Failed;
    QString charset;
    QString declaredCharset;
    /// Whether the file declares a character set that is not known, or that cannot be its own.
    bool isCharsetGuessed = false;
    qint64 lines = 0;
    qint64 individuals = 0;
    qint64 families = 0;
    qint64 childLinks = 0;
    qint64 spouseLinks = 0;
    /// Husbands and wives that the families name.
    qint64 partners = 0;
    /// The numbers of the families one of whose partners has no link back to the family. Trees follow that link.
    std::vector<int> oneSidedFamilies;
    qint64 skippedIndividuals = 0;
    qint64 skippedFamilies = 0;
    /// Whether the file has its TRLR record; one without may be only a part of what was exported.
    bool hasTrailer = false;
    std::array<LossList, lossKinds> losses;
    /// The tags of the lines without a place.
    TagCounts tagsWithoutPlace;

    const LossList& of(Loss kind) const { return losses.at(static_cast<std::size_t>(kind)); }

    void note(Loss kind, qint64 line, std::string_view subject);
    /// Notes a line that a family file has no place for.
    void noteWithoutPlace(qint64 line, std::string_view tag);
};

/// Text from a GEDCOM file (UTF-8) as a report shows it: its beginning, on one line, with nothing that a terminal would
/// obey.
QString ReportedText(std::string_view utf8);

/// The report as lines of text for the user, each ended by a line break. Of each kind of loss the first lines are
/// named.
QString ReportText(const ImportReport& report);

/// The report as a JSON document.
QByteArray ReportJson(const ImportReport& report);

} // namespace stemwright
