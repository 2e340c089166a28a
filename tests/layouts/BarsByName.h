// The bars by name and their rows by name, as the tests of this folder look at them.
#pragma once

#include "layouts/frmATMain_mnuLinks.h"
#include "layouts/frmEMMain_mnuLinks.h"
#include "layouts/frmEMMain_mnuNav.h"
#include "layouts/frmIGSteps_mnuLinks.h"
#include "layouts/frmIGSteps_mnuNav.h"
#include "layouts/frmMPMain_mnuLinks.h"
#include "layouts/frmMPMain_mnuNav.h"
#include "layouts/frmPrint_mnuPrintPreview.h"
#include "layouts/frmRCMain_mnuLinks.h"
#include "layouts/frmRCMain_mnuNav.h"
#include "layouts/mdiMain_mnuMain.h"

#include <QMap>
#include <QString>
#include <QStringView>
#include <algorithm>

namespace orvane::layouts
{

inline const QMap<QString, BarTable> &bars()
{
    static const QMap<QString, BarTable> all{
        {QStringLiteral(u"mdiMain_mnuMain"), mdiMain_mnuMain},
        {QStringLiteral(u"frmIGSteps_mnuNav"), frmIGSteps_mnuNav},
        {QStringLiteral(u"frmIGSteps_mnuLinks"), frmIGSteps_mnuLinks},
        {QStringLiteral(u"frmEMMain_mnuNav"), frmEMMain_mnuNav},
        {QStringLiteral(u"frmEMMain_mnuLinks"), frmEMMain_mnuLinks},
        {QStringLiteral(u"frmMPMain_mnuNav"), frmMPMain_mnuNav},
        {QStringLiteral(u"frmMPMain_mnuLinks"), frmMPMain_mnuLinks},
        {QStringLiteral(u"frmATMain_mnuLinks"), frmATMain_mnuLinks},
        {QStringLiteral(u"frmRCMain_mnuLinks"), frmRCMain_mnuLinks},
        {QStringLiteral(u"frmRCMain_mnuNav"), frmRCMain_mnuNav},
        {QStringLiteral(u"frmPrint_mnuPrintPreview"), frmPrint_mnuPrintPreview},
    };
    return all;
}

inline QString text(std::u16string_view view)
{
    return QStringView(view).toString();
}

inline const BandRow *findBand(BarTable bar, const QString &name)
{
    const auto found = std::ranges::find(bar, name, [](const BandRow &band) { return text(band.name); });
    return found == bar.end() ? nullptr : &*found;
}

inline const ToolRow *findTool(const BandRow &band, const QString &name)
{
    const auto found = std::ranges::find(band.tools, name, [](const ToolRow &tool) { return text(tool.name); });
    return found == band.tools.end() ? nullptr : &*found;
}

template <typename Visit>
void forEachTool(BarTable bar, Visit visit)
{
    for (const BandRow &band : bar)
        for (const ToolRow &tool : band.tools)
            visit(band, tool);
}

} // namespace orvane::layouts
