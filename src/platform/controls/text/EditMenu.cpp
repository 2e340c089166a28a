#include "platform/controls/text/EditMenu.h"

#include "platform/controls/bars/BarLooks.h"
#include "platform/controls/text/RichEdit.h"

#include <QTextDocument>

namespace orvane
{

using namespace Qt::Literals::StringLiterals;

EditMenu::EditMenu(RichEdit &edit) : QMenu(&edit), m_edit(edit)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"mnuText"_s);
    setAccessibleName(u"Edit"_s);
    applyMenuLooks(*this);
    const QTextDocument &document = *edit.document();
    const bool editable = !edit.isReadOnly();
    const bool selected = edit.textCursor().hasSelection();
    add(u"miUndo"_s, u"&Undo"_s, QKeySequence::Undo, editable && document.isUndoAvailable(), &RichEdit::undo);
    add(u"miRedo"_s, u"&Redo"_s, QKeySequence::Redo, editable && document.isRedoAvailable(), &RichEdit::redo);
    addSeparator();
    add(u"miCut"_s, u"C&ut"_s, QKeySequence::Cut, editable && selected, &RichEdit::cut);
    add(u"miCopy"_s, u"C&opy"_s, QKeySequence::Copy, selected, &RichEdit::copy);
    add(u"miPaste"_s, u"&Paste"_s, QKeySequence::Paste, edit.canPaste(), &RichEdit::paste);
    addSeparator();
    add(u"miAll"_s, u"Select &All"_s, QKeySequence::SelectAll, !document.isEmpty(), &RichEdit::selectAll);
}

// The key is shown only: a shortcut of the menu's would stand in the way of the editor's.
void EditMenu::add(const QString &name, const QString &caption, QKeySequence::StandardKey key, bool enabled,
                   void (RichEdit::*command)())
{
    const QString keys = QKeySequence(key).toString(QKeySequence::NativeText);
    QAction *action = addAction(caption + u'\t' + keys);
    action->setObjectName(name);
    action->setEnabled(enabled);
    connect(action, &QAction::triggered, &m_edit, command);
}

} // namespace orvane
