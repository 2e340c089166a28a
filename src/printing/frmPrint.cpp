#include "printing/frmPrint.h"

#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Wiring.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"

namespace orvane
{

frmPrint::frmPrint()
    : MDIChild(Default<mdiMain>(), QStringLiteral("frmPrint")), lblPending(*this, QStringLiteral("lblPending")),
      cmdClose(*this, QStringLiteral("cmdClose"), QStringLiteral("Close"))
{
    setCaption(QStringLiteral("Print Preview"));
    setDesignSize(6615, 7455);
    setBackColor(0xFFFFFF);
    lblPending.Move(240, 240, 6000, 600);
    lblPending.setFont(QStringLiteral("Arial"), 12, false);
    cmdClose.Move(240, 1080, 1200, 390);
    wire(cmdClose, &CommandButton::Click, *this, [](frmPrint &self) { self.Unload(); });
    answerName(*this, &frmPrint::Form_Resize, QStringLiteral("Form_Resize"));
}

void frmPrint::PrintPreview(int, const QString &, int, int, const QString &number, const QString &heading)
{
    lblPending.setCaption(QStringLiteral("Printing \"%1 %2\" comes with a later edition.").arg(number, heading));
    Show();
}

void frmPrint::Form_Load()
{
    setWindowState(Maximized);
}

void frmPrint::Form_Activate()
{
    AddWindowTool(Caption(), QStringLiteral("&") + Caption(), Tag());
    CheckWindowTool(Caption(), True, QStringLiteral("PV"));
}

void frmPrint::Form_Deactivate()
{
    CheckWindowTool(Caption(), False, QString());
}

void frmPrint::Form_Unload(bool &)
{
    RemoveWindowTool(Caption());
}

void frmPrint::Form_Resize()
{
    resumeNext([this] { lblPending.setWidth(ScaleWidth() - 2 * lblPending.Left()); });
}

} // namespace orvane
