#include "documents/ModuleWindow.h"

#include "shell/modFunctions.h"

#include <set>

namespace orvane::module
{

void activate(MDIChild &window, const QString &moduleCode)
{
    AddWindowTool(window.Tag(), window.Tag(), window.Name());
    CheckWindowTool(window.Tag(), True, moduleCode);
}

void deactivate(MDIChild &window)
{
    CheckWindowTool(window.Tag(), False, QString());
}

bool isPagingTool(const QString &name)
{
    static const std::set<QString> paging{QStringLiteral("Next"), QStringLiteral("Prev"), QStringLiteral("First"),
                                          QStringLiteral("Last")};
    return paging.contains(name);
}

void close(MDIChild &window)
{
    ShowDiagram();
    window.Unload();
}

} // namespace orvane::module
