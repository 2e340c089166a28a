#include "documents/frmEMMain.h"

#include "shell/ModulePrefixes.h"

namespace orvane
{

frmEMMain::frmEMMain() : PendingWindow(QStringLiteral("frmEMMain"), prefix::Manual(), QStringLiteral("EM"), ForEditing)
{
}

} // namespace orvane
