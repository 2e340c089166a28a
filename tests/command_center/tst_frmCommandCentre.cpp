// The diagram as a window, its tabs and its hover colours.
// A connection's context goes before what its handler holds: clazy:excludeall=lambda-in-connect
#include "command_center/DiagramData.h"
#include "command_center/DiagramUser.h"
#include "command_center/OrderLog.h"
#include "shell/ShellProbes.h"
#include "shell/modFunctions.h"
#include "support/ReportedTags.h"

#include <QClipboard>
#include <QMdiSubWindow>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
constexpr int Blue = 0xFF0000; // blue, green, red
constexpr int Black = 0;

// The Clicks of all tabs, in order, with what the panels were at that moment.
class TabClicks : public QObject
{
public:
    explicit TabClicks(const frmCommandCentre &diagram)
    {
        for (const auto &[index, tab] : diagram.SSRibbon1)
            connect(tab.get(), &SSRibbon::ValueClick, this, [this, &diagram, i = index](Boolean16 value) {
                clicks << u"%1 %2, panel %3"_s.arg(i).arg(value.value()).arg(panelOnShow(diagram));
            });
    }

    QStringList clicks;
};

Tool *windowTool()
{
    const ToolList &tools = Default<mdiMain>().mnuMain.Bands(u"mnuWindow"_s).Tools();
    return tools.contains(u"Command Center"_s) ? &tools.Item(u"Command Center"_s) : nullptr;
}

Tool &editTool(const QString &name)
{
    return Default<mdiMain>().mnuMain.Bands(u"mnuEdit"_s).Tools(name);
}

QString boldTabs(const frmCommandCentre &diagram)
{
    QString bold;
    for (const auto &[index, tab] : diagram.SSRibbon1)
        if (tab->FontBold()) bold += QString::number(index);
    return bold;
}

QString downTabs(const frmCommandCentre &diagram)
{
    QString down;
    for (const auto &[index, tab] : diagram.SSRibbon1)
        if (tab->Value()) down += QString::number(index);
    return down;
}
} // namespace

class tst_frmCommandCentre : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void loadShowsTheFirstPanelAndReportsBeforeAllElse();
    void loadWithTheConsoleHiddenReportsNothing();
    void loadAsksForAMaximisedWindow();

    void activateGoesInItsOrder();
    void activateMaximisesANormalWindow();
    void activateListsTheWindowOnce();
    void activateSetsTheFramesTitle();
    void activateBringsTheEditToolsUpToDate_data();
    void activateBringsTheEditToolsUpToDate();
    void activateBringsTheConsoleBack();
    void deactivateUnchecksTheWindowsTool();
    void theUserCannotCloseIt();
    void codeCanUnloadIt();

    void aTabSwapsThePanels_data();
    void aTabSwapsThePanels();
    void theTabThatRisesClicksFirst_data();
    void theTabThatRisesClicksFirst();
    void bothTabsReportTheirTags();
    void aTabReportsBeforeItsPanelChanges();
    void pressingTheTabThatIsDownDoesNothing_data();
    void pressingTheTabThatIsDownDoesNothing();
    void theMouseGivesATabNoFocus();
    void theKeyboardStaysOnTheTabThatItPressed();
    void aValueSetByCodePressesTheTab();
    void aTabPressedBehindAnotherWindowLeavesThatInFront();
    void aClickHandlerServesBothDirections();

    void theMouseColoursTheCaption_data();
    void theMouseColoursTheCaption();
    void theFocusSinkIsColouredToo();

private:
    frmCommandCentre &diagram() const { return m_system->diagram(); }
    frmDemo &console() const { return m_system->console(); }
    mdiMain &frame() const { return m_system->frame(); }
    void openGuide() const { OpenGuide(u"Using this Guide"_s, u"102"_s); }
    void pressTab(int index, Qt::Key key) const; // Key_unknown: with the mouse
    void moveMouse(const QWidget &widget) const;

    std::optional<RunningSystem> m_system;
};

void tst_frmCommandCentre::init()
{
    m_system.emplace();
}

void tst_frmCommandCentre::cleanup()
{
    m_system.reset();
}

void tst_frmCommandCentre::pressTab(int index, Qt::Key key) const
{
    SSRibbon &tab = diagram().SSRibbon1(index);
    if (key == Qt::Key_unknown) return m_system->click(tab);
    giveFocus(*m_system, tab);
    QTest::keyClick(&tab.widget(), key);
}

// Through the window system, so that enter and leave come as they do for a user.
void tst_frmCommandCentre::moveMouse(const QWidget &widget) const
{
    QWindow *window = frame().shell().windowHandle();
    QTest::mouseMove(window, widget.mapTo(&frame().shell(), widget.rect().center()));
    QCoreApplication::processEvents();
}

