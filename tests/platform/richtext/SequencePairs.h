// Pairs the equal elements of two sequences, in order, with the fewest left over. Takes time and room by the square of
// what is left over.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

namespace orvane::test
{

using Pairs = std::vector<std::pair<int, int>>; // places in the first and in the second sequence

// Equal is asked for a place in each. Diagonal k has the places (a, a - k); an edit steps to the next diagonal.
template <typename Equal>
class SequencePairs
{
public:
    SequencePairs(int sizeA, int sizeB, Equal equal) : m_sizeA(sizeA), m_sizeB(sizeB), m_equal(equal) {}

    Pairs find()
    {
        while (!step()) {
        }
        return walkBack();
    }

private:
    int edits() const { return int(m_reached.size()); }
    int before(int edits, int k) const { return m_reached[size_t(edits - 1)][place(edits - 1, k)]; }

    // Diagonals count from minus the edits on.
    static size_t place(int edits, int k)
    {
        const int fromFirst = k + edits;
        return size_t(fromFirst);
    }

    bool comesFromAbove(int edits, int k) const
    {
        return k == -edits || (k != edits && before(edits, k - 1) < before(edits, k + 1));
    }

    int start(int edits, int k) const
    {
        if (edits == 0) return 0;
        return comesFromAbove(edits, k) ? before(edits, k + 1) : before(edits, k - 1) + 1;
    }

    // How far one edit more gets on each diagonal; true when it is far enough.
    bool step()
    {
        const int now = edits();
        std::vector<int> furthest(size_t(2 * now + 1));
        for (int k = -now; k <= now; k += 2) {
            int a = start(now, k);
            while (a < m_sizeA && a - k < m_sizeB && m_equal(a, a - k))
                ++a;
            furthest[place(now, k)] = a;
        }
        m_reached.push_back(std::move(furthest));
        const int last = m_sizeA - m_sizeB;
        return std::abs(last) <= now && (now - last) % 2 == 0 && m_reached.back()[place(now, last)] >= m_sizeA;
    }

    Pairs walkBack() const
    {
        Pairs pairs;
        int k = m_sizeA - m_sizeB;
        int a = m_sizeA;
        for (int now = edits() - 1; now >= 0; --now) {
            const int first = start(now, k);
            while (a-- > first)
                pairs.emplace_back(a, a - k);
            const bool above = now > 0 && comesFromAbove(now, k);
            a = above ? first : first - 1;
            k += above ? 1 : -1;
        }
        std::reverse(pairs.begin(), pairs.end());
        return pairs;
    }

    int m_sizeA;
    int m_sizeB;
    Equal m_equal;
    std::vector<std::vector<int>> m_reached; // by number of edits
};

} // namespace orvane::test
