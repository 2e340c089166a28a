// The records tell of the same company as the other documents: what is written on them by hand stands on the sheet of
// facts.
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{

QString textOf(const QString &file)
{
    QFile source(QStringLiteral(ORVANE_SOURCE_DIR "/") + file);
    if (!source.open(QIODevice::ReadOnly)) qFatal("%s is missing", qPrintable(file));
    return QString::fromUtf8(source.readAll()).simplified();
}

QString form(const QString &name)
{
    return textOf(u"data/records/%1.form"_s.arg(name));
}

QStringList found(const QString &pattern, const QString &text)
{
    QStringList all;
    for (auto matches = QRegularExpression(pattern).globalMatch(text); matches.hasNext();)
        all << matches.next().captured();
    all.removeDuplicates();
    return all;
}

// The cells of the row of a table in the sheet that begins with this text.
QStringList factRow(const QString &text)
{
    static const QString sheet = textOf(u"docs/content.md"_s);
    const qsizetype start = sheet.indexOf(u"| "_s + text + u" |"_s);
    QStringList cells;
    for (const QString &cell : sheet.mid(start).split(u'|').mid(1, 7))
        cells << cell.trimmed();
    return start < 0 ? QStringList() : cells;
}

} // namespace

class tst_RecordFacts : public QObject
{
    Q_OBJECT

private slots:
    void whatIsWrittenIsAFact_data();
    void whatIsWrittenIsAFact();
    void aNumberBelongsToWhomItIsWrittenBeside_data();
    void aNumberBelongsToWhomItIsWrittenBeside();
    void aStepHasItsTime_data();
    void aStepHasItsTime();
    void aspectsAreThoseOfTheSheet();
    void scoresFollowTheRule();
};

void tst_RecordFacts::whatIsWrittenIsAFact_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("atLeast");
    QTest::newRow("numbers") << u"emergencyplan"_s << u"555-\\d{4}"_s << 11;
    QTest::newRow("people") << u"emergencyplan"_s << u"\\b[A-Z] [A-Z][a-z]{3,}"_s << 7;
    QTest::newRow("amounts") << u"emergencyplan"_s << u"\\d[\\d,]* (gallons|feet|minutes?|hours)"_s << 12;
    QTest::newRow("records") << u"emergencyplan"_s << u"R1\\.[A-Z]\\d+"_s << 2;
    QTest::newRow("people of the sample") << u"aspects"_s << u"\\b[A-Z] [A-Z][a-z]{3,}"_s << 2;
    QTest::newRow("amounts of the sample") << u"aspects"_s << u"\\d[\\d,]* gallons"_s << 1;
    QTest::newRow("number of the sample") << u"aspects"_s << u"R1\\.[A-Z]\\d+"_s << 1;
}

void tst_RecordFacts::whatIsWrittenIsAFact()
{
    QFETCH(QString, name);
    QFETCH(QString, pattern);
    QFETCH(int, atLeast);
    const QString sheet = textOf(u"docs/content.md"_s);
    const QStringList written = found(pattern, form(name));
    QVERIFY2(written.size() >= atLeast, qPrintable(written.join(u", ")));
    for (const QString &fact : written)
        QVERIFY2(sheet.contains(fact), qPrintable(fact));
}

void tst_RecordFacts::aNumberBelongsToWhomItIsWrittenBeside_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("fact");
    QTest::newRow("fire") << u"Fire, ambulance, police"_s << u"Fire department, ambulance, police"_s;
    QTest::newRow("office") << u"Fire Department, office"_s << u"Port Ellery Fire Department, office"_s;
    QTest::newRow("sewer") << u"Port Ellery Water Board"_s << u"Port Ellery Water Board (wastewater plant)"_s;
    QTest::newRow("state") << u"State agency, duty officer"_s << u"State environmental agency, duty officer"_s;
    QTest::newRow("hospital") << u"Port Ellery General Hospital"_s << u"Port Ellery General Hospital"_s;
    QTest::newRow("bakery") << u"Calder Bakery"_s << u"Calder Bakery"_s;
    QTest::newRow("clean-up") << u"~ Brightwater Recovery"_s
                              << u"Brightwater Recovery (clean-up contractor, on site within 2 hours)"_s;
    QTest::newRow("center") << u"Incident control center"_s << u"Incident control center"_s;
    QTest::newRow("controller") << u"R Castellan, VP-Manufacturing"_s << u"Main Controller, R Castellan"_s;
    QTest::newRow("adviser") << u"T Hallows, Environment Manager"_s << u"Environment Manager, T Hallows"_s;
    QTest::newRow("families") << u"A Denholm, Human Resources"_s << u"Human Resources Manager, A Denholm"_s;
}

