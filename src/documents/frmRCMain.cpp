#include "documents/frmRCMain.h"

#include "shell/ModulePrefixes.h"

namespace orvane
{

frmRCMain::frmRCMain() : PendingWindow(QStringLiteral("frmRCMain"), prefix::Records(), QStringLiteral("RC"), ForReading)
{
}

} // namespace orvane
