// The X server goes away under the program: it ends at once, with a failure code, and doesn't crash.
#include "faults/RunningProgram.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::test;

class tst_LostDisplay : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aDisplayThatGoesAwayEndsTheProgram_data();
    void aDisplayThatGoesAwayEndsTheProgram();
    void withoutADisplayTheProgramEndsAtTheStart();
};

namespace
{
void bringUp(RunningProgram &program, const PrivateDisplay &display, const QString &moment)
{
    QVERIFY(program.showsIntro());
    if (moment == u"intro") return;
    QVERIFY(program.leaveIntro());
    if (moment == u"diagram") return;
    const QString key = moment == u"help" ? u"F1"_s : u"alt+h"_s; // the latter opens a menu
    display.pressIn(*program.frame(), key);
    QTRY_VERIFY(display.windowsOf(program.processId()).size() > 2);
}
} // namespace

void tst_LostDisplay::initTestCase()
{
    const QString missing = PrivateDisplay::missingProgram();
    if (!missing.isEmpty()) QSKIP(qPrintable(missing + u" is not installed"_s));
}

void tst_LostDisplay::aDisplayThatGoesAwayEndsTheProgram_data()
{
    QTest::addColumn<QString>("moment");
    for (const QString &moment : {u"intro"_s, u"diagram"_s, u"help"_s, u"menu"_s})
        QTest::newRow(qPrintable(moment)) << moment;
}

void tst_LostDisplay::aDisplayThatGoesAwayEndsTheProgram()
{
    QFETCH(const QString, moment);
    PrivateDisplay display;
    RunningProgram program(display);
    program.start();
    bringUp(program, display, moment);
    if (QTest::currentTestFailed()) return;
    display.kill();
    const auto code = program.exitCode();
    QVERIFY2(code.has_value(), "the program crashed, or lives on");
    QVERIFY(*code != 0);
}

void tst_LostDisplay::withoutADisplayTheProgramEndsAtTheStart()
{
    PrivateDisplay display;
    RunningProgram program(display);
    // Beyond the last number of a server: that of one which went may be another's by now.
    program.set(u"DISPLAY"_s, u":65535"_s);
    program.start();
    const auto code = program.exitCode();
    QVERIFY2(code.has_value(), "the program crashed, or lives on");
    QVERIFY(*code != 0);
    QVERIFY(program.complaints().contains("could not connect to display"));
}

QTEST_GUILESS_MAIN(tst_LostDisplay)
#include "tst_LostDisplay.moc"
