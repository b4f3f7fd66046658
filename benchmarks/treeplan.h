// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "random.h"

#include <array>
#include <cstdint>
#include <vector>

/// Who descends from whom in a generated tree, without names and texts. For the most part it is the offspring of one
/// couple, generation after generation, with the spouses who married in; some marry twice or three times, some marry a
/// cousin, and of some spouses the parents are known. A smaller tree is the beginning of a larger one. Or it is the
/// pedigree of one individual, both parents of everybody, generation after generation. It cannot fail.
namespace stemwright::bench
{

/// The number of an individual or of a family in its GEDCOM file, from 1 on; 0 stands for none.
using Number = std::uint32_t;

enum class TreeShape : std::uint8_t { Offspring, Pedigree };

enum class Sex : std::uint8_t { Male, Female };

struct Person {
    Number birthFamily = 0;
    /// In the order of the marriages; the unused places at the end hold 0.
    std::array<Number, 3> families{};
    std::int16_t birthYear = 0;
    std::uint8_t generation = 0;
    std::uint8_t surname = 0;
    Sex sex = Sex::Male;
    /// A descendant of the first couple, rather than one who married in.
    bool descendant = false;
};

/// The children of a family are numbered in a row.
struct Family {
    Number husband = 0;
    /// 0 only in a pedigree that ends with a father.
    Number wife = 0;
    Number firstChild = 0;
    std::uint16_t children = 0;
    std::int16_t marriageYear = 0;
};

class TreePlan
{
public:
    /// Plans a tree of exactly this many individuals, at least 2.
    explicit TreePlan(std::uint32_t individuals, TreeShape shape = TreeShape::Offspring);

    std::uint32_t individuals() const { return static_cast<std::uint32_t>(m_people.size() - 1); }

    std::uint32_t families() const { return static_cast<std::uint32_t>(m_families.size() - 1); }

    const Person& person(Number number) const { return m_people[number]; }

    const Family& family(Number number) const { return m_families[number]; }

private:
    enum class ParentsKnown { Yes, No };

    bool full() const { return m_people.size() > m_individuals; }

    void growOffspring();
    void growPedigree();
    void startLine();
    Number addPerson(const Person& person);
    Number addSpouse(Number person, ParentsKnown parentsKnown);
    void addParents(Number child);
    Number addFamily(Number first, Number second, int marriageYear);
    void addChildren(Number family, int children);
    bool shareParent(const Person& one, const Person& other) const;
    Number cousinOf(Number person);
    void marry(Number person);
    int childrenOf(const Person& person);

    std::uint32_t m_individuals;
    Random m_random;
    /// Both begin with an unused entry, so that a number is a place.
    std::vector<Person> m_people;
    std::vector<Family> m_families;
};

} // namespace stemwright::bench
