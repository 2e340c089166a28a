// The frame's sizes and states, and how it refuses to close.
#include "shell/ShellProbes.h"
#include "shell/modFunctions.h"
#include "support/RunningSystem.h"
#include "tour/DealerText.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
// The frame's clean-up stands ready for a close that gets through; nothing gets through, so it is called by hand.
class Closing : public mdiMain
{
public:
    static void unload(mdiMain &frame)
    {
        bool cancel = false;
        (frame.*(&Closing::Form_Unload))(cancel);
    }
};

void resizePixels(Form &form, double width, double height)
{
    const QSize border = form.shell().frameGeometry().size() - form.shell().size();
    form.shell().resize(toPixels(width) - border.width(), toPixels(height) - border.height());
}
} // namespace

class tst_Frame : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void loadLaysTheMenuOutAndStartsTheCounter();
    void aSmallFrameSnapsBack();
    void aDraggedFrameSnapsBackToItsLimits_data();
    void aDraggedFrameSnapsBackToItsLimits();
    void theInsideIsKeptInWholeTwips_data();
    void theInsideIsKeptInWholeTwips();

    void theConsoleIsMinimisedAndRestoredWithTheFrame_data();
    void theConsoleIsMinimisedAndRestoredWithTheFrame();
    void aConsoleMinimisedByItselfIsRestoredByTheFramesResize();
    void aHiddenConsoleStaysHiddenThroughTheFramesStates();

    void noCloseIsEverGranted_data();
    void noCloseIsEverGranted();
    void theCloseBoxShowsTheEndOfTheTour();
    void theCloseBoxBringsUpAHiddenConsole();
    void theConsoleIsShownBeforeTheStepIsReported();
    void withDealerTextTheCloseBoxShowsTheDealersEnd();
    void aSecondCloseStaysAtTheEnd();
    void aConsoleThatTheUserClosedComesBackAtTheClose();
    void aMutedTourHearsNoEndAndTheFrameStays();
    void onlyQuitEndsTheProcess();
    void quitRunsNoOtherWindowsCleanUp();

    void theProgramsSignIsSharpInTheDesktopsList();
    void otherWindowsHandOverTheSignInTwoSizesOnly();

    void theUserCantCloseTheDiagram();
    void theDiagramGoesForAnyOtherReason_data();
    void theDiagramGoesForAnyOtherReason();

    void theCleanUpHidesTheFrameFirst();
    void theCleanUpUnloadsTheWindowsInTheOrderOfLoading();
    void theCleanUpLeavesNoOtherWindow();

    void f6GoesToTheConsoleAndBack();

private:
    mdiMain &frame() const { return m_system->frame(); }
    frmDemo &console() const { return m_system->console(); }

    std::optional<RunningSystem> m_system;
};

void tst_Frame::init()
{
    m_system.emplace();
}

void tst_Frame::cleanup()
{
    m_system.reset();
}

void tst_Frame::loadLaysTheMenuOutAndStartsTheCounter()
{
    mdiMain unloaded;
    const QSignalSpy layouts(&unloaded.mnuMain, &ActiveBar::Changed);
    QCOMPARE(Shared().ToolIdCounter, 0);
    unloaded.Load();
    QCOMPARE(layouts.count(), 1);
    QCOMPARE(Shared().ToolIdCounter, 35000);
}

void tst_Frame::aSmallFrameSnapsBack()
{
    m_system->start();
    frame().setWindowState(Normal);
    frame().setWidth(9000);
    frame().setHeight(5000);
    QTRY_COMPARE(frame().Width(), 9500.0);
    QTRY_COMPARE(frame().Height(), 5600.0);
}

void tst_Frame::aDraggedFrameSnapsBackToItsLimits_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<double>("widthAfter");
    QTest::addColumn<double>("heightAfter");
    QTest::newRow("both too small") << 9000.0 << 5000.0 << 9500.0 << 5600.0;
    QTest::newRow("too narrow") << 9000.0 << 6000.0 << 9500.0 << 6000.0;
    QTest::newRow("too low") << 10500.0 << 5000.0 << 10500.0 << 5600.0;
    QTest::newRow("a pixel too small") << 9480.0 << 5580.0 << 9500.0 << 5600.0;
    QTest::newRow("large enough") << 10500.0 << 6000.0 << 10500.0 << 6000.0;
}

void tst_Frame::aDraggedFrameSnapsBackToItsLimits()
{
    QFETCH(double, width);
    QFETCH(double, height);
    m_system->start();
    frame().setWindowState(Normal);
    resizePixels(frame(), width, height);
    QTEST(frame().Width(), "widthAfter");
    QTEST(frame().Height(), "heightAfter");
    QCOMPARE(Shared().FrameScaleWidth, static_cast<int>(frame().ScaleWidth()));
    QCOMPARE(Shared().FrameScaleHeight, static_cast<int>(frame().ScaleHeight()));
}

