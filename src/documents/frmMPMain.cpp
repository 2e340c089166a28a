#include "documents/frmMPMain.h"

#include "shell/ModulePrefixes.h"

namespace orvane
{

frmMPMain::frmMPMain()
    : PendingWindow(QStringLiteral("frmMPMain"), prefix::Procedures(), QStringLiteral("MP"), ForEditing)
{
}

} // namespace orvane
