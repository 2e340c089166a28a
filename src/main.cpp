// Starts the chain of windows: the splash brings up everything else.

#include "platform/controls/Palette.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Wiring.h"
#include "shell/frmSplash.h"

#include <QApplication>
#include <QMetaObject>
#include <cstdlib>

namespace
{
QtMessageHandler usualHandler = nullptr;

// What the toolkit can't go on without, such as a display, is no crash of the program's.
void endWithFailure(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    usualHandler(type, context, message);
    if (type == QtFatalMsg) std::_Exit(EXIT_FAILURE);
}

// A Wayland desktop lets no program place its windows, or keep one above the others.
void preferX11()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "xcb;wayland");
}
} // namespace

int main(int argc, char *argv[])
{
    usualHandler = qInstallMessageHandler(endWithFailure);
    preferX11();
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
