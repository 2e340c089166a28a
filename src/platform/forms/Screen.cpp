#include "platform/forms/Screen.h"

#include "platform/controls/Control.h"
#include "platform/controls/text/TakenText.h"

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
    if (format == PlainTextFormat) return holdsPlainText(*data);
    return format == RichTextFormat && holdsRichText(*data);
}

} // namespace orvane
