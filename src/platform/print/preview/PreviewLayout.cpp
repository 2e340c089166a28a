#include "platform/print/preview/PreviewLayout.h"

#include "platform/controls/Twips.h"

#include <algorithm>

namespace orvane
{

namespace
{
constexpr double Gap = 16; // round each page, for its shadow
constexpr double ThumbnailHeight = 200;

class Arranger
{
public:
    Arranger(const PreviewRequest &request, const std::vector<QSizeF> &pages, const QSizeF &paper)
        : m_request(request), m_pages(pages), m_paper(paper)
    {
    }

    PreviewLayout arrange() const;

private:
    QSizeF sizeOf(int page) const { return (m_pages.empty() ? m_paper : m_pages[page - 1]) / TwipsPerPixel; }
    int count() const { return static_cast<int>(m_pages.size()); }
    std::pair<int, int> range() const;
    double zoom(int first, int last) const;
    double fit(int first, int last) const;
    int fillRow(PreviewLayout &layout, int page, int last) const;

    const PreviewRequest &m_request;
    const std::vector<QSizeF> &m_pages;
    const QSizeF &m_paper;
};

// Two pages are the one on show and the next; at the end of the document, the last two.
std::pair<int, int> Arranger::range() const
{
    if (m_request.mode == ZoomThumbnails) return {1, std::max(1, count())};
    if (m_request.mode != ZoomTwoPages || count() < 2) return {m_request.page, m_request.page};
    const int first = std::clamp(m_request.page, 1, count() - 1);
    return {first, first + 1};
}

double Arranger::fit(int first, int last) const
{
    const int places = m_request.mode == ZoomTwoPages ? 2 : 1;
    double width = first == last ? sizeOf(first).width() * (places - 1) : 0;
    double height = 0;
    for (int page = first; page <= last; ++page) {
        width += sizeOf(page).width();
        height = std::max(height, sizeOf(page).height());
    }
    const double across = (m_request.view.width() - Gap * (places + 1)) / width;
    const double down = (m_request.view.height() - 2 * Gap) / height;
    return 100 * (m_request.mode == ZoomPageWidth ? across : std::min(across, down));
}

double Arranger::zoom(int first, int last) const
{
    if (m_request.mode == ZoomByPercent) return m_request.zoom;
    if (m_request.mode != ZoomThumbnails) return fit(first, last);
    double tallest = 1;
    for (int page = first; page <= last; ++page)
        tallest = std::max(tallest, sizeOf(page).height());
    return 100 * ThumbnailHeight / tallest;
}

// As many pages as the view is wide. Gives the page behind the row.
int Arranger::fillRow(PreviewLayout &layout, int page, int last) const
{
    const double scale = layout.zoom / 100;
    double right = Gap;
    double height = 0;
    for (bool fits = true; page <= last && fits; ++page) {
        const QSizeF size = sizeOf(page) * scale;
        layout.pages.push_back({page, {{right, layout.content.height()}, size}});
        right += size.width() + Gap;
        height = std::max(height, size.height());
        const double next = page < last ? sizeOf(page + 1).width() * scale + Gap : 0;
        fits = m_request.mode == ZoomTwoPages || right + next <= m_request.view.width();
    }
    layout.content = {std::max(layout.content.width(), right), layout.content.height() + height + Gap};
    return page;
}

PreviewLayout Arranger::arrange() const
{
    const auto [first, last] = range();
    PreviewLayout layout;
    layout.zoom = std::clamp(zoom(first, last), SmallestZoom, LargestZoom);
    if (m_pages.empty()) return layout;
    layout.content.setHeight(Gap);
    for (int page = first; page <= last;)
        page = fillRow(layout, page, last);
    const double across = std::max(0.0, (m_request.view.width() - layout.content.width()) / 2);
    const double down = std::max(0.0, (m_request.view.height() - layout.content.height()) / 2);
    for (PlacedPage &page : layout.pages)
        page.place.translate(across, m_request.mode == ZoomThumbnails ? 0 : down);
    layout.content = layout.content.expandedTo(m_request.view);
    return layout;
}
} // namespace

PreviewLayout layOutPreview(const PreviewRequest &request, const std::vector<QSizeF> &pages, const QSizeF &paper)
{
    return Arranger(request, pages, paper).arrange();
}

} // namespace orvane
