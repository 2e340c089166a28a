#include "documents/ModuleWindow.h"

#include "shell/modFunctions.h"

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

void close(MDIChild &window)
{
    ShowDiagram();
    window.Unload();
}

} // namespace orvane::module
