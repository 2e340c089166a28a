// The console's buttons that walk the live system.

#include "platform/forms/DefaultInstance.h"
#include "printing/frmPrint.h"
#include "shell/SharedState.h"
#include "tour/TourDriver.h"
#include "tour/TourScript.h"
#include "tour/frmDemo.h"
#include "tour/modDemo.h"

namespace orvane
{

namespace
{
void endMutedPreview()
{
    const bool muted = Shared().TourStepsMuted == True;
    const bool preview = activeWindowName() == QStringLiteral("frmPrint");
    if (muted && preview) Default<frmPrint>().Unload();
    Shared().TourStepsMuted = False;
}

void walk(const CommandButton &button, void (*move)(const TourScript &))
{
    endMutedPreview();
    const TourScript script(button.Tag());
    if (!script.moves()) return;
    move(script);
    // Last, so that the script's step wins over what the pressed tools reported.
    ShowTourStep(script.field(0));
}
} // namespace

void frmDemo::cmdGoNext_Click()
{
    walk(cmdGoNext, moveForward);
}

void frmDemo::cmdGoBack_Click()
{
    walk(cmdGoBack, moveBack);
}

void frmDemo::cmdPrint_Click()
{
    Shared().TourStepsMuted = True;
    for (const auto &name : {QStringLiteral("frmIGSteps"), QStringLiteral("frmEMMain"), QStringLiteral("frmMPMain"),
                             QStringLiteral("frmATMain")})
        if (activeWindowName() == name)
            pressInActiveWindow(QStringLiteral("mnuLinks"), QStringLiteral("subPrint"), QStringLiteral("prtPartial"));
    if (activeWindowName() == QStringLiteral("frmRCMain"))
        pressInActiveWindow(QStringLiteral("mnuLinks"), QStringLiteral("subPrint"), QStringLiteral("prtRecordFilled"));
}

void frmDemo::NextClick(const QString &script)
{
    if (script.isEmpty()) return;
    const TourScript fields(script);
    if (fields.field(0) != QStringLiteral("ml")) return;
    const QString active = activeWindowName();
    if (active != QStringLiteral("frmIGSteps") && active != QStringLiteral("frmEMMain")) return;
    pressAndLayOut(QStringLiteral("mnuLinks"), fields.field(1), fields.field(2));
}

} // namespace orvane
