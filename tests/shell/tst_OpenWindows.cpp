// How module windows are opened, and what they are handed over.
#include "printing/frmPrint.h"
#include "shell/ShellProbes.h"
#include "shell/modFunctions.h"
#include "support/RunningSystem.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

using Opener = void (*)(const QString &, const QString &);
Q_DECLARE_METATYPE(Opener)

namespace
{
const QString GuideTag = u"[Implementation Guide] - Using this Guide"_s;
const QString ManualTag = u"[Environmental Manual] - Scope"_s;

int countModules()
{
    int count = 0;
    for (const auto &name : {u"frmIGSteps"_s, u"frmEMMain"_s, u"frmMPMain"_s, u"frmATMain"_s, u"frmRCMain"_s})
        count += countWindows(name);
    return count;
}

Form &guide()
{
    return *windowByTag(GuideTag);
}

Form &manual()
{
    return *windowByTag(ManualTag);
}

} // namespace

class tst_OpenWindows : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void eachModuleHasItsWindowPrefixAndTitle_data();
    void eachModuleHasItsWindowPrefixAndTitle();
    void theSameTitleTwiceOpensOneWindow();
    void theSameTitleInTwoModulesOpensTwoWindows();
    void twoTitlesOfOneModuleOpenTwoWindows();
    void sectionAndTitleAreHandedOver();
    void aWindowOpensMaximised();

    void theWindowIsLoadedUnderTheHourglass();
    void theHandOverIsSetBeforeTheLoad();
    void aFailingLoadIsReportedAndLeavesTheHourglass();
    void aSectionWithoutNumberOpensNothing_data();
    void aSectionWithoutNumberOpensNothing();

    void aToolsFirstDigitPicksTheModule_data();
    void aToolsFirstDigitPicksTheModule();
    void aToolOfNoModuleOpensNothing_data();
    void aToolOfNoModuleOpensNothing();
    void aToolOfNoWindowDoesNothingAtAll_data();
    void aToolOfNoWindowDoesNothingAtAll();

    void bringingForwardHoldsTheDiagramsLayout();
    void openingHoldsTheDiagramsLayout();
    void theDiagramIsNotLaidOutBehindAnOpeningWindow();
    void theHeldLayoutIsHeldOnce();

    void previewsAreUnloadedAndNothingElse();

private:
    void openGuide() const { m_system->click(m_system->diagram().cmdImp(1)); }

    std::optional<RunningSystem> m_system;
};

void tst_OpenWindows::init()
{
    m_system.emplace();
    m_system->start();
}

void tst_OpenWindows::cleanup()
{
    m_system.reset();
}

void tst_OpenWindows::eachModuleHasItsWindowPrefixAndTitle_data()
{
    QTest::addColumn<Opener>("open");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("title");
    QTest::newRow("guide") << &OpenGuide << u"[Implementation Guide] - A b"_s << u"frmIGSteps"_s
                           << u"orvane (Implementation Guide)"_s;
    QTest::newRow("manual") << &OpenManual << u"[Environmental Manual] - A b"_s << u"frmEMMain"_s
                            << u"orvane (Environment Manual)"_s;
    QTest::newRow("procedures") << &OpenProcedures << u"[Management Procedures] - A b"_s << u"frmMPMain"_s
                                << u"orvane (Management Procedures)"_s;
    QTest::newRow("tools") << &OpenTools << u"[Action Tools] - A b"_s << u"frmATMain"_s << u"orvane (Action Tools)"_s;
    QTest::newRow("records") << &OpenRecords << u"[Records] - A b"_s << u"frmRCMain"_s << u"orvane (Records)"_s;
}

void tst_OpenWindows::eachModuleHasItsWindowPrefixAndTitle()
{
    QFETCH(Opener, open);
    QFETCH(QString, tag);
    open(u"A b"_s, u"127"_s);
    const Form *window = windowByTag(tag);
    QVERIFY(window);
    QTEST(window->Name(), "name");
    QCOMPARE(window->Caption(), open == &OpenTools ? u"Action Tools"_s : u"A b"_s);
    QCOMPARE(m_system->active(), window);
    QTEST(m_system->frame().Caption(), "title");
}

void tst_OpenWindows::theSameTitleTwiceOpensOneWindow()
{
    openGuide();
    const Form *first = m_system->active();
    m_system->diagram().SetFocus();
    openGuide();
    QCOMPARE(countWindows(u"frmIGSteps"_s), 1);
    QCOMPARE(m_system->active(), first);
}

