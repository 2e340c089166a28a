// What the tools of the main menu report and do.
#include "platform/system/Application.h"
#include "platform/system/Guard.h"
#include "shell/ShellProbes.h"
#include "shell/frmAbout.h"
#include "shell/frmProperties.h"
#include "shell/modFunctions.h"
#include "support/RunningSystem.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
const QString GuideTag = QStringLiteral("[Implementation Guide] - Using this Guide");

QString clipboard()
{
    return QApplication::clipboard()->text();
}
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
    void exitIsReportedBeforeTheEnd();
    void exitLeavesAHiddenConsoleHidden();
    void propertiesAreShownModeless();

    void whatComesAfterACommand_data();
    void whatComesAfterACommand();

    void editCommandsWorkInBothKindsOfRichText_data();
    void editCommandsWorkInBothKindsOfRichText();
    void undoTakesBackWhatWasTyped_data();
    void undoTakesBackWhatWasTyped();
    void editCommandsLeavePlainTextBoxesAlone_data();
    void editCommandsLeavePlainTextBoxesAlone();
    void editCommandsLeaveTheDiagramAlone_data();
    void editCommandsLeaveTheDiagramAlone();
    void copyWorksInThePageOfTheGuide();

    void withoutHelpFileTheUserIsTold_data();
    void withoutHelpFileTheUserIsTold();
    void withoutHelpFileNoStepIsShown();
    void contentsShowsItsStepThenTheFailure();
    void searchShowsNoStepOfItsOwn();
    void aFailingReportDoesNotStopTheHelp();

    void theForwarderReportsANumber();

    void exitByKeys();
    void aDocumentByKeysThroughThreeMenus();
    void aWindowByItsNumberKey();
    void selectAllByKeysReachesTheTextAtWork();
    void copyByTheMouseReachesTheTextAtWork();

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
    QMenu *openMenu(Qt::Key accessKey) const;

    std::optional<RunningSystem> m_system;
};

void tst_MenuCommands::init()
{
    m_system.emplace();
    m_system->start();
}

void tst_MenuCommands::cleanup()
{
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    m_system.reset();
}

// A tool that no band shows.
void tst_MenuCommands::clickLoose(const QString &name) const
{
    Tool tool(frame().mnuMain, 1, name);
    frame().mnuMain_Click(tool);
}

void tst_MenuCommands::pressBehindTheNotice(const QString &band, const QString &tool)
{
    m_system->whileModal([&] { press(band, tool); },
                         [&] {
                             QCOMPARE(countWindows(u"frmError"_s), 1);
                             m_system->host.advance(2000);
                         });
}

