#include "platform/controls/PanelWidget.h"

#include "platform/controls/Palette.h"

#include <QPainter>

namespace orvane
{

namespace
{
constexpr int CaptionMargin = 10; // pixels
constexpr int EndMargin = 2;      // numbers of sections have just their room
constexpr double CardRadius = 6;
} // namespace

void PanelWidget::setCaption(const QString &caption)
{
    m_caption = caption;
    update();
}

void PanelWidget::paintGround(QPainter &painter) const
{
    if (m_look == SSPanel::Card) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(palette::Line);
        painter.setBrush(palette::Paper);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), CardRadius, CardRadius);
    } else if (m_look == SSPanel::TitleBar) {
        painter.fillRect(rect(), palette::Teal);
    }
}

void PanelWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintGround(painter);
    const bool onColour = m_look == SSPanel::TitleBar;
    painter.setPen(onColour ? palette::Paper : palette::Ink);
    painter.setFont(font());
    const QRect room = rect().adjusted(CaptionMargin, 0, -EndMargin, 0);
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                     fontMetrics().elidedText(m_caption, Qt::ElideRight, room.width()));
}

} // namespace orvane
