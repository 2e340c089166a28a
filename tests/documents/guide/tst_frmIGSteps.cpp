// The guide's window: which page a section shows, and its part in the window list.
#include "documents/guide/GuideWindow.h"

#include "command_center/OrderLog.h"
#include "shell/SharedState.h"

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

Tool &editTool(const GuideWindow &open, const QString &name)
{
    return open.system.frame().mnuMain.Bands(u"mnuEdit"_s).Tools(name);
}

const ToolList &windowTools(const RunningSystem &system)
{
    return system.frame().mnuMain.Bands(u"mnuWindow"_s).Tools();
}

} // namespace

class tst_frmIGSteps : public QObject
{
    Q_OBJECT

private slots:
    void aSectionShowsItsPage_data();
    void aSectionShowsItsPage();
    void onlyTheStepHasViews_data();
    void onlyTheStepHasViews();
    void onlyTheLiveStepPrintsItsPage_data();
    void onlyTheLiveStepPrintsItsPage();
    void loadingGoesInItsOrder();
    void itBearsItsTitleBehindThePrefix();
    void itOpensMaximisedAndActive();
    void itsDesignCaptionNamesTheModule();
    void itKeepsTheSectionThatItWasOpenedWith();
    void theSameTitleOpensOneWindow();
    void aSectionThatIsNoNumberOpensNothing();

    void theStepOpensFromTheDiagram();
    void itIsListedOnceItIsActive();
    void theWindowListMarksTheActiveWindow();
    void aWindowThatGoesLeavesTheWindowList();
    void theFrameNamesTheModule();
    void unloadingHidesTheBarFirst();
    void unloadingGoesInItsOrder();

    void aSelectionEnablesCopying();
};

void tst_frmIGSteps::aSectionShowsItsPage_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("heading");
    QTest::addColumn<QString>("firstLine");
    const QString step = u"Step 17 Emergency Preparedness and Response"_s;
    const QString requirement = u"ISO 14001  Section 4.4.7"_s;
    QTest::newRow("101") << u"101"_s << u"Section 1"_s << u"Welcome to orvane"_s << u"Welcome to orvane"_s;
    QTest::newRow("102") << u"102"_s << u"Section 2"_s << u"Using this Guide"_s << u"Using this Guide "_s;
    QTest::newRow("103") << u"103"_s << u"Section 3"_s << u"24 Step Summary"_s
                         << u"Three Phase Plan for ISO 14001 \u2013 Your Route to Success "_s;
    QTest::newRow("104") << u"104"_s << u"Section 4"_s << u"What is ISO 14001?"_s << u"What is ISO14001? "_s;
    for (const char *section : {"105", "127", "999", "100", "0127"})
        QTest::newRow(section) << QString::fromLatin1(section) << u"Phase II"_s << step << requirement;
}

void tst_frmIGSteps::aSectionShowsItsPage()
{
    QFETCH(QString, section);
    QFETCH(QString, firstLine);
    const GuideWindow open(section);
    QTEST(open.guide->pnlNumber.Caption(), "number");
    QTEST(open.guide->pnlHeading.Caption(), "heading");
    QCOMPARE(open.guide->rtfData.Text().section(u'\n', 0, 0), firstLine);
}

void tst_frmIGSteps::onlyTheStepHasViews_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<bool>("views");
    for (const char *introduction : {"101", "102", "103", "104"})
        QTest::newRow(introduction) << QString::fromLatin1(introduction) << false;
    for (const char *step : {"105", "127", "999"})
        QTest::newRow(step) << QString::fromLatin1(step) << true;
}

void tst_frmIGSteps::onlyTheStepHasViews()
{
    QFETCH(QString, section);
    QFETCH(bool, views);
    const GuideWindow open(section);
    for (const auto &tool : open.guide->mnuNav.Bands(0).Tools()) {
        const bool paging = tool->ToolTag() == 900;
        QCOMPARE(tool->Enabled(), views || paging);
        QCOMPARE(buttonOf(open.guide->mnuNav, tool->Name())->isEnabled(), views || paging);
    }
    QCOMPARE(open.checkedTools(), QStringList(u"Requirement"_s));
}

void tst_frmIGSteps::onlyTheLiveStepPrintsItsPage_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<bool>("page");
    for (const char *section : {"101", "102", "103", "104", "105", "999"})
        QTest::newRow(section) << QString::fromLatin1(section) << false;
    QTest::newRow("127") << u"127"_s << true;
    QTest::newRow("127 in another spelling") << u"0127"_s << true;
}

