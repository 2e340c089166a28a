// What the console makes of the tags that are reported.
#include "support/RunningSystem.h"
#include "tour/Moves.h"
#include "tour/TourScriptFile.h"
#include "tour/modDemo.h"

#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
QString none()
{
    return u"(none)"_s;
}

// Counts how often a window is brought to the front.
class Raises : public QObject
{
public:
    explicit Raises(const Form &window) { window.shell().installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::ZOrderChange) ++count;
        return false;
    }
};
} // namespace

class tst_ShowTourStep : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void everyStateAnswersInItsWay_data();
    void everyStateAnswersInItsWay();
    void theNoticeBlocksUntilItsTimeIsOver();
    void theNoticeComesUpWithTheConsoleHidden();
    void theNoticeComesUpInTheEndedState();
    void theNoticeIsKnownByItsNumber();
    void aMutedSystemHearsNothing_data();
    void aMutedSystemHearsNothing();
    void aStepBringsTheConsoleForward();
    void theEndedStateBringsTheConsoleForwardToo();
    void theEndShowsQuitAlone();
    void theEndWithoutDealerTextHidesTheDealersBox();
    void theEndWithDealerTextIsAnotherStep();
    void theEndWithDealerTextNeverReadsTheOtherSection();
    void theCallersTagIsChangedByDealerTextAlone_data();
    void theCallersTagIsChangedByDealerTextAlone();
    void aSecondEndOnlyDisablesTheButtons();
    void theDealersEndHandedInDirectlyShowsNoQuit();
    void zeroHidesQuitAndInfoAndLeavesTheTexts();
    void aStepHidesQuitAndInfo();
    void hiddenButtonsStayHidden();
    void aButtonWithoutAMoveStaysEnabled();
    void aTagIsComparedAsANumber_data();
    void aTagIsComparedAsANumber();
    void aTagThatIsNoNumberEndsTheProgram_data();
    void aTagThatIsNoNumberEndsTheProgram();
    void aHiddenConsoleRefusesWhatIsNoNumberToo();
    void aConsoleTagThatIsNoNumberEndsTheProgram();
    void theFrameForwardsANumber();

private:
    frmDemo &console() const { return m_system->console(); }
    void showNotice(const QString &tag);
    void reach(const QString &state) const;

    std::optional<RunningSystem> m_system;
};

void tst_ShowTourStep::init()
{
    m_system.emplace();
    m_system->start();
}

void tst_ShowTourStep::cleanup()
{
    m_system.reset();
}

// Reports the tag and lets the notice's two seconds pass.
void tst_ShowTourStep::showNotice(const QString &tag)
{
    bool shown = false;
    m_system->whileModal([&] { ShowTourStep(QString(tag)); },
                         [&] {
                             shown = countWindows(u"frmError"_s) == 1 && Default<frmError>().Visible();
                             m_system->host.advance(2000);
                         });
    QVERIFY(shown);
    QCOMPARE(countWindows(u"frmError"_s), 0);
}

void tst_ShowTourStep::reach(const QString &state) const
{
    if (state == u"hidden"_s) console().setVisible(false);
    if (state == u"muted"_s) Shared().TourStepsMuted = True;
    if (state == u"ended with dealer"_s) Shared().DealerTextPresent = True;
    if (state.startsWith(u"ended"_s)) ShowTourStep(u"603"_s);
}

void tst_ShowTourStep::everyStateAnswersInItsWay_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("shown"); // the console's tag afterwards
    QTest::addColumn<bool>("quit");
    QTest::addColumn<bool>("buttons");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("info");
    const auto row = [](const char *state, const char *tag, const char *shown, bool quit, bool buttons, bool enabled,
                        bool info) {
        QTest::addRow("%s %s", state, tag) << QString::fromLatin1(state) << QString::fromLatin1(tag)
                                           << QString::fromLatin1(shown) << quit << buttons << enabled << info;
    };
    row("running", "127", "127", false, true, true, false);
    row("running", "0", "101", false, true, true, false);
    row("running", "603", "603", true, false, true, false);
    row("running", "604", "604", false, true, true, false);
    row("hidden", "127", "101", false, true, true, false);
    row("hidden", "0", "101", false, true, true, false);
    row("hidden", "603", "101", false, true, true, false);
    row("muted", "127", "101", false, true, true, false);
    row("muted", "603", "101", false, true, true, false);
    row("ended", "127", "603", true, false, false, false);
    row("ended", "0", "603", true, false, false, false);
    row("ended", "603", "603", true, false, false, false);
    row("ended", "604", "603", true, false, false, false);
    row("ended with dealer", "127", "604", true, false, false, true);
    row("ended with dealer", "603", "604", true, false, false, true);
}

