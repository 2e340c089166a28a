// The running system with one record open in it, and what a user does there.
#pragma once

#include "documents/frmRCMain.h"
#include "printing/frmPrint.h"
#include "shell/modFunctions.h"
#include "support/ReportedTags.h"
#include "support/RunningSystem.h"
#include "support/UserOnBars.h"

#include <QTest>

namespace orvane::test
{

class RecordWindow
{
public:
    explicit RecordWindow(const QString &section = QStringLiteral("511"),
                          const QString &title = QStringLiteral("Emergency Plan"))
    {
        system.start();
        system.frame().SetFocus();
        if (!QTest::qWaitForWindowActive(&system.frame().shell())) qFatal("the frame doesn't become active");
        OpenRecords(title, section);
        window = &dynamic_cast<frmRCMain &>(*system.active());
        tags = std::make_unique<ReportedTags>(system.console());
    }

    void press(const QString &tool) const { pressButton(window->mnuLinks, tool); }
    bool choosePrint(const QString &tool) const
    {
        return chooseFromFlyout(window->mnuLinks, QStringLiteral("Print"), {tool});
    }

    // Pixels inside, with the bars.
    void resizeInside(const QSize &size) const
    {
        window->setWindowState(Normal);
        QTRY_COMPARE(window->WindowState(), int(Normal));
        const QSize frame = window->shell().size() - window->surface().size();
        window->shell().setMinimumSize(1, 1);
        window->shell().resize(size + frame);
        QTRY_COMPARE(window->surface().size(), size);
    }

    // The same without the bars: what Form_Resize is told.
    void resizeClient(const QSize &size) const
    {
        const int bars = toPixels(window->mnuLinks.Height() + window->mnuNav.Height());
        resizeInside(size + QSize(0, bars));
    }

    RunningSystem system;
    frmRCMain *window = nullptr;
    std::unique_ptr<ReportedTags> tags; // since the window is open
};

} // namespace orvane::test
