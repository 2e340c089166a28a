#include "tour/MoveVerbs.h"

#include <algorithm>

namespace orvane
{

namespace
{
// clang-format off
constexpr VerbRow Verbs[] = {
    {u"cf", Verb::OpenWindow,     3, true},
    {u"cc", Verb::PressRibbon,    0, true},
    {u"mm", Verb::PressMenu,      2, false},
    {u"mn", Verb::PressPage,      2, true},
    {u"ml", Verb::PressLink,      2, true},
    {u"pp", Verb::PressPreview,   2, true},
    {u"rc", Verb::ReleaseMouse,   0, true},
    {u"cb", Verb::CloseTips,      0, true},
    {u"po", Verb::ConfirmDetails, 0, false},
};

constexpr ModuleRow Modules[] = {
    {u"IG", u"frmIGSteps", true},
    {u"EM", u"frmEMMain",  true},
    {u"MP", u"frmMPMain",  false},
    {u"AT", u"frmATMain",  false},
    {u"RC", u"frmRCMain",  true},
};
// clang-format on
} // namespace

std::span<const ModuleRow> moveModules()
{
    return Modules;
}

const VerbRow *verbNamed(const QString &name, Way way)
{
    const auto found = std::ranges::find_if(Verbs, [&](const VerbRow &row) { return name == QStringView(row.name); });
    return found != std::end(Verbs) && (way == Way::Forward || found->back) ? found : nullptr;
}

const ModuleRow *moduleNamed(const QString &code, Way way)
{
    const auto found =
        std::ranges::find_if(Modules, [&](const ModuleRow &row) { return code == QStringView(row.code); });
    return found != std::end(Modules) && (way == Way::Forward || found->back) ? found : nullptr;
}

bool isModuleWindow(const QString &name)
{
    return std::ranges::any_of(Modules, [&](const ModuleRow &row) { return name == QStringView(row.window); });
}

} // namespace orvane
