#include "shell/HelpKey.h"

#include "platform/forms/DefaultInstance.h"
#include "shell/mdiMain.h"

namespace orvane
{

void answerHelpKey(int keyCode)
{
    if (keyCode != KeyF1) return;
    auto &frame = Default<mdiMain>();
    frame.mnuMain_Click(frame.mnuMain.Bands(QStringLiteral("mnuHelp")).Tools(QStringLiteral("miHContents")));
}

} // namespace orvane