void tst_ShowTourStep::everyStateAnswersInItsWay()
{
    QFETCH(QString, state);
    QFETCH(QString, tag);
    reach(state);
    ShowTourStep(tag);
    QTEST(console().Tag(), "shown");
    QTEST(console().cmdQuit.Visible(), "quit");
    for (const CommandButton *button : {&console().cmdGoNext, &console().cmdGoBack}) {
        QTEST(button->Visible(), "buttons");
        QTEST(button->Enabled(), "enabled");
    }
    QTEST(console().txtInfo.Visible(), "info");
    QCOMPARE(console().Visible(), state != u"hidden"_s);
}

void tst_ShowTourStep::theNoticeBlocksUntilItsTimeIsOver()
{
    bool returned = false;
    bool stillUp = false;
    const auto report = [&] {
        ShowTourStep(u"900"_s);
        returned = true;
    };
    m_system->whileModal(report, [&] {
        m_system->host.advance(1999);
        stillUp = !returned && Default<frmError>().Visible() && Default<frmError>().shell().isModal();
        m_system->host.advance(1);
    });
    QVERIFY(stillUp);
    QCOMPARE(console().Tag(), u"101"_s);
    QCOMPARE(console().Header.Text(), u"Step 101"_s);
}

void tst_ShowTourStep::theNoticeComesUpWithTheConsoleHidden()
{
    console().setVisible(false);
    showNotice(u"900"_s);
    QVERIFY(!console().Visible());
    QCOMPARE(console().Tag(), u"101"_s);
}

void tst_ShowTourStep::theNoticeComesUpInTheEndedState()
{
    ShowTourStep(u"603"_s);
    showNotice(u"900"_s);
    QCOMPARE(console().Tag(), u"603"_s);
    QVERIFY(console().cmdGoNext.Enabled());
}

void tst_ShowTourStep::theNoticeIsKnownByItsNumber()
{
    showNotice(u"0900"_s);
    QCOMPARE(console().Tag(), u"101"_s);
}

void tst_ShowTourStep::aMutedSystemHearsNothing_data()
{
    QTest::addColumn<QString>("tag");
    for (const char *tag : {"900", "127", "603", "0", "no number"})
        QTest::newRow(tag) << QString::fromLatin1(tag);
}

void tst_ShowTourStep::aMutedSystemHearsNothing()
{
    QFETCH(QString, tag);
    console().cmdQuit.setVisible(true); // which any other step would hide
    Shared().TourStepsMuted = True;
    const Raises raises(console());
    bool noticed = false;
    QTimer watch; // a notice would wait for the end of its time
    connect(&watch, &QTimer::timeout, this, [&] {
        noticed = true;
        m_system->host.advance(2000);
    });
    watch.start(1);
    ShowTourStep(tag);
    QVERIFY(!noticed);
    QCOMPARE(console().Tag(), u"101"_s);
    QVERIFY(console().cmdQuit.Visible());
    QCOMPARE(raises.count, 0);
}

void tst_ShowTourStep::aStepBringsTheConsoleForward()
{
    const Raises raises(console());
    ShowTourStep(u"127"_s);
    QCOMPARE(raises.count, 1);
    console().setVisible(false);
    ShowTourStep(u"128"_s);
    QCOMPARE(raises.count, 1);
}

void tst_ShowTourStep::theEndedStateBringsTheConsoleForwardToo()
{
    ShowTourStep(u"603"_s);
    const Raises raises(console());
    ShowTourStep(u"127"_s);
    QCOMPARE(raises.count, 1);
}

