// What the verbs of a move script press in the live windows, forward and back.
#include "layouts/frmIGSteps_mnuLinks.h"
#include "layouts/frmIGSteps_mnuNav.h"
#include "layouts/frmPrint_mnuPrintPreview.h"
#include "shell/frmProperties.h"
#include "tour/Moves.h"
#include "tour/NamedWindow.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
QStringList modules()
{
    return {u"frmIGSteps"_s, u"frmEMMain"_s, u"frmMPMain"_s, u"frmATMain"_s, u"frmRCMain"_s};
}
} // namespace

class tst_TourDriver : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void nextOpensAModule_data();
    void nextOpensAModule();
    void backOpensAModule_data();
    void backOpensAModule();
    void anOpenModuleIsBroughtForward();
    void anUnknownModuleOpensNothing();
    void aTabOfTheDiagramIsPressed_data();
    void aTabOfTheDiagramIsPressed();
    void nextPressesTheMainMenu();
    void backDoesNotPressTheMainMenu();
    void nextConfirmsTheDetails();
    void backDoesNotConfirmTheDetails();
    void aPageToolIsPressedInEveryModule_data();
    void aPageToolIsPressedInEveryModule();
    void aLinkIsPressedInEveryModule_data();
    void aLinkIsPressedInEveryModule();
    void aPreviewToolIsPressedInThePreview_data();
    void aPreviewToolIsPressedInThePreview();
    void withoutItsWindowAVerbOnlyChangesTheStep_data();
    void withoutItsWindowAVerbOnlyChangesTheStep();
    void aMouseReleaseReachesThePage_data();
    void aMouseReleaseReachesThePage();
    void theAdviceOfTheGuideComesAndGoes();
    void aDisabledToolIsPressedAllTheSame();
    void aClosedWindowIsGoneWhenTheStepComes();
    void whatIsNoVerbOnlyChangesTheStep_data();
    void whatIsNoVerbOnlyChangesTheStep();
    void theScriptsStepWinsOverWhatWasReported();
    void fieldsBehindTheLastOneAreIgnored();
    void noneLeavesTheConsoleAsItIs_data();
    void noneLeavesTheConsoleAsItIs();
    void aChainOfFiftyStepsHolds();

private:
    frmDemo &console() const { return m_system->console(); }
    void move(const QString &script) const; // by the button of the row

    std::optional<RunningSystem> m_system;
};

void tst_TourDriver::init()
{
    m_system.emplace();
    m_system->start();
}

void tst_TourDriver::cleanup()
{
    m_system.reset();
}

void tst_TourDriver::move(const QString &script) const
{
    QFETCH(bool, forward);
    clickWay(*m_system, forward, script);
}

namespace
{
void addDirections()
{
    QTest::addColumn<bool>("forward");
    QTest::newRow("Next") << true;
    QTest::newRow("Back") << false;
}

void addModulesBothWays()
{
    QTest::addColumn<bool>("forward");
    QTest::addColumn<QString>("name");
    for (const QString &name : modules()) {
        QTest::addRow("Next %s", qPrintable(name)) << true << name;
        QTest::addRow("Back %s", qPrintable(name)) << false << name;
    }
}

void addModuleTags(bool back)
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("tag"); // empty: nothing opens
    const auto row = [](const char *module, const char *section, const QString &tag) {
        QTest::newRow(module) << u"129/cf/%1/A title/%2"_s.arg(QLatin1StringView(module), QLatin1StringView(section))
                              << tag;
    };
    row("IG", "127", u"[Implementation Guide] - A title"_s);
    row("EM", "219", u"[Environmental Manual] - A title"_s);
    row("MP", "311", back ? QString() : u"[Management Procedures] - A title"_s);
    row("AT", "406", back ? QString() : u"[Action Tools] - A title"_s);
    row("RC", "511", u"[Records] - A title"_s);
}
} // namespace

void tst_TourDriver::nextOpensAModule_data()
{
    addModuleTags(false);
}

