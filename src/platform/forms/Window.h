// A window of its own beside the frame: a dialog, the splash, the console.
#pragma once

#include "platform/forms/Form.h"

namespace orvane
{

class CommandButton;

class Window : public Form
{
    Q_OBJECT

public:
    enum Border { NoBorder, FixedBorder };

    void Show(int mode = Modeless) override; // in the middle of the screen when it is shown first

    // Above the frame and everything else. Changing it hides the window.
    void setTopMost(bool topMost);

protected:
    Window(const QString &name, Border border);

    // Whether showing the window draws the focus away from where the user types; it does at first.
    void setTakesFocus(bool takes);

    // The buttons that Enter and Escape press from anywhere in the window, unless the control with the focus has a use
    // of its own for the key. Such a key reaches no handler of the window.
    void setDefaultButton(CommandButton &button);
    void setCancelButton(CommandButton &button) { m_cancelButton = &button; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Window(const QString &name, QWidget *shell);
    CommandButton *buttonOf(const QKeyEvent &event) const;

    bool m_placed = false;
    CommandButton *m_defaultButton = nullptr;
    CommandButton *m_cancelButton = nullptr;
};

} // namespace orvane
