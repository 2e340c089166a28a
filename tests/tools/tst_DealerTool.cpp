// The program dealertext, from outside.
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

class tst_DealerTool : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aTextIsScrambled_data();
    void aTextIsScrambled();
    void dataBecomesText_data();
    void dataBecomesText();
    void aTextComesBackThroughTheStandardStreams();
    void aFileCanTakeItsOwnPlace();
    void helpIsAskedFor();
    void wrongUseIsRefused_data();
    void wrongUseIsRefused();
    void aFailureKeepsTheOldFile_data();
    void aFailureKeepsTheOldFile();
    void aTextThatIsNotThereIsAFailure();
    void aResultThatCannotBeWrittenIsAFailure();
    void aFullStandardOutputIsAFailure();
    void aFullDiskKeepsTheOldFile();

private:
    int run(const QStringList &arguments, const QByteArray &input = {});
    QString path(const QString &name) const { return m_folder->filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const;
    QByteArray read(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_output;
    QByteArray m_errors;
};

void tst_DealerTool::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

int tst_DealerTool::run(const QStringList &arguments, const QByteArray &input)
{
    QProcess process;
    process.start(QStringLiteral(ORVANE_TOOLS_DIR "/dealertext"), arguments);
    if (!process.waitForStarted()) return -1;
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) return -1;
    m_output = process.readAllStandardOutput();
    m_errors = process.readAllStandardError();
    return process.exitCode();
}

void tst_DealerTool::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray tst_DealerTool::read(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "no file"_ba;
}

void tst_DealerTool::aTextIsScrambled_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("empty") << ""_ba
                           << ""_ba;
    QTest::newRow("one empty line") << "\n"_ba
                                    << ""_ba;
    QTest::newRow("one empty line in CR LF") << "\r\n"_ba
                                             << ""_ba;
    QTest::newRow("byte order mark alone") << "\xEF\xBB\xBF"_ba
                                           << ""_ba;
    QTest::newRow("one character") << "A"_ba
                                   << "B"_ba;
    QTest::newRow("one line") << "AA\n"_ba
                              << "BD"_ba;
    QTest::newRow("two lines") << "A\nA\n"_ba << QByteArray("B\x10\x10K", 4);
    QTest::newRow("two lines in CR LF") << "A\r\nA\r\n"_ba << QByteArray("B\x10\x10K", 4);
    QTest::newRow("two lines in CR") << "A\rA\r"_ba << QByteArray("B\x10\x10K", 4);
    QTest::newRow("two empty lines") << "\n\n"_ba
                                     << "\x0E\x0D"_ba;
    QTest::newRow("byte order mark") << "\xEF\xBB\xBF"
                                        "A"_ba
                                     << "B"_ba;
    QTest::newRow("code page") << "\xE2\x82\xAC"_ba
                               << "\x81"_ba;
}

void tst_DealerTool::aTextIsScrambled()
{
    QFETCH(QByteArray, text);
    write(u"in"_s, text);
    QCOMPARE(run({u"scramble"_s, path(u"in"_s), path(u"out"_s)}), 0);
    QTEST(read(u"out"_s), "data");
    QCOMPARE(m_output + m_errors, QByteArray());
}

void tst_DealerTool::dataBecomesText_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << ""_ba
                           << ""_ba;
    QTest::newRow("one line") << "BD"_ba
                              << "AA\n"_ba;
    QTest::newRow("two lines") << QByteArray("B\x10\x10K", 4) << "A\nA\n"_ba;
    QTest::newRow("code page") << "\x81"_ba
                               << "\xE2\x82\xAC\n"_ba;
}

void tst_DealerTool::dataBecomesText()
{
    QFETCH(QByteArray, data);
    write(u"in"_s, data);
    QCOMPARE(run({u"unscramble"_s, path(u"in"_s), path(u"out"_s)}), 0);
    QTEST(read(u"out"_s), "text");
}

