#include "documents/PendingWindow.h"

#include "documents/ModuleWindow.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Wiring.h"
#include "shell/SharedState.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"

namespace orvane
{

PendingWindow::PendingWindow(const QString &name, const QString &tagPrefix, const QString &moduleCode, Pages pages)
    : MDIChild(Default<mdiMain>(), name), gradient(*this, QStringLiteral("zelGradient"), zelGradient::Strip),
      pnlHeading(gradient, QStringLiteral("pnlHeading")), lblPending(*this, QStringLiteral("lblPending")),
      cmdClose(*this, QStringLiteral("cmdClose"), QStringLiteral("Close")), m_tagPrefix(tagPrefix),
      m_moduleCode(moduleCode), m_pages(pages)
{
    setDesignSize(8250, 4950);
    setBackColor(0xFFFFFF);
    gradient.Move(0, 0, 8250, 375);
    pnlHeading.Move(0, 0, 8250, 375);
    pnlHeading.setFont(QStringLiteral("Arial"), 9.75, true);
    lblPending.Move(240, 720, 7800, 600);
    lblPending.setFont(QStringLiteral("Arial"), 12, false);
    cmdClose.Move(240, 1560, 1200, 390);
    wire(cmdClose, &CommandButton::Click, *this, [](PendingWindow &self) { module::close(self); });
    answerName(*this, &PendingWindow::Form_Resize, QStringLiteral("Form_Resize"));
}

void PendingWindow::Form_Load()
{
    pnlHeading.setCaption(Shared().TitleText);
    lblPending.setCaption(QStringLiteral("The pages of \"%1\" come with a later edition.").arg(Shared().TitleText));
    setTag(m_tagPrefix + Shared().TitleText);
    setCaption(Shared().TitleText);
    if (m_pages == ForEditing) UpdateEditTools();
    setWindowState(Maximized);
    Form_Resize();
}

void PendingWindow::Form_Activate()
{
    module::activate(*this, m_moduleCode);
}

void PendingWindow::Form_Deactivate()
{
    module::deactivate(*this);
}

void PendingWindow::Form_Unload(bool &)
{
    Hide();
    RemoveWindowTool(Tag());
}

void PendingWindow::Form_Resize()
{
    resumeNext([this] { gradient.setWidth(ScaleWidth()); });
    resumeNext([this] { pnlHeading.setWidth(ScaleWidth()); });
    resumeNext([this] { lblPending.setWidth(ScaleWidth() - 2 * lblPending.Left()); });
}

} // namespace orvane
