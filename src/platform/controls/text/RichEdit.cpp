#include "platform/controls/text/RichEdit.h"

#include "platform/controls/text/EditMenu.h"
#include "platform/controls/text/OfferedText.h"
#include "platform/controls/text/TakenText.h"
#include "platform/forms/ShiftState.h"
#include "platform/richtext/Rtf.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QImage>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QUrl>
#include <algorithm>
#include <array>

namespace orvane
{

namespace
{
int numberOf(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return 1;
    case Qt::RightButton:
        return 2;
    case Qt::MiddleButton:
        return 4;
    default:
        return 0;
    }
}

struct EditKey {
    QKeyCombination keys;
    void (QTextEdit::*command)();
    bool changes;
};

// The keys that not every desktop has of itself.
constexpr std::array EditKeys{
    EditKey{Qt::CTRL | Qt::Key_Z, &QTextEdit::undo, true},
    EditKey{Qt::CTRL | Qt::Key_Y, &QTextEdit::redo, true},
    EditKey{Qt::CTRL | Qt::SHIFT | Qt::Key_Z, &QTextEdit::redo, true},
    EditKey{Qt::SHIFT | Qt::Key_Delete, &QTextEdit::cut, true},
    EditKey{Qt::CTRL | Qt::Key_Insert, &QTextEdit::copy, false},
    EditKey{Qt::SHIFT | Qt::Key_Insert, &QTextEdit::paste, true},
};
} // namespace

RichEdit::RichEdit()
{
    setFrameShape(QFrame::NoFrame);
    setTabChangesFocus(true);
    viewport()->setMouseTracking(true);
    document()->setLayoutEnabled(false); // a window that opens changes its size a few times
}

void RichEdit::setWrapWidth(int pixels)
{
    if (lineWrapColumnOrWidth() != pixels) setLineWrapColumnOrWidth(pixels);
    setLineWrapMode(pixels > 0 ? FixedPixelWidth : WidgetWidth);
}

// An answer of nothing, or a picture that can't be read, would make the document look for the file itself.
QVariant RichEdit::loadResource(int type, const QUrl &)
{
    if (type != QTextDocument::ImageResource) return QByteArray("");
    QImage blank(1, 1, QImage::Format_ARGB32_Premultiplied);
    blank.fill(Qt::transparent);
    return blank;
}

void RichEdit::setOneLine()
{
    m_oneLine = true;
    setLineWrapMode(NoWrap);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QMimeData *RichEdit::createMimeDataFromSelection() const
{
    return new OfferedText(textCursor());
}

// A middle click where nothing is selected anywhere has no source.
bool RichEdit::canInsertFromMimeData(const QMimeData *source) const
{
    return !isReadOnly() && source && (holdsPlainText(*source) || (!m_oneLine && holdsRichText(*source)));
}

void RichEdit::insertFromMimeData(const QMimeData *source)
{
    if (!canInsertFromMimeData(source)) return;
    QTextDocument piece;
    piece.setUndoRedoEnabled(false);
    piece.setDefaultFont(document()->defaultFont());
    if (!m_oneLine && readRichText(*source, piece)) {
        if (!fitTogether(*document(), piece)) return QApplication::beep();
        insertPiece(piece);
    } else if (const QString text = readPlainText(*source); !text.isEmpty()) {
        QTextCursor(&piece).insertText(text, currentCharFormat());
        if (!fitTogether(*document(), piece)) return QApplication::beep();
        insertPlainText(m_oneLine ? text.simplified() : text);
    }
    ensureCursorVisible();
}

void RichEdit::insertPiece(const QTextDocument &piece)
{
    textCursor().insertFragment(QTextDocumentFragment(&piece));
}

// As a click at the caret, for those who read without a mouse.
void RichEdit::pressAtCaret()
{
    const QPointer<RichEdit> self = this;
    emit pressed();
    if (self) emit released(numberOf(Qt::LeftButton), 0, cursorRect().center());
}

// In a box of one line, Enter goes to the window's default button.
void RichEdit::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (m_oneLine && isEnter) return event->ignore();
    if (isReadOnly() && isEnter) return pressAtCaret();
    const QKeyCombination keys = event->keyCombination();
    const auto *known = std::find_if(EditKeys.begin(), EditKeys.end(), [&](auto &each) { return each.keys == keys; });
    if (known == EditKeys.end()) return QTextEdit::keyPressEvent(event);
    if (known->changes && isReadOnly()) return event->ignore();
    (this->*known->command)();
}

// The toolkit takes what was composed into any text that can be selected.
void RichEdit::inputMethodEvent(QInputMethodEvent *event)
{
    if (isReadOnly())
        event->ignore();
    else
        QTextEdit::inputMethodEvent(event);
}

// A menu that opened on the mouse's press would swallow its release.
void RichEdit::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() != QContextMenuEvent::Mouse) openMenu(viewport()->mapToGlobal(cursorRect().bottomLeft()));
}

void RichEdit::openMenu(const QPoint &place)
{
    auto *menu = new EditMenu(*this);
    menu->popup(place);
}

// The toolkit's own would make the letters of a read-only text larger.
void RichEdit::wheelEvent(QWheelEvent *event)
{
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractScrollArea::wheelEvent(event); // clazy:exclude=skipped-base-method
}

void RichEdit::showEvent(QShowEvent *event)
{
    QTextEdit::showEvent(event);
    if (!document()->isLayoutEnabled()) QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
}

bool RichEdit::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest && isVisible()) document()->setLayoutEnabled(true);
    return QTextEdit::event(event);
}

void RichEdit::paintEvent(QPaintEvent *event)
{
    document()->setLayoutEnabled(true);
    QTextEdit::paintEvent(event);
}

void RichEdit::mouseReleaseEvent(QMouseEvent *event)
{
    QTextEdit::mouseReleaseEvent(event);
    const QPointer<RichEdit> self = this;
    if (event->button() == Qt::LeftButton) emit pressed();
    if (self) emit released(numberOf(event->button()), shiftState(event->modifiers()), event->position());
    if (self && isVisible() && event->button() == Qt::RightButton) openMenu(event->globalPosition().toPoint());
}

void RichEdit::mouseMoveEvent(QMouseEvent *event)
{
    QTextEdit::mouseMoveEvent(event);
    emit moved(static_cast<int>(event->buttons() & 7), shiftState(event->modifiers()), event->position());
}

} // namespace orvane
