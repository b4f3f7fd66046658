// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/descendants.h"

#include <limits>

namespace stemwright
{

namespace
{

/// How many individuals may be visited in all before the search takes what it has, a few seconds' work.
constexpr std::size_t visitLimit = 200'000'000;

/// Visits descendants; its marks are reused, so that a count costs only what it visits.
class DescendantCounter
{
public:
    explicit DescendantCounter(const FamilyTree& tree) : m_tree(tree), m_lastVisit(tree.individuals(), 0) {}

    std::size_t count(TreePosition individual)
    {
        ++m_visit;
        m_lastVisit[individual] = m_visit;
        m_waiting.assign(1, individual);
        std::size_t found = 0;
        while (!m_waiting.empty()) {
            const TreePosition parent = m_waiting.back();
            m_waiting.pop_back();
            for (const TreePosition family : m_tree.spouseFamilies(parent)) {
                for (const TreePosition child : m_tree.children(family)) {
                    if (m_lastVisit[child] != m_visit) {
                        m_lastVisit[child] = m_visit;
                        m_waiting.push_back(child);
                        ++found;
                    }
                }
            }
        }
        return found;
    }

private:
    const FamilyTree& m_tree;
    std::vector<std::uint32_t> m_lastVisit;
    std::uint32_t m_visit = 0;
    std::vector<TreePosition> m_waiting;
};

/// For every individual the number of descendants, each counted once for every way that leads to him or her: quick to
/// work out, and never less than the true number. (Where somebody is his own ancestor the circle is cut somewhere.)
class DescendantBounds
{
public:
    explicit DescendantBounds(const FamilyTree& tree) : m_tree(tree), m_bounds(tree.individuals(), unknown)
    {
        for (TreePosition individual = 0; individual < tree.individuals(); ++individual) {
            visit(individual);
        }
    }

    std::uint64_t of(TreePosition individual) const { return m_bounds[individual]; }

private:
    static constexpr std::uint64_t unknown = std::numeric_limits<std::uint64_t>::max();
    static constexpr std::uint64_t inWork = unknown - 1;
    static constexpr std::uint64_t highest = std::uint64_t{1} << 62;

    /// Works out children before their parents, without recursion: lines of descent can be very long.
    void visit(TreePosition start)
    {
        m_waiting.assign(1, start);
        while (!m_waiting.empty()) {
            const TreePosition individual = m_waiting.back();
            if (m_bounds[individual] == unknown) {
                m_bounds[individual] = inWork;
                forEachChild(individual, [this](TreePosition child) {
                    if (m_bounds[child] == unknown) {
                        m_waiting.push_back(child);
                    }
                });
                continue;
            }
            m_waiting.pop_back();
            if (m_bounds[individual] == inWork) {
                m_bounds[individual] = sumOverChildren(individual);
            }
        }
    }

    std::uint64_t sumOverChildren(TreePosition individual) const
    {
        std::uint64_t sum = 0;
        forEachChild(individual, [this, &sum](TreePosition child) {
            const std::uint64_t below = m_bounds[child] == inWork ? 0 : m_bounds[child];
            sum = std::min(highest, sum + below + 1);
        });
        return sum;
    }

    template <class Visit>
    void forEachChild(TreePosition individual, Visit visit) const
    {
        for (const TreePosition family : m_tree.spouseFamilies(individual)) {
            for (const TreePosition child : m_tree.children(family)) {
                visit(child);
            }
        }
    }

    const FamilyTree& m_tree;
    std::vector<std::uint64_t> m_bounds;
    std::vector<TreePosition> m_waiting;
};

/// Whoever has the most descendants has no parents in the tree, except where everybody in a circle has some.
std::vector<TreePosition> Candidates(const FamilyTree& tree)
{
    std::vector<bool> isChild(tree.individuals(), false);
    for (TreePosition family = 0; family < tree.families(); ++family) {
        if (tree.husband(family) != nowhere || tree.wife(family) != nowhere) {
            for (const TreePosition child : tree.children(family)) {
                isChild[child] = true;
            }
        }
    }
    std::vector<TreePosition> founders;
    std::vector<TreePosition> everybody;
    for (TreePosition individual = 0; individual < tree.individuals(); ++individual) {
        if (!tree.spouseFamilies(individual).empty()) {
            everybody.push_back(individual);
            if (!isChild[individual]) {
                founders.push_back(individual);
            }
        }
    }
    return founders.empty() ? everybody : founders;
}

} // namespace

std::size_t CountDescendants(const FamilyTree& tree, TreePosition individual)
{
    return DescendantCounter(tree).count(individual);
}

std::optional<TreePosition> IndividualWithMostDescendants(const FamilyTree& tree)
{
    std::vector<TreePosition> candidates = Candidates(tree);
    const DescendantBounds bounds(tree);
    std::stable_sort(candidates.begin(), candidates.end(), [&bounds](TreePosition first, TreePosition second) {
        return bounds.of(first) > bounds.of(second);
    });
    DescendantCounter counter(tree);
    std::optional<TreePosition> best;
    std::size_t most = 0;
    std::size_t visited = 0;
    // The candidates come with falling bounds, so once a bound is below the best count nobody better can follow.
    for (const TreePosition candidate : candidates) {
        if (best && (bounds.of(candidate) < most || visited > visitLimit)) {
            break;
        }
        const std::size_t count = counter.count(candidate);
        visited += count + 1;
        if (!best || count > most || (count == most && candidate < *best)) {
            best = candidate;
            most = count;
        }
    }
    return best;
}

} // namespace stemwright
