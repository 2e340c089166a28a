// Windows by the 32-bit handles that system calls take.
#pragma once

#include <QtGlobal>

class QWidget;

namespace orvane
{

class Form;

quint32 hWnd(const QWidget &window);
// Of the window itself, or of the frame that it stands in.
quint32 hWnd(const Form &form);

// The window on show with this handle, or nullptr.
QWidget *windowOfHandle(quint32 handle);

} // namespace orvane
