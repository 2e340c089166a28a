#include "Bars.h"

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

#include <algorithm>
#include <array>

namespace orvane::lint
{

std::span<const BarRow> bars()
{
    using namespace layouts;
    static const std::array all{BarRow{u"mdiMain", u"mnuMain", mdiMain_mnuMain},
                                BarRow{u"frmIGSteps", u"mnuNav", frmIGSteps_mnuNav},
                                BarRow{u"frmIGSteps", u"mnuLinks", frmIGSteps_mnuLinks},
                                BarRow{u"frmEMMain", u"mnuNav", frmEMMain_mnuNav},
                                BarRow{u"frmEMMain", u"mnuLinks", frmEMMain_mnuLinks},
                                BarRow{u"frmMPMain", u"mnuNav", frmMPMain_mnuNav},
                                BarRow{u"frmMPMain", u"mnuLinks", frmMPMain_mnuLinks},
                                BarRow{u"frmATMain", u"mnuLinks", frmATMain_mnuLinks},
                                BarRow{u"frmRCMain", u"mnuNav", frmRCMain_mnuNav},
                                BarRow{u"frmRCMain", u"mnuLinks", frmRCMain_mnuLinks},
                                BarRow{u"frmPrint", u"mnuPrintPreview", frmPrint_mnuPrintPreview}};
    return all;
}

const BarRow *findBar(const QString &window, const QString &bar)
{
    const auto found = std::ranges::find_if(
        bars(), [&](const BarRow &row) { return window == text(row.window) && bar == text(row.bar); });
    return found == bars().end() ? nullptr : &*found;
}

const BandRow *findBand(BarTable bands, const QString &name)
{
    const auto found = std::ranges::find_if(bands, [&](const BandRow &band) { return name == text(band.name); });
    return found == bands.end() ? nullptr : &*found;
}

const ToolRow *findTool(BarTable bands, const QString &band, const QString &tool)
{
    const BandRow *holder = findBand(bands, band);
    if (!holder) return nullptr;
    const auto found = std::ranges::find_if(holder->tools, [&](const ToolRow &row) { return tool == text(row.name); });
    return found == holder->tools.end() ? nullptr : &*found;
}

int reportedTag(const ToolRow &tool)
{
    constexpr int FirstOfFourDigits = 1000;
    return tool.toolTag < FirstOfFourDigits ? tool.toolTag : tool.toolTag % FirstOfFourDigits;
}

QString text(std::u16string_view view)
{
    return QStringView(view).toString();
}

} // namespace orvane::lint