void tst_ShowTourStep::theEndShowsQuitAlone()
{
    ShowTourStep(u"603"_s);
    QCOMPARE(console().Tag(), u"603"_s);
    QCOMPARE(console().Header.Text(), u"Step 603"_s);
    QVERIFY(console().cmdQuit.Visible());
    QVERIFY(!console().cmdGoNext.Visible());
    QVERIFY(!console().cmdGoBack.Visible());
    QVERIFY(!console().txtInfo.Visible());
}

void tst_ShowTourStep::theEndWithoutDealerTextHidesTheDealersBox()
{
    console().txtInfo.setVisible(true);
    ShowTourStep(u"603"_s);
    QVERIFY(!console().txtInfo.Visible());
}

void tst_ShowTourStep::theEndWithDealerTextIsAnotherStep()
{
    Shared().DealerTextPresent = True;
    ShowTourStep(u"603"_s);
    QCOMPARE(console().Tag(), u"604"_s);
    QCOMPARE(console().txtTag.Text(), u"604"_s);
    QCOMPARE(console().Header.Text(), u"Step 604"_s);
    QVERIFY(console().cmdQuit.Visible());
    QVERIFY(!console().cmdGoNext.Visible());
    QVERIFY(!console().cmdGoBack.Visible());
    QVERIFY(console().txtInfo.Visible());
}

void tst_ShowTourStep::theEndWithDealerTextNeverReadsTheOtherSection()
{
    m_system->writeScript({u"603"_s});
    Shared().DealerTextPresent = True;
    ShowTourStep(u"603"_s);
    QCOMPARE(console().Header.Text(), none());
    QCOMPARE(console().rtf.Text(), none());
}

void tst_ShowTourStep::theCallersTagIsChangedByDealerTextAlone_data()
{
    QTest::addColumn<bool>("dealer");
    QTest::addColumn<QString>("handedIn");
    QTest::addColumn<QString>("cameBack");
    QTest::newRow("end with dealer") << true << u"603"_s << u"604"_s;
    QTest::newRow("end without") << false << u"603"_s << u"603"_s;
    QTest::newRow("step with dealer") << true << u"127"_s << u"127"_s;
}

void tst_ShowTourStep::theCallersTagIsChangedByDealerTextAlone()
{
    QFETCH(bool, dealer);
    QFETCH(QString, handedIn);
    Shared().DealerTextPresent = dealer;
    ShowTourStep(handedIn);
    QTEST(handedIn, "cameBack");
}

void tst_ShowTourStep::aSecondEndOnlyDisablesTheButtons()
{
    ShowTourStep(u"603"_s);
    QVERIFY(console().cmdGoNext.Enabled());
    m_system->host.writeFile(u"DemoData.ini"_s, section("603", line("Header", "Changed")));
    Shared().DealerTextPresent = True;
    ShowTourStep(u"603"_s);
    QVERIFY(!console().cmdGoNext.Enabled());
    QVERIFY(!console().cmdGoBack.Enabled());
    QCOMPARE(console().Tag(), u"603"_s);
    QCOMPARE(console().Header.Text(), u"Step 603"_s);
    QVERIFY(!console().txtInfo.Visible());
}

void tst_ShowTourStep::theDealersEndHandedInDirectlyShowsNoQuit()
{
    Shared().DealerTextPresent = True;
    console().cmdQuit.setVisible(true);
    console().txtInfo.setVisible(true);
    ShowTourStep(u"604"_s);
    QVERIFY(!console().cmdQuit.Visible());
    QVERIFY(!console().txtInfo.Visible());
    QVERIFY(console().cmdGoNext.Visible());
    QCOMPARE(console().Tag(), u"604"_s);
    ShowTourStep(u"127"_s);
    QCOMPARE(console().Tag(), u"604"_s);
    QVERIFY(!console().cmdGoNext.Enabled());
}

void tst_ShowTourStep::zeroHidesQuitAndInfoAndLeavesTheTexts()
{
    console().cmdQuit.setVisible(true);
    console().txtInfo.setVisible(true);
    m_system->host.writeFile(u"DemoData.ini"_s, step("0", "1/cc/1", "2/cc/2"));
    ShowTourStep(u"0"_s);
    QVERIFY(!console().cmdQuit.Visible());
    QVERIFY(!console().txtInfo.Visible());
    QCOMPARE(console().Tag(), u"101"_s);
    QCOMPARE(console().txtTag.Text(), u"101"_s);
    QCOMPARE(console().Header.Text(), u"Step 101"_s);
    QCOMPARE(console().rtf.Text(), u"Text of 101"_s);
    QCOMPARE(console().cmdGoNext.Tag(), none());
}