void tst_frmCommandCentre::loadShowsTheFirstPanelAndReportsBeforeAllElse()
{
    console().setVisible(true);
    QStringList atTheReport;
    const QObject context;
    connect(&console().rtf, &RichTextBox::Change, &context, [&] {
        atTheReport << console().Tag() << boldTabs(diagram()) << QString::number(diagram().WindowState())
                    << QString::number(diagram().pnlDiag(5).Width());
    });
    diagram();
    QCOMPARE(atTheReport, (QStringList{u"101"_s, u""_s, u"0"_s, u"0"_s}));
    QCOMPARE(boldTabs(diagram()), u"1"_s);
    QCOMPARE(panelOnShow(diagram()), 1);
    QCOMPARE(diagram().pnlDiag(5).Width(), 6975.0);
    QVERIFY(!diagram().Visible());
}

void tst_frmCommandCentre::loadWithTheConsoleHiddenReportsNothing()
{
    diagram();
    QCOMPARE(console().Tag(), u"0"_s);
    QCOMPARE(console().Header.Text(), u""_s);
}

void tst_frmCommandCentre::loadAsksForAMaximisedWindow()
{
    QCOMPARE(diagram().WindowState(), int(Maximized));
    m_system->start();
    QCOMPARE(diagram().WindowState(), int(Maximized));
    QVERIFY(diagram().subWindow().isMaximized());
}

void tst_frmCommandCentre::activateGoesInItsOrder()
{
    m_system->start();
    giveFocus(*m_system, diagram().cmdImp(0)); // the area gives the focus back to it before Activate
    openGuide();
    m_system->active()->setWindowState(Normal);
    RemoveWindowTool(diagram().Caption());
    editTool(u"miCut"_s).setEnabled(true);
    console().setVisible(false);
    OrderLog log;
    log.lookAt(frame().mnuMain, &ActiveBar::Changed);
    log.lookAt(frame().shell(), &QWidget::windowTitleChanged);
    log.lookAt(*qApp, &QApplication::focusChanged);
    log.watch(u"maximised"_s, [&] { return diagram().WindowState() == Maximized; });
    log.watch(u"listed"_s, [] { return windowTool() != nullptr; });
    log.watch(u"checked"_s, [] { return windowTool() && windowTool()->Checked(); });
    log.watch(u"title"_s, [&] { return frame().Caption() == u"orvane"; });
    log.watch(u"Edit tools"_s, [] { return !editTool(u"miCut"_s).Enabled(); });
    log.watch(u"focus"_s, [&] { return m_system->active() == &diagram() && focusRests(diagram()); });
    log.watch(u"console"_s, [&] { return console().Visible(); });
    diagram().SetFocus();
    QCOMPARE(log.order(), (QStringList{u"maximised"_s, u"listed"_s, u"checked"_s, u"title"_s, u"Edit tools"_s,
                                       u"focus"_s, u"console"_s}));
}

void tst_frmCommandCentre::activateMaximisesANormalWindow()
{
    m_system->start();
    openGuide();
    m_system->active()->setWindowState(Normal);
    QCOMPARE(diagram().WindowState(), int(Normal));
    diagram().SetFocus();
    QCOMPARE(diagram().WindowState(), int(Maximized));
}

void tst_frmCommandCentre::activateListsTheWindowOnce()
{
    m_system->start();
    QVERIFY(windowTool());
    QCOMPARE(windowTool()->Caption(), u"&1 Command Center"_s);
    QCOMPARE(windowTool()->Description(), u"Command Center"_s);
    QCOMPARE(windowTool()->TagText(), diagram().Tag());
    QVERIFY(windowTool()->Checked());
    openGuide();
    diagram().SetFocus();
    QCOMPARE(frame().mnuMain.Bands(u"mnuWindow"_s).Tools().Count(), 2);
}

void tst_frmCommandCentre::activateSetsTheFramesTitle()
{
    m_system->showSplash();
    QCOMPARE(frame().Caption(), u"ORVANE"_s);
    m_system->leaveIntro();
    QCOMPARE(frame().Caption(), u"orvane"_s);
    openGuide();
    QCOMPARE(frame().Caption(), u"orvane (Implementation Guide)"_s);
    diagram().SetFocus();
    QCOMPARE(frame().Caption(), u"orvane"_s);
}

void tst_frmCommandCentre::activateBringsTheEditToolsUpToDate_data()
{
    QTest::addColumn<QString>("clipboard");
    QTest::newRow("an empty clipboard") << u""_s;
    QTest::newRow("a text on it") << u"words"_s;
}

