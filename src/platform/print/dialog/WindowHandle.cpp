#include "platform/print/dialog/WindowHandle.h"

#include "platform/forms/Form.h"

#include <QApplication>
#include <QWidget>
#include <algorithm>

namespace orvane
{

quint32 hWnd(const QWidget &window)
{
    return static_cast<quint32>(window.winId());
}

quint32 hWnd(const Form &form)
{
    return hWnd(*form.shell().window());
}

QWidget *windowOfHandle(quint32 handle)
{
    const auto windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), [&](const QWidget *window) {
        return window->isVisible() && hWnd(*window) == handle;
    });
    return found == windows.end() ? nullptr : *found;
}

} // namespace orvane
