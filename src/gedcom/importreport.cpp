// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/importreport.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QStringList>

#include <span>
#include <tuple>

namespace stemwright
{

namespace
{

/// How a kind of loss is named: the sentence of the report, which takes the number, and the key in JSON.
struct LossWords {
    Loss kind;
    const char* sentence;
    const char* key;
};

constexpr std::array<LossWords, lossKinds> lossWords = {
    {{Loss::CutValue, "Values cut to 255 characters: %1", "cutValues"},
     {Loss::SkippedRecord, "Records left out because their identifier is not a number: %1", "skippedRecords"},
     {Loss::RepeatedValue, "Values and events left out because the same record has an earlier one: %1",
      "repeatedValues"},
     {Loss::NoColumnLeft, "Family events left out because the family file holds 20 kinds of them: %1",
      "eventsWithoutColumn"},
     {Loss::NoPlace, "Lines left out because a family file has no place for what they hold: %1", "linesWithoutPlace"}}};

constexpr std::size_t notesShown = 10;
constexpr std::size_t tagsShown = 20;

/// The first of `count` items, each as `textOf` tells it.
template <typename Item, typename TextOf>
QString FirstOf(const std::vector<Item>& items, qint64 count, const TextOf& textOf)
{
    QStringList parts;
    for (const Item& item : std::span(items).first(std::min(items.size(), notesShown))) {
        parts << textOf(item);
    }
    const qint64 more = count - parts.size();
    if (more > 0) {
        parts << QStringLiteral("and %1 more").arg(more);
    }
    return parts.join(QStringLiteral(", "));
}

QString NotesText(const LossList& list)
{
    return FirstOf(list.notes, list.count, [](const LossNote& note) {
        return QStringLiteral("line %1 %2").arg(QString::number(note.line), note.subject);
    });
}

QString OneSidedText(const std::vector<int>& families)
{
    const auto count = static_cast<qint64>(families.size());
    return QStringLiteral("Families with a husband or wife who has no link back to the family: %1 (numbers %2)\n"
                          "Family trees show such a family only under the other partner, or not at all. Please let the "
                          "program that wrote the file export it again with complete links (FAMS lines), and import "
                          "that.")
        .arg(QString::number(count), FirstOf(families, count, [](int id) { return QString::number(id); }));
}

/// The tags of the lines without a place, with their numbers.
QString TagsText(const TagCounts& tags)
{
    QStringList parts;
    qint64 more = 0;
    for (const auto& [tag, count] : tags.sorted()) {
        if (static_cast<std::size_t>(parts.size()) < tagsShown) {
            parts << QStringLiteral("%1 %2").arg(tag, QString::number(count));
        } else {
            more += count;
        }
    }
    if (more > 0) {
        parts << QStringLiteral("others %1").arg(more);
    }
    return QStringLiteral("Their tags: ") + parts.join(QStringLiteral(", "));
}

QJsonObject LossObject(const LossList& list)
{
    QJsonArray notes;
    for (const LossNote& note : list.notes) {
        notes.append(QJsonObject{{QStringLiteral("line"), note.line}, {QStringLiteral("subject"), note.subject}});
    }
    return {{QStringLiteral("count"), list.count}, {QStringLiteral("lines"), notes}};
}

QJsonArray NumbersOf(const std::vector<int>& ids)
{
    QJsonArray numbers;
    std::copy(ids.begin(), ids.end(), std::back_inserter(numbers));
    return numbers;
}

QString OutcomeWord(ImportOutcome outcome)
{
    switch (outcome) {
    case ImportOutcome::Failed:
        return QStringLiteral("failed");
    case ImportOutcome::StoppedAtDuplicate:
        return QStringLiteral("stopped");
    case ImportOutcome::Completed:
        return QStringLiteral("completed");
    }
    return {};
}

} // namespace

void ImportReport::note(Loss kind, qint64 line, std::string_view subject)
{
    LossList& list = losses.at(static_cast<std::size_t>(kind));
    ++list.count;
    if (list.notes.size() < LossList::longest) {
        list.notes.push_back({line, ReportedText(subject)});
    }
}

void ImportReport::noteWithoutPlace(qint64 line, std::string_view tag)
{
    note(Loss::NoPlace, line, tag);
    tagsWithoutPlace.add(tag);
}

void TagCounts::add(std::string_view tag)
{
    tag = tag.substr(0, longestTag);
    const auto known = m_counts.find(tag);
    if (known != m_counts.end()) {
        ++known->second;
    } else {
        ++m_counts[std::string(m_counts.size() < most ? tag : others)];
    }
}

std::vector<std::pair<QString, qint64>> TagCounts::sorted() const
{
    std::vector<std::pair<QString, qint64>> tags;
    for (const auto& [tag, count] : m_counts) {
        tags.emplace_back(ReportedText(tag), count);
    }
    std::sort(tags.begin(), tags.end(), [](const auto& left, const auto& right) {
        return std::tie(right.second, left.first) < std::tie(left.second, right.first);
    });
    return tags;
}

QString ReportedText(std::string_view utf8)
{
    constexpr qsizetype longest = 80;
    QString text = QString::fromUtf8(utf8.substr(0, 4 * longest)).left(longest);
    for (QChar& character : text) {
        if (!character.isPrint() && !character.isSurrogate()) {
            character = QChar::ReplacementCharacter;
        }
    }
    return text;
}

QString ReportText(const ImportReport& report)
{
    QStringList lines = {QStringLiteral("Individuals: %1").arg(report.individuals),
                         QStringLiteral("Families: %1").arg(report.families),
                         QStringLiteral("Links to children: %1").arg(report.childLinks),
                         QStringLiteral("Links to spouses: %1").arg(report.spouseLinks)};
    if (!report.oneSidedFamilies.empty()) {
        lines << OneSidedText(report.oneSidedFamilies);
    }
    const bool declaredOtherwise =
        !report.declaredCharset.isEmpty() && report.declaredCharset.compare(report.charset, Qt::CaseInsensitive) != 0;
    lines << (declaredOtherwise
                  ? QStringLiteral("Encoding: %1 (the file says %2)").arg(report.charset, report.declaredCharset)
                  : QStringLiteral("Encoding: %1").arg(report.charset));
    if (report.isCharsetGuessed) {
        lines << QStringLiteral("The encoding that the file names is not known, so letters other than A to Z may be "
                                "wrong. Please export it in UTF-8 if you can.");
    }
    for (const LossWords& words : lossWords) {
        const LossList& list = report.of(words.kind);
        if (list.count > 0) {
            lines << QString::fromLatin1(words.sentence).arg(list.count) + QStringLiteral(" (") + NotesText(list) +
                         u')';
        }
    }
    if (report.of(Loss::NoPlace).count > 0) {
        lines << TagsText(report.tagsWithoutPlace);
    }
    if (report.outcome == ImportOutcome::Completed && !report.hasTrailer) {
        lines << QStringLiteral("The file has no TRLR record at its end: it may be only a part of what was exported.");
    }
    return lines.join(u'\n') + u'\n';
}

QByteArray ReportJson(const ImportReport& report)
{
    QJsonObject object{{QStringLiteral("outcome"), OutcomeWord(report.outcome)},
                       {QStringLiteral("encoding"), report.charset},
                       {QStringLiteral("declaredEncoding"), report.declaredCharset},
                       {QStringLiteral("encodingIsGuessed"), report.isCharsetGuessed},
                       {QStringLiteral("lines"), report.lines},
                       {QStringLiteral("individuals"), report.individuals},
                       {QStringLiteral("families"), report.families},
                       {QStringLiteral("childLinks"), report.childLinks},
                       {QStringLiteral("spouseLinks"), report.spouseLinks},
                       {QStringLiteral("oneSidedFamilies"), NumbersOf(report.oneSidedFamilies)},
                       {QStringLiteral("individualsSkipped"), report.skippedIndividuals},
                       {QStringLiteral("familiesSkipped"), report.skippedFamilies},
                       {QStringLiteral("hasTrailer"), report.hasTrailer}};
    for (const LossWords& words : lossWords) {
        object.insert(QString::fromLatin1(words.key), LossObject(report.of(words.kind)));
    }
    QJsonObject tags;
    for (const auto& [tag, count] : report.tagsWithoutPlace.sorted()) {
        tags.insert(tag, count);
    }
    object.insert(QStringLiteral("tagsWithoutPlace"), tags);
    return QJsonDocument(object).toJson();
}

} // namespace stemwright
