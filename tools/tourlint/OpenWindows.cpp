#include "OpenWindows.h"

#include "shell/ModulePrefixes.h"
#include "tour/MoveVerbs.h"

#include "Bars.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace orvane::lint
{

namespace
{
constexpr int MostPages = 100; // no document has as many

QString diagramName()
{
    return u"frmCommandCentre"_s;
}
QString previewName()
{
    return u"frmPrint"_s;
}

QString prefixOf(int digit)
{
    const std::array prefixes{prefix::Guide(), prefix::Manual(), prefix::Procedures(), prefix::Tools(),
                              prefix::Records()};
    return prefixes.at(static_cast<std::size_t>(digit - 1));
}

bool isGuideStep(int section)
{
    constexpr int LastIntroduction = 104;
    return section > LastIntroduction;
}

// What the guide's Load enables: views for a step only, and the first print tool for Step 17.
bool isDisabledInGuide(const QString &bar, const QString &tool, int section)
{
    constexpr int Step17 = 127;
    if (tool == u"prtComplete"_s) return true;
    if (tool == u"prtPartial"_s) return section != Step17;
    const bool isView = tool == u"Requirement"_s || tool == u"Procedure"_s || tool == u"Implementation"_s ||
                        (tool == u"Tips"_s && bar == u"mnuNav"_s);
    return isView && !isGuideStep(section);
}
} // namespace

OpenWindows::OpenWindows()
{
    m_windows.push_back({.name = diagramName(), .title = u"Command Center"_s, .tag = u"Command Center"_s});
}

bool OpenWindows::isOpen(const QString &tag) const
{
    return std::ranges::any_of(m_windows, [&](const OpenWindow &window) { return window.tag == tag; });
}

bool OpenWindows::isDisabled(const QString &bar, const ToolRow &tool) const
{
    const QString name = text(tool.name);
    if (!tool.enabled) return true;
    if (active().name == u"frmIGSteps"_s) return isDisabledInGuide(bar, name, active().section);
    if (name == u"Save"_s) return true; // until something is typed
    return active().name == previewName() && name == u"Prev"_s && active().page == 1;
}

bool OpenWindows::bringForward(const QString &tag)
{
    const auto found = std::ranges::find_if(m_windows, [&](const OpenWindow &window) { return window.tag == tag; });
    if (found == m_windows.end()) return false;
    std::rotate(found, found + 1, m_windows.end());
    return true;
}

void OpenWindows::open(int digit, const QString &title, const QString &section)
{
    const QString tag = prefixOf(digit) + title;
    if (bringForward(tag)) return;
    const ModuleRow &module = moveModules()[static_cast<std::size_t>(digit - 1)];
    m_windows.push_back({.name = text(module.window), .title = title, .tag = tag, .section = section.toInt()});
}

// A number that opens nothing brings forward the window that the tool is named after.
void OpenWindows::openFromTool(int number, const QString &name, const QString &caption)
{
    const QString section = QString::number(number);
    const int digit = section.front().digitValue();
    if (digit >= 1 && digit <= 5) return open(digit, caption, section);
    const auto found = std::ranges::find_if(m_windows, [&](const OpenWindow &window) {
        return window.title == name || window.title == caption || window.tag == name;
    });
    if (found != m_windows.end()) bringForward(QString(found->tag));
}

void OpenWindows::pressMenu(const ToolRow &tool)
{
    const QString name = text(tool.name);
    if (name == u"properties"_s)
        m_detailsOpen = true;
    else if (name == u"exit"_s)
        m_ended = true;
    else if (name != u"miHAbout"_s)
        openFromTool(tool.toolTag, name, text(tool.caption));
}

void OpenWindows::pressWindowMenu(const QString &tag)
{
    bringForward(tag);
}

void OpenWindows::pressLink(const QString &band, const ToolRow &tool)
{
    if (tool.name == u"Close")
        closeActive();
    else if (band == u"subPrint"_s)
        showPreview();
    else if (band.endsWith(u"Link"_s))
        openFromTool(reportedTag(tool), text(tool.name), text(tool.caption));
    else if (active().name == u"frmRCMain"_s)
        hidePreview(); // every tool of a record closes it first
}

void OpenWindows::pressPreview(const ToolRow &tool)
{
    if (tool.name == u"close") hidePreview();
    if (tool.name == u"Next") m_windows.back().page = std::min(MostPages, active().page + 1);
    if (tool.name == u"Prev") m_windows.back().page = std::max(1, active().page - 1);
}

void OpenWindows::showPreview()
{
    hidePreview();
    m_windows.push_back({.name = previewName(), .title = u"Print Preview"_s, .tag = u"Print Preview"_s});
}

void OpenWindows::hidePreview()
{
    std::erase_if(m_windows, [](const OpenWindow &window) { return window.name == previewName(); });
}

// The diagram comes forward under a window that closes.
void OpenWindows::closeActive()
{
    if (active().name == u"frmRCMain"_s) hidePreview();
    const QString closing = active().tag;
    bringForward(u"Command Center"_s);
    std::erase_if(m_windows, [&](const OpenWindow &window) { return window.tag == closing; });
}

// The dialog's OK prints the page of a guide or manual that is active.
void OpenWindows::confirmDetails()
{
    m_detailsOpen = false;
    if (active().name == u"frmIGSteps"_s || active().name == u"frmEMMain"_s) showPreview();
}

} // namespace orvane::lint
