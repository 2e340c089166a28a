#include "platform/print/pages/PageSetup.h"

#include "platform/controls/Twips.h"

#include <QPageLayout>
#include <QPageSize>
#include <algorithm>

namespace orvane
{

namespace
{
constexpr double LeastRoom = 720;
} // namespace

QPageLayout PageSetup::printerLayout() const
{
    const QPageSize paper(QPageSize::id(paperSize));
    return {paper, landscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF(), QPageLayout::Point};
}

// Printers count paper in whole points, so that a page here is as large as the page that comes out.
QSizeF PageSetup::page() const
{
    return printerLayout().fullRectPoints().toRectF().size() * TwipsPerPoint;
}

QRectF PageSetup::body() const
{
    const QSizeF size = page();
    return {left, top, std::max(size.width() - left - right, LeastRoom),
            std::max(size.height() - top - bottom, LeastRoom)};
}

} // namespace orvane
