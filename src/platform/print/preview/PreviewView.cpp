#include "platform/print/preview/PreviewView.h"

#include "platform/controls/Palette.h"
#include "platform/controls/Twips.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

namespace orvane
{

namespace
{
constexpr int ShadowWidth = 4;
constexpr int ShadowStrength = 40; // of 255
constexpr int FrameWidth = 2;

void paintSheet(QPainter &painter, const QRectF &sheet, bool chosen)
{
    QColor shadow = palette::Ink;
    shadow.setAlpha(ShadowStrength);
    painter.fillRect(sheet.translated(ShadowWidth, ShadowWidth), shadow);
    const double frame = chosen ? FrameWidth : 1;
    painter.fillRect(sheet.adjusted(-frame, -frame, frame, frame), chosen ? palette::Teal : palette::GreyText);
    painter.fillRect(sheet, palette::White);
}
} // namespace

PreviewView::PreviewView()
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    QPalette ground = viewport()->palette();
    ground.setColor(QPalette::Window, palette::Line);
    viewport()->setPalette(ground);
    viewport()->setBackgroundRole(QPalette::Window);
    for (QScrollBar *bar : {horizontalScrollBar(), verticalScrollBar()})
        connect(bar, &QScrollBar::actionTriggered, this, [this, bar] { followBar(*bar); });
    describePage();
}

void PreviewView::setPages(std::shared_ptr<const RecordedPages> pages, const QSizeF &paper)
{
    m_pages = std::move(pages);
    m_paper = paper;
    m_sizes.clear();
    for (const RecordedPage &page : *m_pages)
        m_sizes.push_back(page.setup.page());
    m_request.page = std::min(1, count());
    arrange();
    verticalScrollBar()->setValue(0);
    describePage();
}

void PreviewView::setPage(int page)
{
    PreviewRequest request = m_request;
    request.page = std::clamp(page, std::min(1, count()), count());
    look(request);
    describePage();
}

void PreviewView::setZoom(double percent)
{
    PreviewRequest request = m_request;
    request.mode = ZoomByPercent;
    request.zoom = std::clamp(percent, SmallestZoom, LargestZoom);
    look(request);
}

void PreviewView::setZoomMode(int mode)
{
    PreviewRequest request = m_request;
    request.mode = mode;
    look(request);
}

// A page that comes on show is seen from its top.
void PreviewView::look(const PreviewRequest &request)
{
    const bool turned = request.page != m_request.page && request.mode != ZoomThumbnails;
    const bool otherPages =
        request.mode != m_request.mode && (showsSeveral(request.mode) || showsSeveral(m_request.mode));
    m_request = request;
    if (!showsSeveral(request.mode)) m_single = request;
    m_wheelAtEnd = 0;
    arrange();
    if (turned || otherPages) verticalScrollBar()->setValue(0);
    for (const PlacedPage &each : m_layout.pages)
        if (request.mode == ZoomThumbnails && each.number == request.page) showPlace(each.place);
}

// Keeps what is in the middle of the view there.
void PreviewView::arrange()
{
    const QSizeF before = m_layout.content;
    const QPointF half(viewport()->width() / 2.0, viewport()->height() / 2.0);
    const QPointF middle = half - origin();
    layOut();
    setScrollRanges();
    if (!before.isEmpty() && before != m_layout.content) {
        const double across = m_layout.content.width() / before.width();
        const double down = m_layout.content.height() / before.height();
        horizontalScrollBar()->setValue(qRound(middle.x() * across - half.x()));
        verticalScrollBar()->setValue(qRound(middle.y() * down - half.y()));
    }
    viewport()->update();
}

// A scroll bar takes room from the view, and may make the other one needed by that.
void PreviewView::layOut()
{
    const double across = verticalScrollBar()->sizeHint().width();
    const double down = horizontalScrollBar()->sizeHint().height();
    const QSizeF whole = maximumViewportSize();
    // One that comes and goes with the zoom that it causes would flicker.
    const bool takesBar = m_request.mode == ZoomThumbnails || m_request.mode == ZoomPageWidth;
    m_request.view = takesBar ? whole - QSizeF(across, 0) : whole;
    for (bool settled = false; !settled;) {
        m_layout = layOutPreview(m_request, m_sizes, m_paper);
        const QSizeF view = m_request.view;
        if (m_layout.content.height() > view.height()) m_request.view.setWidth(whole.width() - across);
        if (m_layout.content.width() > view.width()) m_request.view.setHeight(whole.height() - down);
        settled = m_request.view == view;
    }
}

void PreviewView::setScrollRanges()
{
    const QSize view = m_request.view.toSize();
    const QSize content = m_layout.content.toSize();
    horizontalScrollBar()->setRange(0, std::max(0, content.width() - view.width()));
    verticalScrollBar()->setRange(0, std::max(0, content.height() - view.height()));
    for (QScrollBar *bar : {horizontalScrollBar(), verticalScrollBar()}) {
        bar->setPageStep(bar == horizontalScrollBar() ? view.width() : view.height());
        bar->setSingleStep(std::max(1, bar->pageStep() / 12));
    }
}

QPointF PreviewView::origin() const
{
    return -QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value());
}

void PreviewView::showPlace(const QRectF &place)
{
    QScrollBar *bar = verticalScrollBar();
    const double view = viewport()->height();
    if (place.top() < bar->value()) bar->setValue(qRound(place.top() - ShadowWidth));
    if (place.bottom() > bar->value() + view) bar->setValue(qRound(place.bottom() - view + ShadowWidth));
}

void PreviewView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    const QPointF at = origin();
    for (const PlacedPage &page : m_layout.pages) {
        const QRectF seen = page.place.translated(at).adjusted(0, 0, ShadowWidth, ShadowWidth);
        if (seen.intersects(event->rect())) paintPage(painter, page);
    }
}

void PreviewView::paintPage(QPainter &painter, const PlacedPage &page) const
{
    const QRectF sheet = QRectF(page.place.translated(origin()).toRect());
    paintSheet(painter, sheet, showsSeveral(m_request.mode) && page.number == m_request.page);
    painter.save();
    painter.setClipRect(sheet, Qt::IntersectClip);
    painter.translate(sheet.topLeft());
    const double scale = m_layout.zoom / 100 / TwipsPerPixel;
    painter.scale(scale, scale);
    drawPage(painter, (*m_pages)[page.number - 1]);
    painter.restore();
}

// For a screen reader: the words of the page on show.
void PreviewView::describePage()
{
    const int page = m_request.page;
    setAccessibleDescription(
        page == 0 ? QStringLiteral("No pages")
                  : QStringLiteral("Page %1 of %2\n%3").arg(page).arg(count()).arg(textOf((*m_pages)[page - 1])));
}

void PreviewView::resizeEvent(QResizeEvent *)
{
    arrange();
}

void PreviewView::scrollContentsBy(int, int)
{
    viewport()->update();
}

} // namespace orvane