void tst_OpenWindows::theSameTitleInTwoModulesOpensTwoWindows()
{
    OpenTools(u"Emergency Plan"_s, u"406"_s);
    OpenRecords(u"Emergency Plan"_s, u"511"_s);
    QVERIFY(windowByTag(u"[Action Tools] - Emergency Plan"_s));
    QVERIFY(windowByTag(u"[Records] - Emergency Plan"_s));
    QCOMPARE(countModules(), 2);
}

void tst_OpenWindows::twoTitlesOfOneModuleOpenTwoWindows()
{
    OpenGuide(u"Using this Guide"_s, u"102"_s);
    OpenGuide(u"using this Guide"_s, u"102"_s);
    QCOMPARE(countWindows(u"frmIGSteps"_s), 2);
}

void tst_OpenWindows::sectionAndTitleAreHandedOver()
{
    openGuide();
    QCOMPARE(Shared().SectionNumber, 102);
    QCOMPARE(Shared().SectionText, u"102"_s);
    QCOMPARE(Shared().TitleText, u"Using this Guide"_s);
}

void tst_OpenWindows::aWindowOpensMaximised()
{
    openGuide();
    QCOMPARE(guide().WindowState(), int(Maximized));
    guide().setWindowState(Normal);
    OpenManual(u"Scope"_s, u"219"_s);
    QCOMPARE(manual().WindowState(), int(Maximized));
}

void tst_OpenWindows::theWindowIsLoadedUnderTheHourglass()
{
    int whileLoading = -1;
    auto &window = *new ProbeChild([&] { whileLoading = m_system->frame().MousePointer(); });
    OpenWindowCore(window, u"title"_s, u"102"_s);
    QVERIFY(window.Loaded());
    QVERIFY(!window.Visible());
    QCOMPARE(whileLoading, 11);
    QCOMPARE(m_system->frame().MousePointer(), 0);
}

void tst_OpenWindows::theHandOverIsSetBeforeTheLoad()
{
    SharedState handedOver;
    auto &window = *new ProbeChild([&] { handedOver = Shared(); });
    OpenWindowCore(window, u"What is ISO14001?"_s, u"0104"_s);
    QCOMPARE(handedOver.SectionNumber, 104);
    QCOMPARE(handedOver.SectionText, u"0104"_s);
    QCOMPARE(handedOver.TitleText, u"What is ISO14001?"_s);
    QVERIFY(handedOver.DiagramLayoutHeld == False);
}

void tst_OpenWindows::aFailingLoadIsReportedAndLeavesTheHourglass()
{
    ProbeChild window([] { throw RunTimeError(SubscriptOutOfRange, u"The page can't be built."_s); });
    m_system->host.expectMessage(u"The page can't be built."_s);
    OpenWindowCore(window, u"title"_s, u"102"_s);
    QVERIFY(!window.Loaded());
    QCOMPARE(countWindows(u"frmProbe"_s), 0);
    QCOMPARE(m_system->frame().MousePointer(), 11);
    QCOMPARE(m_system->host.messages().at(0).style, 0);
}

void tst_OpenWindows::aSectionWithoutNumberOpensNothing_data()
{
    QTest::addColumn<Opener>("open");
    QTest::newRow("guide") << &OpenGuide;
    QTest::newRow("manual") << &OpenManual;
    QTest::newRow("procedures") << &OpenProcedures;
    QTest::newRow("tools") << &OpenTools;
    QTest::newRow("records") << &OpenRecords;
}

void tst_OpenWindows::aSectionWithoutNumberOpensNothing()
{
    QFETCH(Opener, open);
    m_system->host.expectAnyMessage();
    open(u"title"_s, u"no number"_s);
    QCOMPARE(m_system->host.messages().size(), 1U);
    QCOMPARE(countModules(), 0);
    QCOMPARE(m_system->active(), &m_system->diagram());
    QCOMPARE(m_system->frame().MousePointer(), 11);
    QVERIFY(Shared().DiagramLayoutHeld == False);
}

void tst_OpenWindows::aToolsFirstDigitPicksTheModule_data()
{
    QTest::addColumn<int>("tag");
    QTest::addColumn<QString>("name");
    for (const int tag : {1, 101, 102, 104, 127, 1311})
        QTest::addRow("%d", tag) << tag << u"frmIGSteps"_s;
    for (const int tag : {2, 204, 219})
        QTest::addRow("%d", tag) << tag << u"frmEMMain"_s;
    for (const int tag : {3, 311})
        QTest::addRow("%d", tag) << tag << u"frmMPMain"_s;
    for (const int tag : {4, 406})
        QTest::addRow("%d", tag) << tag << u"frmATMain"_s;
    for (const int tag : {5, 511, 519})
        QTest::addRow("%d", tag) << tag << u"frmRCMain"_s;
}

