// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "treeplan.h"

#include "treewords.h"

#include <algorithm>

namespace stemwright::bench
{

namespace
{

constexpr std::uint64_t planSeed = 1837;
constexpr int firstBirthYear = 1500;
/// Every line of the first generations goes on, so that chance cannot end the tree early.
constexpr std::uint8_t sureGenerations = 4;
/// How far ahead in the order of birth a cousin is looked for.
constexpr Number cousinReach = 80;

Sex Opposite(Sex sex)
{
    return sex == Sex::Male ? Sex::Female : Sex::Male;
}

std::uint8_t AnySurname(Random& random)
{
    return static_cast<std::uint8_t>(random.below(static_cast<std::uint32_t>(Surnames().size())));
}

std::int16_t Year(int year)
{
    return static_cast<std::int16_t>(year);
}

std::size_t MarriageCount(const Person& person)
{
    return static_cast<std::size_t>(
        std::count_if(person.families.begin(), person.families.end(), [](Number family) { return family != 0; }));
}

} // namespace

TreePlan::TreePlan(std::uint32_t individuals, TreeShape shape)
    : m_individuals(individuals), m_random(planSeed), m_people(1), m_families(1)
{
    m_people.reserve(individuals + 1U);
    if (shape == TreeShape::Pedigree) {
        growPedigree();
    } else {
        growOffspring();
    }
}

void TreePlan::growOffspring()
{
    // Those who are added meanwhile are visited later: the walk goes from generation to generation.
    for (Number person = 1; !full(); ++person) {
        if (person == m_people.size()) {
            startLine();
        }
        if (m_people[person].descendant) {
            marry(person);
        }
    }
}

/// The parents of individual n are 2n and 2n + 1, in family n.
void TreePlan::growPedigree()
{
    constexpr int lastBirthYear = 1980;
    for (Number person = 1; person <= m_individuals; ++person) {
        Person next;
        next.generation = static_cast<std::uint8_t>(person == 1 ? 1 : m_people[person / 2].generation + 1);
        next.birthYear = Year(person == 1 ? lastBirthYear : m_people[person / 2].birthYear - m_random.between(22, 36));
        next.surname = person % 2 == 0 ? m_people[person / 2].surname : AnySurname(m_random);
        next.sex = person % 2 == 0 ? Sex::Male : Sex::Female;
        next.birthFamily = 2 * person <= m_individuals ? person : 0;
        next.families[0] = person / 2;
        addPerson(next);
    }
    for (Number child = 1; 2 * child <= m_individuals; ++child) {
        const Number wife = 2 * child < m_individuals ? 2 * child + 1 : 0;
        m_families.push_back({2 * child, wife, child, 1, Year(m_people[child].birthYear - 2)});
    }
}

/// Begins with a couple: at first, and should the line ever die out.
void TreePlan::startLine()
{
    Person founder;
    founder.birthYear = firstBirthYear;
    founder.generation = 1;
    founder.surname = AnySurname(m_random);
    founder.descendant = true;
    addPerson(founder);
}

Number TreePlan::addPerson(const Person& person)
{
    m_people.push_back(person);
    return static_cast<Number>(m_people.size() - 1);
}

Number TreePlan::addSpouse(Number person, ParentsKnown parentsKnown)
{
    const Person& partner = m_people[person];
    Person spouse;
    spouse.birthYear = Year(partner.birthYear + m_random.between(-4, 5));
    spouse.generation = partner.generation;
    spouse.surname = AnySurname(m_random);
    spouse.sex = Opposite(partner.sex);
    const Number number = addPerson(spouse);
    if (parentsKnown == ParentsKnown::Yes) {
        addParents(number);
    }
    return number;
}

void TreePlan::addParents(Number child)
{
    if (m_people.size() + 1 > m_individuals) {
        return;
    }
    Person father;
    father.birthYear = Year(m_people[child].birthYear - m_random.between(24, 40));
    father.surname = m_people[child].surname;
    const Number fatherNumber = addPerson(father);
    const Number mother = addSpouse(fatherNumber, ParentsKnown::No);
    const Number family = addFamily(fatherNumber, mother, m_people[child].birthYear - 2);
    m_families[family].firstChild = child;
    m_families[family].children = 1;
    m_people[child].birthFamily = family;
}

Number TreePlan::addFamily(Number first, Number second, int marriageYear)
{
    const bool firstIsHusband = m_people[first].sex == Sex::Male;
    Family family;
    family.husband = firstIsHusband ? first : second;
    family.wife = firstIsHusband ? second : first;
    family.marriageYear = Year(marriageYear);
    m_families.push_back(family);
    const auto number = static_cast<Number>(m_families.size() - 1);
    for (Number spouse : {first, second}) {
        m_people[spouse].families[MarriageCount(m_people[spouse])] = number;
    }
    return number;
}

void TreePlan::addChildren(Number family, int children)
{
    int birthYear = m_families[family].marriageYear;
    for (int child = 0; child < children && !full(); ++child) {
        const Family& parents = m_families[family];
        birthYear += m_random.between(1, 3);
        Person person;
        person.birthFamily = family;
        person.birthYear = Year(birthYear);
        person.generation = static_cast<std::uint8_t>(
            1 + std::max(m_people[parents.husband].generation, m_people[parents.wife].generation));
        person.surname = m_people[parents.husband].surname;
        person.sex = m_random.chance(512) ? Sex::Male : Sex::Female;
        person.descendant = true;
        const Number number = addPerson(person);
        Family& changed = m_families[family];
        changed.firstChild = changed.children == 0 ? number : changed.firstChild;
        ++changed.children;
    }
}

bool TreePlan::shareParent(const Person& one, const Person& other) const
{
    const Family& ones = m_families[one.birthFamily];
    const Family& others = m_families[other.birthFamily];
    return ones.husband == others.husband || ones.wife == others.wife;
}

/// An unmarried descendant of the same generation and of other parents; 0 when there is none near.
Number TreePlan::cousinOf(Number person)
{
    const Person& partner = m_people[person];
    const auto end = std::min(person + cousinReach, static_cast<Number>(m_people.size()));
    for (Number other = person + 1; other < end; ++other) {
        const Person& cousin = m_people[other];
        if (cousin.descendant && cousin.generation == partner.generation && cousin.sex != partner.sex &&
            MarriageCount(cousin) == 0 && !shareParent(cousin, partner)) {
            return other;
        }
    }
    return 0;
}

int TreePlan::childrenOf(const Person& person)
{
    if (person.generation <= sureGenerations) {
        return m_random.between(3, 6);
    }
    return m_random.chance(120) ? 0 : m_random.between(1, 5);
}

void TreePlan::marry(Number person)
{
    const bool sure = m_people[person].generation <= sureGenerations;
    const std::size_t already = MarriageCount(m_people[person]);
    std::size_t marriages = already == 0 && (sure || m_random.chance(800)) ? 1 : already;
    if (marriages > 0 && m_random.chance(90)) {
        marriages += m_random.chance(100) ? 2U : 1U;
    }
    marriages = std::min(marriages, m_people[person].families.size());
    int year = m_people[person].birthYear + m_random.between(19, 29) + (already > 0 ? 12 : 0);
    for (std::size_t marriage = already; marriage < marriages && !full(); ++marriage, year += m_random.between(5, 12)) {
        const Number cousin = m_people[person].generation > 2 && m_random.chance(40) ? cousinOf(person) : 0;
        const Number spouse =
            cousin != 0 ? cousin : addSpouse(person, m_random.chance(30) ? ParentsKnown::Yes : ParentsKnown::No);
        const int children = marriage == 0 ? childrenOf(m_people[person]) : m_random.between(0, 3);
        addChildren(addFamily(person, spouse, year), children);
    }
}

} // namespace stemwright::bench
