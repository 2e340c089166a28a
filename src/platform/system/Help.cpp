#include "platform/system/Help.h"

#include "platform/system/RunTimeError.h"

namespace orvane
{

void WinHelp(const QString &helpFile, int)
{
    throw RunTimeError(FileNotFound, QStringLiteral("The help file \"%1\" can't be opened.").arg(helpFile));
}

} // namespace orvane
