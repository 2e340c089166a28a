// The program on machines that lack what a usual one has: it starts, shows its windows, ends by Quit, and leaves its
// own folder as it was.
#include "faults/RunningProgram.h"

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::test;

namespace
{
using Variables = QMap<QString, QString>;
const QString Nowhere = u"/nowhere/at/all"_s;

// Names, sizes and times, which any write would change.
QStringList look(const QString &folder)
{
    QStringList lines;
    for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        lines << u"%1 %2 %3"_s.arg(file.fileName()).arg(file.size()).arg(file.lastModified().toMSecsSinceEpoch());
    return lines;
}
} // namespace

class tst_StrangeMachines : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_display.reset(); }
    void theProgramRunsWith_data();
    void theProgramRunsWith();
    void theProgramRunsForNobodyAndWritesNothing();
    void theProgramRunsWithoutAHomeVariable();
    void twoProgramsOfOneUserRunSideBySide();

private:
    void runToTheEnd(RunningProgram &program) const;

    std::unique_ptr<PrivateDisplay> m_display;
};

void tst_StrangeMachines::initTestCase()
{
    const QString missing = PrivateDisplay::missingProgram();
    if (!missing.isEmpty()) QSKIP(qPrintable(missing + u" is not installed"_s));
    m_display = std::make_unique<PrivateDisplay>();
}

void tst_StrangeMachines::runToTheEnd(RunningProgram &program) const
{
    const QStringList before = look(program.folder());
    program.start();
    QVERIFY2(program.leaveIntro(), program.complaints().constData());
    QVERIFY(m_display->windowsOf(program.processId()).size() == 2); // the frame and the console, and no message
    QVERIFY(program.closeAndQuit());
    QCOMPARE(program.exitCode(), 0);
    QCOMPARE(look(program.folder()), before);
}

void tst_StrangeMachines::theProgramRunsWith_data()
{
    QTest::addColumn<Variables>("variables");
    QTest::newRow("all that there usually is") << Variables();
    QTest::newRow("no such home folder") << Variables{{u"HOME"_s, Nowhere}};
    QTest::newRow("no fonts") << Variables{
        {u"FONTCONFIG_FILE"_s, QStringLiteral(ORVANE_TEST_DATA "/faults/nofonts.conf")}};
    QTest::newRow("no session bus") << Variables{{u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path="_s + Nowhere},
                                                 {u"DBUS_SYSTEM_BUS_ADDRESS"_s, u"unix:path="_s + Nowhere}};
    QTest::newRow("no print service") << Variables{{u"CUPS_SERVER"_s, Nowhere}};
    QTest::newRow("no folder for what is temporary") << Variables{{u"TMPDIR"_s, Nowhere}};
    QTest::newRow("no programs") << Variables{{u"PATH"_s, Nowhere}};
    for (const QString &locale : {u"ar_EG.UTF-8"_s, u"fa_IR.UTF-8"_s, u"de_DE.UTF-8"_s, u"C"_s, u"no_SUCH"_s})
        QTest::addRow("locale %s", qPrintable(locale)) << Variables{{u"LC_ALL"_s, locale}, {u"LANG"_s, locale}};
}

void tst_StrangeMachines::theProgramRunsWith()
{
    QFETCH(const Variables, variables);
    RunningProgram program(*m_display);
    for (const auto &[name, value] : variables.asKeyValueRange())
        program.set(name, value);
    runToTheEnd(program);
}

// Root may write anywhere, so the program is somebody else's.
void tst_StrangeMachines::theProgramRunsForNobodyAndWritesNothing()
{
    RunningProgram program(*m_display);
    program.runAsNobody();
    runToTheEnd(program);
    QVERIFY(QDir(program.home()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

void tst_StrangeMachines::theProgramRunsWithoutAHomeVariable()
{
    RunningProgram program(*m_display);
    for (const QString &variable : {u"HOME"_s, u"XDG_RUNTIME_DIR"_s, u"USER"_s, u"LOGNAME"_s})
        program.unset(variable);
    runToTheEnd(program);
}

void tst_StrangeMachines::twoProgramsOfOneUserRunSideBySide()
{
    RunningProgram first(*m_display);
    RunningProgram second(*m_display);
    second.set(u"HOME"_s, first.home());
    for (RunningProgram *program : {&first, &second}) {
        program->start();
        QVERIFY2(program->leaveIntro(), program->complaints().constData());
    }
    for (RunningProgram *program : {&first, &second}) {
        m_display->pressIn(*program->frame(), u"F1"_s);
        QTRY_COMPARE(m_display->windowsOf(program->processId()).size(), 3); // the help too
    }
    for (RunningProgram *program : {&first, &second}) {
        QVERIFY(program->closeAndQuit());
        QCOMPARE(program->exitCode(), 0);
    }
}

QTEST_GUILESS_MAIN(tst_StrangeMachines)
#include "tst_StrangeMachines.moc"
