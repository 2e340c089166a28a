#include "platform/spoken/ReadingOrder.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace orvane
{

namespace
{
using Indices = std::vector<std::size_t>;

struct Span {
    int begin;
    int end; // the first beyond it
};

Span spanOf(const QRect &place, bool across)
{
    return across ? Span{place.left(), place.left() + place.width()} : Span{place.top(), place.top() + place.height()};
}

// Parts the places where a line can be drawn between them without touching any.
std::vector<Indices> parted(const std::vector<QRect> &places, Indices group, bool across)
{
    const auto span = [&](std::size_t index) { return spanOf(places[index], across); };
    std::ranges::stable_sort(group, {}, [&](std::size_t index) { return span(index).begin; });
    std::vector<Indices> parts;
    int reached = std::numeric_limits<int>::min();
    for (const std::size_t index : group) {
        if (parts.empty() || span(index).begin >= reached) parts.emplace_back();
        parts.back().push_back(index);
        reached = std::max(reached, span(index).end);
    }
    return parts;
}

// What can't be parted is read by its upper left corners.
Indices ordered(const std::vector<QRect> &places, Indices group)
{
    for (const bool across : {false, true}) {
        const std::vector<Indices> parts = parted(places, group, across);
        if (parts.size() < 2) continue;
        Indices result;
        for (const Indices &part : parts) {
            const Indices inner = ordered(places, part);
            result.insert(result.end(), inner.begin(), inner.end());
        }
        return result;
    }
    std::ranges::stable_sort(group, {},
                             [&](std::size_t index) { return std::pair(places[index].top(), places[index].left()); });
    return group;
}
} // namespace

std::vector<std::size_t> readingOrder(const std::vector<QRect> &places)
{
    Indices grounds(places.size());
    std::iota(grounds.begin(), grounds.end(), 0);
    const auto isGround = [&](std::size_t index) {
        return std::ranges::any_of(places, [&](const QRect &other) { return places[index].contains(other, true); });
    };
    const auto others = std::ranges::stable_partition(grounds, isGround);
    const Indices rest = ordered(places, Indices(others.begin(), others.end()));
    std::ranges::copy(rest, others.begin());
    return grounds;
}

} // namespace orvane