void tst_frmCommandCentre::activateBringsTheEditToolsUpToDate()
{
    QFETCH(QString, clipboard);
    m_system->start();
    openGuide();
    for (const auto &name : {u"miCut"_s, u"miCopy"_s, u"miPaste"_s})
        editTool(name).setEnabled(name != u"miPaste" || clipboard.isEmpty());
    if (!clipboard.isEmpty()) QApplication::clipboard()->setText(clipboard);
    diagram().SetFocus();
    QVERIFY(!editTool(u"miCut"_s).Enabled());
    QVERIFY(!editTool(u"miCopy"_s).Enabled());
    QCOMPARE(editTool(u"miPaste"_s).Enabled(), !clipboard.isEmpty());
}

void tst_frmCommandCentre::activateBringsTheConsoleBack()
{
    m_system->start();
    openGuide();
    console().setVisible(false);
    diagram().SetFocus();
    QVERIFY(console().Visible());
}

// The window that comes up does nothing of its own.
void tst_frmCommandCentre::deactivateUnchecksTheWindowsTool()
{
    m_system->start();
    QVERIFY(windowTool()->Checked());
    auto &other = *new ProbeChild([] {});
    other.Show();
    QCOMPARE(m_system->active(), &other);
    QVERIFY(windowTool());
    QVERIFY(!windowTool()->Checked());
    QCOMPARE(frame().Caption(), u"orvane"_s);
}

void tst_frmCommandCentre::theUserCannotCloseIt()
{
    m_system->start();
    QVERIFY(!diagram().subWindow().close());
    QVERIFY(diagram().Loaded());
    QVERIFY(diagram().Visible());
    QCOMPARE(m_system->active(), &diagram());
    QVERIFY(!diagram().Unload(ByUser));
}

void tst_frmCommandCentre::codeCanUnloadIt()
{
    m_system->start();
    QVERIFY(diagram().Unload(ByCode));
    QCOMPARE(countWindows(u"frmCommandCentre"_s), 0);
}

void tst_frmCommandCentre::aTabSwapsThePanels_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<Qt::Key>("key");
    for (int tab = 2; tab <= 5; ++tab) {
        QTest::addRow("%d by mouse", tab) << tab << Qt::Key_unknown;
        QTest::addRow("%d by Space", tab) << tab << Qt::Key_Space;
        QTest::addRow("%d by Enter", tab) << tab << Qt::Key_Return;
    }
}

void tst_frmCommandCentre::aTabSwapsThePanels()
{
    QFETCH(int, tab);
    QFETCH(Qt::Key, key);
    m_system->start();
    pressTab(tab, key);
    QCOMPARE(panelOnShow(diagram()), tab);
    QCOMPARE(downTabs(diagram()), QString::number(tab));
    QCOMPARE(boldTabs(diagram()), QString::number(tab));
    pressTab(1, key);
    QCOMPARE(panelOnShow(diagram()), 1);
    QCOMPARE(downTabs(diagram()), u"1"_s);
    QCOMPARE(boldTabs(diagram()), u"1"_s);
}

void tst_frmCommandCentre::theTabThatRisesClicksFirst_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("by mouse") << Qt::Key_unknown;
    QTest::newRow("by Space") << Qt::Key_Space;
    QTest::newRow("by Enter") << Qt::Key_Return;
}

// Between the two no panel is on show.
void tst_frmCommandCentre::theTabThatRisesClicksFirst()
{
    QFETCH(Qt::Key, key);
    m_system->start();
    const TabClicks log(diagram());
    pressTab(3, key);
    QCOMPARE(log.clicks, (QStringList{u"1 0, panel 0"_s, u"3 -1, panel 3"_s}));
}

void tst_frmCommandCentre::bothTabsReportTheirTags()
{
    m_system->start();
    m_system->writeScript({u"102"_s, u"109"_s, u"300"_s, u"400"_s, u"500"_s});
    ReportedTags reported(console());
    for (const int tab : {2, 3, 4, 5, 1})
        m_system->click(diagram().SSRibbon1(tab));
    QCOMPARE(reported.tags(), (QStringList{u"102"_s, u"109"_s, u"109"_s, u"300"_s, u"300"_s, u"400"_s, u"400"_s,
                                           u"500"_s, u"500"_s, u"102"_s}));
}

void tst_frmCommandCentre::aTabReportsBeforeItsPanelChanges()
{
    m_system->start();
    const StepLog log(console(),
                      [this] { return u", panel %1, bold %2"_s.arg(panelOnShow(diagram())).arg(boldTabs(diagram())); });
    m_system->click(diagram().SSRibbon1(3));
    QCOMPARE(log.steps(), (QStringList{u"102, panel 1, bold 1"_s, u"300, panel 0, bold "_s}));
}

