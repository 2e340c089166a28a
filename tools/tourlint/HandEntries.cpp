#include "HandEntries.h"

#include "command_center/DiagramTables.h"
#include "tour/MoveVerbs.h"
#include "tour/modDemo.h"

#include "Bars.h"

#include <map>

using namespace Qt::Literals::StringLiterals;

namespace orvane::lint
{

namespace
{
constexpr int HelpStep = 601;
constexpr int AdviceStep = 106;
constexpr int FirstStepSection = 105;

struct PrintSteps {
    int printed; // 0: the tool's own
    int closed;
};

const std::map<QString, PrintSteps> &printSteps()
{
    static const std::map<QString, PrintSteps> steps{{u"frmIGSteps"_s, {103, 127}},
                                                     {u"frmEMMain"_s, {0, 206}},
                                                     {u"frmMPMain"_s, {310, 311}},
                                                     {u"frmATMain"_s, {402, 406}}};
    return steps;
}

QString placeOf(const BarRow &bar, const BandRow &band, const ToolRow &tool)
{
    return u"%1 %2 %3 %4"_s.arg(text(bar.window), text(bar.bar), text(band.name), text(tool.name));
}

// A record goes by its tools' names.
int recordStep(const ToolRow &tool, int section)
{
    constexpr int EnvironmentRecord = 519;
    if (tool.name == u"vwOption") return 502;
    if (tool.name == u"Open") return 503;
    if (tool.name == u"Close") return section == EnvironmentRecord ? 600 : 504;
    return 0;
}

int pressedStep(const OpenWindow &window, const BandRow &band, const ToolRow &tool)
{
    if (window.name == u"frmRCMain"_s) return recordStep(tool, window.section);
    const int printed = band.name == u"subPrint" ? printSteps().at(window.name).printed : 0;
    return printed ? printed : reportedTag(tool);
}

class Entries
{
public:
    void addMenu();
    void addTabs();
    std::vector<HandEntry> taken() && { return std::move(m_entries); }

private:
    void add(int tag, const QString &place, const OpenWindows &windows);
    void addDocument(const OpenWindows &windows);
    void addTool(const BarRow &bar, const BandRow &band, const ToolRow &tool, const OpenWindows &windows);

    std::vector<HandEntry> m_entries;
};

void Entries::add(int tag, const QString &place, const OpenWindows &windows)
{
    if (tag != 0 && tag != NoticeTag) m_entries.push_back({tag, place, windows});
}

void Entries::addTool(const BarRow &bar, const BandRow &band, const ToolRow &tool, const OpenWindows &windows)
{
    if (windows.isDisabled(text(bar.bar), tool)) return;
    const OpenWindow window = windows.active();
    OpenWindows after = windows;
    if (bar.bar == u"mnuLinks") after.pressLink(text(band.name), tool);
    add(pressedStep(window, band, tool), placeOf(bar, band, tool), after);
    if (after.active().name != u"frmPrint"_s || window.name == u"frmRCMain"_s) return;
    after.pressPreview(*findTool(findBar(u"frmPrint"_s, u"mnuPrintPreview"_s)->bands, u"bndPreview"_s, u"close"_s));
    add(printSteps().at(window.name).closed, u"the preview of "_s + window.name, after);
}

void Entries::addDocument(const OpenWindows &windows)
{
    const OpenWindow &window = windows.active();
    for (const BarRow &bar : bars())
        for (const BandRow &band : bar.bands)
            for (const ToolRow &tool : band.tools)
                if (text(bar.window) == window.name) addTool(bar, band, tool, windows);
    if (window.name == u"frmIGSteps"_s && window.section >= FirstStepSection)
        add(AdviceStep, u"the page of frmIGSteps"_s, windows);
}

void Entries::addMenu()
{
    const BarRow &menu = *findBar(u"mdiMain"_s, u"mnuMain"_s);
    for (const BandRow &band : menu.bands)
        for (const ToolRow &tool : band.tools) {
            OpenWindows windows;
            windows.pressMenu(tool);
            if (windows.ended()) continue;
            add(tool.name == u"miHContents" ? HelpStep : tool.toolTag, placeOf(menu, band, tool), windows);
            if (isModuleWindow(windows.active().name)) addDocument(windows);
        }
}

void Entries::addTabs()
{
    for (const diagram::TabRow &tab : diagram::tabs())
        add(text(tab.tag).toInt(), u"the tab \"%1\""_s.arg(text(tab.caption)), {});
}
} // namespace

std::vector<HandEntry> handEntries()
{
    Entries entries;
    entries.addTabs();
    entries.addMenu();
    return std::move(entries).taken();
}

} // namespace orvane::lint