QMenu *tst_MenuCommands::openMenu(Qt::Key accessKey) const
{
    QTest::keyClick(&frame().shell(), accessKey, Qt::AltModifier);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
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

void tst_MenuCommands::editCommandsWorkInBothKindsOfRichText_data()
{
    QTest::addColumn<bool>("editing");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("copied");
    QTest::addColumn<int>("selected");
    for (const bool editing : {false, true}) {
        const char *kind = editing ? "zelRich" : "RichTextBox";
        QTest::addRow("cut, %s", kind) << editing << u"miCut"_s << u" two"_s << u"one"_s << 0;
        QTest::addRow("copy, %s", kind) << editing << u"miCopy"_s << u"one two"_s << u"one"_s << 3;
        QTest::addRow("paste, %s", kind) << editing << u"miPaste"_s << u"new two"_s << u"new"_s << 0;
        QTest::addRow("all, %s", kind) << editing << u"miAll"_s << u"one two"_s << u"new"_s << 7;
        QTest::addRow("clear, %s", kind) << editing << u"clear"_s << u" two"_s << u"new"_s << 0;
    }
}

void tst_MenuCommands::editCommandsWorkInBothKindsOfRichText()
{
    QFETCH(bool, editing);
    QFETCH(QString, command);
    auto &window = *new TextWindow;
    window.Show();
    RichTextBox &box = editing ? window.zel : window.rich;
    giveFocus(box);
    box.setSelLength(3);
    QApplication::clipboard()->setText(u"new"_s);
    clickLoose(command);
    QTEST(box.Text(), "text");
    QTEST(clipboard(), "copied");
    QTEST(box.SelLength(), "selected");
}

void tst_MenuCommands::undoTakesBackWhatWasTyped_data()
{
    QTest::addColumn<QString>("control");
    for (const auto &control : {u"rich"_s, u"zel"_s, u"plain"_s})
        QTest::addRow("%s", qPrintable(control)) << control;
}

void tst_MenuCommands::undoTakesBackWhatWasTyped()
{
    QFETCH(QString, control);
    auto &window = *new TextWindow;
    window.Show();
    giveFocus(*window.control(control));
    const auto texts = [&] { return QStringList{window.rich.Text(), window.zel.Text(), window.plain.Text()}; };
    const QStringList before = texts();
    QTest::keyClicks(QApplication::focusWidget(), u"x"_s);
    QVERIFY(texts() != before);
    press(u"mnuEdit"_s, u"miUndo"_s);
    QCOMPARE(texts(), before);
}

void tst_MenuCommands::editCommandsLeavePlainTextBoxesAlone_data()
{
    QTest::addColumn<QString>("command");
    for (const auto &command : {u"miCut"_s, u"miCopy"_s, u"miPaste"_s, u"miAll"_s, u"clear"_s})
        QTest::addRow("%s", qPrintable(command)) << command;
}

void tst_MenuCommands::editCommandsLeavePlainTextBoxesAlone()
{
    QFETCH(QString, command);
    auto &window = *new TextWindow;
    window.Show();
    giveFocus(window.plain);
    QTest::keyClick(&window.plain.widget(), Qt::Key_Home);
    QTest::keyClick(&window.plain.widget(), Qt::Key_Right, Qt::ShiftModifier);
    QApplication::clipboard()->setText(u"new"_s);
    clickLoose(command);
    QCOMPARE(window.plain.Text(), u"one two"_s);
    QCOMPARE(clipboard(), u"new"_s);
    QTest::keyClicks(&window.plain.widget(), u"O"_s);
    QCOMPARE(window.plain.Text(), u"One two"_s);
}

void tst_MenuCommands::editCommandsLeaveTheDiagramAlone_data()
{
    editCommandsLeavePlainTextBoxesAlone_data();
}

// The text keeps its selection behind the diagram, which has no text of its own.
void tst_MenuCommands::editCommandsLeaveTheDiagramAlone()
{
    QFETCH(QString, command);
    auto &window = *new TextWindow;
    window.Show();
    giveFocus(window.rich);
    window.rich.setSelLength(3);
    m_system->diagram().SetFocus();
    QApplication::clipboard()->setText(u"new"_s);
    clickLoose(command);
    QCOMPARE(window.rich.Text(), u"one two"_s);
    QCOMPARE(window.rich.SelLength(), 3);
    QCOMPARE(clipboard(), u"new"_s);
}

void tst_MenuCommands::copyWorksInThePageOfTheGuide()
{
    openGuide();
    auto *page = static_cast<RichTextBox *>(m_system->active()->control(u"rtfData"_s));
    giveFocus(*page);
    press(u"mnuEdit"_s, u"miAll"_s);
    QCOMPARE(page->SelLength(), page->Text().size());
    press(u"mnuEdit"_s, u"miCopy"_s);
    QCOMPARE(clipboard(), page->Text());
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
    Tool contents(frame().mnuMain, 1, u"miHContents"_s);
    contents.setToolTag(900); // the notice is all that is reported, whatever the console holds
    console().setTag(u"no number"_s);
    m_system->host.expectAnyMessage();
    m_system->whileModal([&] { guarded([&] { frame().mnuMain_Click(contents); }); },
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

void tst_MenuCommands::exitByKeys()
{
    giveFocus(m_system->diagram().cmdImp(1));
    QMenu *file = openMenu(Qt::Key_F);
    QVERIFY(file);
    QTest::keyClick(file, Qt::Key_X);
    QCOMPARE(console().Tag(), u"603"_s);
    QVERIFY(frame().Visible());
}

void tst_MenuCommands::aDocumentByKeysThroughThreeMenus()
{
    giveFocus(m_system->diagram().cmdImp(1));
    QVERIFY(openMenu(Qt::Key_C));
    const auto key = [](Qt::Key pressed) { QTest::keyClick(QApplication::activePopupWidget(), pressed); };
    for (int i = 0; i < 4; ++i)
        key(Qt::Key_Down); // to Records, from the first entry
    key(Qt::Key_Right);
    key(Qt::Key_Right); // Core Records
    for (int i = 0; i < 10; ++i)
        key(Qt::Key_Down);
    key(Qt::Key_Return);
    QTRY_COMPARE(m_system->active()->Tag(), u"[Records] - Emergency Plan"_s);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_MenuCommands::aWindowByItsNumberKey()
{
    openGuide();
    auto *page = m_system->active()->control(u"rtfData"_s);
    giveFocus(*page);
    QMenu *windows = openMenu(Qt::Key_W);
    QVERIFY(windows);
    QTest::keyClick(windows, Qt::Key_1);
    QCOMPARE(m_system->active(), &m_system->diagram());
}

void tst_MenuCommands::selectAllByKeysReachesTheTextAtWork()
{
    openGuide();
    auto *page = static_cast<RichTextBox *>(m_system->active()->control(u"rtfData"_s));
    giveFocus(*page);
    QMenu *edit = openMenu(Qt::Key_E);
    QVERIFY(edit);
    QTest::keyClick(edit, Qt::Key_A);
    QCOMPARE(page->SelLength(), page->Text().size());
}

void tst_MenuCommands::copyByTheMouseReachesTheTextAtWork()
{
    openGuide();
    auto *page = static_cast<RichTextBox *>(m_system->active()->control(u"rtfData"_s));
    giveFocus(*page);
    page->setSelLength(10);
    QMenu *edit = openMenu(Qt::Key_E);
    QVERIFY(edit);
    for (QAction *action : edit->actions())
        if (action->objectName() == u"miCopy")
            QTest::mouseClick(edit, Qt::LeftButton, {}, edit->actionGeometry(action).center());
    QCOMPARE(clipboard(), page->Text().left(10));
}

QTEST_MAIN(tst_MenuCommands)
#include "tst_MenuCommands.moc"
