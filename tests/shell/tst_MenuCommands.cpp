// What the tools of the main menu report and do.
#include "platform/system/Application.h"
#include "platform/system/Guard.h"
#include "shell/ShellProbes.h"
#include "shell/frmAbout.h"
#include "shell/frmProperties.h"
#include "shell/modFunctions.h"
#include "support/RunningSystem.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
const QString GuideTag = u"[Implementation Guide] - Using this Guide"_s;
} // namespace

class tst_MenuCommands : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aToolIsReportedBeforeItOpensItsWindow();
    void aToolIsReportedBeforeItsDialogIsLoaded();
    void documentToolsOpenTheirWindows_data();
    void documentToolsOpenTheirWindows();
    void aToolWithoutLiveExampleBringsUpTheNoticeAlone();
    void behindTheNoticeAWindowOfTheToolsNameComesForward();
    void aToolOfNumberZeroIsReportedAndChangesNoStep();
    void aWindowsEntryIsReportedAndBringsItForward();
    void namesAreComparedInTheirCase_data();
    void namesAreComparedInTheirCase();

    void exitShowsTheEndAndClosesNothing();
    void withDealerTextExitShowsTheDealersEnd();
    void exitIsReportedBeforeTheEnd();
    void exitLeavesAHiddenConsoleHidden();
    void propertiesAreShownModeless();

    void whatComesAfterACommand_data();
    void whatComesAfterACommand();

    void withoutHelpFileTheUserIsTold_data();
    void withoutHelpFileTheUserIsTold();
    void withoutHelpFileNoStepIsShown();
    void contentsShowsItsStepThenTheFailure();
    void searchShowsNoStepOfItsOwn();
    void aFailingReportDoesNotStopTheHelp();

    void theForwarderReportsANumber();

private:
    mdiMain &frame() const { return m_system->frame(); }
    frmDemo &console() const { return m_system->console(); }
    void press(const QString &band, const QString &tool) const
    {
        m_system->clickTool(frame(), u"mnuMain"_s, band, tool);
    }
    void clickLoose(const QString &name) const;
    void openGuide() const { m_system->click(m_system->diagram().cmdImp(1)); }
    void pressBehindTheNotice(const QString &band, const QString &tool);

    std::optional<RunningSystem> m_system;
};

void tst_MenuCommands::init()
{
    m_system.emplace();
    m_system->start();
}

void tst_MenuCommands::cleanup()
{
    m_system.reset();
}

// A tool that no band shows.
void tst_MenuCommands::clickLoose(const QString &name) const
{
    LooseTool loose(name);
    frame().mnuMain_Click(loose.tool);
}

void tst_MenuCommands::pressBehindTheNotice(const QString &band, const QString &tool)
{
    m_system->whileModal([&] { press(band, tool); },
                         [&] {
                             QCOMPARE(countWindows(u"frmError"_s), 1);
                             m_system->host.advance(2000);
                         });
}

void tst_MenuCommands::aToolIsReportedBeforeItOpensItsWindow()
{
    const StepLog log(console(), [] { return countWindows(u"frmIGSteps"_s) == 0 ? u" before"_s : u" after"_s; });
    press(u"sub24StepPhase2"_s, u"mnuEmergencyPreparednessandResponse"_s);
    QCOMPARE(log.steps(), QStringList{u"127 before"_s});
    QCOMPARE(countWindows(u"frmIGSteps"_s), 1);
}

void tst_MenuCommands::aToolIsReportedBeforeItsDialogIsLoaded()
{
    const StepLog log(console(), [] { return countWindows(u"frmProperties"_s) == 0 ? u" before"_s : u" after"_s; });
    press(u"mnuTools"_s, u"properties"_s);
    QCOMPARE(log.steps(), QStringList{u"204 before"_s});
}

void tst_MenuCommands::documentToolsOpenTheirWindows_data()
{
    QTest::addColumn<QString>("band");
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("tag");
    const auto row = [](const QString &band, const QString &tool, const QString &section, const QString &tag) {
        QTest::addRow("%s", qPrintable(section)) << band << tool << section << tag;
    };
    row(u"subImpGuide"_s, u"cmdPainOrPleasure"_s, u"101"_s, u"[Implementation Guide] - Welcome to orvane"_s);
    row(u"subImpGuide"_s, u"cmdUseGuide"_s, u"102"_s, GuideTag);
    row(u"subImpGuide"_s, u"cmdWhatIs"_s, u"104"_s, u"[Implementation Guide] - What is ISO14001?"_s);
    row(u"sub24StepPhase2"_s, u"mnuEmergencyPreparednessandResponse"_s, u"127"_s,
        u"[Implementation Guide] - STEP 17 - Emergency Preparedness and Response"_s);
    row(u"subImpAndOp"_s, u"mnuEmergencyPreparednessandResponse"_s, u"219"_s,
        u"[Environmental Manual] - Emergency Preparedness and Response"_s);
    row(u"CoreProcedures"_s, u"EmergencyPlanning"_s, u"311"_s, u"[Management Procedures] - Emergency Planning"_s);
    row(u"subActionTools"_s, u"mnuEmergencyPlanIdeas"_s, u"406"_s, u"[Action Tools] - Emergency Plan Ideas"_s);
    row(u"CoreRecords"_s, u"EmergencyPlan"_s, u"511"_s, u"[Records] - Emergency Plan"_s);
    row(u"EnvironmentRecords"_s, u"SignificantAspectsandImpactsSummary"_s, u"519"_s,
        u"[Records] - Significant Aspects and Impacts Summary"_s);
}

