// The program tourwalk, from outside.
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_TourWalk : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void theShippedTourIsWalkedToItsEnd();
    void aStepStandsOnThePageWithItsPictureAndScripts();
    void theDocumentsOfTheModulesArePrinted();
    void aStepThatEndsTheProgramIsNamed();
    void aStepThatLeadsNowhereIsNamed();
    void aStepThatTheScriptLacksIsNamed();
    void aDialogThatNobodyAnswersIsClosed();
    void aRoundWithoutAnEndIsLeft();
    void wrongUseIsRefused_data();
    void wrongUseIsRefused();
    void withoutATemporaryFolderNothingIsWalked();
    void itsHelpNeedsNoDisplay();
    void withoutADisplayItFails();
    void noTemporaryFolderIsLeft_data();
    void noTemporaryFolderIsLeft();

private:
    int run(const QStringList &arguments);
    bool write(const QByteArray &script) const;
    int walk(const QByteArray &script);
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QByteArray page() const;
    QStringList files(const QString &pattern) const { return QDir(path(u"out"_s)).entryList({pattern}); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_output;
    QString m_errors;
};

namespace
{
QByteArray step(const QByteArray &tag, const QByteArray &heading, const QByteArray &next)
{
    return '[' + tag + "]\r\nHeader=" + heading +
           "\r\nRTF={\\rtf1 Look at \\b this\\b0  & that.\\par }\r\nNextRTF=" + next + "\r\nPrevRTF=(none)\r\n";
}

QByteArray anEnd()
{
    return step("603", "The end", "(none)");
}

// The program started meanwhile finds no display.
auto takeDisplayAway()
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("QT_QPA_PLATFORM", "xcb");
    qunsetenv("DISPLAY");
    return qScopeGuard([platform, display] {
        qputenv("QT_QPA_PLATFORM", platform);
        if (!display.isEmpty()) qputenv("DISPLAY", display);
    });
}
} // namespace

int tst_TourWalk::run(const QStringList &arguments)
{
    QProcess process;
    process.setWorkingDirectory(m_folder->path());
    process.start(QStringLiteral(ORVANE_TOOLS_DIR "/tourwalk"), arguments);
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit) return -1;
    m_output = QString::fromUtf8(process.readAllStandardOutput());
    m_errors = QString::fromUtf8(process.readAllStandardError());
    return process.exitCode();
}

bool tst_TourWalk::write(const QByteArray &script) const
{
    QFile file(path(u"script.ini"_s));
    return file.open(QIODevice::WriteOnly) && file.write(script) == script.size();
}

int tst_TourWalk::walk(const QByteArray &script)
{
    return write(script) ? run({u"script.ini"_s}) : -1;
}

