// The bar at the foot of the guide: the links to the other modules, the print tools and Close.
#include "documents/guide/GuideWindow.h"

#include "platform/forms/Wiring.h"
#include "printing/frmPrint.h"
#include "shell/SharedState.h"

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

// A tool of 0 is heard too: all that it does in the console is to take Quit away.
bool heardNothingButZero(const GuideWindow &open, const std::function<void()> &act)
{
    open.system.console().cmdQuit.setVisible(true);
    open.tags->clear();
    act();
    return open.tags->tags().isEmpty() && !open.system.console().cmdQuit.Visible();
}

} // namespace

class tst_GuideLinks : public QObject
{
    Q_OBJECT

private slots:
    void aLinkOpensItsModule_data();
    void aLinkOpensItsModule();
    void aSecondUseOfALinkBringsItsWindowForward_data();
    void aSecondUseOfALinkBringsItsWindowForward();
    void aLinkLeavesTheGuideAsItWas();
    void theGuideDoesNotLinkToItself();
    void theGuidesOwnLinkStillWorksByName();
    void aToolOfZeroIsHeardAndDoesNothing_data();
    void aToolOfZeroIsHeardAndDoesNothing();
    void aToolOfZeroThatIsCalledPrintingShowsThePreview_data();
    void aToolOfZeroThatIsCalledPrintingShowsThePreview();

    void aPrintToolReportsItsTagAndThenThePrinting_data();
    void aPrintToolReportsItsTagAndThenThePrinting();
    void thePageIsPrintedFromItsFlyout();
    void printingTwiceKeepsOnePreview();
    void aDisabledPrintToolCannotBeChosen_data();
    void aDisabledPrintToolCannotBeChosen();

    void closeReportsAndLeadsToTheDiagram();
    void closeLaysTheDiagramOut();
    void closeMaximisesTheDiagram_data();
    void closeMaximisesTheDiagram();
    void closeShowsTheDiagramBeforeOtherDocuments();
    void theLinksAreCalledByName();
};

void tst_GuideLinks::aLinkOpensItsModule_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("key");
    const auto add = [](const char *module, const char *link, const char *tag, const char *window, const char *key) {
        QTest::newRow(window) << QString::fromLatin1(module) << QString::fromLatin1(link) << QString::fromLatin1(tag)
                              << QString::fromLatin1(window) << QString::fromLatin1(key);
    };
    add("mnuEM", "btnEM", "219", "frmEMMain", "[Environmental Manual] - Emergency Preparedness and Response");
    add("mnuMP", "btnMP", "311", "frmMPMain", "[Management Procedures] - Emergency Planning");
    add("mnuAT", "btnat", "406", "frmATMain", "[Action Tools] - Emergency Plan Ideas");
    add("mnuRC", "btnRC", "511", "frmRCMain", "[Records] - Emergency Plan");
}

void tst_GuideLinks::aLinkOpensItsModule()
{
    QFETCH(QString, module);
    QFETCH(QString, link);
    QFETCH(QString, tag);
    QFETCH(QString, window);
    QFETCH(QString, key);
    const GuideWindow open;
    QVERIFY(chooseFromFlyout(open.guide->mnuLinks, u"RelatedTopics"_s, {module, link}));
    QCOMPARE(open.tags->tags(), QStringList(tag));
    const MDIChild *opened = open.system.active();
    QCOMPARE(opened->Name(), window);
    QCOMPARE(opened->Tag(), key);
    QCOMPARE(opened->Caption(), window == u"frmATMain"_s ? u"Action Tools"_s : key.section(u"] - "_s, 1));
    QCOMPARE(opened->WindowState(), int(Maximized));
    QCOMPARE(Shared().SectionText, tag);
}

void tst_GuideLinks::aSecondUseOfALinkBringsItsWindowForward_data()
{
    aLinkOpensItsModule_data();
}

void tst_GuideLinks::aSecondUseOfALinkBringsItsWindowForward()
{
    QFETCH(QString, module);
    QFETCH(QString, link);
    QFETCH(QString, window);
    const GuideWindow open;
    QVERIFY(chooseFromFlyout(open.guide->mnuLinks, u"RelatedTopics"_s, {module, link}));
    const MDIChild *first = open.system.active();
    open.guide->SetFocus();
    QVERIFY(chooseFromFlyout(open.guide->mnuLinks, u"RelatedTopics"_s, {module, link}));
    QCOMPARE(open.system.active(), first);
    QCOMPARE(countWindows(window), 1);
    QCOMPARE(open.tags->tags().size(), 2);
}

