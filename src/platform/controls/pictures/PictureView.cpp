#include "platform/controls/pictures/PictureView.h"

#include <QMouseEvent>
#include <QPainter>
#include <utility>

namespace orvane
{

void PictureView::setPicture(const QString &name)
{
    m_drawing.set(name);
    m_ahead = {};
    update();
}

void PictureView::setWords(const QSizeF &ground, const std::vector<PictureWords> &words)
{
    m_drawing.setWords(ground, words);
    m_ahead = {};
    update();
}

void PictureView::setPixels(const PictureObject &picture)
{
    m_pixels = picture;
    update();
}

void PictureView::drawAhead()
{
    if (!isVisible() || !m_drawing.isSet()) return;
    const double scale = devicePixelRatioF();
    QPixmap picture(size() * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setFont(font());
    m_drawing.paint(painter, rect());
    painter.end();
    m_ahead = picture;
}

void PictureView::paintDrawing(QPainter &painter)
{
    const QPixmap ahead = std::exchange(m_ahead, {});
    if (ahead.deviceIndependentSize() == QSizeF(size()) && ahead.devicePixelRatio() == devicePixelRatioF())
        painter.drawPixmap(0, 0, ahead);
    else
        m_drawing.paint(painter, rect());
}

void PictureView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintDrawing(painter);
    if (m_pixels.image().isNull()) return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect(), m_pixels.image());
}

void PictureView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) emit clicked();
}

} // namespace orvane