void tst_frmIGSteps::onlyTheLiveStepPrintsItsPage()
{
    QFETCH(QString, section);
    const GuideWindow open(section);
    const ActiveBar &links = open.guide->mnuLinks;
    QTEST(links.Tools(u"prtPartial"_s).Enabled(), "page");
    QVERIFY(!links.Tools(u"prtComplete"_s).Enabled());
}

void tst_frmIGSteps::loadingGoesInItsOrder()
{
    RunningSystem system;
    system.start();
    auto *guide = new frmIGSteps;
    OrderLog log;
    log.lookAt(guide->mnuLinks, &ActiveBar::Changed);
    log.lookAt(guide->mnuNav, &ActiveBar::Changed);
    log.lookAt(guide->rtfData, &RichTextBox::Change);
    log.lookAt(guide->shell(), &QWidget::windowTitleChanged);
    log.watch(u"laid out"_s, [&] { return guide->ssMnu.Width() == Shared().FrameScaleWidth; });
    log.watch(u"title"_s, [&] { return guide->Caption() == u"A" && guide->Tag() == u"[Implementation Guide] - A"; });
    log.watch(u"page"_s, [&] { return guide->rtfData.Text().startsWith(u"Welcome to orvane"); });
    log.watch(u"heading"_s, [&] { return guide->pnlHeading.Caption() == u"Welcome to orvane"; });
    log.watch(u"views"_s, [&] { return !guide->mnuNav.Tools(u"Requirement"_s).Enabled(); });
    log.watch(u"print tools"_s, [&] { return !guide->mnuLinks.Tools(u"prtComplete"_s).Enabled(); });
    OpenWindowCore(*guide, u"A"_s, u"101"_s);
    QCOMPARE(log.order(),
             (QStringList{u"print tools"_s, u"views"_s, u"heading"_s, u"page"_s, u"title"_s, u"laid out"_s}));
}

void tst_frmIGSteps::itBearsItsTitleBehindThePrefix()
{
    const GuideWindow open;
    QCOMPARE(open.guide->Tag(), u"[Implementation Guide] - Page 127"_s);
    QCOMPARE(open.guide->Caption(), u"Page 127"_s);
    QCOMPARE(open.guide->Name(), u"frmIGSteps"_s);
}

void tst_frmIGSteps::itOpensMaximisedAndActive()
{
    const GuideWindow open;
    QCOMPARE(open.guide->WindowState(), int(Maximized));
    QCOMPARE(open.system.active(), open.guide);
    QTRY_COMPARE(open.guide->ScaleWidth(), open.system.frame().ScaleWidth());
    QCOMPARE(open.guide->ScaleHeight(), open.system.frame().ScaleHeight());
}

void tst_frmIGSteps::itsDesignCaptionNamesTheModule()
{
    const RunningSystem system;
    frmIGSteps guide;
    QCOMPARE(guide.Caption(), u"ISO 14001 - Implementation Guide"_s);
    QVERIFY(guide.Tag().isEmpty());
    QVERIFY(!guide.rtfTips.Visible());
}

void tst_frmIGSteps::itKeepsTheSectionThatItWasOpenedWith()
{
    GuideWindow open(u"127"_s);
    OpenGuide(u"Other"_s, u"101"_s);
    OpenGuide(u"Page 127"_s, u"127"_s);
    QCOMPARE(open.system.active(), open.guide);
    open.press(u"Requirement"_s);
    QCOMPARE(open.guide->pnlNumber.Caption(), u"Phase II"_s);
}

void tst_frmIGSteps::theSameTitleOpensOneWindow()
{
    const GuideWindow open(u"101"_s);
    OpenGuide(u"Page 101"_s, u"127"_s);
    QCOMPARE(countWindows(u"frmIGSteps"_s), 1);
    QCOMPARE(open.guide->pnlNumber.Caption(), u"Section 1"_s);
    OpenGuide(u"page 101"_s, u"127"_s);
    QCOMPARE(countWindows(u"frmIGSteps"_s), 2);
}

void tst_frmIGSteps::aSectionThatIsNoNumberOpensNothing()
{
    RunningSystem system;
    system.start();
    system.host.expectAnyMessage();
    OpenGuide(u"Title"_s, u"12a"_s);
    QCOMPARE(countWindows(u"frmIGSteps"_s), 0);
    QCOMPARE(system.active(), &system.diagram());
}

