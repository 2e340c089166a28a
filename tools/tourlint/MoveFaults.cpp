#include "MoveFaults.h"

#include "command_center/DiagramTables.h"
#include "platform/system/Number.h"
#include "shell/ModulePrefixes.h"
#include "tour/modDemo.h"

#include "Bars.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace orvane::lint
{

namespace
{
using Fault = std::optional<QString>;

Fault openFault(const TourScript &move, Way way)
{
    const QString code = move.field(2);
    if (!moduleNamed(code, Way::Forward)) return u"there is no module \"%1\""_s.arg(code);
    if (!moduleNamed(code, way)) return u"Back opens no %1"_s.arg(code);
    if (!isNumber(move.field(4))) return u"the section \"%1\" is no number"_s.arg(move.field(4));
    return std::nullopt;
}

Fault ribbonFault(const TourScript &move)
{
    const auto isIt = [&](const diagram::TabRow &tab) { return QString::number(tab.index) == move.lastCharacter(); };
    if (std::ranges::any_of(diagram::tabs(), isIt)) return std::nullopt;
    return u"the Command Center has no tab \"%1\""_s.arg(move.lastCharacter());
}

// The tools of the Window menu come with the windows, so only their form is known.
bool canNameWindow(const QString &tool)
{
    const QStringList prefixes{prefix::Guide(), prefix::Manual(), prefix::Procedures(), prefix::Tools(),
                               prefix::Records()};
    return tool == u"Command Center"_s || tool == u"Print Preview"_s ||
           std::ranges::any_of(prefixes, [&](const QString &prefix) { return tool.startsWith(prefix); });
}

// A tool of any of the bars of that name will do here: which window is active shows only along the way.
Fault toolFault(const TourScript &move, const QString &bar)
{
    const QString band = move.field(2);
    const QString tool = move.field(3);
    if (band == u"mnuWindow"_s && bar == u"mnuMain"_s && canNameWindow(tool)) return std::nullopt;
    bool hasBand = false;
    for (const BarRow &row : bars()) {
        if (text(row.bar) != bar) continue;
        if (findTool(row.bands, band, tool)) return std::nullopt;
        hasBand |= findBand(row.bands, band) != nullptr;
    }
    if (!hasBand) return u"no %1 has a band \"%2\""_s.arg(bar, band);
    return u"no band \"%1\" of a %2 has a tool \"%3\""_s.arg(band, bar, tool);
}

Fault fieldsFault(const TourScript &move, Verb verb, Way way)
{
    switch (verb) {
    case Verb::OpenWindow:
        return openFault(move, way);
    case Verb::PressRibbon:
        return ribbonFault(move);
    case Verb::PressMenu:
        return toolFault(move, u"mnuMain"_s);
    case Verb::PressPage:
        return toolFault(move, u"mnuNav"_s);
    case Verb::PressLink:
        return toolFault(move, u"mnuLinks"_s);
    case Verb::PressPreview:
        return toolFault(move, u"mnuPrintPreview"_s);
    default:
        return std::nullopt;
    }
}

Fault stepFault(const QString &tag, const ScriptFile &script)
{
    if (!isNumber(tag)) return u"\"%1\" is no tag, which is a number"_s.arg(tag);
    const double number = toNumber(tag);
    if (number == 0) return u"tag 0 is no step and is never shown"_s;
    if (number == NoticeTag) return u"tag 900 brings up the notice and is no step"_s;
    if (number == EndWithDealerTag) return u"604 comes up in place of 603, and has no Quit by itself"_s;
    if (!script.step(tag)) return u"tag %1 has no section"_s.arg(tag);
    return std::nullopt;
}
} // namespace

Fault verbFault(const TourScript &move, Way way)
{
    if (!move.has(1)) return u"the verb is missing"_s;
    const QString name = move.field(1);
    const VerbRow *row = verbNamed(name, Way::Forward);
    if (!row) return u"there is no verb \"%1\""_s.arg(name);
    if (!verbNamed(name, way)) return u"Back doesn't know the verb \"%1\""_s.arg(name);
    if (!move.has(1 + row->fields)) return u"a field is missing: \"%1\" has %2 behind it"_s.arg(name).arg(row->fields);
    return fieldsFault(move, row->verb, way);
}

void findMoveFaults(const ScriptFile &script, Findings &findings)
{
    for (const Step &step : script.steps)
        for (const Way way : {Way::Forward, Way::Back}) {
            const Value &value = step.script(way);
            if (!value.moves()) continue;
            const auto report = [&](const Fault &fault) {
                if (fault) findings.push_back({value.line, u"[%1] %2: %3"_s.arg(step.tag, Step::key(way), *fault)});
            };
            if (value.text.isEmpty()) {
                report(u"an empty script is none; write (none)"_s);
                continue;
            }
            const TourScript move(value.text);
            report(stepFault(move.field(0), script));
            report(verbFault(move, way));
        }
}

} // namespace orvane::lint
