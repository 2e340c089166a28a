// A rich-text box with a state of editing, in the windows whose documents have two versions. Change tells of the user's
// edits and of formats that are set, not of a text that is put.
#pragma once

#include "platform/controls/text/RichTextBox.h"

namespace orvane
{

class zelRich : public RichTextBox
{
    Q_OBJECT

public:
    zelRich(Container &parent, const QString &name) : RichTextBox(parent, name) { tellOfEditsOnly(); }

    // The user can edit where this is True and the box isn't locked.
    bool EditingEnabled() const { return m_editingEnabled; }
    void setEditingEnabled(bool enabled)
    {
        m_editingEnabled = enabled;
        applyLock();
    }

protected:
    bool barsEditing() const override { return Locked() || !m_editingEnabled; }

private:
    bool m_editingEnabled = true;
};

} // namespace orvane
