// A preview that the console asks for: from its Print button, which the tour must not hear, and from the details
// dialog's OK.
#include "layouts/frmIGSteps_mnuLinks.h"
#include "layouts/frmRCMain_mnuLinks.h"
#include "printing/frmPrint.h"
#include "support/ErrorOf.h"
#include "tour/Moves.h"
#include "tour/NamedWindow.h"

#include <QAbstractButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_ConsolePrint : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theGuidesPreviewComesUpMuted();
    void nextClosesAMutedPreview_data();
    void nextClosesAMutedPreview();
    void aMutedPreviewIsClosedWithoutAWord();
    void aMutedPreviewInTheBackgroundStays();
    void anUnmutedPreviewStays();
    void theVerbActsOnTheWindowUnderThePreview();
    void printPressesTheToolOfTheModule_data();
    void printPressesTheToolOfTheModule();
    void printGoesByTheWindowThatIsActiveThen();
    void printOfAnotherWindowOnlyMutes();
    void printWithoutAnActiveWindowFailsMuted();
    void printOfAModuleWithoutBarFails();
    void anEmptyScriptDoesNothing();
    void nextClickPressesALinkOfGuideAndManual_data();
    void nextClickPressesALinkOfGuideAndManual();
    void nextClickKnowsNoOtherWindowAndNoOtherVerb_data();
    void nextClickKnowsNoOtherWindowAndNoOtherVerb();
    void nextClickShowsNoStepOfItsOwn();
    void nextClickNeedsAWindowForALinkAlone();
    void nextClickFailsOnMissingFieldsAndNames_data();
    void nextClickFailsOnMissingFieldsAndNames();

private:
    frmDemo &console() const { return m_system->console(); }
    bool previewIsUp() const { return countWindows(u"frmPrint"_s) == 1 && m_system->active()->Name() == u"frmPrint"_s; }
    void pressPrint() const { static_cast<QAbstractButton &>(console().cmdPrint.widget()).click(); }

    std::optional<RunningSystem> m_system;
    QList<bool> m_mutedAtChanges;
};

void tst_ConsolePrint::init()
{
    m_system.emplace();
    m_system->start();
}

void tst_ConsolePrint::cleanup()
{
    m_system.reset();
}

void tst_ConsolePrint::theGuidesPreviewComesUpMuted()
{
    openStep(*m_system);
    pressPrint();
    QVERIFY(previewIsUp());
    QVERIFY(Shared().TourStepsMuted == True);
    QCOMPARE(console().Tag(), u"101"_s);
    m_system->clickTool(m_system->frame(), u"mnuMain"_s, u"mnuFile"_s, u"exit"_s);
    QCOMPARE(console().Tag(), u"101"_s);
}

void tst_ConsolePrint::nextClosesAMutedPreview_data()
{
    QTest::addColumn<bool>("forward");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("shown");
    for (const bool forward : {true, false}) {
        const char *button = forward ? "Next" : "Back";
        QTest::addRow("%s", button) << forward << u"129/xx"_s << u"129"_s;
        QTest::addRow("%s without a move", button) << forward << u"(none)"_s << u"101"_s;
        QTest::addRow("%s without a step", button) << forward << QString() << u"101"_s;
    }
}

void tst_ConsolePrint::nextClosesAMutedPreview()
{
    QFETCH(bool, forward);
    QFETCH(QString, script);
    const frmIGSteps &guide = openStep(*m_system);
    pressPrint();
    clickWay(*m_system, forward, script);
    QCOMPARE(countWindows(u"frmPrint"_s), 0);
    QCOMPARE(m_system->active(), &guide);
    QVERIFY(Shared().TourStepsMuted == False);
    QTEST(console().Tag(), "shown");
}

void tst_ConsolePrint::aMutedPreviewIsClosedWithoutAWord()
{
    openStep(*m_system);
    pressPrint();
    const ShownTags shown(console());
    // The preview's entry in the Window menu goes while it is unloaded.
    connect(&m_system->frame().mnuMain, &ActiveBar::Changed, this,
            [this] { m_mutedAtChanges << (Shared().TourStepsMuted == True); });
    clickNext(*m_system, u"(none)"_s);
    QCOMPARE(shown.tags, QStringList());
    QVERIFY(!m_mutedAtChanges.isEmpty() && m_mutedAtChanges.first());
}

