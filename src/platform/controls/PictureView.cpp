#include "platform/controls/PictureView.h"

#include <QMouseEvent>
#include <QPainter>

namespace orvane
{

void PictureView::setPicture(const QString &name)
{
    m_drawing.set(name);
    update();
}

void PictureView::setPixels(const PictureObject &picture)
{
    m_pixels = picture;
    update();
}

void PictureView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_drawing.paint(painter, rect());
    if (m_pixels.image().isNull()) return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect(), m_pixels.image());
}

void PictureView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) emit clicked();
}

} // namespace orvane
