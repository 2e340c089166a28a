#include "platform/controls/Frame.h"

#include <QMouseEvent>

namespace orvane
{

Frame::Frame(Container &parent, const QString &name) : Control(parent, name, new QWidget)
{
    widget().installEventFilter(this);
}

bool Frame::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &widget() && event->type() == QEvent::MouseButtonRelease) {
        const auto &mouse = static_cast<QMouseEvent &>(*event);
        if (mouse.button() == Qt::LeftButton && widget().rect().contains(mouse.position().toPoint())) emit Click();
    }
    return Control::eventFilter(watched, event);
}

} // namespace orvane
