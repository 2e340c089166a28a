#include "platform/controls/Label.h"

#include "platform/controls/CaptionFont.h"
#include "platform/controls/Colour.h"

#include <QLabel>
#include <QMouseEvent>

namespace orvane
{

namespace
{
constexpr int LeastStretch = 80; // percent
}

Label::Label(Container &parent, const QString &name)
    : Control(parent, name, new QLabel), m_label(static_cast<QLabel &>(widget()))
{
    m_label.setTextFormat(Qt::PlainText);
    m_label.setWordWrap(true);
    m_label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_label.installEventFilter(this);
}

QString Label::Caption() const
{
    return m_label.text();
}

void Label::setCaption(const QString &caption)
{
    m_label.setText(caption);
    squeeze();
    speak();
}

void Label::setFont(const QString &family, double points, bool bold)
{
    orvane::setFont(m_label, family, points, bold);
    squeeze();
}

void Label::setOneLine()
{
    m_oneLine = true;
    m_label.setWordWrap(false);
    squeeze();
}

void Label::squeeze()
{
    if (!m_oneLine) return;
    QFont font = m_label.font();
    int stretch = QFont::Unstretched;
    do
        font.setStretch(stretch--);
    while (stretch >= LeastStretch && QFontMetrics(font).horizontalAdvance(m_label.text()) > m_label.width());
    m_label.setFont(font);
}

void Label::setForeColor(int colour)
{
    QPalette palette = m_label.palette();
    palette.setColor(QPalette::WindowText, toColour(colour));
    m_label.setPalette(palette);
}

void Label::moved()
{
    squeeze();
}

bool Label::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &widget() && event->type() == QEvent::MouseButtonRelease) {
        const auto &mouse = static_cast<QMouseEvent &>(*event);
        if (mouse.button() == Qt::LeftButton && m_label.rect().contains(mouse.position().toPoint())) emit Click();
    }
    return Control::eventFilter(watched, event);
}

} // namespace orvane