void tst_MenuCommands::documentToolsOpenTheirWindows()
{
    QFETCH(QString, band);
    QFETCH(QString, tool);
    QFETCH(QString, section);
    press(band, tool);
    QTEST(m_system->active()->Tag(), "tag");
    QCOMPARE(Shared().SectionText, section);
    QCOMPARE(console().Tag(), section);
}

void tst_MenuCommands::aToolWithoutLiveExampleBringsUpTheNoticeAlone()
{
    const QStringList windows = loadedNames();
    pressBehindTheNotice(u"subEnvManual"_s, u"mnuScope"_s);
    QCOMPARE(loadedNames(), windows);
    QCOMPARE(m_system->active(), &m_system->diagram());
    QCOMPARE(console().Tag(), u"101"_s);
}

void tst_MenuCommands::behindTheNoticeAWindowOfTheToolsNameComesForward()
{
    auto &window = *new TextWindow(u"mnuScope"_s);
    window.Show();
    m_system->diagram().SetFocus();
    pressBehindTheNotice(u"subEnvManual"_s, u"mnuScope"_s);
    QCOMPARE(m_system->active(), &window);
}

// The way to the end is all that a step of no number takes back.
void tst_MenuCommands::aToolOfNumberZeroIsReportedAndChangesNoStep()
{
    console().cmdQuit.setVisible(true);
    press(u"mnuEdit"_s, u"miAll"_s);
    QVERIFY(!console().cmdQuit.Visible());
    QCOMPARE(console().Tag(), u"101"_s);
    QCOMPARE(console().Header.Text(), u"Step 101"_s);
}

void tst_MenuCommands::aWindowsEntryIsReportedAndBringsItForward()
{
    openGuide();
    m_system->diagram().SetFocus();
    console().cmdQuit.setVisible(true);
    press(u"mnuWindow"_s, GuideTag);
    QVERIFY(!console().cmdQuit.Visible());
    QCOMPARE(console().Tag(), u"101"_s);
    QCOMPARE(m_system->active()->Tag(), GuideTag);
}

void tst_MenuCommands::namesAreComparedInTheirCase_data()
{
    QTest::addColumn<QString>("name");
    for (const auto &name : {u"Exit"_s, u"Properties"_s, u"mihabout"_s, u"miHcontents"_s, u"MIHSEARCH"_s})
        QTest::addRow("%s", qPrintable(name)) << name;
}

void tst_MenuCommands::namesAreComparedInTheirCase()
{
    QFETCH(QString, name);
    const QStringList windows = loadedNames();
    App().setHelpFile({});
    clickLoose(name);
    QCOMPARE(loadedNames(), windows);
    QCOMPARE(console().Tag(), u"101"_s);
    QVERIFY(m_system->host.messages().empty());
}

void tst_MenuCommands::exitShowsTheEndAndClosesNothing()
{
    openGuide();
    const QStringList windows = loadedNames();
    press(u"mnuFile"_s, u"exit"_s);
    QCOMPARE(console().Tag(), u"603"_s);
    QVERIFY(console().cmdQuit.Visible());
    QCOMPARE(loadedNames(), windows);
    QVERIFY(frame().Visible());
    QVERIFY(!m_system->host.exitCode());
}

void tst_MenuCommands::withDealerTextExitShowsTheDealersEnd()
{
    Shared().DealerTextPresent = True;
    press(u"mnuFile"_s, u"exit"_s);
    QCOMPARE(console().Tag(), u"604"_s);
    QVERIFY(console().cmdQuit.Visible());
    QVERIFY(frame().Visible());
}

// Its own number takes the way to the end off the screen, and 603 brings it back.
void tst_MenuCommands::exitIsReportedBeforeTheEnd()
{
    console().cmdQuit.setVisible(true);
    const VisibilityLog quit(console().cmdQuit);
    press(u"mnuFile"_s, u"exit"_s);
    QCOMPARE(quit.changes(), (QStringList{u"hidden"_s, u"shown"_s}));
}

