// Windows that are open already come forward, from the Window menu and from the diagram: the two ways differ.
#include "shell/ShellProbes.h"
#include "shell/modFunctions.h"
#include "support/RunningSystem.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
const QString GuideTag = u"[Implementation Guide] - Using this Guide"_s;
const QString ManualTag = u"[Environmental Manual] - Scope"_s;

Form &guide()
{
    return *windowByTag(GuideTag);
}

Form &manual()
{
    return *windowByTag(ManualTag);
}

void chooseInWindowMenu(const QString &name)
{
    ActiveBar &menu = Default<mdiMain>().mnuMain;
    menu.press(menu.Bands(u"mnuWindow"_s).Tools(name));
}
} // namespace

class tst_BringForward : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aToolFindsItsWindow_data();
    void aToolFindsItsWindow();
    void aTagIsNotComparedWithACaption();
    void theFirstOfTwoMatchesComesForward();
    void theWindowMenuMaximisesAMinimisedWindow_data();
    void theWindowMenuMaximisesAMinimisedWindow();
    void theDiagramRestoresAMinimisedWindowToNormal();
    void theWindowMenuLaysOutTheWindowItBringsForward();
    void theWindowMenuDoesNotLayOutTheDiagram();
    void theDiagramsReopeningLaysNothingOut();
    void aWindowTakesTheSizeOfTheMaximisedOne_data();
    void aWindowTakesTheSizeOfTheMaximisedOne();
    void aWindowKeepsItsSizeBehindANormalOne_data();
    void aWindowKeepsItsSizeBehindANormalOne();
    void choosingTheMaximisedWindowItselfEndsWithoutAWord();
    void reopeningTheMaximisedWindowGoesPastItsRefusal();
    void aWindowThatRefusesTheFocusIsLeftWithoutAWord();
    void aWindowThatRefusesTheFocusIsOpenedASecondTime();
    void noWindowOfThatTagIsReportedFalse();

private:
    void openGuide() const { m_system->click(m_system->diagram().cmdImp(1)); }

    std::optional<RunningSystem> m_system;
};

void tst_BringForward::init()
{
    m_system.emplace();
    m_system->start();
}

void tst_BringForward::cleanup()
{
    m_system.reset();
}

void tst_BringForward::aToolFindsItsWindow_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<int>("tag");
    for (const int tag : {0, 6, 900}) {
        QTest::addRow("caption by name, %d", tag) << u"Using this Guide"_s << u"x"_s << tag;
        QTest::addRow("caption by caption, %d", tag) << u"x"_s << u"Using this Guide"_s << tag;
        QTest::addRow("tag by name, %d", tag) << GuideTag << u"x"_s << tag;
    }
}

void tst_BringForward::aToolFindsItsWindow()
{
    QFETCH(QString, name);
    QFETCH(QString, caption);
    QFETCH(int, tag);
    openGuide();
    m_system->diagram().SetFocus();
    LooseTool loose(name, tag, caption);
    OpenFromTool(loose.tool);
    QCOMPARE(m_system->active(), &guide());
}

void tst_BringForward::aTagIsNotComparedWithACaption()
{
    openGuide();
    m_system->diagram().SetFocus();
    LooseTool loose(u"name"_s, 0, GuideTag);
    OpenFromTool(loose.tool);
    QCOMPARE(m_system->active(), &m_system->diagram());
}

void tst_BringForward::theFirstOfTwoMatchesComesForward()
{
    OpenProcedures(u"Emergency Plan"_s, u"311"_s);
    OpenRecords(u"Emergency Plan"_s, u"511"_s);
    LooseTool loose(u"Emergency Plan"_s);
    OpenFromTool(loose.tool);
    QCOMPARE(m_system->active()->Tag(), u"[Management Procedures] - Emergency Plan"_s);
}

void tst_BringForward::theWindowMenuMaximisesAMinimisedWindow_data()
{
    QTest::addColumn<int>("activeState");
    QTest::newRow("behind a maximised window") << int(Maximized);
    QTest::newRow("behind a normal one") << int(Normal);
}

void tst_BringForward::theWindowMenuMaximisesAMinimisedWindow()
{
    QFETCH(int, activeState);
    openGuide();
    OpenManual(u"Scope"_s, u"219"_s);
    manual().setWindowState(activeState);
    guide().setWindowState(Minimized);
    QCOMPARE(m_system->active(), &manual());
    chooseInWindowMenu(GuideTag);
    QCOMPARE(guide().WindowState(), int(Maximized));
    QCOMPARE(m_system->active(), &guide());
}

void tst_BringForward::theDiagramRestoresAMinimisedWindowToNormal()
{
    openGuide();
    guide().setWindowState(Minimized);
    m_system->diagram().SetFocus();
    openGuide();
    QCOMPARE(guide().WindowState(), int(Normal));
    QCOMPARE(m_system->active(), &guide());
    QCOMPARE(countWindows(u"frmIGSteps"_s), 1);
}

void tst_BringForward::theWindowMenuLaysOutTheWindowItBringsForward()
{
    openGuide();
    m_system->diagram().SetFocus();
    QList<const Form *> activeAtLayout;
    guide().names().add(u"Form_Resize"_s, [&](const CallArguments &) { activeAtLayout << m_system->active(); });
    chooseInWindowMenu(GuideTag);
    QCOMPARE(activeAtLayout, QList<const Form *>{&guide()});
}

