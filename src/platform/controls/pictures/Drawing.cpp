#include "platform/controls/pictures/Drawing.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>

namespace orvane
{

Drawing::Drawing() = default;

Drawing::~Drawing() = default;

void Drawing::set(const QString &name)
{
    m_name = name;
    m_renderer.reset();
}

void Drawing::paint(QPainter &painter, const QRectF &room)
{
    if (!isSet()) return;
    if (!m_renderer) {
        m_renderer = std::make_unique<QSvgRenderer>(QStringLiteral(":/pictures/%1.svg").arg(m_name));
        m_renderer->setAspectRatioMode(Qt::KeepAspectRatio);
    }
    m_renderer->render(&painter, room);
    paintWords(painter, room);
}

void Drawing::paintWords(QPainter &painter, const QRectF &room) const
{
    const QSizeF size = m_renderer->defaultSize();
    const double scale = std::min(room.width() / size.width(), room.height() / size.height());
    const QPointF corner = room.center() - QPointF(size.width(), size.height()) * scale / 2;
    QFont font = painter.font();
    for (const PictureWords &words : m_words) {
        font.setPixelSize(std::max(1, qRound(words.size * scale)));
        font.setBold(words.bold);
        painter.setFont(font);
        painter.setPen(words.colour);
        const double width = QFontMetricsF(font, painter.device()).horizontalAdvance(words.text);
        const double before = words.anchor == PictureWords::Middle ? width / 2 : width;
        painter.drawText(corner + QPointF(words.x, words.baseline) * scale - QPointF(before, 0), words.text);
    }
}

} // namespace orvane
