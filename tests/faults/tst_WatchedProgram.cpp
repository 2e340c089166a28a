// The program itself, walked through its whole tour by clicks, while somebody looks at what it has open.
#include "faults/ProcessWatch.h"
#include "faults/RunningProgram.h"

#include <QDir>
#include <QSet>
#include <QTest>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::test;

class tst_WatchedProgram : public QObject
{
    Q_OBJECT

private slots:
    void aSocketOfTheNetworkIsSeen_data();
    void aSocketOfTheNetworkIsSeen();
    void aChildIsSeen();
    void theTourOpensNoConnectionAndStartsNoProgram();
};

// Or the watch would be blind.
void tst_WatchedProgram::aSocketOfTheNetworkIsSeen_data()
{
    QTest::addColumn<int>("family");
    QTest::addColumn<int>("type");
    QTest::newRow("a stream") << AF_INET << int(SOCK_STREAM);
    QTest::newRow("packets") << AF_INET << int(SOCK_DGRAM);
    QTest::newRow("the kernel's own") << AF_NETLINK << int(SOCK_RAW);
}

void tst_WatchedProgram::aSocketOfTheNetworkIsSeen()
{
    QFETCH(int, family);
    QFETCH(int, type);
    const int socket = ::socket(family, type | SOCK_CLOEXEC, 0);
    QVERIFY(socket >= 0);
    QCOMPARE(socketsToElsewhere(::getpid()).size(), 1);
    ::close(socket);
    QCOMPARE(socketsToElsewhere(::getpid()).size(), 0);
}

void tst_WatchedProgram::aChildIsSeen()
{
    QProcess child;
    child.start(u"/bin/sleep"_s, {u"60"_s});
    QVERIFY(child.waitForStarted());
    QCOMPARE(childrenOf(::getpid()).size(), 1);
    const QString name = childrenOf(::getpid()).constFirst();
    QVERIFY(name.contains(u"sleep") || name.contains(u"busybox") || name.contains(u"coreutils"));
    child.kill();
    child.waitForFinished();
    QCOMPARE(childrenOf(::getpid()).size(), 0);
}

// A click on the place of Quit meets the console's text until the end of the tour, and does nothing there.
void tst_WatchedProgram::theTourOpensNoConnectionAndStartsNoProgram()
{
    constexpr int MostRounds = 200;
    const QString missing = PrivateDisplay::missingProgram();
    if (!missing.isEmpty()) QSKIP(qPrintable(missing + u" is not installed"_s));
    PrivateDisplay display({1280, 1024});
    RunningProgram program(display);
    const QTemporaryDir temporary;
    program.set(u"TMPDIR"_s, temporary.path());
    program.start();
    QVERIFY2(program.leaveIntro(), program.complaints().constData());
    const ShownWindow console = *program.console();
    QVERIFY(socketsOfThisMachine(program.processId()) > 0); // to the display
    QSet<QString> seen;
    for (int round = 0; round < MostRounds && program.isRunning(); ++round) {
        program.pressNext(console);
        QCOMPARE(socketsToElsewhere(program.processId()), QStringList());
        QCOMPARE(childrenOf(program.processId()), QStringList());
        if (round % 4 == 0)
            for (const QString &title : program.titles())
                seen << title;
        program.pressQuit(console);
        QTest::qWait(0); // so that the end of the process is noticed
    }
    QCOMPARE(program.exitCode(), 0);
    const QStringList titles(seen.begin(), seen.end());
    QVERIFY2(titles.size() > 5, qPrintable(titles.join(u' ')));
    QCOMPARE(QDir(temporary.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
}

QTEST_GUILESS_MAIN(tst_WatchedProgram)
#include "tst_WatchedProgram.moc"