void tst_TourDriver::nextOpensAModule()
{
    QFETCH(QString, script);
    clickNext(*m_system, script);
    QTEST(m_system->active()->Tag(), "tag");
    QCOMPARE(Shared().TitleText, u"A title"_s);
    QCOMPARE(Shared().SectionText, script.section(u'/', 4));
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_TourDriver::backOpensAModule_data()
{
    addModuleTags(true);
}

void tst_TourDriver::backOpensAModule()
{
    QFETCH(QString, script);
    QFETCH(QString, tag);
    clickBack(*m_system, script);
    if (tag.isEmpty())
        QCOMPARE(m_system->active(), &m_system->diagram());
    else
        QCOMPARE(m_system->active()->Tag(), tag);
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_TourDriver::anOpenModuleIsBroughtForward()
{
    clickNext(*m_system, u"129/cf/IG/Using this Guide/102"_s);
    const MDIChild *first = m_system->active();
    clickNext(*m_system, u"129/cf/IG/24 Step Summary/103"_s);
    QVERIFY(m_system->active() != first);
    clickNext(*m_system, u"128/cf/IG/Using this Guide/102"_s);
    QCOMPARE(m_system->active(), first);
    QCOMPARE(countWindows(u"frmIGSteps"_s), 2);
    QCOMPARE(console().Tag(), u"128"_s);
}

void tst_TourDriver::anUnknownModuleOpensNothing()
{
    const auto before = Forms();
    clickNext(*m_system, u"129/cf/ig/A title/127"_s);
    clickNext(*m_system, u"128/cf/PV"_s); // title and section are read for a module only
    QCOMPARE(Forms(), before);
    QCOMPARE(console().Tag(), u"128"_s);
}

void tst_TourDriver::aTabOfTheDiagramIsPressed_data()
{
    QTest::addColumn<bool>("forward");
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("tab");
    for (const bool forward : {true, false}) {
        for (int tab = 1; tab <= 5; ++tab)
            QTest::addRow("%s %d", forward ? "Next" : "Back", tab) << forward << u"129/cc/%1"_s.arg(tab) << tab;
        QTest::addRow("%s, the last character alone", forward ? "Next" : "Back") << forward << u"300/cc/x3"_s << 3;
        QTest::addRow("%s, whatever the field", forward ? "Next" : "Back") << forward << u"300/cc/9/4"_s << 4;
    }
}

void tst_TourDriver::aTabOfTheDiagramIsPressed()
{
    QFETCH(QString, script);
    QFETCH(int, tab);
    move(script);
    for (int i = 1; i <= 5; ++i) {
        QCOMPARE(m_system->diagram().SSRibbon1(i).Value(), i == tab);
        QCOMPARE(m_system->diagram().pnlDiag(i).Visible(), i == tab);
    }
    QCOMPARE(console().Tag(), script.section(u'/', 0, 0));
}

void tst_TourDriver::nextPressesTheMainMenu()
{
    clickNext(*m_system, u"129/mm/mnuTools/properties"_s);
    QCOMPARE(countWindows(u"frmProperties"_s), 1);
    QVERIFY(Default<frmProperties>().Visible());
    QCOMPARE(console().Tag(), u"129"_s); // and not the tool's own, 204
}

void tst_TourDriver::backDoesNotPressTheMainMenu()
{
    clickBack(*m_system, u"129/mm/mnuTools/properties"_s);
    QCOMPARE(countWindows(u"frmProperties"_s), 0);
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_TourDriver::nextConfirmsTheDetails()
{
    clickNext(*m_system, u"204/mm/mnuTools/properties"_s);
    clickNext(*m_system, u"129/po"_s);
    QVERIFY(Shared().UserDetailsSaved == True);
    QCOMPARE(countWindows(u"frmProperties"_s), 0);
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_TourDriver::backDoesNotConfirmTheDetails()
{
    clickNext(*m_system, u"204/mm/mnuTools/properties"_s);
    clickBack(*m_system, u"129/po"_s);
    QVERIFY(Shared().UserDetailsSaved == False);
    QCOMPARE(countWindows(u"frmProperties"_s), 1);
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_TourDriver::aPageToolIsPressedInEveryModule_data()
{
    addModulesBothWays();
}

void tst_TourDriver::aPageToolIsPressedInEveryModule()
{
    QFETCH(QString, name);
    NamedWindow &window = NamedWindow::open(name);
    window.addAnsweredBar(u"mnuNav"_s, layouts::frmIGSteps_mnuNav);
    move(u"129/mn/Nav/Tips"_s);
    QCOMPARE(window.notes, QStringList{u"mnuNav Tips"_s});
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_TourDriver::aLinkIsPressedInEveryModule_data()
{
    addModulesBothWays();
}

void tst_TourDriver::aLinkIsPressedInEveryModule()
{
    QFETCH(QString, name);
    NamedWindow &window = NamedWindow::open(name);
    window.addAnsweredBar(u"mnuLinks"_s, layouts::frmIGSteps_mnuLinks);
    move(u"129/ml/EMLink/btnEM"_s);
    QCOMPARE(window.notes, (QStringList{u"mnuLinks btnEM"_s, u"mnuLinks laid"_s}));
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_TourDriver::aPreviewToolIsPressedInThePreview_data()
{
    addDirections();
}

void tst_TourDriver::aPreviewToolIsPressedInThePreview()
{
    NamedWindow &window = NamedWindow::open(u"frmPrint"_s);
    window.addAnsweredBar(u"mnuPrintPreview"_s, layouts::frmPrint_mnuPrintPreview);
    move(u"129/pp/bndPreview/close"_s);
    QCOMPARE(window.notes, (QStringList{u"mnuPrintPreview close"_s, u"mnuPrintPreview laid"_s}));
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_TourDriver::withoutItsWindowAVerbOnlyChangesTheStep_data()
{
    QTest::addColumn<bool>("forward");
    QTest::addColumn<QString>("active");
    QTest::addColumn<QString>("script");
    const auto row = [](const char *active, const char *script) {
        for (const bool forward : {true, false})
            QTest::addRow("%s, %s, %s", forward ? "Next" : "Back", active, script)
                << forward << QString::fromLatin1(active) << QString::fromLatin1(script);
    };
    for (const char *script : {"129/mn/Nav/Tips", "129/mn", "129/ml/subPrint/prtPartial", "129/ml"})
        for (const char *active : {"frmCommandCentre", "frmPrint", "frmIGStepsX", "FRMIGSTEPS"})
            row(active, script);
    for (const char *active : {"frmCommandCentre", "frmIGSteps", "frmRCMain", "frmprint"}) {
        row(active, "129/pp/bndPreview/close");
        row(active, "129/pp");
    }
}

void tst_TourDriver::withoutItsWindowAVerbOnlyChangesTheStep()
{
    QFETCH(QString, active);
    QFETCH(QString, script);
    NamedWindow &window = NamedWindow::open(active);
    window.addAnsweredBar(u"mnuNav"_s, layouts::frmIGSteps_mnuNav);
    window.addAnsweredBar(u"mnuLinks"_s, layouts::frmIGSteps_mnuLinks);
    window.addAnsweredBar(u"mnuPrintPreview"_s, layouts::frmPrint_mnuPrintPreview);
    move(script);
    QCOMPARE(window.notes, QStringList());
    QCOMPARE(m_system->active(), &window);
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_TourDriver::aMouseReleaseReachesThePage_data()
{
    addDirections();
}

void tst_TourDriver::aMouseReleaseReachesThePage()
{
    NamedWindow &window = NamedWindow::open(u"AnyWindow"_s);
    QList<double> got;
    window.names().add(u"rtfData_MouseUp"_s, [&](const CallArguments &arguments) {
        got << arguments.button << arguments.shift << arguments.x << arguments.y;
    });
    move(u"129/rc"_s);
    QCOMPARE(got, (QList<double>{1, 0, 660, 135}));
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_TourDriver::theAdviceOfTheGuideComesAndGoes()
{
    const frmIGSteps &guide = openStep(*m_system);
    clickNext(*m_system, u"105/mn/Nav/Implementation"_s);
    QVERIFY(guide.rtfTips.Visible());
    const QString invitation = guide.rtfTips.Text();
    clickNext(*m_system, u"106/rc"_s);
    QVERIFY(guide.rtfTips.Text() != invitation);
    clickNext(*m_system, u"129/cb"_s);
    QVERIFY(!guide.rtfTips.Visible());
    QCOMPARE(console().Tag(), u"129"_s);
    clickBack(*m_system, u"105/mn/Nav/Implementation"_s);
    QVERIFY(guide.rtfTips.Visible());
    clickBack(*m_system, u"128/cb"_s);
    QVERIFY(!guide.rtfTips.Visible());
}

void tst_TourDriver::aDisabledToolIsPressedAllTheSame()
{
    clickNext(*m_system, u"110/cf/IG/Using this Guide/102"_s);
    auto &guide = dynamic_cast<frmIGSteps &>(*m_system->active());
    QVERIFY(!guide.mnuNav.Tools(u"Tips"_s).Enabled());
    clickNext(*m_system, u"129/mn/Nav/Tips"_s);
    QVERIFY(guide.mnuNav.Tools(u"Tips"_s).Checked());
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_TourDriver::aClosedWindowIsGoneWhenTheStepComes()
{
    openStep(*m_system);
    ShownTags shown(console());
    clickNext(*m_system, u"129/ml/mnuRelated/Close"_s);
    QCOMPARE(countWindows(u"frmIGSteps"_s), 0);
    QCOMPARE(m_system->active(), &m_system->diagram());
    QCOMPARE(shown.tags, (QStringList{u"108"_s, u"129"_s}));
}

void tst_TourDriver::whatIsNoVerbOnlyChangesTheStep_data()
{
    QTest::addColumn<bool>("forward");
    QTest::addColumn<QString>("script");
    for (const char *script : {"129/CF/IG/A title/127", "129/CC/3", "129/Mm/mnuTools/properties", "129/xx",
                               "129/ cf/IG", "129//cc/3", "129/", "129/ccc/3", "129/(none)"})
        for (const bool forward : {true, false})
            QTest::addRow("%s %s", forward ? "Next" : "Back", script) << forward << QString::fromLatin1(script);
}

void tst_TourDriver::whatIsNoVerbOnlyChangesTheStep()
{
    QFETCH(QString, script);
    const auto before = Forms();
    move(script);
    QCOMPARE(Forms(), before);
    QVERIFY(m_system->diagram().SSRibbon1(1).Value());
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_TourDriver::theScriptsStepWinsOverWhatWasReported()
{
    openStep(*m_system);
    ShownTags shown(console());
    clickNext(*m_system, u"115/mn/Nav/Tips"_s); // the tool's own tag is 107
    QCOMPARE(shown.tags, (QStringList{u"107"_s, u"115"_s}));
    QCOMPARE(console().Header.Text(), u"Step 115"_s);
}

void tst_TourDriver::fieldsBehindTheLastOneAreIgnored()
{
    const frmIGSteps &guide = openStep(*m_system);
    clickNext(*m_system, u"129/mn/Nav/Procedure/and/more"_s);
    QVERIFY(guide.mnuNav.Tools(u"Procedure"_s).Checked());
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_TourDriver::noneLeavesTheConsoleAsItIs_data()
{
    QTest::addColumn<bool>("forward");
    QTest::addColumn<QString>("script");
    for (const bool forward : {true, false}) {
        QTest::addRow("%s, no move", forward ? "Next" : "Back") << forward << u"(none)"_s;
        QTest::addRow("%s, no step yet", forward ? "Next" : "Back") << forward << QString();
    }
}

void tst_TourDriver::noneLeavesTheConsoleAsItIs()
{
    QFETCH(QString, script);
    ShownTags shown(console());
    move(script);
    QCOMPARE(shown.tags, QStringList());
    QCOMPARE(console().Tag(), u"101"_s);
    QVERIFY(m_system->host.messages().empty());
}

void tst_TourDriver::aChainOfFiftyStepsHolds()
{
    const QStringList round{u"cc/2"_s,
                            u"cf/IG/STEP 17 - Emergency Preparedness and Response/127"_s,
                            u"mn/Nav/Procedure"_s,
                            u"mn/Nav/Implementation"_s,
                            u"rc"_s,
                            u"cb"_s,
                            u"mn/Nav/Tips"_s,
                            u"mm/mnuWindow/Command Center"_s,
                            u"cf/IG/STEP 17 - Emergency Preparedness and Response/127"_s,
                            u"ml/mnuRelated/Close"_s};
    constexpr int Steps = 50;
    for (int i = 1; i <= Steps; ++i) {
        const QString tag = QString::number(i % 2 == 0 ? 128 : 129);
        clickNext(*m_system, tag + u'/' + round.at((i - 1) % round.size()));
        QCOMPARE(console().Tag(), tag);
        QCOMPARE(countWindows(u"frmIGSteps"_s), i % 10 >= 2 ? 1 : 0);
        QCOMPARE(m_system->active() == &m_system->diagram(), i % 10 < 2 || i % 10 == 8);
    }
    QVERIFY(m_system->host.messages().empty());
}

QTEST_MAIN(tst_TourDriver)
#include "tst_TourDriver.moc"
