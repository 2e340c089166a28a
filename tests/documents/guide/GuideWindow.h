// The running system with one window of the guide open in it, and what a user does there.
#pragma once

#include "documents/frmIGSteps.h"
#include "shell/modFunctions.h"
#include "support/ReportedTags.h"
#include "support/RunningSystem.h"
#include "support/UserOnBars.h"

#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QWindow>

namespace orvane::test
{

class GuideWindow
{
public:
    explicit GuideWindow(const QString &section = QStringLiteral("127"))
    {
        system.start();
        OpenGuide(QStringLiteral("Page %1").arg(section), section);
        guide = static_cast<frmIGSteps *>(windowByTag(QStringLiteral("[Implementation Guide] - Page %1").arg(section)));
        if (!guide) qFatal("the guide didn't open");
        // As on a desktop, where the console comes up without taking the keys.
        system.frame().SetFocus();
        if (!QTest::qWaitForWindowActive(&system.frame().shell())) qFatal("the frame doesn't become active");
        tags = std::make_unique<ReportedTags>(system.console());
    }

    QTextEdit &page() const { return static_cast<QTextEdit &>(guide->rtfData.widget()); }
    QTextEdit &advice() const { return static_cast<QTextEdit &>(guide->rtfTips.widget()); }

    void press(const QString &tool) const { pressButton(guide->mnuNav, tool); }

    // The notice comes up, and goes after its two seconds.
    void pressForNotice(const QString &tool)
    {
        system.whileModal([&] { press(tool); },
                          [&] {
                              noticeShown = countWindows(QStringLiteral("frmError")) == 1;
                              system.host.advance(2000);
                          });
    }

    // A click on the page where the caret goes before this character.
    void clickCharacter(int position, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTextCursor cursor(page().document());
        cursor.setPosition(position);
        clickPage(page().cursorRect(cursor).center(), button);
    }

    // On its way through the window, as a click on a desktop goes.
    void clickPage(const QPoint &place, Qt::MouseButton button = Qt::LeftButton) const
    {
        QVERIFY2(page().viewport()->rect().contains(place), "the place is not on show");
        QWidget *window = page().window();
        QTest::mouseClick(window->windowHandle(), button, Qt::NoModifier, page().viewport()->mapTo(window, place));
    }

    // Of an action on the Implementation page, from 1.
    int startOfAction(int number) const { return page().document()->findBlockByNumber(number - 1).position(); }

    bool paneShown() const
    {
        return guide->rtfTips.Visible() && guide->ssPanel.Visible() && guide->cmdTipsClose.Visible();
    }
    bool paneHidden() const
    {
        return !guide->rtfTips.Visible() && !guide->ssPanel.Visible() && !guide->cmdTipsClose.Visible();
    }
    QStringList checkedTools() const
    {
        QStringList names;
        for (const auto &tool : guide->mnuNav.Bands(0).Tools())
            if (tool->Checked()) names << tool->Name();
        return names;
    }

    RunningSystem system;
    frmIGSteps *guide = nullptr;
    std::unique_ptr<ReportedTags> tags; // since the window is open
    bool noticeShown = false;
};

} // namespace orvane::test
