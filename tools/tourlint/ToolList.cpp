#include "ToolList.h"

#include "Bars.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace orvane::lint
{

namespace
{
QString flag(bool on)
{
    return on ? u"1"_s : u"0"_s;
}

QStringList columns(const BarRow &bar, const BandRow &band, const ToolRow &tool)
{
    return {text(bar.window),
            text(bar.bar),
            text(band.name),
            text(tool.name),
            QString::number(tool.id),
            text(tool.caption),
            text(tool.tooltip),
            text(tool.description),
            text(tool.category),
            QString::number(tool.toolTag),
            text(tool.flyout),
            flag(tool.enabled),
            flag(tool.checked),
            flag(tool.groupStart),
            QString::number(static_cast<int>(tool.kind)),
            QString::number(tool.width)};
}
} // namespace

QString toolList()
{
    static const QStringList names{u"window"_s,  u"bar"_s,         u"band"_s,     u"tool"_s, u"id"_s,     u"caption"_s,
                                   u"tooltip"_s, u"description"_s, u"category"_s, u"tag"_s,  u"flyout"_s, u"enabled"_s,
                                   u"checked"_s, u"groupStart"_s,  u"kind"_s,     u"width"_s};
    QString list = names.join(u'\t') + u'\n';
    for (const BarRow &bar : bars())
        for (const BandRow &band : bar.bands)
            for (const ToolRow &tool : band.tools)
                list += columns(bar, band, tool).join(u'\t') + u'\n';
    return list;
}

} // namespace orvane::lint
