// Cut, Copy and Paste as far as the active control and the clipboard allow them.

#include "platform/controls/bars/ActiveBar.h"
#include "platform/controls/text/RichTextBox.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Screen.h"
#include "platform/system/Guard.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"

namespace orvane
{

void UpdateEditTools()
{
    Band &edit = Default<mdiMain>().mnuMain.Bands(QStringLiteral("mnuEdit"));
    const auto enable = [&edit](const QString &name, bool enabled) {
        resumeNext([&] { edit.Tools(name).setEnabled(enabled); });
    };
    // Both kinds of rich-text control are one class here.
    const auto *text = dynamic_cast<RichTextBox *>(screenActiveControl());
    const bool selected = text && text->SelLength() > 0;
    enable(QStringLiteral("miCut"), selected);
    enable(QStringLiteral("miCopy"), selected);
    enable(QStringLiteral("miPaste"), clipboardHolds(PlainTextFormat) || clipboardHolds(RichTextFormat));
}

} // namespace orvane
