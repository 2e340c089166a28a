// The program tourlint, from outside. Each script in data/tour has one kind of fault, and beside it lies what the tool
// has to say: LINE: MESSAGE for each finding.
#include "tour/LiteralTags.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

class tst_TourLint : public QObject
{
    Q_OBJECT

private slots:
    void aFaultIsReportedInItsLine_data();
    void aFaultIsReportedInItsLine();
    void theStatusTellsWhatWasFound_data();
    void theStatusTellsWhatWasFound();
    void anUnreadableFileIsNamed();
    void findingsGoToTheStandardOutputAlone();
    void aDraftNeedsNoSectionForWhatIsPressedByHand();
    void itNeedsNoDisplay();
    void helpAndVersionAreTold_data();
    void helpAndVersionAreTold();
    void aBarIsListedAsItIsTabled_data();
    void aBarIsListedAsItIsTabled();
    void everyListedToolIsOfATabledBar();
    void everyTagThatTheCodeReportsIsListed();

private:
    int run(const QStringList &arguments);
    QList<QStringList> listedTools();

    QByteArray m_output;
    QByteArray m_errors;
};

namespace
{
QString fixture(const QString &name)
{
    return QStringLiteral(ORVANE_TEST_DATA "/tour/") + name;
}

QByteArray contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isWhole(const QString &name)
{
    return name == u"clean"_s || name == u"tag-without-section"_s;
}

QString unquoted(const QString &cell)
{
    const bool quoted = cell.size() >= 2 && cell.startsWith(u'"') && cell.endsWith(u'"');
    return quoted ? cell.mid(1, cell.size() - 2) : cell;
}
} // namespace

int tst_TourLint::run(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"DISPLAY"_s);
    environment.remove(u"WAYLAND_DISPLAY"_s);
    environment.insert(u"QT_QPA_PLATFORM"_s, u"no such platform"_s);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ORVANE_TOOLS_DIR "/tourlint"), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) return -1;
    m_output = process.readAllStandardOutput();
    m_errors = process.readAllStandardError();
    return process.exitCode();
}

void tst_TourLint::aFaultIsReportedInItsLine_data()
{
    QTest::addColumn<QString>("name");
    const QStringList scripts = QDir(fixture({})).entryList({u"*.ini"_s}, QDir::Files);
    QVERIFY(scripts.size() >= 25);
    for (const QString &script : scripts)
        QTest::newRow(qPrintable(script)) << script.chopped(4);
}

void tst_TourLint::aFaultIsReportedInItsLine()
{
    QFETCH(QString, name);
    const QString script = fixture(name + u".ini"_s);
    const QString expectation = fixture(name + u".expected"_s);
    QVERIFY(QFile::exists(expectation));
    const QStringList expected = QString::fromUtf8(contents(expectation)).split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(run(isWhole(name) ? QStringList{script} : QStringList{u"--draft"_s, script}), expected.isEmpty() ? 0 : 1);
    QStringList found = QString::fromUtf8(m_output).split(u'\n', Qt::SkipEmptyParts);
    for (QString &line : found) {
        QVERIFY2(line.startsWith(script + u':'), qPrintable(line));
        line.remove(0, script.size() + 1);
    }
    QCOMPARE(found, expected);
    QCOMPARE(expected.isEmpty(), name == u"clean"_s);
}

void tst_TourLint::theStatusTellsWhatWasFound_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    const QString clean = fixture(u"clean.ini"_s);
    const QString faulty = fixture(u"loop.ini"_s);
    QTest::newRow("clean") << QStringList{clean} << 0;
    QTest::newRow("faulty") << QStringList{faulty} << 1;
    QTest::newRow("one of two faulty") << QStringList{faulty, clean} << 1;
    QTest::newRow("absent") << QStringList{fixture(u"absent.ini"_s)} << 2;
    QTest::newRow("one of two absent") << QStringList{fixture(u"absent.ini"_s), clean} << 2;
    QTest::newRow("a folder") << QStringList{fixture({})} << 2;
    QTest::newRow("no file") << QStringList{} << 2;
    QTest::newRow("unknown option") << QStringList{u"--nonsense"_s, clean} << 2;
    QTest::newRow("tools of a file") << QStringList{u"--tools"_s, clean} << 2;
}

void tst_TourLint::theStatusTellsWhatWasFound()
{
    QFETCH(QStringList, arguments);
    QTEST(run(arguments), "status");
}

void tst_TourLint::anUnreadableFileIsNamed()
{
    const QString absent = fixture(u"absent.ini"_s);
    run({absent});
    QVERIFY(m_output.isEmpty());
    QVERIFY2(m_errors.startsWith("tourlint: ") && m_errors.contains(absent.toUtf8()), m_errors.constData());
}

void tst_TourLint::findingsGoToTheStandardOutputAlone()
{
    QCOMPARE(run({fixture(u"dead-end.ini"_s)}), 1);
    QVERIFY(m_output.endsWith('\n'));
    QVERIFY2(m_errors.isEmpty(), m_errors.constData());
}

