#include "platform/controls/text/RichEdit.h"

#include <QImage>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QTextDocument>
#include <QUrl>

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

int shiftOf(Qt::KeyboardModifiers modifiers)
{
    return (modifiers & Qt::ShiftModifier ? 1 : 0) + (modifiers & Qt::ControlModifier ? 2 : 0) +
           (modifiers & Qt::AltModifier ? 4 : 0);
}
} // namespace

RichEdit::RichEdit()
{
    setFrameShape(QFrame::NoFrame);
    setTabChangesFocus(true);
    viewport()->setMouseTracking(true);
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

// A middle click where nothing is selected anywhere has no source.
void RichEdit::insertFromMimeData(const QMimeData *source)
{
    if (!source || source->formats().isEmpty()) return;
    if (m_oneLine)
        insertPlainText(source->text().simplified());
    else
        QTextEdit::insertFromMimeData(source);
}

// Enter goes to the window's default button.
void RichEdit::keyPressEvent(QKeyEvent *event)
{
    if (m_oneLine && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        event->ignore();
    else
        QTextEdit::keyPressEvent(event);
}

void RichEdit::mouseReleaseEvent(QMouseEvent *event)
{
    QTextEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton) emit pressed();
    emit released(numberOf(event->button()), shiftOf(event->modifiers()), event->position());
}

void RichEdit::mouseMoveEvent(QMouseEvent *event)
{
    QTextEdit::mouseMoveEvent(event);
    emit moved(static_cast<int>(event->buttons() & 7), shiftOf(event->modifiers()), event->position());
}

} // namespace orvane
