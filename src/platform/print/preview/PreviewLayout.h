// Where the pages of a preview lie, in pixels of its content, for each way of looking at them.
#pragma once

#include <QRectF>
#include <QSizeF>
#include <vector>

namespace orvane
{

enum ZoomModes { ZoomByPercent = 0, ZoomThumbnails = 1, ZoomTwoPages = 2, ZoomWholePage = 3, ZoomPageWidth = 4 };

inline constexpr double SmallestZoom = 10; // percent; 100 shows an inch as 96 pixels
inline constexpr double LargestZoom = 500;

struct PreviewRequest {
    int mode = ZoomByPercent;
    double zoom = 75; // percent, for the free zoom
    int page = 0;     // on show; none without pages
    QSizeF view;      // pixels
};

inline bool showsSeveral(int zoomMode)
{
    return zoomMode == ZoomThumbnails || zoomMode == ZoomTwoPages;
}

struct PlacedPage {
    int number = 0;
    QRectF place;
};

struct PreviewLayout {
    double zoom = 0;               // percent
    QSizeF content{0, 0};          // at least the view
    std::vector<PlacedPage> pages; // those that the way of looking takes in, on show or scrolled away
};

// The sizes are of the document's pages, in twips, and the paper of a document without pages, in twips.
PreviewLayout layOutPreview(const PreviewRequest &request, const std::vector<QSizeF> &pages, const QSizeF &paper);

} // namespace orvane
