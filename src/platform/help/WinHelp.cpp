#include "platform/help/WinHelp.h"

#include "platform/help/HelpWindow.h"
#include "platform/print/TextPrinting.h"
#include "platform/system/RunTimeError.h"

#include <QPointer>

namespace orvane
{

namespace
{
// A window deletes itself some time after it is closed, and with it goes everything that it knew.
HelpWindow &windowOn(const QString &helpFile)
{
    static QPointer<HelpWindow> open;
    if (open && !open->isHidden() && open->helpFile() == helpFile) return *open;
    auto *window = new HelpWindow(helpFile, &printText);
    if (open) open->close();
    open = window;
    return *window;
}
} // namespace

void WinHelp(const QString &helpFile, int command)
{
    if (command != HelpContents && command != HelpPartialKey)
        throw RunTimeError(InvalidProcedureCall, QStringLiteral("The help has no command %1.").arg(command));
    HelpWindow &window = windowOn(helpFile);
    window.bringForward();
    if (command == HelpContents)
        window.showContents();
    else
        window.showSearch();
}

} // namespace orvane