void tst_BringForward::theWindowMenuDoesNotLayOutTheDiagram()
{
    openGuide();
    int layouts = 0;
    countCalls(m_system->diagram(), u"Form_Resize"_s, layouts);
    chooseInWindowMenu(u"Command Center"_s);
    QCOMPARE(m_system->active(), &m_system->diagram());
    QCOMPARE(layouts, 0);
}

void tst_BringForward::theDiagramsReopeningLaysNothingOut()
{
    openGuide();
    m_system->diagram().SetFocus();
    int layouts = 0;
    countCalls(guide(), u"Form_Resize"_s, layouts);
    openGuide();
    QCOMPARE(m_system->active(), &guide());
    QCOMPARE(layouts, 0);
}

void tst_BringForward::aWindowTakesTheSizeOfTheMaximisedOne_data()
{
    QTest::addColumn<bool>("fromMenu");
    QTest::newRow("from the Window menu") << true;
    QTest::newRow("opened again") << false;
}

void tst_BringForward::aWindowTakesTheSizeOfTheMaximisedOne()
{
    QFETCH(bool, fromMenu);
    openGuide();
    m_system->diagram().SetFocus();
    QCOMPARE(guide().WindowState(), int(Normal));
    const double width = m_system->diagram().Width();
    const double height = m_system->diagram().Height();
    QVERIFY(guide().Width() < width);
    if (fromMenu)
        chooseInWindowMenu(GuideTag);
    else
        openGuide();
    guide().setWindowState(Normal);
    QCOMPARE(guide().Width(), width);
    QCOMPARE(guide().Height(), height);
}

void tst_BringForward::aWindowKeepsItsSizeBehindANormalOne_data()
{
    aWindowTakesTheSizeOfTheMaximisedOne_data();
}

void tst_BringForward::aWindowKeepsItsSizeBehindANormalOne()
{
    QFETCH(bool, fromMenu);
    openGuide();
    OpenManual(u"Scope"_s, u"219"_s);
    manual().setWindowState(Normal);
    guide().setWidth(6000);
    guide().setHeight(4500);
    if (fromMenu)
        chooseInWindowMenu(GuideTag);
    else
        OpenGuide(u"Using this Guide"_s, u"102"_s);
    QCOMPARE(m_system->active(), &guide());
    QCOMPARE(guide().WindowState(), int(Normal));
    QCOMPARE(guide().Width(), 6000.0);
    QCOMPARE(guide().Height(), 4500.0);
}

// It can't be sized, so nothing after that is done: not even its layout.
void tst_BringForward::choosingTheMaximisedWindowItselfEndsWithoutAWord()
{
    openGuide();
    int layouts = 0;
    countCalls(guide(), u"Form_Resize"_s, layouts);
    chooseInWindowMenu(GuideTag);
    QCOMPARE(layouts, 0);
    QCOMPARE(m_system->active(), &guide());
    QCOMPARE(guide().WindowState(), int(Maximized));
    QVERIFY(m_system->host.messages().empty());
}

void tst_BringForward::reopeningTheMaximisedWindowGoesPastItsRefusal()
{
    openGuide();
    QVERIFY_THROWS_EXCEPTION(RunTimeError, guide().setWidth(6000));
    Shared().DiagramLayoutHeld = False;
    QVERIFY(ActivateOpenWindow(GuideTag) == True);
    QVERIFY(Shared().DiagramLayoutHeld == True);
    QCOMPARE(m_system->active(), &guide());
    QCOMPARE(guide().WindowState(), int(Maximized));
}

void tst_BringForward::aWindowThatRefusesTheFocusIsLeftWithoutAWord()
{
    auto &probe = *new ProbeWindow(u"probe"_s);
    probe.Show();
    probe.refusesFocus = true;
    probe.setCaption(u"the probe"_s);
    int layouts = 0;
    countCalls(probe, u"Form_Resize"_s, layouts);
    LooseTool loose(u"the probe"_s);
    OpenFromTool(loose.tool);
    QCOMPARE(layouts, 0);
    QVERIFY(m_system->host.messages().empty());
}

void tst_BringForward::aWindowThatRefusesTheFocusIsOpenedASecondTime()
{
    auto &probe = *new ProbeWindow(u"probe"_s);
    probe.Show();
    probe.refusesFocus = true;
    probe.setTag(GuideTag);
    QVERIFY(ActivateOpenWindow(GuideTag) == False);
    OpenGuide(u"Using this Guide"_s, u"102"_s);
    QCOMPARE(countWindows(u"frmIGSteps"_s), 1);
    QCOMPARE(m_system->active()->Tag(), GuideTag);
}

void tst_BringForward::noWindowOfThatTagIsReportedFalse()
{
    openGuide();
    QVERIFY(ActivateOpenWindow(u"Using this Guide"_s) == False);
    QVERIFY(ActivateOpenWindow(u"[implementation guide] - Using this Guide"_s) == False);
    QVERIFY(ActivateOpenWindow(GuideTag) == True);
}

QTEST_MAIN(tst_BringForward)
#include "tst_BringForward.moc"
