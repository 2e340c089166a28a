// Starts the chain of windows: the splash brings up everything else.

#include "platform/controls/Palette.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Wiring.h"
#include "platform/system/DisplayStart.h"
#include "shell/frmSplash.h"

#include <QApplication>
#include <QMetaObject>

int main(int argc, char *argv[])
{
    orvane::prepareForDisplay();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("orvane"));
    QApplication::setDesktopFileName(QStringLiteral("orvane")); // gives the windows the name and icon of the entry
    QApplication::setQuitOnLastWindowClosed(false);             // the console's Quit ends the program
    orvane::applyLooks(application);
    QMetaObject::invokeMethod(
        &application, [] { orvane::guarded([] { orvane::Default<orvane::frmSplash>().Show(); }); },
        Qt::QueuedConnection);
    return QApplication::exec();
}
