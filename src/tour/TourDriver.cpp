#include "tour/TourDriver.h"

#include "command_center/frmCommandCentre.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Wiring.h"
#include "platform/system/Number.h"
#include "shell/frmProperties.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"
#include "tour/MoveVerbs.h"
#include "tour/TourScript.h"

#include <map>

namespace orvane
{

namespace
{
MDIChild &activeWindow()
{
    MDIChild *window = Default<mdiMain>().ActiveForm();
    if (!window) throw RunTimeError(ObjectNotSet, QStringLiteral("No window is active in the frame."));
    return *window;
}

bool moduleIsActive()
{
    return isModuleWindow(activeWindowName());
}

void openWindow(const TourScript &script, Way way)
{
    using Opener = void (*)(const QString &, const QString &);
    static const std::map<std::u16string_view, Opener> openers{
        {u"IG", OpenGuide}, {u"EM", OpenManual}, {u"MP", OpenProcedures}, {u"AT", OpenTools}, {u"RC", OpenRecords}};
    if (const ModuleRow *module = moduleNamed(script.field(2), way))
        openers.at(module->code)(script.field(3), script.field(4));
}

void pressRibbon(const TourScript &script, Way)
{
    Default<frmCommandCentre>().SSRibbon1(toInteger(script.lastCharacter())).setValue(true);
}

void pressMenu(const TourScript &script, Way)
{
    auto &frame = Default<mdiMain>();
    Tool &tool = barOf(frame, QStringLiteral("mnuMain")).Bands(script.field(2)).Tools(script.field(3));
    frame.names().call(QStringLiteral("mnuMain_Click"), {&tool});
}

void pressPage(const TourScript &script, Way)
{
    if (moduleIsActive()) pressInActiveWindow(QStringLiteral("mnuNav"), script.field(2), script.field(3));
}

void pressLink(const TourScript &script, Way)
{
    if (moduleIsActive()) pressAndLayOut(QStringLiteral("mnuLinks"), script.field(2), script.field(3));
}

void pressPreview(const TourScript &script, Way)
{
    if (activeWindowName() == QStringLiteral("frmPrint"))
        pressAndLayOut(QStringLiteral("mnuPrintPreview"), script.field(2), script.field(3));
}

void releaseMouse(const TourScript &, Way)
{
    CallArguments arguments;
    arguments.button = 1;
    arguments.x = 660;
    arguments.y = 135;
    activeWindow().names().call(QStringLiteral("rtfData_MouseUp"), arguments);
}

void closeTips(const TourScript &, Way)
{
    activeWindow().names().call(QStringLiteral("cmdTipsClose_Click"));
}

void confirmDetails(const TourScript &, Way)
{
    Default<frmProperties>().cmdOK_Click();
}

void run(const TourScript &script, Way way)
{
    using Act = void (*)(const TourScript &, Way);
    static const std::map<Verb, Act> acts{
        {Verb::OpenWindow, openWindow},     {Verb::PressRibbon, pressRibbon}, {Verb::PressMenu, pressMenu},
        {Verb::PressPage, pressPage},       {Verb::PressLink, pressLink},     {Verb::PressPreview, pressPreview},
        {Verb::ReleaseMouse, releaseMouse}, {Verb::CloseTips, closeTips},     {Verb::ConfirmDetails, confirmDetails}};
    if (const VerbRow *row = verbNamed(script.field(1), way)) acts.at(row->verb)(script, way);
}
} // namespace

QString activeWindowName()
{
    return activeWindow().Name();
}

void pressInActiveWindow(const QString &bar, const QString &band, const QString &tool)
{
    MDIChild &window = activeWindow();
    const FormPin pin(window);
    Tool &pressed = barOf(window, bar).Bands(band).Tools(tool);
    window.names().call(bar + QStringLiteral("_Click"), {&pressed});
}

void pressAndLayOut(const QString &bar, const QString &band, const QString &tool)
{
    MDIChild &window = activeWindow();
    const FormPin pin(window); // the tool may close it
    pressInActiveWindow(bar, band, tool);
    barOf(window, bar).RecalcLayout();
}

void moveForward(const TourScript &script)
{
    run(script, Way::Forward);
}

void moveBack(const TourScript &script)
{
    run(script, Way::Back);
}

} // namespace orvane
