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
constexpr int Margin = 6;
constexpr int CornerSize = 10;
constexpr int TopHeight = 36;
constexpr int MarkSize = 4;
constexpr double CaptionPoints = 8.25;
} // namespace

CaptionButton::CaptionButton(PicturePlace place) : m_place(place)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    orvane::setFont(*this, QStringLiteral("Arial"), CaptionPoints, false);
}

void CaptionButton::setPicture(const QString &name)
{
    m_picture.load(QStringLiteral(":/pictures/%1.svg").arg(name));
    m_picture.setAspectRatioMode(Qt::KeepAspectRatio);
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
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), Radius, Radius);
    if (!isChecked()) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::Amber);
    painter.drawRoundedRect(QRectF(Radius + 2, height() - 4, width() - 2 * Radius - 4, 3), 1.5, 1.5);
}

QRect CaptionButton::paintPicture(QPainter &painter)
{
    const QRect inside = rect().adjusted(Margin, Margin, -Margin, -Margin);
    if (!m_picture.isValid()) return inside;
    if (m_place == TopPicture) {
        m_picture.render(&painter, QRectF(inside.left(), inside.top() - 1, inside.width(), TopHeight));
        return inside.adjusted(0, TopHeight, 0, 0);
    }
    m_picture.render(&painter, QRectF(inside.left() - 1, inside.top() - 1, CornerSize, CornerSize));
    return inside;
}

void CaptionButton::paintMark(QPainter &painter) const
{
    const QPointF tip(width() - Margin - MarkSize, height() - Margin);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::Teal);
    painter.drawPolygon(QPolygonF({tip, tip + QPointF(-MarkSize, -MarkSize), tip + QPointF(MarkSize, -MarkSize)}));
}

void CaptionButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintCard(painter);
    const QRect room = paintPicture(painter);
    if (m_dropsMenu) paintMark(painter);
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
