#include "tour/TourDriver.h"

#include "command_center/frmCommandCentre.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Wiring.h"
#include "platform/system/Number.h"
#include "shell/frmProperties.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"
#include "tour/TourScript.h"

#include <map>
#include <set>

namespace orvane
{

namespace
{
using Verb = void (*)(const TourScript &);
using Verbs = std::map<QString, Verb>;
using Opener = void (*)(const QString &, const QString &);
using Openers = std::map<QString, Opener>;

MDIChild &activeWindow()
{
    MDIChild *window = Default<mdiMain>().ActiveForm();
    if (!window) throw RunTimeError(ObjectNotSet, QStringLiteral("No window is active in the frame."));
    return *window;
}

bool moduleIsActive()
{
    static const std::set<QString> modules{QStringLiteral("frmIGSteps"), QStringLiteral("frmEMMain"),
                                           QStringLiteral("frmMPMain"), QStringLiteral("frmATMain"),
                                           QStringLiteral("frmRCMain")};
    return modules.contains(activeWindowName());
}

void openWith(const Openers &openers, const TourScript &script)
{
    const auto opener = openers.find(script.field(2));
    if (opener != openers.end()) opener->second(script.field(3), script.field(4));
}

void openForward(const TourScript &script)
{
    static const Openers openers{{QStringLiteral("IG"), OpenGuide},
                                 {QStringLiteral("EM"), OpenManual},
                                 {QStringLiteral("MP"), OpenProcedures},
                                 {QStringLiteral("AT"), OpenTools},
                                 {QStringLiteral("RC"), OpenRecords}};
    openWith(openers, script);
}

void openBack(const TourScript &script)
{
    static const Openers openers{
        {QStringLiteral("IG"), OpenGuide}, {QStringLiteral("EM"), OpenManual}, {QStringLiteral("RC"), OpenRecords}};
    openWith(openers, script);
}

void pressRibbon(const TourScript &script)
{
    Default<frmCommandCentre>().SSRibbon1(toInteger(script.lastCharacter())).setValue(true);
}

void pressMenu(const TourScript &script)
{
    auto &frame = Default<mdiMain>();
    Tool &tool = barOf(frame, QStringLiteral("mnuMain")).Bands(script.field(2)).Tools(script.field(3));
    frame.names().call(QStringLiteral("mnuMain_Click"), {&tool});
}

void pressPage(const TourScript &script)
{
    if (moduleIsActive()) pressInActiveWindow(QStringLiteral("mnuNav"), script.field(2), script.field(3));
}

void pressLink(const TourScript &script)
{
    if (moduleIsActive()) pressAndLayOut(QStringLiteral("mnuLinks"), script.field(2), script.field(3));
}

void pressPreview(const TourScript &script)
{
    if (activeWindowName() == QStringLiteral("frmPrint"))
        pressAndLayOut(QStringLiteral("mnuPrintPreview"), script.field(2), script.field(3));
}

void releaseMouse(const TourScript &)
{
    CallArguments arguments;
    arguments.button = 1;
    arguments.x = 660;
    arguments.y = 135;
    activeWindow().names().call(QStringLiteral("rtfData_MouseUp"), arguments);
}

void closeTips(const TourScript &)
{
    activeWindow().names().call(QStringLiteral("cmdTipsClose_Click"));
}

void confirmDetails(const TourScript &)
{
    Default<frmProperties>().cmdOK_Click();
}

void run(const Verbs &verbs, const TourScript &script)
{
    const auto verb = verbs.find(script.field(1));
    if (verb != verbs.end()) verb->second(script);
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
    static const Verbs verbs{{QStringLiteral("cf"), openForward},   {QStringLiteral("cc"), pressRibbon},
                             {QStringLiteral("mm"), pressMenu},     {QStringLiteral("mn"), pressPage},
                             {QStringLiteral("ml"), pressLink},     {QStringLiteral("pp"), pressPreview},
                             {QStringLiteral("rc"), releaseMouse},  {QStringLiteral("cb"), closeTips},
                             {QStringLiteral("po"), confirmDetails}};
    run(verbs, script);
}

void moveBack(const TourScript &script)
{
    static const Verbs verbs{{QStringLiteral("cf"), openBack},     {QStringLiteral("cc"), pressRibbon},
                             {QStringLiteral("mn"), pressPage},    {QStringLiteral("ml"), pressLink},
                             {QStringLiteral("rc"), releaseMouse}, {QStringLiteral("cb"), closeTips},
                             {QStringLiteral("pp"), pressPreview}};
    run(verbs, script);
}

} // namespace orvane
