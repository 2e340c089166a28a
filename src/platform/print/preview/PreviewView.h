// Shows the pages of a recorded document at a zoom, as they come out on paper.
//
// By the keyboard: Page Up, Page Down, Up and Down scroll, and turn the page at its end; Left and Right scroll across;
// Home and End go to the first and last page; Ctrl with plus and minus zooms. Among thumbnails the arrows choose a
// page, and Enter shows it.
#pragma once

#include "platform/print/pages/RecordedPage.h"
#include "platform/print/preview/PreviewLayout.h"

#include <QAbstractScrollArea>

namespace orvane
{

class PreviewView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    PreviewView();

    // From the first page. The paper is what a document without pages would stand on, twips.
    void setPages(std::shared_ptr<const RecordedPages> pages, const QSizeF &paper);

    int page() const { return m_request.page; } // 0 without pages
    void setPage(int page);                     // held within the document
    double zoom() const { return m_layout.zoom; }
    void setZoom(double percent); // held within SmallestZoom and LargestZoom
    int zoomMode() const { return m_request.mode; }
    void setZoomMode(int mode);

signals:
    // What the user did, not what the program set.
    void zoomed();
    void scrolled();
    void turned(); // to another page

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    int count() const { return static_cast<int>(m_pages->size()); }
    void look(const PreviewRequest &request);
    void arrange();
    void layOut();
    void setScrollRanges();
    void showPlace(const QRectF &place);
    void describePage();
    QPointF origin() const; // of the content, in the viewport
    void paintPage(QPainter &painter, const PlacedPage &page) const;

    void zoomBy(double factor);
    void turn(int pages, bool toItsEnd);
    void scrollOrTurn(int pixels);
    void followBar(QScrollBar &bar);
    bool zoomKey(const QKeyEvent &event);
    bool pageKey(int key);
    bool thumbnailKey(int key);
    int thumbnailsInRow() const;
    void openThumbnail(int page);

    std::shared_ptr<const RecordedPages> m_pages = std::make_shared<const RecordedPages>();
    std::vector<QSizeF> m_sizes;
    QSizeF m_paper{12240, 15840};
    PreviewRequest m_request;
    PreviewRequest m_single; // how one page was looked at last
    PreviewLayout m_layout;
    int m_wheelAtEnd = 0; // eighths of a degree turned since the page's end was reached
};

} // namespace orvane
