#include "platform/controls/bars/ToolButton.h"

#include "platform/controls/Palette.h"
#include "platform/controls/bars/BarLooks.h"
#include "platform/controls/bars/Tool.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace orvane
{

namespace
{
constexpr int Padding = 6;
constexpr int Gap = 4;
constexpr int IconSize = 16;
constexpr int ArrowWidth = 7;
constexpr int ArrowHeight = 4;
constexpr int MostSlack = 12;
constexpr double Corner = 3;
} // namespace

ToolButton::ToolButton(QWidget *parent) : QToolButton(parent)
{
    setFont(barFont());
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (menu())
            emit flyoutAsked();
        else
            emit chosen();
    });
}

// The mode in which the button leaves the opening to its owner; the menu is known to assistive technologies.
void ToolButton::setFlyout(QMenu *menu)
{
    setPopupMode(MenuButtonPopup);
    setMenu(menu);
}

// The menu kept the mouse to itself, so the button wasn't told that the mouse has left it.
void ToolButton::menuClosed()
{
    setAttribute(Qt::WA_UnderMouse, rect().contains(mapFromGlobal(QCursor::pos())));
    setDown(false);
}

void ToolButton::follow(const Tool &tool, bool withAccessKey)
{
    const QString caption = shownCaption(tool);
    setText(withAccessKey ? caption : withoutAccessKey(caption));
    const QString spoken = spokenName(tool);
    setAccessibleName(spoken);
    setAccessibleDescription(tool.ToolTipText());
    setToolTip(tool.ToolTipText().isEmpty() ? spoken : tool.ToolTipText());
    setEnabled(tool.Enabled());
    setCheckable(tool.Checked()); // only what is checked is spoken of as a thing to check
    setChecked(tool.Checked());
    m_leastWidth = tool.Width();
    m_slack = std::min(MostSlack, static_cast<int>(tool.Caption().size() - caption.size()));
    update();
}

bool ToolButton::showsCaption(bool compact) const
{
    return !text().isEmpty() && (icon().isNull() || !compact);
}

// Of picture and caption.
int ToolButton::contentWidth(bool compact) const
{
    const int picture = icon().isNull() ? 0 : IconSize;
    if (!showsCaption(compact)) return picture;
    const int caption = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    return picture + (picture > 0 ? Gap : 0) + caption;
}

int ToolButton::widthFor(bool compact) const
{
    const int width = 2 * Padding + contentWidth(compact) + (menu() ? Gap + ArrowWidth : 0);
    return showsCaption(compact) ? std::max(width + m_slack, m_leastWidth) : width;
}

void ToolButton::setCompact(bool compact)
{
    m_compact = compact;
    update();
}

QSize ToolButton::sizeHint() const
{
    return {widthFor(false), std::max(IconSize, fontMetrics().height()) + 2 * Gap};
}

// An access key presses at once; the toolkit's own way would only move the focus where another control has the same.
bool ToolButton::event(QEvent *event)
{
    if (event->type() != QEvent::Shortcut) return QToolButton::event(event);
    click();
    return true;
}

void ToolButton::mousePressEvent(QMouseEvent *event)
{
    if (menu() && event->button() == Qt::LeftButton)
        emit flyoutAsked();
    else
        QToolButton::mousePressEvent(event);
}

void ToolButton::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter || (menu() && event->key() == Qt::Key_Down))
        click();
    else
        QToolButton::keyPressEvent(event);
}

void ToolButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintGround(painter);
    paintContent(painter);
    if (!hasFocus()) return;
    painter.setPen(QPen(palette::Teal, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), Corner, Corner);
}

void ToolButton::paintGround(QPainter &painter) const
{
    const bool pressed = isDown() || isChecked();
    if (!pressed && !(isEnabled() && underMouse())) return;
    painter.setPen(pressed ? palette::Teal : palette::Line);
    painter.setBrush(pressed ? palette::PressedMist : palette::Paper);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Corner, Corner);
}

void ToolButton::paintContent(QPainter &painter) const
{
    QRect room = rect().adjusted(Padding, 0, -Padding, 0);
    if (menu()) {
        paintArrow(painter);
        room.setRight(room.right() - Gap - ArrowWidth);
    }
    const bool withCaption = showsCaption(m_compact);
    const int used = contentWidth(m_compact);
    room = QRect(room.left() + (room.width() - used) / 2, 0, used, height());
    if (!icon().isNull()) {
        const QRect place(room.left(), 0, IconSize, height());
        icon().paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    }
    if (!withCaption) return;
    painter.setPen(isEnabled() ? palette::Ink : palette::DisabledText);
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextSingleLine, text());
}

void ToolButton::paintArrow(QPainter &painter) const
{
    const double left = width() - Padding - ArrowWidth;
    const double top = (height() - ArrowHeight) / 2.0;
    QPainterPath arrow(QPointF(left, top));
    arrow.lineTo(left + ArrowWidth, top);
    arrow.lineTo(left + ArrowWidth / 2.0, top + ArrowHeight);
    painter.fillPath(arrow, isEnabled() ? palette::Ink : palette::DisabledText);
}

} // namespace orvane
