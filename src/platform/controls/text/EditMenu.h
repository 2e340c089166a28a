// The menu of a rich-text control, at the mouse or at the caret: each command as far as the control allows it.
#pragma once

#include <QMenu>

namespace orvane
{

class RichEdit;

class EditMenu : public QMenu
{
    Q_OBJECT

public:
    // Belongs to the editor, and goes when it is closed.
    explicit EditMenu(RichEdit &edit);

private:
    void add(const QString &name, const QString &caption, QKeySequence::StandardKey key, bool enabled,
             void (RichEdit::*command)());

    RichEdit &m_edit;
};

} // namespace orvane