void tst_GuideLinks::aLinkLeavesTheGuideAsItWas()
{
    const GuideWindow open;
    open.press(u"Tips"_s);
    const QString page = open.guide->rtfData.TextRTF();
    QVERIFY(chooseFromFlyout(open.guide->mnuLinks, u"RelatedTopics"_s, {u"mnuMP"_s, u"btnMP"_s}));
    QCOMPARE(open.guide->rtfData.TextRTF(), page);
    QCOMPARE(open.checkedTools(), QStringList(u"Tips"_s));
    QCOMPARE(open.guide->mnuLinks.Tools(u"btnMP"_s).ToolTag(), 311);
}

void tst_GuideLinks::theGuideDoesNotLinkToItself()
{
    const GuideWindow open;
    const ActiveBar &links = open.guide->mnuLinks;
    QVERIFY(!links.Tools(u"mnuIG"_s).Enabled());
    QVERIFY(!chooseFromFlyout(links, u"RelatedTopics"_s, {u"mnuIG"_s, u"IGlinks"_s}));
    QCOMPARE(open.system.active(), open.guide);
    QCOMPARE(open.tags->tags(), QStringList());
    QCOMPARE(countWindows(u"frmIGSteps"_s), 1);
}

void tst_GuideLinks::theGuidesOwnLinkStillWorksByName()
{
    const GuideWindow open(u"101"_s);
    Tool &own = open.guide->mnuLinks.Tools(u"IGlinks"_s);
    open.guide->names().call(u"mnuLinks_Click"_s, {.tool = &own});
    QCOMPARE(open.tags->tags(), QStringList(u"127"_s));
    QCOMPARE(open.system.active()->Tag(), u"[Implementation Guide] - STEP 17 - Emergency Preparedness and Response"_s);
}

void tst_GuideLinks::aToolOfZeroIsHeardAndDoesNothing_data()
{
    QTest::addColumn<QString>("tool");
    for (const char *tool : {"RelatedTopics", "Print", "mnuIG", "mnuEM", "mnuMP", "mnuAT", "mnuRC"})
        QTest::newRow(tool) << QString::fromLatin1(tool);
}

void tst_GuideLinks::aToolOfZeroIsHeardAndDoesNothing()
{
    QFETCH(QString, tool);
    const GuideWindow open;
    const auto windows = Forms();
    Tool &pressed = open.guide->mnuLinks.Tools(tool);
    QVERIFY(heardNothingButZero(open, [&] { open.guide->names().call(u"mnuLinks_Click"_s, {.tool = &pressed}); }));
    QCOMPARE(Forms(), windows);
    QCOMPARE(open.system.active(), open.guide);
}

void tst_GuideLinks::aToolOfZeroThatIsCalledPrintingShowsThePreview_data()
{
    QTest::addColumn<QString>("caption");
    QTest::newRow("the page") << u"Print Current Page"_s;
    QTest::newRow("the section") << u"Print Section"_s;
}

void tst_GuideLinks::aToolOfZeroThatIsCalledPrintingShowsThePreview()
{
    QFETCH(QString, caption);
    const GuideWindow open;
    Tool &pressed = open.guide->mnuLinks.Tools(u"Print"_s);
    pressed.setCaption(caption);
    QVERIFY(heardNothingButZero(open, [&] { open.guide->names().call(u"mnuLinks_Click"_s, {.tool = &pressed}); }));
    QCOMPARE(open.system.active()->Name(), u"frmPrint"_s);
    QCOMPARE(Default<frmPrint>().vs.PageCount(), 0);
}

void tst_GuideLinks::aPrintToolReportsItsTagAndThenThePrinting_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("tag");
    QTest::newRow("the page") << u"prtPartial"_s << u"1"_s;
    QTest::newRow("the module") << u"prtComplete"_s << u"2"_s;
}

void tst_GuideLinks::aPrintToolReportsItsTagAndThenThePrinting()
{
    QFETCH(QString, tool);
    QFETCH(QString, tag);
    const GuideWindow open;
    Tool &pressed = open.guide->mnuLinks.Tools(tool);
    open.guide->names().call(u"mnuLinks_Click"_s, {.tool = &pressed});
    QCOMPARE(open.tags->tags(), QStringList({tag, u"103"_s}));
    QCOMPARE(countWindows(u"frmPrint"_s), 1);
    QCOMPARE(open.system.active()->Name(), u"frmPrint"_s);
}

void tst_GuideLinks::thePageIsPrintedFromItsFlyout()
{
    const GuideWindow open;
    QVERIFY(chooseFromFlyout(open.guide->mnuLinks, u"Print"_s, {u"prtPartial"_s}));
    QCOMPARE(open.tags->tags(), QStringList({u"1"_s, u"103"_s}));
    QCOMPARE(open.system.active()->Name(), u"frmPrint"_s);
}

