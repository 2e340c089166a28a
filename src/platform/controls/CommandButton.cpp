#include "platform/controls/CommandButton.h"

#include "platform/controls/CaptionFont.h"

#include <QPushButton>

namespace orvane
{

CommandButton::CommandButton(Container &parent, const QString &name, const QString &caption)
    : Control(parent, name, new QPushButton(caption)), m_button(static_cast<QPushButton &>(widget()))
{
    m_button.setAutoDefault(true); // Enter presses it too
    connect(&m_button, &QPushButton::clicked, this, [this] { emit Click(); });
    speak();
}

QString CommandButton::Caption() const
{
    return m_button.text();
}

void CommandButton::setFont(const QString &family, double points, bool bold)
{
    orvane::setFont(m_button, family, points, bold);
}

} // namespace orvane
