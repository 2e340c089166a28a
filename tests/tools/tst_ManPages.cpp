// The manual pages: well formed, and no option of a tool missing.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_ManPages : public QObject
{
    Q_OBJECT

private slots:
    void everyProgramHasAPage_data();
    void everyProgramHasAPage();
    void aPageIsWellFormed_data();
    void aPageIsWellFormed();
    void aPageNamesEachOption_data();
    void aPageNamesEachOption();
};

namespace
{
QString pageOf(const QString &program)
{
    return QStringLiteral(ORVANE_SOURCE_DIR "/data/man/") + program + u".1"_s;
}

QString contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// What the program has to say, on either output.
QString outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished()) return u"the program could not be run"_s;
    return QString::fromUtf8(process.readAll());
}
} // namespace

void tst_ManPages::everyProgramHasAPage_data()
{
    QTest::addColumn<QString>("program");
    for (const auto &program : {"orvane", "tourlint", "tourwalk", "dealertext"})
        QTest::newRow(program) << QString::fromLatin1(program);
}

void tst_ManPages::everyProgramHasAPage()
{
    QFETCH(QString, program);
    const QString page = contents(pageOf(program));
    for (const auto &section : {u"NAME"_s, u"SYNOPSIS"_s, u"DESCRIPTION"_s, u"OPTIONS"_s, u"\"EXIT STATUS\""_s,
                                u"FILES"_s, u"EXAMPLES"_s, u"\"SEE ALSO\""_s})
        QVERIFY2(page.contains(u"\n.SH "_s + section + u'\n'), qPrintable(section));
    QVERIFY2(page.contains(u".TH "_s + program.toUpper() + u" 1 "_s), "the head names the program");
}

void tst_ManPages::aPageIsWellFormed_data()
{
    QTest::addColumn<QString>("reader");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("program");
    for (const auto &program : {u"orvane"_s, u"tourlint"_s, u"tourwalk"_s, u"dealertext"_s}) {
        QTest::newRow(qPrintable(u"groff "_s + program))
            << u"groff"_s << QStringList{u"-man"_s, u"-ww"_s, u"-z"_s} << program;
        QTest::newRow(qPrintable(u"mandoc "_s + program))
            << u"mandoc"_s << QStringList{u"-T"_s, u"lint"_s, u"-W"_s, u"warning"_s} << program;
    }
}

void tst_ManPages::aPageIsWellFormed()
{
    QFETCH(QString, reader);
    QFETCH(QStringList, arguments);
    QFETCH(QString, program);
    if (QStandardPaths::findExecutable(reader).isEmpty()) QSKIP("not installed");
    QCOMPARE(outputOf(reader, arguments << pageOf(program)), QString());
}

// The program itself has none.
void tst_ManPages::aPageNamesEachOption_data()
{
    QTest::addColumn<QString>("tool");
    for (const auto &tool : {"tourlint", "tourwalk", "dealertext"})
        QTest::newRow(tool) << QString::fromLatin1(tool);
}

void tst_ManPages::aPageNamesEachOption()
{
    QFETCH(QString, tool);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QString help = outputOf(QStringLiteral(ORVANE_TOOLS_DIR "/") + tool, {u"--help"_s});
    const QString page = contents(pageOf(tool)).remove(u'\\');
    static const QRegularExpression option(u"--([a-z][a-z-]*)"_s);
    int options = 0;
    for (auto found = option.globalMatch(help); found.hasNext(); ++options) {
        const QString name = found.next().captured();
        if (name == u"--help-all"_s) continue; // the toolkit's own
        QVERIFY2(page.contains(name), qPrintable(name));
    }
    QVERIFY(options > 0);
}

QTEST_GUILESS_MAIN(tst_ManPages)
#include "tst_ManPages.moc"