void tst_GuideLinks::printingTwiceKeepsOnePreview()
{
    const GuideWindow open;
    for (int i = 0; i < 2; ++i) {
        open.guide->SetFocus();
        QVERIFY(chooseFromFlyout(open.guide->mnuLinks, u"Print"_s, {u"prtPartial"_s}));
    }
    QCOMPARE(countWindows(u"frmPrint"_s), 1);
    QCOMPARE(open.tags->tags(), QStringList({u"1"_s, u"103"_s, u"1"_s, u"103"_s}));
}

void tst_GuideLinks::aDisabledPrintToolCannotBeChosen_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("tool");
    QTest::newRow("the page of an introduction") << u"101"_s << u"prtPartial"_s;
    QTest::newRow("the page of another section") << u"999"_s << u"prtPartial"_s;
    QTest::newRow("the module") << u"127"_s << u"prtComplete"_s;
}

void tst_GuideLinks::aDisabledPrintToolCannotBeChosen()
{
    QFETCH(QString, section);
    QFETCH(QString, tool);
    const GuideWindow open(section);
    QVERIFY(!chooseFromFlyout(open.guide->mnuLinks, u"Print"_s, {tool}));
    QCOMPARE(open.tags->tags(), QStringList());
    QCOMPARE(countWindows(u"frmPrint"_s), 0);
}

void tst_GuideLinks::closeReportsAndLeadsToTheDiagram()
{
    const GuideWindow open;
    const QPointer<frmIGSteps> guide = open.guide;
    pressButton(open.guide->mnuLinks, u"Close"_s);
    QCOMPARE(open.tags->tags(), QStringList(u"108"_s));
    QCOMPARE(countWindows(u"frmIGSteps"_s), 0);
    QCOMPARE(open.system.active(), &open.system.diagram());
    QCOMPARE(open.system.frame().Caption(), u"orvane"_s);
    QTRY_VERIFY(!guide);
}

void tst_GuideLinks::closeLaysTheDiagramOut()
{
    const GuideWindow open;
    frmCommandCentre &diagram = open.system.diagram();
    QCOMPARE(diagram.WindowState(), int(Normal));
    Shared().DiagramLayoutHeld = True; // as opening a document leaves it where the diagram wasn't behind
    diagram.gradient.setWidth(7);
    pressButton(open.guide->mnuLinks, u"Close"_s);
    QCOMPARE(Shared().DiagramLayoutHeld, False);
    QCOMPARE(diagram.WindowState(), int(Maximized));
    QCOMPARE(diagram.gradient.Width(), diagram.ScaleWidth());
}

void tst_GuideLinks::closeMaximisesTheDiagram_data()
{
    QTest::addColumn<int>("guide");
    QTest::addColumn<int>("diagram");
    QTest::newRow("both normal") << int(Normal) << int(Normal);
    QTest::newRow("the diagram minimised") << int(Normal) << int(Minimized);
    QTest::newRow("the guide maximised") << int(Maximized) << int(Normal);
}

void tst_GuideLinks::closeMaximisesTheDiagram()
{
    QFETCH(int, guide);
    QFETCH(int, diagram);
    const GuideWindow open;
    open.guide->setWindowState(Normal);
    open.system.diagram().setWindowState(diagram);
    open.guide->SetFocus();
    open.guide->setWindowState(guide);
    QTRY_COMPARE(open.guide->WindowState(), guide);
    pressButton(open.guide->mnuLinks, u"Close"_s);
    QTRY_COMPARE(open.system.diagram().WindowState(), int(Maximized));
    QCOMPARE(open.system.active(), &open.system.diagram());
    QCOMPARE(open.system.diagram().ScaleWidth(), open.system.frame().ScaleWidth());
    QCOMPARE(countWindows(u"frmIGSteps"_s), 0);
}

void tst_GuideLinks::closeShowsTheDiagramBeforeOtherDocuments()
{
    const GuideWindow open;
    OpenGuide(u"Other"_s, u"101"_s);
    open.guide->SetFocus();
    pressButton(open.guide->mnuLinks, u"Close"_s);
    QCOMPARE(open.system.active(), &open.system.diagram());
    QCOMPARE(countWindows(u"frmIGSteps"_s), 1);
}

void tst_GuideLinks::theLinksAreCalledByName()
{
    const GuideWindow open;
    Tool &close = barOf(*open.guide, u"mnuLinks"_s).Bands(0).Tools(u"Close"_s);
    open.guide->names().call(u"mnuLinks_Click"_s, {.tool = &close});
    QCOMPARE(open.tags->tags(), QStringList(u"108"_s));
    QCOMPARE(countWindows(u"frmIGSteps"_s), 0);
}

QTEST_MAIN(tst_GuideLinks)
#include "tst_GuideLinks.moc"
