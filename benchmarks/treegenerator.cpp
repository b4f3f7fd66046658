// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "treegenerator.h"

#include "treewords.h"

#include <charconv>
#include <concepts>
#include <span>
#include <string>

namespace stemwright::bench
{

namespace
{

constexpr std::size_t pieceSize = 1 << 20;
constexpr std::uint64_t individualSeed = 0x494E4449;
constexpr std::uint64_t familySeed = 0x46414D00;
/// Nothing that would happen after this year is written.
constexpr int lastYear = 2000;

std::string_view Any(std::span<const std::string_view> words, Random& random)
{
    return words[random.below(static_cast<std::uint32_t>(words.size()))];
}

/// Gathers lines and hands them over in large pieces.
class GedcomText
{
public:
    explicit GedcomText(const TextReceiver& receiver) : m_receiver(receiver) {}

    /// Appends a line made of the parts; numbers are written in decimal.
    template <typename... Parts>
    void line(const Parts&... parts)
    {
        (append(parts), ...);
        m_text += '\n';
        if (m_text.size() >= pieceSize) {
            flush();
        }
    }

    void flush()
    {
        m_receiver(m_text);
        m_text.clear();
    }

private:
    void append(std::string_view text) { m_text += text; }

    void append(std::integral auto number)
    {
        char digits[20];
        m_text.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
    }

