#include "platform/controls/Drawing.h"

#include <QPainter>
#include <QSvgRenderer>

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
}

} // namespace orvane