void tst_Frame::theInsideIsKeptInWholeTwips_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("normal") << int(Normal);
    QTest::newRow("minimised") << int(Minimized);
    QTest::newRow("maximised") << int(Maximized);
}

void tst_Frame::theInsideIsKeptInWholeTwips()
{
    QFETCH(int, state);
    m_system->start();
    frame().setWindowState(Normal);
    resizePixels(frame(), 10500, 7500);
    if (state == Normal) {
        frame().setWindowState(Maximized);
        QTRY_VERIFY(frame().ScaleWidth() > 10500);
    }
    Shared().FrameScaleWidth = 1;
    Shared().FrameScaleHeight = 1;
    frame().setWindowState(state);
    QTRY_COMPARE(Shared().FrameScaleWidth, static_cast<int>(frame().ScaleWidth()));
    QTRY_COMPARE(Shared().FrameScaleHeight, static_cast<int>(frame().ScaleHeight()));
}

void tst_Frame::theConsoleIsMinimisedAndRestoredWithTheFrame_data()
{
    QTest::addColumn<int>("restored");
    QTest::newRow("to normal") << int(Normal);
    QTest::newRow("to maximised") << int(Maximized);
}

void tst_Frame::theConsoleIsMinimisedAndRestoredWithTheFrame()
{
    QFETCH(int, restored);
    m_system->start();
    frame().setWindowState(Minimized);
    QTRY_COMPARE(console().WindowState(), int(Minimized));
    frame().setWindowState(restored);
    QTRY_COMPARE(console().WindowState(), int(Normal));
    QVERIFY(console().Visible());
}

void tst_Frame::aConsoleMinimisedByItselfIsRestoredByTheFramesResize()
{
    m_system->start();
    frame().setWindowState(Normal);
    console().setWindowState(Minimized);
    QCOMPARE(console().WindowState(), int(Minimized));
    resizePixels(frame(), 10500, 7500);
    QTRY_COMPARE(console().WindowState(), int(Normal));
}

void tst_Frame::aHiddenConsoleStaysHiddenThroughTheFramesStates()
{
    m_system->start();
    console().setVisible(false);
    frame().setWindowState(Minimized);
    QVERIFY(!console().Visible());
    frame().setWindowState(Normal);
    QVERIFY(!console().Visible());
}

void tst_Frame::noCloseIsEverGranted_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QByteArray>("dealerText");
    QTest::addColumn<QString>("step");
    for (int mode = 0; mode <= 5; ++mode) {
        QTest::addRow("mode %d", mode) << mode << QByteArray() << u"603"_s;
        QTest::addRow("mode %d with dealer text", mode) << mode << ScrambleDealerData(u"Dealer"_s) << u"604"_s;
    }
}

void tst_Frame::noCloseIsEverGranted()
{
    QFETCH(int, mode);
    QFETCH(QByteArray, dealerText);
    m_system->host.writeFile(u"DealerData.dat"_s, dealerText);
    m_system->start();
    QVERIFY(!frame().Unload(mode));
    QVERIFY(frame().Loaded());
    QVERIFY(frame().Visible());
    QTEST(console().Tag(), "step");
    QVERIFY(!m_system->host.exitCode());
}

void tst_Frame::theCloseBoxShowsTheEndOfTheTour()
{
    m_system->start();
    QVERIFY(!frame().shell().close());
    QVERIFY(frame().Visible());
    QCOMPARE(console().Header.Text(), u"Step 603"_s);
    QVERIFY(console().cmdQuit.Visible());
    QVERIFY(!console().cmdGoNext.Visible());
    QVERIFY(!console().cmdGoBack.Visible());
    QVERIFY(!console().txtInfo.Visible());
}

void tst_Frame::theCloseBoxBringsUpAHiddenConsole()
{
    m_system->start();
    console().setVisible(false);
    frame().shell().close();
    QVERIFY(console().Visible());
}

// A hidden console would have heard nothing of the step.
void tst_Frame::theConsoleIsShownBeforeTheStepIsReported()
{
    m_system->start();
    console().setVisible(false);
    frame().shell().close();
    QCOMPARE(console().Tag(), u"603"_s);
}

void tst_Frame::withDealerTextTheCloseBoxShowsTheDealersEnd()
{
    m_system->host.writeFile(u"DealerData.dat"_s, ScrambleDealerData(u"Your dealer"_s));
    m_system->start();
    frame().shell().close();
    QCOMPARE(console().Tag(), u"604"_s);
    QCOMPARE(console().Header.Text(), u"Step 604"_s);
    QVERIFY(console().txtInfo.Visible());
    QVERIFY(frame().Visible());
}

void tst_Frame::aSecondCloseStaysAtTheEnd()
{
    m_system->start();
    frame().shell().close();
    frame().shell().close();
    QVERIFY(frame().Visible());
    QCOMPARE(console().Tag(), u"603"_s);
    QVERIFY(console().cmdQuit.Visible());
}

