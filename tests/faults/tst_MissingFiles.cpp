// The program without one of the files that lie beside it, or with a damaged one.
#include "faults/RunningProgram.h"

#include <QFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::test;

class tst_MissingFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_display.reset(); }
    void withoutTheScriptTheProgramRuns();
    void withoutDealerDataTheProgramSaysSoAndEnds();
    void dealerDataThatIsNoneEndsTheProgramToo();
    void withoutTheHelpFileOnlyTheHelpIsMissing_data();
    void withoutTheHelpFileOnlyTheHelpIsMissing();

private:
    void endsWithAMessage(RunningProgram &program) const;

    std::unique_ptr<PrivateDisplay> m_display;
};

namespace
{
void write(const QString &fileName, const QByteArray &bytes)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}
} // namespace

void tst_MissingFiles::initTestCase()
{
    const QString missing = PrivateDisplay::missingProgram();
    if (!missing.isEmpty()) QSKIP(qPrintable(missing + u" is not installed"_s));
    m_display = std::make_unique<PrivateDisplay>();
}

void tst_MissingFiles::withoutTheScriptTheProgramRuns()
{
    RunningProgram program(*m_display);
    QVERIFY(QFile::remove(program.file(u"DemoData.ini"_s)));
    program.start();
    QVERIFY(program.leaveIntro());
    program.pressNext(*program.console());
    QVERIFY(program.closeAndQuit());
    QCOMPARE(program.exitCode(), 0);
}

void tst_MissingFiles::endsWithAMessage(RunningProgram &program) const
{
    program.start();
    QVERIFY(program.showsIntro());
    program.leaveIntroAtOnce();
    const auto message = program.message();
    QVERIFY(message);
    QVERIFY(program.isRunning()); // until the user has read it
    m_display->pressIn(*message, u"Return"_s);
    QCOMPARE(program.exitCode(), 1);
}

void tst_MissingFiles::withoutDealerDataTheProgramSaysSoAndEnds()
{
    RunningProgram program(*m_display);
    QVERIFY(QFile::remove(program.file(u"DealerData.dat"_s)));
    endsWithAMessage(program);
}

// The key of the first character is 1, so a code of 0 stands for none.
void tst_MissingFiles::dealerDataThatIsNoneEndsTheProgramToo()
{
    RunningProgram program(*m_display);
    write(program.file(u"DealerData.dat"_s), QByteArray(1, '\0'));
    endsWithAMessage(program);
}

void tst_MissingFiles::withoutTheHelpFileOnlyTheHelpIsMissing_data()
{
    QTest::addColumn<QByteArray>("bytes"); // none: there is no file
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("no help file") << QByteArray("This is no help file.");
    QTest::newRow("the head of one") << QByteArray("SQLite format 3\0\x10", 17);
}

void tst_MissingFiles::withoutTheHelpFileOnlyTheHelpIsMissing()
{
    QFETCH(const QByteArray, bytes);
    RunningProgram program(*m_display);
    QVERIFY(QFile::remove(program.file(u"Orvane.hlp"_s)));
    if (!bytes.isEmpty()) write(program.file(u"Orvane.hlp"_s), bytes);
    program.start();
    QVERIFY(program.leaveIntro());
    m_display->pressIn(*program.frame(), u"F1"_s);
    const auto message = program.message();
    QVERIFY(message);
    m_display->pressIn(*message, u"Return"_s);
    QVERIFY(program.closeAndQuit());
    QCOMPARE(program.exitCode(), 0);
}

QTEST_GUILESS_MAIN(tst_MissingFiles)
#include "tst_MissingFiles.moc"
