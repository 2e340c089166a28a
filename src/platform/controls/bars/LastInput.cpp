#include "platform/controls/bars/LastInput.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

namespace orvane
{

namespace
{
bool lastWasKey = false;
}

void LastInput::watch()
{
    static QPointer<LastInput> watcher;
    if (watcher) return;
    watcher = new LastInput(QCoreApplication::instance());
    QCoreApplication::instance()->installEventFilter(watcher);
}

bool LastInput::wasKey()
{
    return lastWasKey;
}

bool LastInput::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::Shortcut:
        lastWasKey = true;
        break;
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        lastWasKey = false;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace orvane
