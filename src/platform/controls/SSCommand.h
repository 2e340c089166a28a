// A button with a caption of several lines and a small picture, which tells when the mouse enters and leaves it.
#pragma once

#include "platform/controls/CaptionButton.h"
#include "platform/controls/Control.h"

namespace orvane
{

class SSCommand : public Control
{
    Q_OBJECT

public:
    SSCommand(Container &parent, const QString &name);

    QString Caption() const override { return m_button.text(); }
    void setCaption(const QString &caption);
    int ForeColor() const; // blue, green, red
    void setForeColor(int colour);
    void setFontBold(bool bold);
    bool FontBold() const;
    void setPicture(const QString &name);
    void setDropsMenu(bool drops); // shows it, and lets Down press the button
    void setTabStop(bool stop);    // whether the Tab key stops at it; it does at first

signals:
    void Click();
    void MouseEnter();
    void MouseLeave();

protected:
    SSCommand(Container &parent, const QString &name, CaptionButton::PicturePlace place);

    CaptionButton &button() const { return m_button; }

private:
    CaptionButton &m_button;
};

} // namespace orvane