    const TextReceiver& m_receiver;
    std::string m_text;
};

/// A DATE line in one of the forms that people use.
void WriteDate(GedcomText& text, int year, Random& random)
{
    static constexpr std::string_view months[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                                  "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
    const std::uint32_t form = random.below(20);
    if (form < 13) {
        text.line("2 DATE ", random.between(1, 28), " ", Any(months, random), " ", year);
    } else if (form < 15) {
        text.line("2 DATE ", Any(months, random), " ", year);
    } else if (form < 17) {
        text.line("2 DATE ", year);
    } else if (form < 19) {
        text.line("2 DATE ABT ", year);
    } else {
        text.line("2 DATE BET ", year, " AND ", year + random.between(1, 5));
    }
}

/// How an event is written: its tag with its value, if any, and in how many of 1,000 cases it is known.
struct EventForm {
    std::string_view tag;
    std::string_view value = {};
    /// The TYPE of a generic event.
    std::string_view type = {};
    std::uint32_t permille = 1000;
};

/// An event, if it is known, with its year's date and, mostly, its place.
void WriteEvent(GedcomText& text, const EventForm& form, int year, Random& random)
{
    if (year > lastYear || !random.chance(form.permille)) {
        return;
    }
    text.line("1 ", form.tag, form.value.empty() ? "" : " ", form.value);
    if (!form.type.empty()) {
        text.line("2 TYPE ", form.type);
    }
    WriteDate(text, year, random);
    if (random.chance(850)) {
        text.line("2 PLAC ", Any(Places(), random));
    }
}

void WriteName(GedcomText& text, const Person& person, Random& random)
{
    const auto names = person.sex == Sex::Male ? MaleNames() : FemaleNames();
    const std::string_view first = Any(names, random);
    const std::string_view second = random.chance(350) ? Any(names, random) : std::string_view();
    const std::string_view suffix = person.sex == Sex::Male && random.chance(15) ? " Jr." : "";
    text.line("1 NAME ", first, second.empty() ? "" : " ", second, " /", Surnames()[person.surname], "/", suffix);
    text.line("1 SEX ", person.sex == Sex::Male ? "M" : "F");
    if (random.chance(30)) {
        text.line("1 NICK ", Any(names, random));
    }
    if (random.chance(15)) {
        text.line("1 TITL ", person.sex == Sex::Male ? "Sir" : "Lady");
    }
}

void WriteFacts(GedcomText& text, const Person& person, Random& random)
{
    const int birth = person.birthYear;
    WriteEvent(text, {.tag = "CHR", .permille = 250}, birth, random);
    WriteEvent(text, {.tag = "OCCU", .value = Any(Occupations(), random), .permille = 250},
               birth + random.between(18, 45), random);
    WriteEvent(text, {.tag = "RESI", .permille = 150}, birth + random.between(20, 50), random);
    WriteEvent(text, {.tag = "EMIG", .permille = 40}, birth + random.between(15, 40), random);
    WriteEvent(text, {.tag = "EVEN", .type = Any(EventTypes(), random), .permille = 60}, birth + random.between(16, 40),
               random);
}

void WriteNote(GedcomText& text, Random& random)
{
    text.line("1 NOTE ", Any(Sentences(), random));
    for (std::uint32_t more = random.below(4); more > 0; --more) {
        text.line(random.chance(700) ? "2 CONT " : "2 CONC ", Any(Sentences(), random));
    }
}

void WriteAddress(GedcomText& text, Random& random)
{
    text.line("1 ADDR ", random.between(1, 240), " Station Road");
    text.line("2 CONT ", Any(Places(), random));
    text.line("1 PHON +", random.between(10, 99), " ", random.between(100000, 999999));
}

void WriteIndividual(GedcomText& text, Number number, const Person& person)
{
    Random random(individualSeed + (std::uint64_t{number} << 32));
    text.line("0 @I", number, "@ INDI");
    WriteName(text, person, random);
    WriteEvent(text, {.tag = "BIRT", .permille = 930}, person.birthYear, random);
    const int death = person.birthYear + (random.chance(120) ? random.between(0, 15) : random.between(45, 92));
    WriteEvent(text, {.tag = "DEAT", .permille = 850}, death, random);
    WriteEvent(text, {.tag = "BURI", .permille = 350}, death, random);
    WriteFacts(text, person, random);
    if (death > lastYear && random.chance(300)) {
        WriteAddress(text, random);
    }
    if (random.chance(250)) {
        WriteNote(text, random);
    }
    for (Number family : person.families) {
        if (family != 0) {
            text.line("1 FAMS @F", family, "@");
        }
    }
    if (person.birthFamily != 0) {
        text.line("1 FAMC @F", person.birthFamily, "@");
    }
}

void WriteFamily(GedcomText& text, Number number, const Family& family)
{
    Random random(familySeed + (std::uint64_t{number} << 32));
    text.line("0 @F", number, "@ FAM");
    text.line("1 HUSB @I", family.husband, "@");
    if (family.wife != 0) {
        text.line("1 WIFE @I", family.wife, "@");
    }
    for (Number child = 0; child < family.children; ++child) {
        text.line("1 CHIL @I", family.firstChild + child, "@");
        if (random.chance(20)) {
            text.line("2 _FREL Adopted");
            text.line("2 _MREL Natural");
        }
    }
    WriteEvent(text, {.tag = "MARR", .permille = 880}, family.marriageYear, random);
    WriteEvent(text, {.tag = "DIV", .permille = 40}, family.marriageYear + random.between(2, 20), random);
    if (random.chance(20)) {
        text.line("1 _MSTAT Partners");
    }
}

void WriteHead(GedcomText& text)
{
    text.line("0 HEAD");
    text.line("1 SOUR stemwright-generate-tree");
    text.line("1 GEDC");
    text.line("2 VERS 5.5.1");
    text.line("2 FORM LINEAGE-LINKED");
    text.line("1 CHAR UTF-8");
    text.line("1 SUBM @U1@");
    text.line("0 @U1@ SUBM");
    text.line("1 NAME Nobody in Particular");
}

} // namespace

TreeCounts GenerateTree(std::uint32_t individuals, const TextReceiver& receiver, TreeShape shape)
{
    const TreePlan plan(individuals, shape);
    TreeCounts counts{plan.individuals(), plan.families(), 0};
    GedcomText text(receiver);
    WriteHead(text);
    for (Number number = 1; number <= counts.individuals; ++number) {
        WriteIndividual(text, number, plan.person(number));
    }
    for (Number number = 1; number <= counts.families; ++number) {
        WriteFamily(text, number, plan.family(number));
        counts.children += plan.family(number).children;
    }
    text.line("0 TRLR");
    text.flush();
    return counts;
}

} // namespace stemwright::bench
