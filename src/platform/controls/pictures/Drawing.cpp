#include "platform/controls/pictures/Drawing.h"

#include "platform/controls/pictures/PaintedPicture.h"
#include "platform/controls/pictures/PictureFile.h"

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

void Drawing::setWords(const QSizeF &ground, const std::vector<PictureWords> &words)
{
    m_ground = ground;
    m_words = words;
}

void Drawing::paint(QPainter &painter, const QRectF &room)
{
    if (!isSet()) return;
    paintGround(painter, room);
    if (!m_words.empty()) paintWords(painter, room);
}

void Drawing::paintGround(QPainter &painter, const QRectF &room)
{
    const QSizeF pixels = painter.deviceTransform().mapRect(room).size();
    if (const QImage picture = paintedPicture(m_name, pixels.toSize()); !picture.isNull()) {
        painter.drawImage(room, picture);
        return;
    }
    if (!m_renderer) {
        m_renderer = std::make_unique<QSvgRenderer>(pictureFile(m_name));
        m_renderer->setAspectRatioMode(Qt::KeepAspectRatio);
    }
    m_renderer->render(&painter, room);
}

void Drawing::paintWords(QPainter &painter, const QRectF &room) const
{
    const double scale = std::min(room.width() / m_ground.width(), room.height() / m_ground.height());
    const QPointF corner = room.center() - QPointF(m_ground.width(), m_ground.height()) * scale / 2;
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
