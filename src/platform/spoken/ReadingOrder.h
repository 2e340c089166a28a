// The order in which the eye goes over what stands on a window: from top to bottom, in columns from left to right. What
// lies behind others, as a ground, comes first.
#pragma once

#include <QRect>
#include <cstddef>
#include <vector>

namespace orvane
{

// The indices of the places, in reading order.
std::vector<std::size_t> readingOrder(const std::vector<QRect> &places);

} // namespace orvane
