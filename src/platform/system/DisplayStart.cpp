#include "platform/system/DisplayStart.h"

#include <QByteArray>
#include <QtGlobal>

#include <cstdlib>

namespace orvane
{

namespace
{
QtMessageHandler usualHandler = nullptr;

// No crash of the program's.
void endWithFailure(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    usualHandler(type, context, message);
    if (type == QtFatalMsg) std::_Exit(EXIT_FAILURE);
}
} // namespace

void prepareForDisplay()
{
    usualHandler = qInstallMessageHandler(endWithFailure);
    // A Wayland desktop lets no program place its windows, or keep one above the others.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "xcb;wayland");
}

} // namespace orvane
