// The program's own start, up to the intro's first paint.

#include "FirstPaint.h"
#include "platform/controls/Palette.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/system/Guard.h"
#include "shell/frmSplash.h"

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    orvane::applyLooks(application);
    const FirstPaint end(QStringLiteral("frmInfo"));
    QMetaObject::invokeMethod(
        &application, [] { orvane::guarded([] { orvane::Default<orvane::frmSplash>().Show(); }); },
        Qt::QueuedConnection);
    return QApplication::exec();
}