void tst_frmIGSteps::theStepOpensFromTheDiagram()
{
    RunningSystem system;
    system.start();
    system.frame().SetFocus();
    QTRY_VERIFY(system.frame().shell().isActiveWindow());
    const QString step = u"mnuEmergencyPreparednessandResponse"_s;
    QVERIFY(chooseFromPopup([&] { system.click(system.diagram().cmdImpMnu(3)); }, {u"mnuPhase2"_s, step}));
    QCOMPARE(system.active()->Tag(), u"[Implementation Guide] - STEP 17 - Emergency Preparedness and Response"_s);
    QCOMPARE(system.active()->WindowState(), int(Maximized));
    QCOMPARE(system.console().Tag(), u"127"_s);
}

void tst_frmIGSteps::itIsListedOnceItIsActive()
{
    RunningSystem system;
    system.start();
    auto *guide = new frmIGSteps;
    OpenWindowCore(*guide, u"Title"_s, u"127"_s);
    QVERIFY(!windowTools(system).contains(guide->Tag()));
    guide->Show();
    const Tool &tool = windowTools(system).Item(u"[Implementation Guide] - Title"_s);
    QCOMPARE(tool.Caption(), u"&2 [Implementation Guide] - Title"_s);
    QCOMPARE(tool.Description(), u"[Implementation Guide] - Title"_s);
    QCOMPARE(tool.TagText(), u"frmIGSteps"_s);
    QCOMPARE(tool.ToolTag(), 0);
}

void tst_frmIGSteps::theWindowListMarksTheActiveWindow()
{
    const GuideWindow open;
    const ToolList &tools = windowTools(open.system);
    QVERIFY(tools.Item(open.guide->Tag()).Checked());
    QVERIFY(!tools.Item(u"Command Center"_s).Checked());
    open.system.diagram().SetFocus();
    QVERIFY(!tools.Item(open.guide->Tag()).Checked());
    open.guide->SetFocus();
    QVERIFY(tools.Item(open.guide->Tag()).Checked());
    QCOMPARE(tools.Count(), 2);
}

void tst_frmIGSteps::aWindowThatGoesLeavesTheWindowList()
{
    const GuideWindow open;
    OpenGuide(u"Second"_s, u"101"_s);
    QCOMPARE(windowTools(open.system).Count(), 3);
    QVERIFY(open.guide->Unload());
    QCOMPARE(windowTools(open.system).Count(), 2);
    QCOMPARE(windowTools(open.system).Item(1).Caption(), u"&2 [Implementation Guide] - Second"_s);
}

void tst_frmIGSteps::theFrameNamesTheModule()
{
    const GuideWindow open;
    QCOMPARE(open.system.frame().Caption(), u"orvane (Implementation Guide)"_s);
    open.guide->Unload();
    QCOMPARE(open.system.frame().Caption(), u"orvane"_s);
}

void tst_frmIGSteps::unloadingHidesTheBarFirst()
{
    const GuideWindow open;
    const FormPin pin(*open.guide);
    open.guide->Unload();
    QVERIFY(!open.guide->mnuLinks.Bands(0).Visible());
    QVERIFY(!open.guide->mnuLinks.Visible());
    QVERIFY(!open.guide->Visible());
    QVERIFY(open.guide->Unloaded());
}

void tst_frmIGSteps::unloadingGoesInItsOrder()
{
    const GuideWindow open;
    const FormPin pin(*open.guide);
    const QString tag = open.guide->Tag();
    OrderLog log;
    log.lookAt(open.guide->mnuLinks, &ActiveBar::Changed);
    log.lookAt(open.system.frame().mnuMain, &ActiveBar::Changed);
    log.watch(u"listed no more"_s, [&] { return !windowTools(open.system).contains(tag); });
    log.watch(u"off the screen"_s, [&] { return !open.guide->Visible(); });
    log.watch(u"bar hidden"_s, [&] { return !open.guide->mnuLinks.Bands(0).Visible(); });
    open.guide->Unload();
    QCOMPARE(log.order(), (QStringList{u"bar hidden"_s, u"off the screen"_s, u"listed no more"_s}));
}

void tst_frmIGSteps::aSelectionEnablesCopying()
{
    const GuideWindow open;
    open.clickCharacter(3);
    QVERIFY(!editTool(open, u"miCopy"_s).Enabled());
    QTest::keyClick(open.page().viewport(), Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(open.guide->rtfData.SelLength(), 1);
    QVERIFY(editTool(open, u"miCopy"_s).Enabled());
    QTest::keyClick(open.page().viewport(), Qt::Key_Right);
    QVERIFY(!editTool(open, u"miCopy"_s).Enabled());
}

QTEST_MAIN(tst_frmIGSteps)
#include "tst_frmIGSteps.moc"