QByteArray tst_TourWalk::page() const
{
    QFile file(path(u"out/index.html"_s));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_TourWalk::theShippedTourIsWalkedToItsEnd()
{
    QVERIFY2(run({u"--out"_s, path(u"out"_s)}) == 0, qPrintable(m_errors));
    static const QRegularExpression figures(u"^(\\d+) steps, (\\d+) pictures, 5 documents and 0 complaints; see "_s);
    const auto found = figures.match(m_output);
    QVERIFY2(found.hasMatch(), qPrintable(m_output));
    const int pictures = found.captured(2).toInt();
    QCOMPARE(pictures, found.captured(1).toInt() + 2); // the splash and the intro too
    QCOMPARE(files(u"*.png"_s).size(), pictures);
    QCOMPARE(page().count("<img "), pictures);
    QCOMPARE(page().count(" alt=\"\""), 0);
}

void tst_TourWalk::aStepStandsOnThePageWithItsPictureAndScripts()
{
    QVERIFY2(walk(step("101", "One <first>", "603/cc/2") + anEnd()) == 0, qPrintable(m_errors));
    QVERIFY(page().contains("<h2>One &lt;first&gt;</h2>"));
    QVERIFY2(page().contains("<p>Look at <b>this</b> &amp; that.</p>"), page().constData());
    QVERIFY(page().contains("<code>603/cc/2</code>"));
    QVERIFY(page().contains("<img src=\"02-step-101.png\" alt=\"The window &quot;Command Center&quot; of orvane, and "
                            "the console on &quot;One &lt;first&gt;&quot;\""));
    QCOMPARE(files(u"*.png"_s),
             (QStringList{u"00-splash.png"_s, u"01-intro.png"_s, u"02-step-101.png"_s, u"03-step-603.png"_s}));
    const QImage first(path(u"out/02-step-101.png"_s));
    const QImage last(path(u"out/03-step-603.png"_s));
    QVERIFY(!first.isNull() && first.width() > 600 && first != last);
}

void tst_TourWalk::theDocumentsOfTheModulesArePrinted()
{
    QVERIFY2(walk(step("101", "One", "603/cc/2") + anEnd()) == 0, qPrintable(m_errors));
    const QStringList documents = files(u"*.pdf"_s);
    QCOMPARE(documents,
             (QStringList{u"guide.pdf"_s, u"manual.pdf"_s, u"procedure.pdf"_s, u"record.pdf"_s, u"tool.pdf"_s}));
    for (const QString &name : documents) {
        QFile file(path(u"out/"_s + name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().startsWith("%PDF-"));
        QVERIFY(page().contains("<a href=\"" + name.toLatin1() + "\">"));
    }
}

void tst_TourWalk::aStepThatEndsTheProgramIsNamed()
{
    QCOMPARE(walk(step("101", "One", "102/mm/mnuFile/none") + step("102", "Two", "603/cc/2") + anEnd()), 1);
    QVERIFY2(m_errors.contains(u"Next of step 101 ended the program."_s), qPrintable(m_errors));
    QVERIFY2(m_errors.contains(u"The program says: Error 9: "_s), qPrintable(m_errors));
    QVERIFY(page().contains("<p class=\"complaint\">Next of step 101 ended the program.</p>"));
    QVERIFY(m_output.startsWith(u"1 steps, 3 pictures, 0 documents and 2 complaints"_s));
}

void tst_TourWalk::aStepThatLeadsNowhereIsNamed()
{
    QCOMPARE(walk(step("101", "One", "102/cc/2") + step("102", "Two", "(none)") + anEnd()), 1);
    QVERIFY2(m_errors.contains(u"Next of step 102 leads nowhere."_s), qPrintable(m_errors));
}

void tst_TourWalk::aStepThatTheScriptLacksIsNamed()
{
    QCOMPARE(walk(step("101", "One", "102/cc/2") + anEnd()), 1);
    QVERIFY2(m_errors.contains(u"The script has no step 102."_s), qPrintable(m_errors));
}

void tst_TourWalk::aDialogThatNobodyAnswersIsClosed()
{
    QVERIFY2(walk(step("101", "One", "603/mm/mnuHelp/miHAbout") + anEnd()) == 0, qPrintable(m_errors));
}

void tst_TourWalk::aRoundWithoutAnEndIsLeft()
{
    QCOMPARE(walk(step("101", "One", "102/cc/2") + step("102", "Two", "101/cc/1") + anEnd()), 1);
    QVERIFY2(m_errors.contains(u"The tour comes round to step 101 again."_s), qPrintable(m_errors));
}

void tst_TourWalk::wrongUseIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    QTest::newRow("two scripts") << QStringList{u"a.ini"_s, u"b.ini"_s} << u"one script at a time"_s;
    QTest::newRow("no such script") << QStringList{u"absent.ini"_s} << u"\"absent.ini\" can't be read"_s;
    QTest::newRow("no folder") << QStringList{u"--out"_s, u"/dev/null/out"_s} << u"can't be made"_s;
}

void tst_TourWalk::wrongUseIsRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    QCOMPARE(run(arguments), 2);
    QVERIFY2(m_errors.contains(reason), qPrintable(m_errors));
    QVERIFY(m_output.isEmpty());
}

// The settings that the tour confirms would be the user's own.
void tst_TourWalk::withoutATemporaryFolderNothingIsWalked()
{
    qputenv("TMPDIR", "/dev/null");
    const auto restore = qScopeGuard([] { qunsetenv("TMPDIR"); });
    QCOMPARE(run({u"--out"_s, path(u"out"_s)}), 2);
    QVERIFY2(m_errors.contains(u"no temporary folder can be made"_s), qPrintable(m_errors));
    QVERIFY(!QDir(path(u"out"_s)).exists());
}

void tst_TourWalk::itsHelpNeedsNoDisplay()
{
    const auto restore = takeDisplayAway();
    QCOMPARE(run({u"--help"_s}), 0);
    QVERIFY2(m_output.startsWith(u"Usage: "_s) && m_output.contains(u"SCRIPT"_s), qPrintable(m_output));
    QCOMPARE(run({u"--version"_s}), 0);
    QVERIFY2(m_output.startsWith(u"tourwalk "_s), qPrintable(m_output));
}

void tst_TourWalk::withoutADisplayItFails()
{
    const auto restore = takeDisplayAway();
    QCOMPARE(run({}), 1);
    QVERIFY2(m_errors.contains(u"could not connect to display"_s), qPrintable(m_errors));
}

void tst_TourWalk::noTemporaryFolderIsLeft_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("a walk") << u"script.ini"_s << 0;
    QTest::newRow("a script that is not there") << u"none.ini"_s << 2;
}

void tst_TourWalk::noTemporaryFolderIsLeft()
{
    QFETCH(QString, script);
    QVERIFY(QDir(path({})).mkdir(u"temporary"_s));
    qputenv("TMPDIR", QFile::encodeName(path(u"temporary"_s)));
    const auto restore = qScopeGuard([] { qunsetenv("TMPDIR"); });
    QVERIFY(write(step("101", "One", "603/cc/1") + anEnd()));
    QTEST(run({script}), "exitCode");
    QCOMPARE(QDir(path(u"temporary"_s)).entryList({u"tourwalk*"_s}), QStringList());
}

QTEST_GUILESS_MAIN(tst_TourWalk)
#include "tst_TourWalk.moc"
