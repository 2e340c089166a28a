// What the user does to a preview with mouse and keyboard.
#include "platform/print/preview/PreviewView.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <cmath>

namespace orvane
{

namespace
{
constexpr double ZoomStep = 1.25;
constexpr int WheelNotch = 120;
} // namespace

void PreviewView::zoomBy(double factor)
{
    setZoom(zoom() * factor);
    emit zoomed();
}

void PreviewView::turn(int pages, bool toItsEnd)
{
    const int before = page();
    setPage(before + pages);
    if (page() == before) return;
    if (toItsEnd) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    emit turned();
    emit scrolled();
}

void PreviewView::scrollOrTurn(int pixels)
{
    QScrollBar *bar = verticalScrollBar();
    const int before = bar->value();
    bar->setValue(before + pixels);
    if (bar->value() != before) return emit scrolled();
    if (m_request.mode != ZoomThumbnails) turn(pixels > 0 ? 1 : -1, pixels < 0);
}

// A bar tells what the user does to it, by wheel and arrow keys too, before the view has moved.
void PreviewView::followBar(QScrollBar &bar)
{
    if (bar.sliderPosition() == bar.value()) return;
    bar.setValue(bar.sliderPosition());
    m_wheelAtEnd = 0;
    emit scrolled();
}

void PreviewView::wheelEvent(QWheelEvent *event)
{
    const QPoint turned = event->angleDelta();
    if (event->modifiers() & Qt::ControlModifier) {
        if (turned.y() != 0) zoomBy(std::pow(ZoomStep, double(turned.y()) / WheelNotch));
        return event->accept();
    }
    const int across = horizontalScrollBar()->value();
    const int down = verticalScrollBar()->value();
    QAbstractScrollArea::wheelEvent(event);
    event->accept();
    if (across != horizontalScrollBar()->value() || down != verticalScrollBar()->value()) return;
    // A touch pad turns in many small steps: at the end of a page a whole notch is needed to go on.
    m_wheelAtEnd += turned.y();
    if (std::abs(m_wheelAtEnd) < WheelNotch || m_request.mode == ZoomThumbnails) return;
    const bool onward = m_wheelAtEnd < 0;
    m_wheelAtEnd = 0;
    turn(onward ? 1 : -1, !onward);
}

void PreviewView::keyPressEvent(QKeyEvent *event)
{
    if (zoomKey(*event) || thumbnailKey(event->key()) || pageKey(event->key())) return;
    QAbstractScrollArea::keyPressEvent(event);
}

bool PreviewView::zoomKey(const QKeyEvent &event)
{
    if (!(event.modifiers() & Qt::ControlModifier)) return false;
    const bool in = event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal;
    if (!in && event.key() != Qt::Key_Minus) return false;
    zoomBy(in ? ZoomStep : 1 / ZoomStep);
    return true;
}

bool PreviewView::pageKey(int key)
{
    const QScrollBar *bar = verticalScrollBar();
    switch (key) {
    case Qt::Key_PageDown:
        scrollOrTurn(bar->pageStep());
        return true;
    case Qt::Key_PageUp:
        scrollOrTurn(-bar->pageStep());
        return true;
    case Qt::Key_Down:
        scrollOrTurn(bar->singleStep());
        return true;
    case Qt::Key_Up:
        scrollOrTurn(-bar->singleStep());
        return true;
    case Qt::Key_Home:
        turn(-count(), false);
        return true;
    case Qt::Key_End:
        turn(count(), false);
        return true;
    default:
        return false;
    }
}

bool PreviewView::thumbnailKey(int key)
{
    if (m_request.mode != ZoomThumbnails) return false;
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        openThumbnail(page());
        return true;
    case Qt::Key_Left:
        turn(-1, false);
        return true;
    case Qt::Key_Right:
        turn(1, false);
        return true;
    case Qt::Key_Up:
        turn(-thumbnailsInRow(), false);
        return true;
    case Qt::Key_Down:
        turn(thumbnailsInRow(), false);
        return true;
    default:
        return false;
    }
}

int PreviewView::thumbnailsInRow() const
{
    int inRow = 0;
    for (const PlacedPage &page : m_layout.pages)
        if (page.place.top() == m_layout.pages.front().place.top()) ++inRow;
    return inRow;
}

// As one page was looked at before.
void PreviewView::openThumbnail(int page)
{
    const int mode = m_single.mode;
    turn(page - this->page(), false);
    if (mode == ZoomByPercent)
        setZoom(m_single.zoom);
    else
        setZoomMode(mode);
    emit zoomed();
}

void PreviewView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) return;
    for (const PlacedPage &each : m_layout.pages) {
        if (!each.place.translated(origin()).contains(event->position())) continue;
        if (m_request.mode == ZoomThumbnails) return openThumbnail(each.number);
        if (m_request.mode == ZoomTwoPages) turn(each.number - page(), false);
        return;
    }
}

} // namespace orvane
