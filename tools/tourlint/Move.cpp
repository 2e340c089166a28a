#include "Move.h"

#include "Bars.h"

using namespace Qt::Literals::StringLiterals;

namespace orvane::lint
{

namespace
{
using Fault = std::optional<MoveFault>;

Fault fatal(const QString &message)
{
    return MoveFault{message + u", which ends the program"_s, true};
}

Fault harmless(const QString &message)
{
    return MoveFault{message};
}

QString activeText(const OpenWindows &windows)
{
    const OpenWindow &active = windows.active();
    return isModuleWindow(active.name) ? u"%1 \"%2\""_s.arg(active.name, active.title) : active.name;
}

Fault disabledFault(const OpenWindows &windows, const QString &bar, const ToolRow &tool)
{
    if (!windows.isDisabled(bar, tool)) return std::nullopt;
    return harmless(u"the tool \"%1\" is disabled here"_s.arg(text(tool.name)));
}

Fault pressMenu(const TourScript &script, OpenWindows &windows)
{
    const QString band = script.field(2);
    const QString name = script.field(3);
    const ToolRow *tool = findTool(findBar(u"mdiMain"_s, u"mnuMain"_s)->bands, band, name);
    if (!tool && !windows.isOpen(name)) return fatal(u"the window \"%1\" is not open here"_s.arg(name));
    if (!tool) {
        windows.pressWindowMenu(name);
        return std::nullopt;
    }
    Fault fault;
    if (!tool->enabled) fault = harmless(u"the tool \"%1\" is disabled here"_s.arg(name));
    windows.pressMenu(*tool);
    return fault;
}

// The tool of the active window, or why there is none.
Fault findActive(const QString &bar, const TourScript &script, const OpenWindows &windows, const ToolRow *&tool)
{
    const QString window = windows.active().name;
    const BarRow *row = findBar(window, bar);
    const bool answers = row && !(window == u"frmRCMain"_s && bar == u"mnuNav"_s); // a record has no handler for it
    if (!answers) return fatal(u"%1 is active here and answers to no %2"_s.arg(activeText(windows), bar));
    tool = findTool(row->bands, script.field(2), script.field(3));
    if (tool) return std::nullopt;
    return fatal(u"%1 is active here and has no tool \"%2\" in a band \"%3\""_s.arg(activeText(windows),
                                                                                    script.field(3), script.field(2)));
}

Fault pressModule(const QString &bar, const TourScript &script, OpenWindows &windows)
{
    if (!isModuleWindow(windows.active().name))
        return harmless(u"%1 is active here and not a document, so nothing is pressed"_s.arg(activeText(windows)));
    const ToolRow *tool = nullptr;
    if (Fault fault = findActive(bar, script, windows, tool)) return fault;
    Fault fault = disabledFault(windows, bar, *tool);
    if (bar == u"mnuLinks"_s) windows.pressLink(script.field(2), *tool);
    return fault;
}

Fault pressPreview(const TourScript &script, OpenWindows &windows)
{
    if (windows.active().name != u"frmPrint"_s)
        return harmless(
            u"%1 is active here and not the print preview, so nothing is pressed"_s.arg(activeText(windows)));
    const ToolRow *tool = nullptr;
    const QString bar = u"mnuPrintPreview"_s;
    if (Fault fault = findActive(bar, script, windows, tool)) return fault;
    Fault fault = disabledFault(windows, bar, *tool);
    windows.pressPreview(*tool);
    return fault;
}

Fault guideFault(const OpenWindows &windows)
{
    if (windows.active().name == u"frmIGSteps"_s) return std::nullopt;
    return fatal(u"%1 is active here and has no handler for this verb"_s.arg(activeText(windows)));
}

Fault confirmDetails(OpenWindows &windows)
{
    Fault fault;
    if (!windows.detailsOpen()) fault = harmless(u"frmProperties is not open here"_s);
    windows.confirmDetails();
    return fault;
}
} // namespace

Fault move(const TourScript &script, Way way, OpenWindows &windows)
{
    switch (verbNamed(script.field(1), way)->verb) {
    case Verb::OpenWindow: {
        const auto module = moduleNamed(script.field(2), way) - moveModules().data();
        windows.open(static_cast<int>(module) + 1, script.field(3), script.field(4));
        return std::nullopt;
    }
    case Verb::PressMenu:
        return pressMenu(script, windows);
    case Verb::PressPage:
        return pressModule(u"mnuNav"_s, script, windows);
    case Verb::PressLink:
        return pressModule(u"mnuLinks"_s, script, windows);
    case Verb::PressPreview:
        return pressPreview(script, windows);
    case Verb::ReleaseMouse:
    case Verb::CloseTips:
        return guideFault(windows);
    case Verb::ConfirmDetails:
        return confirmDetails(windows);
    default:
        return std::nullopt; // a tab of the diagram, which is always there
    }
}

} // namespace orvane::lint
