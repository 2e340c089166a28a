// The program in a folder from which bytes come slowly: it reads nothing before it is needed.
#include "faults/FolderWatch.h"
#include "faults/RunningProgram.h"

#include <QFile>
#include <QSet>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::test;

class tst_SlowDisk : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_display.reset(); }
    void eachFileIsOpenedWhenItIsNeeded();
    void aSlowFileHoldsUpOnlyWhatNeedsIt();

private:
    std::unique_ptr<PrivateDisplay> m_display;
};

void tst_SlowDisk::initTestCase()
{
    const QString missing = PrivateDisplay::missingProgram();
    if (!missing.isEmpty()) QSKIP(qPrintable(missing + u" is not installed"_s));
    m_display = std::make_unique<PrivateDisplay>();
}

void tst_SlowDisk::eachFileIsOpenedWhenItIsNeeded()
{
    RunningProgram program(*m_display);
    const FolderWatch watch(program.folder());
    QSet<QString> known;
    const auto opened = [&] {
        for (const QString &name : watch.opened())
            known << name;
        return known;
    };
    program.start();
    QVERIFY(program.showsIntro());
    QCOMPARE(opened(), QSet<QString>{u"orvane"_s});
    QVERIFY(program.leaveIntro());
    QTRY_COMPARE(opened(), (QSet<QString>{u"orvane"_s, u"DealerData.dat"_s, u"DemoData.ini"_s}));
    m_display->pressIn(*program.frame(), u"F1"_s);
    QTRY_VERIFY(opened().contains(u"Orvane.hlp"_s));
}

// A pipe in the file's place gives its bytes when the test wants it.
void tst_SlowDisk::aSlowFileHoldsUpOnlyWhatNeedsIt()
{
    RunningProgram program(*m_display);
    const QString file = program.file(u"DealerData.dat"_s);
    QVERIFY(QFile::remove(file));
    QCOMPARE(::mkfifo(QFile::encodeName(file).constData(), 0600), 0);
    program.start();
    QVERIFY(program.showsIntro()); // which doesn't wait for it
    program.leaveIntroAtOnce();
    QFile pipe(file);
    QVERIFY(pipe.open(QIODevice::WriteOnly)); // waits for the program to ask for the file
    QVERIFY(program.isRunning());
    QCOMPARE(pipe.write("BB"), qint64(2));
    pipe.close();
    QVERIFY(program.console() && program.frame());
    QVERIFY(program.closeAndQuit());
    QCOMPARE(program.exitCode(), 0);
}

QTEST_GUILESS_MAIN(tst_SlowDisk)
#include "tst_SlowDisk.moc"
