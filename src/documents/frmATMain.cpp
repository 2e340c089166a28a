#include "documents/frmATMain.h"

#include "shell/ModulePrefixes.h"

namespace orvane
{

frmATMain::frmATMain() : PendingWindow(QStringLiteral("frmATMain"), prefix::Tools(), QStringLiteral("AT"), ForReading)
{
}

} // namespace orvane
