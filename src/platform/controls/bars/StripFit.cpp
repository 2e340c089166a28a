#include "platform/controls/bars/StripFit.h"

namespace orvane
{

StripFit fitStrip(const std::vector<StripPiece> &pieces, int room, int moreWidth)
{
    StripFit fit{std::vector<bool>(pieces.size(), false), pieces.size()};
    const auto gap = [&](size_t i) { return i == 0 ? 0 : pieces[i].gap; };
    int total = 0;
    for (size_t i = 0; i < pieces.size(); ++i)
        total += gap(i) + pieces[i].full;
    for (size_t i = pieces.size(); i > 0 && total > room; --i) {
        const StripPiece &piece = pieces[i - 1];
        if (piece.compact == piece.full) continue;
        fit.compact[i - 1] = true;
        total -= piece.full - piece.compact;
    }
    for (int left = room; fit.shown > 0 && total > left; left = room - moreWidth) {
        const size_t last = --fit.shown;
        total -= gap(last) + (fit.compact[last] ? pieces[last].compact : pieces[last].full);
    }
    return fit;
}

} // namespace orvane
