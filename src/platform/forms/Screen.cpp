#include "platform/forms/Screen.h"

#include "platform/controls/Control.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

namespace orvane
{

Control *screenActiveControl()
{
    return Control::of(QApplication::focusWidget());
}

bool clipboardHolds(int format)
{
    const QMimeData *data = QApplication::clipboard()->mimeData();
    if (!data) return false;
    if (format == PlainTextFormat) return data->hasText();
    return format == RichTextFormat &&
           (data->hasFormat(QStringLiteral("text/rtf")) || data->hasFormat(QStringLiteral("application/rtf")));
}

} // namespace orvane