void tst_Frame::aConsoleThatTheUserClosedComesBackAtTheClose()
{
    m_system->start();
    console().shell().close();
    QCOMPARE(countWindows(u"frmDemo"_s), 0);
    frame().shell().close();
    QCOMPARE(countWindows(u"frmDemo"_s), 1);
    QVERIFY(console().Visible());
    QCOMPARE(console().Tag(), u"603"_s);
}

void tst_Frame::aMutedTourHearsNoEndAndTheFrameStays()
{
    m_system->start();
    Shared().TourStepsMuted = True;
    frame().shell().close();
    QVERIFY(frame().Visible());
    QCOMPARE(console().Tag(), u"101"_s);
    QVERIFY(!console().cmdQuit.Visible());
}

void tst_Frame::onlyQuitEndsTheProcess()
{
    m_system->start();
    frame().shell().close();
    QVERIFY(!m_system->host.exitCode());
    m_system->host.expectEnd(0);
    m_system->click(console().cmdQuit);
    QCOMPARE(m_system->host.exitCode(), 0);
}

void tst_Frame::quitRunsNoOtherWindowsCleanUp()
{
    m_system->start();
    m_system->click(m_system->diagram().cmdImp(1));
    frame().shell().close();
    const QStringList before = loadedNames();
    m_system->host.expectEnd(0);
    m_system->click(console().cmdQuit);
    QStringList left = before;
    left.removeOne(u"frmDemo"_s);
    QCOMPARE(loadedNames(), left);
    QVERIFY(frame().Visible());
}

void tst_Frame::theProgramsSignIsSharpInTheDesktopsList()
{
    m_system->start();
    QCOMPARE(m_system->frame().shell().windowIcon().pixmap(256).width(), 256);
}

// A window manager is sent all of an icon's sizes while the start waits.
void tst_Frame::otherWindowsHandOverTheSignInTwoSizesOnly()
{
    const QList<QSize> sizes = m_system->console().shell().windowIcon().availableSizes();
    QCOMPARE(sizes, (QList<QSize>{{16, 16}, {32, 32}}));
}

void tst_Frame::theUserCantCloseTheDiagram()
{
    m_system->start();
    QVERIFY(!m_system->diagram().Unload(ByUser));
    m_system->diagram().shell().close();
    QCOMPARE(countWindows(u"frmCommandCentre"_s), 1);
    QVERIFY(m_system->diagram().Visible());
}

void tst_Frame::theDiagramGoesForAnyOtherReason_data()
{
    QTest::addColumn<int>("mode");
    for (int mode = 1; mode <= 5; ++mode)
        QTest::addRow("mode %d", mode) << mode;
}

void tst_Frame::theDiagramGoesForAnyOtherReason()
{
    QFETCH(int, mode);
    m_system->start();
    QVERIFY(m_system->diagram().Unload(mode));
    QCOMPARE(countWindows(u"frmCommandCentre"_s), 0);
}

void tst_Frame::theCleanUpHidesTheFrameFirst()
{
    m_system->start();
    auto &probe = *new ProbeWindow(u"probe"_s);
    probe.Load();
    bool frameWasVisible = true;
    probe.whileUnloading = [&] { frameWasVisible = frame().Visible(); };
    Closing::unload(frame());
    QVERIFY(!frameWasVisible);
}

void tst_Frame::theCleanUpUnloadsTheWindowsInTheOrderOfLoading()
{
    m_system->start();
    QStringList unloaded;
    for (const auto &name : {u"first"_s, u"second"_s, u"third"_s}) {
        auto &probe = *new ProbeWindow(name);
        probe.Load();
        probe.whileUnloading = [&unloaded, name] { unloaded << name; };
    }
    Closing::unload(frame());
    QCOMPARE(unloaded, (QStringList{u"first"_s, u"second"_s, u"third"_s}));
}

void tst_Frame::theCleanUpLeavesNoOtherWindow()
{
    m_system->start();
    m_system->click(m_system->diagram().cmdImp(1));
    Closing::unload(frame());
    QVERIFY(!loadedNames().contains(u"frmIGSteps"_s));
    QVERIFY(!loadedNames().contains(u"frmCommandCentre"_s));
    QVERIFY(!frame().Visible());
}

void tst_Frame::f6GoesToTheConsoleAndBack()
{
    m_system->start();
    frame().SetFocus();
    QTRY_COMPARE(QApplication::activeWindow(), &frame().shell());
    QTest::keyClick(&frame().shell(), Qt::Key_F6);
    QTRY_COMPARE(QApplication::activeWindow(), &console().shell());
    QTest::keyClick(&console().shell(), Qt::Key_F6);
    QTRY_COMPARE(QApplication::activeWindow(), &frame().shell());
}

QTEST_MAIN(tst_Frame)
#include "tst_Frame.moc"
