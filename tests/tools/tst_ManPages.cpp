// The manual pages of the tools: well formed, and no option of a tool missing.
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
    void everyToolHasAPage_data();
    void everyToolHasAPage();
    void aPageIsWellFormed_data();
    void aPageIsWellFormed();
    void aPageNamesEachOption_data() { everyToolHasAPage_data(); }
    void aPageNamesEachOption();
};

namespace
{
QString pageOf(const QString &tool)
{
    return QStringLiteral(ORVANE_SOURCE_DIR "/data/man/") + tool + u".1"_s;
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

void tst_ManPages::everyToolHasAPage_data()
{
    QTest::addColumn<QString>("tool");
    for (const auto &tool : {"tourlint", "tourwalk", "dealertext"})
        QTest::newRow(tool) << QString::fromLatin1(tool);
}

void tst_ManPages::everyToolHasAPage()
{
    QFETCH(QString, tool);
    const QString page = contents(pageOf(tool));
    for (const auto &section : {u"NAME"_s, u"SYNOPSIS"_s, u"DESCRIPTION"_s, u"OPTIONS"_s, u"\"EXIT STATUS\""_s,
                                u"FILES"_s, u"EXAMPLES"_s, u"\"SEE ALSO\""_s})
        QVERIFY2(page.contains(u"\n.SH "_s + section + u'\n'), qPrintable(section));
    QVERIFY2(page.contains(u".TH "_s + tool.toUpper() + u" 1 "_s), "the head names the tool");
}

void tst_ManPages::aPageIsWellFormed_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("tool");
    for (const auto &tool : {u"tourlint"_s, u"tourwalk"_s, u"dealertext"_s}) {
        QTest::newRow(qPrintable(u"groff "_s + tool))
            << u"groff"_s << QStringList{u"-man"_s, u"-ww"_s, u"-z"_s} << tool;
        QTest::newRow(qPrintable(u"mandoc "_s + tool))
            << u"mandoc"_s << QStringList{u"-T"_s, u"lint"_s, u"-W"_s, u"warning"_s} << tool;
    }
}

void tst_ManPages::aPageIsWellFormed()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    QFETCH(QString, tool);
    if (QStandardPaths::findExecutable(program).isEmpty()) QSKIP("not installed");
    QCOMPARE(outputOf(program, arguments << pageOf(tool)), QString());
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
