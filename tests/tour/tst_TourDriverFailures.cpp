// A script is trusted: what it names and isn't there ends the program, loudly.
#include "layouts/frmIGSteps_mnuLinks.h"
#include "layouts/frmIGSteps_mnuNav.h"
#include "layouts/frmPrint_mnuPrintPreview.h"
#include "tour/Moves.h"
#include "tour/NamedWindow.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_TourDriverFailures : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aScriptOfTheDiagramThatCanNotBeDoneEndsTheProgram_data();
    void aScriptOfTheDiagramThatCanNotBeDoneEndsTheProgram();
    void aScriptOfTheMainMenuThatCanNotBeDoneEndsTheProgram_data();
    void aScriptOfTheMainMenuThatCanNotBeDoneEndsTheProgram();
    void aNameThatAWindowLacksEndsTheProgram_data();
    void aNameThatAWindowLacksEndsTheProgram();
    void aHandlerThatAWindowLacksEndsTheProgram_data();
    void aHandlerThatAWindowLacksEndsTheProgram();
    void withoutAnActiveWindowEveryMoveEndsTheProgram_data();
    void withoutAnActiveWindowEveryMoveEndsTheProgram();

private:
    void expectFailure(int number, const QString &named, const std::function<void()> &act);
    void expectFailureBothWays(const QString &script, int number, const QString &named);

    std::optional<RunningSystem> m_system;
};

void tst_TourDriverFailures::init()
{
    m_system.emplace();
    m_system->start();
}

void tst_TourDriverFailures::cleanup()
{
    m_system.reset();
}

// The failure says what it missed, and the step stays.
void tst_TourDriverFailures::expectFailure(int number, const QString &named, const std::function<void()> &act)
{
    m_system->host.expectAnyMessage();
    m_system->host.expectEnd(1);
    act();
    QVERIFY2(!m_system->host.messages().empty(), "The script was carried out.");
    const QString said = m_system->host.messages().back().text;
    QVERIFY2(said.startsWith(u"Error %1: "_s.arg(number)), qPrintable(said));
    QVERIFY2(said.contains(named), qPrintable(said));
    QCOMPARE(m_system->host.exitCode(), std::optional(1));
    QCOMPARE(m_system->console().Tag(), u"101"_s);
}

void tst_TourDriverFailures::expectFailureBothWays(const QString &script, int number, const QString &named)
{
    expectFailure(number, named, [&] { clickNext(*m_system, script); });
    expectFailure(number, named, [&] { clickBack(*m_system, script); });
}

void tst_TourDriverFailures::aScriptOfTheDiagramThatCanNotBeDoneEndsTheProgram_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("named");
    QTest::newRow("no verb") << u"129"_s << int(SubscriptOutOfRange) << u"129"_s;
    QTest::newRow("no module") << u"129/cf"_s << int(SubscriptOutOfRange) << u"129/cf"_s;
    QTest::newRow("no title") << u"129/cf/IG"_s << int(SubscriptOutOfRange) << u"129/cf/IG"_s;
    QTest::newRow("no section") << u"129/cf/RC/A title"_s << int(SubscriptOutOfRange) << u"129/cf/RC/A title"_s;
    QTest::newRow("no tab number") << u"129/cc"_s << int(TypeMismatch) << u"c"_s;
    QTest::newRow("a letter for a tab") << u"129/cc/3x"_s << int(TypeMismatch) << u"x"_s;
    QTest::newRow("a slash for a tab") << u"129/cc/3/"_s << int(TypeMismatch) << u"/"_s;
    QTest::newRow("tab 0") << u"129/cc/0"_s << int(NoSuchControlArrayElement) << u"SSRibbon1"_s;
    QTest::newRow("tab 6") << u"129/cc/16"_s << int(NoSuchControlArrayElement) << u"6"_s;
    QTest::newRow("a click in the diagram") << u"129/rc"_s << int(NoSuchMember) << u"rtfData_MouseUp"_s;
    QTest::newRow("advice of the diagram") << u"129/cb"_s << int(NoSuchMember) << u"cmdTipsClose_Click"_s;
}

void tst_TourDriverFailures::aScriptOfTheDiagramThatCanNotBeDoneEndsTheProgram()
{
    QFETCH(QString, script);
    QFETCH(int, number);
    QFETCH(QString, named);
    expectFailureBothWays(script, number, named);
    QCOMPARE(m_system->active(), &m_system->diagram());
}

void tst_TourDriverFailures::aScriptOfTheMainMenuThatCanNotBeDoneEndsTheProgram_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("named");
    QTest::newRow("no band") << u"129/mm"_s << u"129/mm"_s;
    QTest::newRow("no tool") << u"129/mm/mnuFile"_s << u"129/mm/mnuFile"_s;
    QTest::newRow("another band") << u"129/mm/nowhere/exit"_s << u"nowhere"_s;
    QTest::newRow("another tool") << u"129/mm/mnuFile/nothing"_s << u"nothing"_s;
    QTest::newRow("another case") << u"129/mm/mnufile/exit"_s << u"mnufile"_s;
}