// The last number of the form's row, or the one behind the name where two stand in a row.
void tst_RecordFacts::aNumberBelongsToWhomItIsWrittenBeside()
{
    QFETCH(QString, written);
    QFETCH(QString, fact);
    const QString sheet = textOf(u"docs/content.md"_s);
    const QString row = u"| "_s + fact + u" | "_s;
    const qsizetype start = sheet.lastIndexOf(row);
    QVERIFY(start >= 0);
    const QString number = sheet.mid(start + row.size()).section(u' ', 0, 0);
    const QRegularExpression beside(QRegularExpression::escape(written) + u"( \\|( ~)?[^|^]*)? \\| \\^ ~ ([\\d-]+)"_s);
    QCOMPARE(beside.match(form(u"emergencyplan"_s)).captured(3), number);
}

void tst_RecordFacts::aStepHasItsTime_data()
{
    QTest::addColumn<QString>("step"); // on the form
    QTest::addColumn<QString>("fact");
    QTest::newRow("alarm") << u"Raise the alarm"_s << u"alarm raised, source shut off if that is safe"_s;
    QTest::newRow("scene") << u"Take charge"_s << u"Incident Controller at the scene"_s;
    QTest::newRow("valve") << u"Shut storm-drain valve SV1"_s << u"storm-drain valve SV1 shut"_s;
    QTest::newRow("team") << u"Cover the drains"_s << u"Incident Action Team at the scene with its equipment"_s;
    QTest::newRow("roll call") << u"Complete the roll call"_s << u"roll call complete"_s;
    QTest::newRow("center") << u"Staff the control center"_s << u"incident control center staffed"_s;
    QTest::newRow("authorities") << u"Tell the state agency"_s
                                 << u"authorities told, when effects may pass the fence"_s;
}

void tst_RecordFacts::aStepHasItsTime()
{
    QFETCH(QString, step);
    QFETCH(QString, fact);
    const QRegularExpression time(QRegularExpression::escape(step) + u"[^|]*\\| ~ [^|]*\\| ~ (\\d+ minutes?)"_s);
    const QString written = time.match(form(u"emergencyplan"_s)).captured(1);
    QVERIFY(!written.isEmpty());
    QVERIFY2(factRow(fact).value(1).startsWith(written), qPrintable(written));
}

void tst_RecordFacts::aspectsAreThoseOfTheSheet()
{
    const QRegularExpression row(
        u"\\| \\^\\d \\| ~ ([^|]+) \\| ~ ([^|]+) \\| \\^ ~ (\\w) \\| \\^ ~ (\\d) \\| \\^ ~ (\\d) "
        "\\| \\^ ~ \\d \\| \\^ ~ (\\w+) \\| ~ ([^|]+?)(?= row| note)"_s);
    int count = 0;
    for (auto rows = row.globalMatch(form(u"aspects"_s)); rows.hasNext(); ++count) {
        const QStringList written = rows.next().capturedTexts().mid(1);
        QCOMPARE(written, factRow(written.first()));
    }
    QCOMPARE(count, 9);
}

void tst_RecordFacts::scoresFollowTheRule()
{
    const QRegularExpression row(u"\\^ ~ (\\d) \\| \\^ ~ (\\d) \\| \\^ ~ (\\d) \\| \\^ ~ (yes|no)"_s);
    int count = 0;
    for (auto rows = row.globalMatch(form(u"aspects"_s)); rows.hasNext(); ++count) {
        const auto match = rows.next();
        const int reach = match.captured(2).toInt();
        const int score = match.captured(3).toInt();
        QCOMPARE(score, match.captured(1).toInt() * reach);
        QCOMPARE(match.captured(4), score >= 4 || reach == 3 ? u"yes"_s : u"no"_s);
    }
    QCOMPARE(count, 9);
}

QTEST_GUILESS_MAIN(tst_RecordFacts)
#include "tst_RecordFacts.moc"