void tst_TourLint::aDraftNeedsNoSectionForWhatIsPressedByHand()
{
    const QString script = fixture(u"tag-without-section.ini"_s);
    QCOMPARE(run({script}), 1);
    QCOMPARE(run({u"--draft"_s, script}), 0);
    QVERIFY2(m_output.isEmpty(), m_output.constData());
}

void tst_TourLint::itNeedsNoDisplay()
{
    // It is always run without one here; a program of windows would end with a message.
    QCOMPARE(run({fixture(u"clean.ini"_s)}), 0);
    QVERIFY2(m_errors.isEmpty(), m_errors.constData());
}

void tst_TourLint::helpAndVersionAreTold_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QByteArray>("words");
    QTest::newRow("--help") << u"--help"_s << QByteArray("--tools");
    QTest::newRow("-h") << u"-h"_s << QByteArray("FILE");
    QTest::newRow("--version") << u"--version"_s << QByteArray("tourlint 1.");
}

void tst_TourLint::helpAndVersionAreTold()
{
    QFETCH(QString, option);
    QFETCH(QByteArray, words);
    QCOMPARE(run({option}), 0);
    QVERIFY2(m_output.contains(words), m_output.constData());
    QVERIFY(m_errors.isEmpty());
}

QList<QStringList> tst_TourLint::listedTools()
{
    if (run({u"--tools"_s}) != 0) return {};
    QList<QStringList> lines;
    for (const QString &line : QString::fromUtf8(m_output).split(u'\n', Qt::SkipEmptyParts))
        lines << line.split(u'\t');
    return lines;
}

void tst_TourLint::aBarIsListedAsItIsTabled_data()
{
    QTest::addColumn<QString>("table");
    for (const QString &table : QDir(QStringLiteral(ORVANE_TEST_DATA "/layouts")).entryList({u"*.tsv"_s}, QDir::Files))
        QTest::newRow(qPrintable(table)) << table.chopped(4);
}

// A table has the columns of the list in an order of its own, and "-" where it lays nothing down.
void tst_TourLint::aBarIsListedAsItIsTabled()
{
    QFETCH(QString, table);
    const QList<QStringList> listed = listedTools();
    const QByteArray bytes = contents(QStringLiteral(ORVANE_TEST_DATA "/layouts/") + table + u".tsv"_s);
    QStringList rows = QString::fromUtf8(bytes).split(u'\n', Qt::SkipEmptyParts);
    QStringList names = rows.takeFirst().split(u'\t');
    names.replaceInStrings(QRegularExpression(u"^name$"_s), u"tool"_s);
    names.replaceInStrings(QRegularExpression(u"^toolTag$"_s), u"tag"_s);
    qsizetype at = 0;
    while (at < listed.size() && listed[at][0] + u'_' + listed[at][1] != table)
        ++at;
    for (const QString &row : rows) {
        const QStringList cells = row.split(u'\t');
        if (cells[names.indexOf(u"index"_s)] == u"-1") continue; // a band without tools
        QVERIFY2(at < listed.size() && listed[at][0] + u'_' + listed[at][1] == table, qPrintable(row));
        for (qsizetype column = 2; column < listed.front().size(); ++column) {
            const QString name = listed.front()[column];
            const QString &cell = cells[names.indexOf(name)];
            if (cell != u"-") QCOMPARE(name + u' ' + listed[at][column], name + u' ' + unquoted(cell));
        }
        ++at;
    }
    QVERIFY(at == listed.size() || listed[at][0] + u'_' + listed[at][1] != table);
}

void tst_TourLint::everyListedToolIsOfATabledBar()
{
    QList<QStringList> listed = listedTools();
    QCOMPARE(listed.takeFirst().join(u' '),
             u"window bar band tool id caption tooltip description category tag flyout enabled checked groupStart "
             "kind width"_s);
    QVERIFY(listed.size() > 100);
    for (const QStringList &line : std::as_const(listed)) {
        QCOMPARE(line.size(), 16);
        QVERIFY2(QFile::exists(QStringLiteral(ORVANE_TEST_DATA "/layouts/%1_%2.tsv").arg(line[0], line[1])),
                 qPrintable(line.join(u' ')));
    }
}

void tst_TourLint::everyTagThatTheCodeReportsIsListed()
{
    const QRegularExpression report(uR"re(ShowTourStep\(QStringLiteral\("(\d+)"\)\))re"_s);
    int reports = 0;
    QDirIterator sources(QStringLiteral(ORVANE_SOURCE_DIR "/src"), {u"*.cpp"_s}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        auto found = report.globalMatch(QString::fromUtf8(contents(sources.next())));
        while (found.hasNext()) {
            const int tag = found.next().captured(1).toInt();
            const auto isIt = [tag](const orvane::LiteralTag &literal) { return literal.tag == tag; };
            QVERIFY2(tag == 900 || std::ranges::any_of(orvane::LiteralTags, isIt), qPrintable(QString::number(tag)));
            ++reports;
        }
    }
    QVERIFY(reports > 8);
}

QTEST_GUILESS_MAIN(tst_TourLint)
#include "tst_TourLint.moc"
