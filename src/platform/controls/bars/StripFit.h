// How the tools of a toolbar share its width: captions give way to pictures from the right, and what finds no room
// even so goes behind the button for the rest. Widths in pixels.
#pragma once

#include <cstddef>
#include <vector>

namespace orvane
{

struct StripPiece {
    int gap = 0;     // before it; not counted for the first
    int full = 0;    // with its caption
    int compact = 0; // without; the same as full where the caption has to stay
};

struct StripFit {
    std::vector<bool> compact;
    size_t shown = 0; // the first so many
};

StripFit fitStrip(const std::vector<StripPiece> &pieces, int room, int moreWidth);

} // namespace orvane
