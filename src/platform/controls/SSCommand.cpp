#include "platform/controls/SSCommand.h"

#include "platform/controls/CaptionFont.h"
#include "platform/controls/Colour.h"

namespace orvane
{

SSCommand::SSCommand(Container &parent, const QString &name) : SSCommand(parent, name, CaptionButton::CornerPicture)
{
    connect(&m_button, &CaptionButton::clicked, this, [this] { emit Click(); });
}

SSCommand::SSCommand(Container &parent, const QString &name, CaptionButton::PicturePlace place)
    : Control(parent, name, new CaptionButton(place)), m_button(static_cast<CaptionButton &>(widget()))
{
    connect(&m_button, &CaptionButton::entered, this, &SSCommand::MouseEnter);
    connect(&m_button, &CaptionButton::left, this, &SSCommand::MouseLeave);
}

void SSCommand::setCaption(const QString &caption)
{
    m_button.setText(caption);
    speak();
}

int SSCommand::ForeColor() const
{
    return fromColour(m_button.captionColour());
}

void SSCommand::setForeColor(int colour)
{
    m_button.setCaptionColour(toColour(colour));
}

void SSCommand::setFontBold(bool bold)
{
    setBold(m_button, bold);
}

bool SSCommand::FontBold() const
{
    return m_button.font().bold();
}

void SSCommand::setPicture(const QString &name)
{
    m_button.setPicture(name);
}

void SSCommand::setDropsMenu(bool drops)
{
    m_button.setDropsMenu(drops);
}

void SSCommand::setTabStop(bool stop)
{
    m_button.setFocusPolicy(stop ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace orvane