void tst_DealerTool::aTextComesBackThroughTheStandardStreams()
{
    const QByteArray text = QByteArray("Your dealer: Doe & Daughters\n\nTel. 555 0117\n").repeated(10'000);
    QCOMPARE(run({u"scramble"_s, u"-"_s, u"-"_s}, text), 0);
    QVERIFY(!m_output.contains("dealer"));
    QCOMPARE(run({u"unscramble"_s, u"-"_s, u"-"_s}, m_output), 0);
    QVERIFY(m_output == text);
    QCOMPARE(m_errors, QByteArray());
}

void tst_DealerTool::aFileCanTakeItsOwnPlace()
{
    write(u"file"_s, "AAAA");
    QCOMPARE(run({u"scramble"_s, path(u"file"_s), path(u"file"_s)}), 0);
    QCOMPARE(read(u"file"_s), "BDGK"_ba);
}

void tst_DealerTool::helpIsAskedFor()
{
    QCOMPARE(run({u"--help"_s}), 0);
    QVERIFY(m_output.startsWith("usage: dealertext"));
    QCOMPARE(m_errors, QByteArray());
}

void tst_DealerTool::wrongUseIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("none") << QStringList();
    QTest::newRow("command alone") << QStringList{u"scramble"_s};
    QTest::newRow("one file") << QStringList{u"scramble"_s, u"-"_s};
    QTest::newRow("three files") << QStringList{u"scramble"_s, u"-"_s, u"-"_s, u"-"_s};
    QTest::newRow("another command") << QStringList{u"mix"_s, u"-"_s, u"-"_s};
}

void tst_DealerTool::wrongUseIsRefused()
{
    QFETCH(QStringList, arguments);
    QCOMPARE(run(arguments), 2);
    QVERIFY(m_errors.startsWith("usage: dealertext"));
    QCOMPARE(m_output, QByteArray());
}

void tst_DealerTool::aFailureKeepsTheOldFile_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("reason");
    QTest::newRow("no code") << u"scramble"_s << "abc\xCE\xA9"_ba
                             << "U+03A9"_ba;
    QTest::newRow("over the end of the page") << u"scramble"_s << "123456789\xC3\xA9"_ba
                                              << "U+00E9"_ba;
    QTest::newRow("not UTF-8") << u"scramble"_s << "abc\xE9xyz"_ba
                               << "not UTF-8"_ba;
    QTest::newRow("UTF-8 cut off") << u"scramble"_s << "abc\xC3"_ba
                                   << "not UTF-8"_ba;
    QTest::newRow("no dealer data") << u"unscramble"_s << QByteArray(3, '\0') << "position 1"_ba;
}

void tst_DealerTool::aFailureKeepsTheOldFile()
{
    QFETCH(QString, command);
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, reason);
    write(u"out"_s, "old");
    QCOMPARE(run({command, u"-"_s, path(u"out"_s)}, input), 1);
    QVERIFY2(m_errors.startsWith("dealertext: ") && m_errors.contains(reason), m_errors.constData());
    QCOMPARE(read(u"out"_s), "old"_ba);
}

void tst_DealerTool::aTextThatIsNotThereIsAFailure()
{
    QCOMPARE(run({u"scramble"_s, path(u"absent"_s), path(u"out"_s)}), 1);
    QVERIFY2(m_errors.contains("cannot read") && m_errors.contains("absent"), m_errors.constData());
    QCOMPARE(run({u"scramble"_s, m_folder->path(), path(u"out"_s)}), 1);
    QVERIFY2(m_errors.contains("cannot read"), m_errors.constData());
    QVERIFY(!QFile::exists(path(u"out"_s)));
}

void tst_DealerTool::aResultThatCannotBeWrittenIsAFailure()
{
    QCOMPARE(run({u"scramble"_s, u"-"_s, path(u"absent/out"_s)}, "A"), 1);
    QVERIFY2(m_errors.contains("cannot write") && m_errors.contains("absent"), m_errors.constData());
}

void tst_DealerTool::aFullStandardOutputIsAFailure()
{
    if (!QFile::exists(u"/dev/full"_s)) QSKIP("no device that is always full");
    QProcess process;
    process.setStandardOutputFile(u"/dev/full"_s);
    process.start(QStringLiteral(ORVANE_TOOLS_DIR "/dealertext"), {u"scramble"_s, u"-"_s, u"-"_s});
    QVERIFY(process.waitForStarted());
    process.write("AAAA");
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(process.readAllStandardError().contains("cannot write the standard output"));
}

// No file of the tool's may grow beyond ten bytes.
void tst_DealerTool::aFullDiskKeepsTheOldFile()
{
    write(u"out"_s, "old");
    QProcess process;
    process.setChildProcessModifier([] {
        constexpr rlimit Room{10, 10};
        setrlimit(RLIMIT_FSIZE, &Room);
        std::signal(SIGXFSZ, SIG_IGN);
    });
    process.start(QStringLiteral(ORVANE_TOOLS_DIR "/dealertext"), {u"scramble"_s, u"-"_s, path(u"out"_s)});
    QVERIFY(process.waitForStarted());
    process.write("Harbor Office Supplies");
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(process.readAllStandardError().contains("cannot write"));
    QCOMPARE(read(u"out"_s), "old"_ba);
}

QTEST_GUILESS_MAIN(tst_DealerTool)
#include "tst_DealerTool.moc"