void tst_MenuCommands::exitLeavesAHiddenConsoleHidden()
{
    console().setVisible(false);
    press(u"mnuFile"_s, u"exit"_s);
    QVERIFY(!console().Visible());
    QCOMPARE(console().Tag(), u"101"_s);
}

void tst_MenuCommands::propertiesAreShownModeless()
{
    press(u"mnuTools"_s, u"properties"_s);
    QVERIFY(Default<frmProperties>().Visible());
    QVERIFY(!Default<frmProperties>().shell().isModal());
}

// A window of the tool's name shows whether the tool goes on to the windows.
void tst_MenuCommands::whatComesAfterACommand_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("goesOn");
    for (const auto &name : {u"miUndo"_s, u"exit"_s, u"miCut"_s, u"miCopy"_s, u"miPaste"_s, u"miAll"_s, u"clear"_s,
                             u"miHContents"_s, u"miHSearch"_s, u"anyOther"_s})
        QTest::addRow("%s", qPrintable(name)) << name << true;
    for (const auto &name : {u"miHAbout"_s, u"properties"_s})
        QTest::addRow("%s", qPrintable(name)) << name << false;
}

void tst_MenuCommands::whatComesAfterACommand()
{
    QFETCH(QString, name);
    QFETCH(bool, goesOn);
    auto &window = *new TextWindow(name);
    window.Show();
    m_system->diagram().SetFocus();
    App().setHelpFile({});
    if (name.startsWith(u"miHC") || name.startsWith(u"miHS")) m_system->host.expectAnyMessage();
    if (name == u"miHAbout")
        m_system->whileModal([&] { clickLoose(name); }, [] { Default<frmAbout>().shell().close(); });
    else
        clickLoose(name);
    QCOMPARE(m_system->active() == &window, goesOn);
}

void tst_MenuCommands::withoutHelpFileTheUserIsTold_data()
{
    QTest::addColumn<QString>("tool");
    QTest::newRow("Contents") << u"miHContents"_s;
    QTest::newRow("Search") << u"miHSearch"_s;
}

void tst_MenuCommands::withoutHelpFileTheUserIsTold()
{
    QFETCH(QString, tool);
    openGuide();
    App().setHelpFile({});
    m_system->host.expectMessage(u"Unable to display Help Contents. There is no Help associated with this program."_s);
    press(u"mnuHelp"_s, tool);
    QCOMPARE(m_system->host.messages().size(), 1U);
    QCOMPARE(m_system->host.messages().at(0).style, 64);
    QCOMPARE(m_system->host.messages().at(0).title, u"orvane (Implementation Guide)"_s);
}

void tst_MenuCommands::withoutHelpFileNoStepIsShown()
{
    App().setHelpFile({});
    m_system->host.expectAnyMessage();
    press(u"mnuHelp"_s, u"miHContents"_s);
    QCOMPARE(console().Tag(), u"101"_s);
}

// Nothing lies where the help file should.
void tst_MenuCommands::contentsShowsItsStepThenTheFailure()
{
    const StepLog log(console(), [this] { return m_system->host.messages().empty() ? u" before"_s : u" after"_s; });
    m_system->host.expectAnyMessage();
    press(u"mnuHelp"_s, u"miHContents"_s);
    QCOMPARE(log.steps(), QStringList{u"601 before"_s});
    QCOMPARE(m_system->host.messages().size(), 1U);
    QVERIFY(m_system->host.messages().at(0).text.contains(u"Orvane.hlp"_s));
    QCOMPARE(m_system->host.messages().at(0).style, 0);
}

void tst_MenuCommands::searchShowsNoStepOfItsOwn()
{
    m_system->host.expectAnyMessage();
    press(u"mnuHelp"_s, u"miHSearch"_s);
    QCOMPARE(console().Tag(), u"101"_s);
    QVERIFY(m_system->host.messages().at(0).text.contains(u"Orvane.hlp"_s));
    QCOMPARE(m_system->host.messages().at(0).style, 0);
}

void tst_MenuCommands::aFailingReportDoesNotStopTheHelp()
{
    LooseTool contents(u"miHContents"_s, 900); // the notice is all that is reported, whatever the console holds
    console().setTag(u"no number"_s);
    m_system->host.expectAnyMessage();
    m_system->whileModal([&] { guarded([&] { frame().mnuMain_Click(contents.tool); }); },
                         [&] { m_system->host.advance(2000); });
    QVERIFY(m_system->host.messages().at(0).text.contains(u"Orvane.hlp"_s));
    QVERIFY(!m_system->host.exitCode());
}

void tst_MenuCommands::theForwarderReportsANumber()
{
    frame().ShowTourStepNumber(106);
    QCOMPARE(console().Tag(), u"106"_s);
    frame().ShowTourStepNumber(-7);
    QCOMPARE(console().Tag(), u"-7"_s);
}

QTEST_MAIN(tst_MenuCommands)
#include "tst_MenuCommands.moc"
