#include "platform/controls/PictureView.h"

#include <QMouseEvent>
#include <QPainter>

namespace orvane
{

void PictureView::setPicture(const QString &name)
{
    m_drawing.load(QStringLiteral(":/pictures/%1.svg").arg(name));
    m_drawing.setAspectRatioMode(Qt::KeepAspectRatio);
    update();
}

void PictureView::paintEvent(QPaintEvent *)
{
    if (!m_drawing.isValid()) return;
    QPainter painter(this);
    m_drawing.render(&painter, rect());
}

void PictureView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) emit clicked();
}

} // namespace orvane