void tst_OpenWindows::aToolsFirstDigitPicksTheModule()
{
    QFETCH(int, tag);
    LooseTool loose(u"name"_s, tag, u"A Title of its own"_s);
    OpenFromTool(loose.tool);
    QTEST(m_system->active()->Name(), "name");
    QVERIFY(m_system->active()->Tag().endsWith(u" - A Title of its own"_s));
    QCOMPARE(Shared().SectionText, QString::number(tag));
    QCOMPARE(countModules(), 1);
}

void tst_OpenWindows::aToolOfNoModuleOpensNothing_data()
{
    QTest::addColumn<int>("tag");
    for (const int tag : {0, 6, 603, 7, 8, 9, 900, 999, -1})
        QTest::addRow("%d", tag) << tag;
}

void tst_OpenWindows::aToolOfNoModuleOpensNothing()
{
    QFETCH(int, tag);
    LooseTool loose(u"name"_s, tag);
    OpenFromTool(loose.tool);
    QCOMPARE(countModules(), 0);
    QCOMPARE(m_system->active(), &m_system->diagram());
}

void tst_OpenWindows::aToolOfNoWindowDoesNothingAtAll_data()
{
    aToolOfNoModuleOpensNothing_data();
}

void tst_OpenWindows::aToolOfNoWindowDoesNothingAtAll()
{
    QFETCH(int, tag);
    openGuide();
    const QStringList windows = loadedNames();
    const QString step = m_system->console().Tag();
    LooseTool loose(u"using this guide"_s, tag);
    OpenFromTool(loose.tool);
    QCOMPARE(loadedNames(), windows);
    QCOMPARE(m_system->active(), &guide());
    QCOMPARE(guide().WindowState(), int(Maximized));
    QCOMPARE(m_system->console().Tag(), step);
}

void tst_OpenWindows::bringingForwardHoldsTheDiagramsLayout()
{
    openGuide();
    OpenManual(u"Scope"_s, u"219"_s);
    Shared().DiagramLayoutHeld = False;
    OpenGuide(u"Using this Guide"_s, u"102"_s);
    QCOMPARE(m_system->active(), &guide());
    QVERIFY(Shared().DiagramLayoutHeld == True);
}

// Over another window the diagram gets no Resize that would take the flag back.
void tst_OpenWindows::openingHoldsTheDiagramsLayout()
{
    openGuide();
    Shared().DiagramLayoutHeld = False;
    OpenManual(u"Scope"_s, u"219"_s);
    QVERIFY(Shared().DiagramLayoutHeld == True);
}

void tst_OpenWindows::theDiagramIsNotLaidOutBehindAnOpeningWindow()
{
    frmCommandCentre &diagram = m_system->diagram();
    const double panel = diagram.pnlDiag(1).Width();
    const double tab = diagram.SSRibbon1(1).Left();
    openGuide();
    QVERIFY(diagram.ScaleWidth() < panel);
    QCOMPARE(diagram.pnlDiag(1).Width(), panel);
    QCOMPARE(diagram.SSRibbon1(1).Left(), tab);
    m_system->active()->Unload();
    QCOMPARE(diagram.pnlDiag(1).Width(), panel);
    QCOMPARE(diagram.SSRibbon1(1).Left(), tab);
}

void tst_OpenWindows::theHeldLayoutIsHeldOnce()
{
    openGuide();
    QVERIFY(Shared().DiagramLayoutHeld == False);
    m_system->diagram().SetFocus();
    QCOMPARE(m_system->diagram().WindowState(), int(Maximized));
    QCOMPARE(m_system->diagram().gradient.Width(), m_system->diagram().ScaleWidth());
}

void tst_OpenWindows::previewsAreUnloadedAndNothingElse()
{
    openGuide();
    Default<frmPrint>().Show();
    auto &second = *new ProbeWindow(u"frmPrint"_s);
    second.Load();
    UnloadPrintWindows();
    QCOMPARE(countWindows(u"frmPrint"_s), 0);
    QCOMPARE(loadedNames(), (QStringList{u"frmDemo"_s, u"mdiMain"_s, u"frmCommandCentre"_s, u"frmIGSteps"_s}));
}

QTEST_MAIN(tst_OpenWindows)
#include "tst_OpenWindows.moc"