void tst_frmCommandCentre::pressingTheTabThatIsDownDoesNothing_data()
{
    theTabThatRisesClicksFirst_data();
}

void tst_frmCommandCentre::pressingTheTabThatIsDownDoesNothing()
{
    QFETCH(Qt::Key, key);
    m_system->start();
    pressTab(4, key);
    const TabClicks log(diagram());
    ReportedTags reported(console());
    pressTab(4, key);
    QCOMPARE(log.clicks, QStringList());
    QCOMPARE(reported.tags(), QStringList());
    QCOMPARE(panelOnShow(diagram()), 4);
    QCOMPARE(downTabs(diagram()), u"4"_s);
}

void tst_frmCommandCentre::theMouseGivesATabNoFocus()
{
    m_system->start();
    QVERIFY(focusRests(diagram()));
    pressTab(3, Qt::Key_unknown);
    QCOMPARE(panelOnShow(diagram()), 3);
    QVERIFY(focusRests(diagram()));
    giveFocus(*m_system, buttonOf(diagram(), u"cmdPrc(1)"_s));
    pressTab(4, Qt::Key_unknown);
    QVERIFY(focusRests(diagram())); // also where it was on the panel that is gone
}

// So that Tab goes on from there to the buttons of the panel.
void tst_frmCommandCentre::theKeyboardStaysOnTheTabThatItPressed()
{
    m_system->start();
    pressTab(5, Qt::Key_Space);
    QCOMPARE(diagram().ActiveControl(), &diagram().SSRibbon1(5));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(diagram().ActiveControl(), &diagram().cmdRec(0));
}

void tst_frmCommandCentre::aValueSetByCodePressesTheTab()
{
    m_system->start();
    const TabClicks log(diagram());
    diagram().SSRibbon1(5).setValue(true);
    QCOMPARE(log.clicks, (QStringList{u"1 0, panel 0"_s, u"5 -1, panel 5"_s}));
    QCOMPARE(console().Tag(), u"500"_s);
}

void tst_frmCommandCentre::aTabPressedBehindAnotherWindowLeavesThatInFront()
{
    m_system->start();
    m_system->click(diagram().cmdImp(1));
    const MDIChild *guide = m_system->active();
    diagram().SSRibbon1(3).setValue(true);
    QCOMPARE(panelOnShow(diagram()), 3);
    QVERIFY(guide != &diagram());
    QCOMPARE(m_system->active(), guide);
}

void tst_frmCommandCentre::aClickHandlerServesBothDirections()
{
    m_system->start();
    diagram().SSRibbon1_Click(4, True);
    QVERIFY(diagram().pnlDiag(4).Visible());
    QVERIFY(diagram().SSRibbon1(4).FontBold());
    QCOMPARE(console().Tag(), u"400"_s);
    diagram().SSRibbon1_Click(4, False);
    QVERIFY(!diagram().pnlDiag(4).Visible());
    QVERIFY(!diagram().SSRibbon1(4).FontBold());
    QVERIFY(diagram().pnlDiag(1).Visible()); // the handler swaps nothing by itself
}

void tst_frmCommandCentre::theMouseColoursTheCaption_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("panel");
    for (int tab = 1; tab <= 5; ++tab)
        QTest::addRow("SSRibbon1(%d)", tab) << u"SSRibbon1(%1)"_s.arg(tab) << 1;
    for (const TabledButton &row : tabledButtons())
        QTest::newRow(qPrintable(row.name)) << row.name << row.panel;
}

void tst_frmCommandCentre::theMouseColoursTheCaption()
{
    QFETCH(QString, name);
    QFETCH(int, panel);
    m_system->start();
    showPanel(*m_system, panel);
    const SSCommand &button = buttonOf(diagram(), name);
    moveMouse(diagram().pnlHeader.widget());
    QCOMPARE(button.ForeColor(), Black);
    moveMouse(button.widget());
    QCOMPARE(button.ForeColor(), Blue);
    moveMouse(diagram().pnlHeader.widget());
    QCOMPARE(button.ForeColor(), Black);
}

// No mouse gets there.
void tst_frmCommandCentre::theFocusSinkIsColouredToo()
{
    m_system->start();
    const SSCommand &sink = diagram().cmdCommand(0);
    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QCoreApplication::sendEvent(&sink.widget(), &enter);
    QCOMPARE(sink.ForeColor(), Blue);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&sink.widget(), &leave);
    QCOMPARE(sink.ForeColor(), Black);
}

QTEST_MAIN(tst_frmCommandCentre)
#include "tst_frmCommandCentre.moc"
