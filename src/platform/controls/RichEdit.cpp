#include "platform/controls/RichEdit.h"

#include <QMouseEvent>
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

QVariant RichEdit::loadResource(int, const QUrl &)
{
    return {};
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
