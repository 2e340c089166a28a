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

void PictureView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_drawing.paint(painter, rect());
}

void PictureView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) emit clicked();
}

} // namespace orvane