void tst_ShowTourStep::aStepHidesQuitAndInfo()
{
    console().cmdQuit.setVisible(true);
    console().txtInfo.setVisible(true);
    ShowTourStep(u"127"_s);
    QVERIFY(!console().cmdQuit.Visible());
    QVERIFY(!console().txtInfo.Visible());
}

void tst_ShowTourStep::hiddenButtonsStayHidden()
{
    console().cmdGoNext.setVisible(false);
    console().cmdGoBack.setVisible(false);
    ShowTourStep(u"127"_s);
    QCOMPARE(console().Tag(), u"127"_s);
    QVERIFY(!console().cmdGoNext.Visible());
    QVERIFY(!console().cmdGoBack.Visible());
}

void tst_ShowTourStep::aButtonWithoutAMoveStaysEnabled()
{
    ShowTourStep(u"127"_s);
    QCOMPARE(console().cmdGoNext.Tag(), none());
    QCOMPARE(console().txtNext.Text(), none());
    QVERIFY(console().cmdGoNext.Enabled());
    m_system->click(console().cmdGoNext);
    m_system->click(console().cmdGoBack);
    QCOMPARE(console().Tag(), u"127"_s);
}

void tst_ShowTourStep::aTagIsComparedAsANumber_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("quit");
    QTest::newRow("the end") << u"0603"_s << u"0603"_s << true;
    QTest::newRow("the end with a fraction") << u"603.0"_s << u"603.0"_s << true;
    QTest::newRow("nothing") << u"00"_s << u"101"_s << false;
    QTest::newRow("nearly nothing") << u"0.5"_s << u"0.5"_s << false;
    QTest::newRow("nearly the end") << u"603.5"_s << u"603.5"_s << false;
}

void tst_ShowTourStep::aTagIsComparedAsANumber()
{
    QFETCH(QString, tag);
    ShowTourStep(tag);
    QTEST(console().Tag(), "shown");
    QTEST(console().cmdQuit.Visible(), "quit");
}

void tst_ShowTourStep::aTagThatIsNoNumberEndsTheProgram_data()
{
    QTest::addColumn<QString>("tag");
    QTest::newRow("empty") << QString();
    QTest::newRow("letters") << u"abc"_s;
    QTest::newRow("number and letter") << u"12a"_s;
    QTest::newRow("two numbers") << u"12 13"_s;
}

void tst_ShowTourStep::aTagThatIsNoNumberEndsTheProgram()
{
    QFETCH(QString, tag);
    m_system->host.expectAnyMessage();
    m_system->host.expectEnd(1);
    clickNext(*m_system, tag + u"/xx"_s);
    QCOMPARE(m_system->host.exitCode(), std::optional(1));
    QVERIFY(m_system->host.messages().back().text.startsWith(u"Error 13: "_s));
    QCOMPARE(console().Tag(), u"101"_s);
}

void tst_ShowTourStep::aHiddenConsoleRefusesWhatIsNoNumberToo()
{
    console().setVisible(false);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, ShowTourStep(u"abc"_s));
}

void tst_ShowTourStep::aConsoleTagThatIsNoNumberEndsTheProgram()
{
    console().setTag(u"here"_s);
    m_system->host.expectAnyMessage();
    m_system->host.expectEnd(1);
    clickNext(*m_system, u"127/xx"_s);
    QVERIFY(m_system->host.messages().back().text.startsWith(u"Error 13: "_s));
    QCOMPARE(console().Tag(), u"here"_s);
}

void tst_ShowTourStep::theFrameForwardsANumber()
{
    m_system->frame().ShowTourStepNumber(127);
    QCOMPARE(console().Tag(), u"127"_s);
}

QTEST_MAIN(tst_ShowTourStep)
#include "tst_ShowTourStep.moc"
