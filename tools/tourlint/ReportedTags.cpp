#include "ReportedTags.h"

#include "command_center/DiagramTables.h"
#include "tour/LiteralTags.h"
#include "tour/modDemo.h"

#include "Bars.h"

using namespace Qt::Literals::StringLiterals;

namespace orvane::lint
{

std::map<int, QString> reportedTags()
{
    std::map<int, QString> tags;
    for (const LiteralTag &literal : LiteralTags)
        tags.emplace(literal.tag, QString::fromLatin1(literal.place));
    for (const BarRow &bar : bars())
        for (const BandRow &band : bar.bands)
            for (const ToolRow &tool : band.tools)
                tags.emplace(reportedTag(tool),
                             u"%1 %2 %3 %4"_s.arg(text(bar.window), text(bar.bar), text(band.name), text(tool.name)));
    for (const diagram::TabRow &tab : diagram::tabs())
        tags.emplace(text(tab.tag).toInt(), u"frmCommandCentre, the tab \"%1\""_s.arg(text(tab.caption)));
    for (const diagram::ButtonRow &button : diagram::buttons())
        tags.emplace(text(button.tag).toInt(), u"frmCommandCentre, the button \"%1\""_s.arg(text(button.caption)));
    constexpr int OnlyLeadsToFlyouts = 6;
    for (const int noStep : {0, OnlyLeadsToFlyouts, NoticeTag})
        tags.erase(noStep);
    return tags;
}

} // namespace orvane::lint
