#include "platform/controls/CaptionButton.h"

#include "platform/controls/CaptionFont.h"
#include "platform/controls/Palette.h"

#include <QKeyEvent>
#include <QPainter>

namespace orvane
{

namespace
{
constexpr double Radius = 5;
constexpr int Margin = 3;
constexpr int MarginAbove = 2; // and below: three lines need the height
constexpr int CornerSize = 10;
constexpr int TopMargin = 5;
constexpr int TopHeight = 36;
constexpr int MarkSize = 3;
constexpr double CaptionPoints = 8;
constexpr double LeastPoints = 6.5;
} // namespace

CaptionButton::CaptionButton(PicturePlace place) : m_place(place)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    orvane::setFont(*this, QStringLiteral("Arial"), CaptionPoints, false);
}

void CaptionButton::setPicture(const QString &name)
{
    m_picture.set(name);
    update();
}

void CaptionButton::setDropsMenu(bool drops)
{
    m_dropsMenu = drops;
}

void CaptionButton::setCaptionColour(const QColor &colour)
{
    m_captionColour = colour;
    update();
}

void CaptionButton::paintCard(QPainter &painter) const
{
    const bool sunk = isDown() || isChecked();
    QColor ground = sunk ? palette::Mist : palette::Paper;
    if (underMouse() && !sunk) ground = Qt::white;
    painter.setPen(QPen(hasFocus() || sunk ? palette::Teal : palette::Line, hasFocus() ? 2 : 1));
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -2, -2), Radius, Radius);
    if (!isChecked()) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::Amber);
    painter.drawRoundedRect(QRectF(Radius + 2, height() - 4, width() - 2 * Radius - 4, 3), 1.5, 1.5);
}

QRect CaptionButton::paintPicture(QPainter &painter)
{
    const QRect inside = rect().adjusted(Margin, MarginAbove, -Margin, -MarginAbove);
    if (!m_picture.isSet()) return inside;
    if (m_place == TopPicture) {
        m_picture.paint(painter, QRectF(inside.left(), TopMargin, inside.width(), TopHeight));
        return inside.adjusted(0, TopHeight, 0, 0);
    }
    const double middle = (height() - CornerSize) / 2.0;
    m_picture.paint(painter, QRectF(inside.left(), middle, CornerSize, CornerSize));
    return inside.adjusted(CornerSize, 0, 0, 0);
}

// Long words and captions of three lines are set a little smaller rather than cut.
QFont CaptionButton::fontFor(const QRect &room) const
{
    QFont font = this->font();
    const auto fits = [&] {
        const QRect needed = QFontMetrics(font).boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, text());
        return needed.width() <= room.width() && needed.height() <= room.height();
    };
    while (font.pointSizeF() > LeastPoints && !fits())
        font.setPointSizeF(font.pointSizeF() - 0.25);
    return font;
}

void CaptionButton::paintMark(QPainter &painter) const
{
    const QPointF tip(width() - Margin - MarkSize - 1, height() - Margin - 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::Teal);
    painter.drawPolygon(QPolygonF({tip, tip + QPointF(-MarkSize, -MarkSize), tip + QPointF(MarkSize, -MarkSize)}));
}

void CaptionButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintCard(painter);
    QRect room = paintPicture(painter);
    if (m_dropsMenu) {
        paintMark(painter);
        room.adjust(0, 0, -2 * MarkSize, 0);
    }
    painter.setFont(fontFor(room));
    painter.setPen(m_captionColour);
    painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, text());
}

void CaptionButton::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter || (m_dropsMenu && event->key() == Qt::Key_Down))
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void CaptionButton::enterEvent(QEnterEvent *event)
{
    QAbstractButton::enterEvent(event);
    emit entered();
}

void CaptionButton::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    emit left();
}

} // namespace orvane