void tst_ConsolePrint::aMutedPreviewInTheBackgroundStays()
{
    openStep(*m_system);
    pressPrint();
    openStep(*m_system);
    clickNext(*m_system, u"129/xx"_s);
    QCOMPARE(countWindows(u"frmPrint"_s), 1);
    QVERIFY(Shared().TourStepsMuted == False);
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_ConsolePrint::anUnmutedPreviewStays()
{
    frmIGSteps &guide = openStep(*m_system);
    m_system->clickTool(guide, u"mnuLinks"_s, u"subPrint"_s, u"prtPartial"_s);
    QCOMPARE(console().Tag(), u"103"_s);
    clickNext(*m_system, u"129/xx"_s);
    clickBack(*m_system, u"128/xx"_s);
    QVERIFY(previewIsUp());
    QCOMPARE(console().Tag(), u"128"_s);
}

void tst_ConsolePrint::theVerbActsOnTheWindowUnderThePreview()
{
    const frmIGSteps &guide = openStep(*m_system);
    pressPrint();
    clickNext(*m_system, u"129/mn/Nav/Tips"_s);
    QVERIFY(guide.mnuNav.Tools(u"Tips"_s).Checked());
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_ConsolePrint::printPressesTheToolOfTheModule_data()
{
    QTest::addColumn<QString>("tool");
    for (const char *name : {"frmIGSteps", "frmEMMain", "frmMPMain", "frmATMain"})
        QTest::newRow(name) << u"prtPartial"_s;
    QTest::newRow("frmRCMain") << u"prtRecordFilled"_s;
}

void tst_ConsolePrint::printPressesTheToolOfTheModule()
{
    QFETCH(QString, tool);
    NamedWindow &window = NamedWindow::open(QString::fromLatin1(QTest::currentDataTag()));
    const bool records = tool == u"prtRecordFilled"_s;
    window.addAnsweredBar(u"mnuLinks"_s, records ? layouts::frmRCMain_mnuLinks : layouts::frmIGSteps_mnuLinks);
    pressPrint();
    QCOMPARE(window.notes, QStringList{u"mnuLinks "_s + tool}); // and the bar isn't laid out again
    QVERIFY(Shared().TourStepsMuted == True);
    QCOMPARE(console().Tag(), u"101"_s);
}

// The tests for the modules aren't chained: a press that brings up a module further down presses there too.
void tst_ConsolePrint::printGoesByTheWindowThatIsActiveThen()
{
    NamedWindow &tools = NamedWindow::open(u"frmATMain"_s);
    tools.addAnsweredBar(u"mnuLinks"_s, layouts::frmIGSteps_mnuLinks);
    NamedWindow &guide = NamedWindow::open(u"frmIGSteps"_s);
    guide.addBar(u"mnuLinks"_s, layouts::frmIGSteps_mnuLinks);
    guide.names().add(u"mnuLinks_Click"_s, [&](const CallArguments &) {
        guide.notes << u"pressed"_s;
        tools.SetFocus();
    });
    pressPrint();
    QCOMPARE(guide.notes, QStringList{u"pressed"_s});
    QCOMPARE(tools.notes, QStringList{u"mnuLinks prtPartial"_s});
}

void tst_ConsolePrint::printOfAnotherWindowOnlyMutes()
{
    pressPrint();
    QVERIFY(Shared().TourStepsMuted == True);
    QCOMPARE(countWindows(u"frmPrint"_s), 0);
    QCOMPARE(m_system->active(), &m_system->diagram());
    clickNext(*m_system, u"129/cc/3"_s);
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_ConsolePrint::printWithoutAnActiveWindowFailsMuted()
{
    m_system->diagram().Hide();
    m_system->host.expectAnyMessage();
    m_system->host.expectEnd(1);
    pressPrint();
    QVERIFY(m_system->host.messages().back().text.startsWith(u"Error 91: "_s));
    QVERIFY(Shared().TourStepsMuted == True);
}

void tst_ConsolePrint::printOfAModuleWithoutBarFails()
{
    NamedWindow::open(u"frmRCMain"_s);
    m_system->host.expectAnyMessage();
    m_system->host.expectEnd(1);
    pressPrint();
    QVERIFY(m_system->host.messages().back().text.startsWith(u"Error 438: "_s));
}

void tst_ConsolePrint::anEmptyScriptDoesNothing()
{
    openStep(*m_system);
    const auto before = Forms();
    console().NextClick(QString());
    QCOMPARE(Forms(), before);
    m_system->active()->Hide();
    m_system->diagram().Hide();
    console().NextClick(QString()); // not even the name of the window is asked for
    QCOMPARE(console().Tag(), u"101"_s);
}

void tst_ConsolePrint::nextClickPressesALinkOfGuideAndManual_data()
{
    QTest::addColumn<bool>("knows");
    for (const char *name : {"frmIGSteps", "frmEMMain"})
        QTest::newRow(name) << true;
    for (const char *name : {"frmMPMain", "frmATMain", "frmRCMain", "frmPrint", "frmCommandCentre", "frmigsteps"})
        QTest::newRow(name) << false;
}

void tst_ConsolePrint::nextClickPressesALinkOfGuideAndManual()
{
    QFETCH(bool, knows);
    NamedWindow &window = NamedWindow::open(QString::fromLatin1(QTest::currentDataTag()));
    window.addAnsweredBar(u"mnuLinks"_s, layouts::frmIGSteps_mnuLinks);
    console().NextClick(u"ml/subPrint/prtPartial"_s);
    const QStringList pressed{u"mnuLinks prtPartial"_s, u"mnuLinks laid"_s};
    QCOMPARE(window.notes, knows ? pressed : QStringList());
    QCOMPARE(console().Tag(), u"101"_s);
}

void tst_ConsolePrint::nextClickKnowsNoOtherWindowAndNoOtherVerb_data()
{
    QTest::addColumn<QString>("script");
    for (const char *script : {"mn/Nav/Tips", "cc/3", "ML/subPrint/prtPartial", "103/ml/subPrint/prtPartial", "(none)",
                               "/", "rc", "cb", "mm/mnuFile/exit"})
        QTest::newRow(script) << QString::fromLatin1(script);
}

void tst_ConsolePrint::nextClickKnowsNoOtherWindowAndNoOtherVerb()
{
    QFETCH(QString, script);
    const frmIGSteps &guide = openStep(*m_system);
    const auto before = Forms();
    console().NextClick(script);
    QCOMPARE(Forms(), before);
    QVERIFY(guide.mnuNav.Tools(u"Requirement"_s).Checked());
    QVERIFY(m_system->diagram().SSRibbon1(1).Value());
    QCOMPARE(console().Tag(), u"101"_s);
}

void tst_ConsolePrint::nextClickShowsNoStepOfItsOwn()
{
    openStep(*m_system);
    console().NextClick(u"ml/subPrint/prtPartial"_s);
    QVERIFY(previewIsUp());
    QCOMPARE(console().Tag(), u"103"_s); // what the guide reported
}

void tst_ConsolePrint::nextClickNeedsAWindowForALinkAlone()
{
    m_system->diagram().Hide();
    QCOMPARE(errorOf([&] { console().NextClick(u"mn/Nav/Tips"_s); }), 0);
    QCOMPARE(errorOf([&] { console().NextClick(u"ml/subPrint/prtPartial"_s); }), int(ObjectNotSet));
}

void tst_ConsolePrint::nextClickFailsOnMissingFieldsAndNames_data()
{
    QTest::addColumn<QString>("script");
    for (const char *script : {"ml", "ml/subPrint", "ml/nowhere/prtPartial", "ml/subPrint/nothing"})
        QTest::newRow(script) << QString::fromLatin1(script);
}

void tst_ConsolePrint::nextClickFailsOnMissingFieldsAndNames()
{
    QFETCH(QString, script);
    openStep(*m_system);
    QCOMPARE(errorOf([&] { console().NextClick(script); }), int(SubscriptOutOfRange));
    QCOMPARE(countWindows(u"frmPrint"_s), 0);
}

QTEST_MAIN(tst_ConsolePrint)
#include "tst_ConsolePrint.moc"