void tst_TourDriverFailures::aScriptOfTheMainMenuThatCanNotBeDoneEndsTheProgram()
{
    QFETCH(QString, script);
    QFETCH(QString, named);
    expectFailure(SubscriptOutOfRange, named, [&] { clickNext(*m_system, script); });
}

void tst_TourDriverFailures::aNameThatAWindowLacksEndsTheProgram_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("named");
    const auto row = [](const char *window, const char *script, const char *named) {
        QTest::newRow(script) << QString::fromLatin1(window) << QString::fromLatin1(script)
                              << QString::fromLatin1(named);
    };
    row("frmIGSteps", "129/mn", "129/mn");
    row("frmIGSteps", "129/mn/Nav", "129/mn/Nav");
    row("frmIGSteps", "129/mn/nav/Tips", "nav");
    row("frmIGSteps", "129/mn/Nav/tips", "tips");
    row("frmRCMain", "129/ml", "129/ml");
    row("frmRCMain", "129/ml/mnuRelated", "129/ml/mnuRelated");
    row("frmRCMain", "129/ml/nowhere/Close", "nowhere");
    row("frmRCMain", "129/ml/mnuRelated/nothing", "nothing");
    row("frmPrint", "129/pp", "129/pp");
    row("frmPrint", "129/pp/bndPreview", "129/pp/bndPreview");
    row("frmPrint", "129/pp/nowhere/close", "nowhere");
    row("frmPrint", "129/pp/bndPreview/nothing", "nothing");
}

void tst_TourDriverFailures::aNameThatAWindowLacksEndsTheProgram()
{
    QFETCH(QString, window);
    QFETCH(QString, script);
    QFETCH(QString, named);
    NamedWindow &active = NamedWindow::open(window);
    active.addAnsweredBar(u"mnuNav"_s, layouts::frmIGSteps_mnuNav);
    active.addAnsweredBar(u"mnuLinks"_s, layouts::frmIGSteps_mnuLinks);
    active.addAnsweredBar(u"mnuPrintPreview"_s, layouts::frmPrint_mnuPrintPreview);
    expectFailureBothWays(script, SubscriptOutOfRange, named);
    QCOMPARE(active.notes, QStringList());
}

void tst_TourDriverFailures::aHandlerThatAWindowLacksEndsTheProgram_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<bool>("bars");
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("named");
    const auto row = [](const char *window, const char *script, const char *bar) {
        const QString name = QString::fromLatin1(bar);
        QTest::addRow("no bar: %s", script)
            << QString::fromLatin1(window) << false << QString::fromLatin1(script) << name;
        QTest::addRow("no handler: %s", script)
            << QString::fromLatin1(window) << true << QString::fromLatin1(script) << name + u"_Click"_s;
    };
    row("frmATMain", "129/mn/Nav/Tips", "mnuNav");
    row("frmMPMain", "129/ml/mnuRelated/Close", "mnuLinks");
    row("frmPrint", "129/pp/bndPreview/close", "mnuPrintPreview");
}

void tst_TourDriverFailures::aHandlerThatAWindowLacksEndsTheProgram()
{
    QFETCH(QString, window);
    QFETCH(bool, bars);
    QFETCH(QString, script);
    QFETCH(QString, named);
    NamedWindow &active = NamedWindow::open(window);
    if (bars) {
        active.addBar(u"mnuNav"_s, layouts::frmIGSteps_mnuNav);
        active.addBar(u"mnuLinks"_s, layouts::frmIGSteps_mnuLinks);
        active.addBar(u"mnuPrintPreview"_s, layouts::frmPrint_mnuPrintPreview);
    }
    expectFailureBothWays(script, NoSuchMember, named);
}

void tst_TourDriverFailures::withoutAnActiveWindowEveryMoveEndsTheProgram_data()
{
    QTest::addColumn<QString>("script");
    // The name is asked for in any case, whatever the script.
    for (const char *script : {"129/mn/Nav/Tips", "129/ml/mnuRelated/Close", "129/pp/bndPreview/close", "129/rc",
                               "129/cb", "129/cc/3", "129/xx", "(none)", ""})
        QTest::addRow("<%s>", script) << QString::fromLatin1(script);
}

void tst_TourDriverFailures::withoutAnActiveWindowEveryMoveEndsTheProgram()
{
    QFETCH(QString, script);
    m_system->diagram().Hide();
    QVERIFY(!m_system->active());
    expectFailureBothWays(script, ObjectNotSet, QString());
    QVERIFY(m_system->diagram().SSRibbon1(1).Value());
}

QTEST_MAIN(tst_TourDriverFailures)
#include "tst_TourDriverFailures.moc"
