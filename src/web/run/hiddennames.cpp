// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/hiddennames.h"

#include "web/run/siterun.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace stemwright
{

namespace
{

/// Between given name and surname there is room for further names, a title, "von der".
constexpr std::size_t furthestApart = 4;

/// One letter is an initial, or one of the few surnames that stand in many other words.
constexpr qsizetype shortestTellingName = 2;

// The hash is Fowler-Noll-Vo 1a, since it goes on from a part of a text to the whole.
constexpr quint64 hashStart = 0xcbf29ce484222325;

constexpr quint64 HashedFurther(quint64 hash, quint64 unit)
{
    constexpr quint64 prime = 0x100000001b3;
    return (hash ^ unit) * prime;
}

quint64 HashOf(const QString& text)
{
    quint64 hash = hashStart;
    for (const QChar character : text) {
        hash = HashedFurther(hash, character.unicode());
    }
    return hash;
}

/// The same in both orders.
quint64 PairOf(quint64 first, quint64 second)
{
    return HashedFurther(std::min(first, second), std::max(first, second));
}

bool IsAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char character) { return (static_cast<unsigned char>(character) & 0x80U) == 0; });
}

QStringList Words(std::string_view utf8)
{
    const QString text =
        QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())).normalized(QString::NormalizationForm_KC);
    QStringList words;
    QString word;
    for (const QChar character : text + u' ') {
        if (character.isLetterOrNumber() || character.isMark() || character.isSurrogate()) {
            word += character;
        } else if (!word.isEmpty()) {
            words << word.toCaseFolded();
            word.clear();
        }
    }
    return words;
}

/// Appends the hashes of the words of a text that has ASCII characters only: what Words() finds, without its detours.
void AppendAsciiWords(std::vector<quint64>& words, std::string_view text)
{
    quint64 hash = hashStart;
    const auto end = [&] {
        if (hash != hashStart) {
            words.push_back(std::exchange(hash, hashStart));
        }
    };
    for (const char character : text) {
        const bool upper = character >= 'A' && character <= 'Z';
        if (upper || (character >= 'a' && character <= 'z') || (character >= '0' && character <= '9')) {
            hash = HashedFurther(hash, static_cast<quint64>(upper ? character - 'A' + 'a' : character));
        } else {
            end();
        }
    }
    end();
}

/// Whether a word is of a script that does not part words.
bool IsUnparted(const QString& word)
{
    const QList<uint> characters = word.toUcs4();
    return std::any_of(characters.begin(), characters.end(), [](uint character) {
        switch (QChar::script(character)) {
        case QChar::Script_Han:
        case QChar::Script_Hiragana:
        case QChar::Script_Katakana:
        case QChar::Script_Thai:
        case QChar::Script_Lao:
        case QChar::Script_Khmer:
        case QChar::Script_Myanmar:
            return true;
        default:
            return false;
        }
    });
}

QStringList NameWords(const SiteRun& run, TreePosition person, std::size_t column)
{
    return Words(run.texts.individual(person, column).value_or(""));
}

bool IsParticle(const QString& word)
{
    static const QStringList particles =
        QStringLiteral("af al av ben bin d da das de del della den der des di do dos du el ibn la las le les los o of"
                       " ten ter the und van vom von y zu zum zur")
            .split(u' ');
    return particles.contains(word);
}

QStringList GivenNameWords(const SiteRun& run, TreePosition person)
{
    return NameWords(run, person, individualcolumn::givenName) + NameWords(run, person, individualcolumn::alias);
}

/// The words of a name by which its bearer is told; particles where there is nothing else.
QStringList TellingWords(QStringList words)
{
    const QStringList all = words;
    words.removeIf(IsParticle);
    return words.isEmpty() ? all : words;
}

} // namespace

/// The words of a text, hashed; and those of scripts that do not part words, with a blank where others stand between.
struct HiddenNames::TextWords {
    std::vector<quint64> hashes;
    QString unparted;
};

HiddenNames::HiddenNames(const SiteRun& run)
{
    if (run.settings.protectedPersons == ProtectedPersons::Shown) {
        return;
    }
    for (TreePosition person = 0; person < run.tree.individuals(); ++person) {
        if (!run.mayBeNamed(person)) {
            add(run, person);
        }
    }
}

void HiddenNames::add(const SiteRun& run, TreePosition person)
{
    const QStringList given = NameWords(run, person, individualcolumn::givenName);
    const QStringList alias = NameWords(run, person, individualcolumn::alias);
    const QStringList surname = NameWords(run, person, individualcolumn::surname);
    addWhole(alias);
    if (given.isEmpty() || surname.isEmpty()) {
        addWhole(given + surname);
    }
    QStringList surnames = TellingWords(surname);
    for (const TreePosition family : run.tree.spouseFamilies(person)) {
        if (const TreePosition partner = run.tree.partner(family, person); partner != nowhere) {
            surnames += TellingWords(NameWords(run, partner, individualcolumn::surname));
        }
    }
    for (const QString& first : TellingWords(given + alias)) {
        for (const QString& second : surnames) {
            addPair(first, second);
        }
    }
}

void HiddenNames::addPair(const QString& given, const QString& surname)
{
    const quint64 first = HashOf(given);
    const quint64 second = HashOf(surname);
    m_words << first << second;
    m_pairs << PairOf(first, second);
    addRow(given + surname);
    addRow(surname + given);
}

/// A name that stands whole in one of the places for its parts is one to be found among other words as well: its last
/// word may be the surname.
void HiddenNames::addWhole(const QStringList& words)
{
    if (words.isEmpty()) {
        return;
    }
    quint64 whole = hashStart;
    for (const QString& word : words) {
        whole = HashedFurther(whole, HashOf(word));
    }
    m_wholeNames << whole;
    const QStringList telling = TellingWords(words);
    for (const QString& word : telling.first(telling.size() - 1)) {
        addPair(word, telling.back());
    }
    if (const QString row = words.join(QString()); IsUnparted(row) && row.size() >= shortestTellingName) {
        addRow(row);
    }
}

void HiddenNames::addRow(const QString& row)
{
    m_rows << HashOf(row);
    if (row.size() > m_longestRow && IsUnparted(row)) {
        m_longestRow = row.size();
    }
}

HiddenNames::TextWords HiddenNames::wordsOf(std::string_view text)
{
    TextWords words;
    if (IsAscii(text)) {
        AppendAsciiWords(words.hashes, text);
        return words;
    }
    for (const QString& word : Words(text)) {
        words.hashes.push_back(HashOf(word));
        words.unparted += IsUnparted(word) ? word : QStringLiteral(" ");
    }
    return words;
}

bool HiddenNames::isNamedInRow(const QString& row) const
{
    for (qsizetype begin = 0; begin < row.size(); ++begin) {
        quint64 hash = hashStart;
        for (qsizetype end = begin; end < std::min(begin + m_longestRow, row.size()); ++end) {
            hash = HashedFurther(hash, row[end].unicode());
            if (m_rows.contains(hash)) {
                return true;
            }
        }
    }
    return false;
}

bool HiddenNames::isFullyNamedIn(const TextWords& words) const
{
    const std::vector<quint64>& hashes = words.hashes;
    for (std::size_t first = 0; first < hashes.size(); ++first) {
        if (m_rows.contains(hashes[first])) {
            return true;
        }
        if (!m_words.contains(hashes[first])) {
            continue;
        }
        const std::size_t end = std::min(first + furthestApart + 2, hashes.size());
        for (std::size_t second = first + 1; second < end; ++second) {
            if (m_pairs.contains(PairOf(hashes[first], hashes[second]))) {
                return true;
            }
        }
    }
    return isNamedInRow(words.unparted);
}

bool HiddenNames::isAnyNamedIn(const TextWords& words) const
{
    return isFullyNamedIn(words) ||
           m_wholeNames.contains(std::accumulate(words.hashes.begin(), words.hashes.end(), hashStart, HashedFurther));
}

bool HiddenNames::isFullyNamedIn(std::string_view text) const
{
    return !isEmpty() && isFullyNamedIn(wordsOf(text));
}

bool HiddenNames::isAnyNamedIn(std::string_view text) const
{
    return !isEmpty() && isAnyNamedIn(wordsOf(text));
}

bool HiddenNames::isAnyNamedIn(std::string_view text, const SiteRun& run,
                               const std::vector<TreePosition>& inPicture) const
{
    if (isEmpty()) {
        return false;
    }
    QStringList hidden;
    QStringList open;
    for (const TreePosition person : inPicture) {
        (run.mayBeNamed(person) ? open : hidden) += GivenNameWords(run, person);
    }
    const TextWords words = wordsOf(text);
    return isAnyNamedIn(words) || std::any_of(hidden.begin(), hidden.end(), [&](const QString& name) {
               return name.size() >= shortestTellingName && !open.contains(name) &&
                      (std::find(words.hashes.begin(), words.hashes.end(), HashOf(name)) != words.hashes.end() ||
                       words.unparted.contains(name));
           });
}

} // namespace stemwright
