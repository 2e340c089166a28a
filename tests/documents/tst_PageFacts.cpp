// All pages of all modules tell of one company: what they say agrees with the sheet of facts, and reads as one hand.
#include "documents/PageBlocks.h"
#include "documents/PageText.h"
#include "documents/pages/ManualPages.h"
#include "documents/pages/PrintedPages.h"
#include "documents/pages/ProcedurePages.h"
#include "documents/pages/ToolPages.h"
#include "platform/system/CodePage1252.h"

#include <QFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::pages;

namespace
{
QString factSheet()
{
    QFile file(u"" ORVANE_SOURCE_DIR "/docs/content.md"_s);
    if (!file.open(QIODevice::ReadOnly)) qFatal("the sheet of facts is missing");
    return QString::fromUtf8(file.readAll());
}

// The second cell of the row that begins with this text.
QString fact(const QString &row)
{
    static const QString sheet = factSheet();
    const QRegularExpression line(u"^\\| "_s + QRegularExpression::escape(row) + u" \\| ([^|\\n]+) \\|"_s,
                                  QRegularExpression::MultilineOption);
    return line.match(sheet).captured(1);
}

QStringList allMatches(const QString &pattern, const QString &text)
{
    QStringList found;
    for (const QRegularExpressionMatch &match : QRegularExpression(pattern).globalMatch(text))
        found << match.captured();
    return found;
}

QString plain(const QString &rtf)
{
    QStringList lines;
    for (const pageblocks::Block &block : pageblocks::blocks(rtf))
        lines << block.text;
    return lines.join(u'\n');
}

const QString Figure = u"\\d[\\d,]*[ -](minutes?|working days?|days?|hours?|gallons?|feet|percent|times)"_s;

QStringList sentencesOfAllModules()
{
    QStringList all;
    for (const QString &rtf : {printedGuide(), printedManual(), printedProcedure(), printedTool()})
        all << pageblocks::allSentences(rtf);
    return all;
}
} // namespace

class tst_PageFacts : public QObject
{
    Q_OBJECT

private slots:
    void everyFigureIsOnTheSheet_data() { addDocuments(); }
    void everyFigureIsOnTheSheet();
    void aTimeIsTheSameWhereverItIsTold_data();
    void aTimeIsTheSameWhereverItIsTold();
    void everyNumberToCallIsOnTheSheet_data() { addDocuments(); }
    void everyNumberToCallIsOnTheSheet();
    void rolesAreNamedAndNotPersons_data() { addDocuments(); }
    void rolesAreNamedAndNotPersons();
    void onlyTheCompanysOwnDocumentsNameItsPlaces();
    void servicesAndNeighborsAreNamedAsOnTheSheet();
    void copiesAreHeldAsOnTheSheet();
    void drillsAreHeldAsOnTheSheet_data();
    void drillsAreHeldAsOnTheSheet();
    void aParagraphHasTwoToFiveSentences_data() { addDocuments(); }
    void aParagraphHasTwoToFiveSentences();
    void aBulletHasOneToThreeSentences_data() { addOwnDocuments(); }
    void aBulletHasOneToThreeSentences();
    void noSentenceStandsTwice();
    void textIsWithinTheCodePage_data() { addDocuments(); }
    void textIsWithinTheCodePage();
    void aDocumentIsOneBalancedGroupOfAscii_data() { addDocuments(); }
    void aDocumentIsOneBalancedGroupOfAscii();
    void everyRunIsInTimesAndAKnownSize_data() { addDocuments(); }
    void everyRunIsInTimesAndAKnownSize();
    void noTwoWordsRunTogetherAndNoBlankIsDoubled_data() { addOwnDocuments(); }
    void noTwoWordsRunTogetherAndNoBlankIsDoubled();

private:
    static void addDocuments();
    static void addOwnDocuments();
};

void tst_PageFacts::addOwnDocuments()
{
    QTest::addColumn<QString>("rtf");
    QTest::newRow("manual") << printedManual();
    QTest::newRow("procedure") << printedProcedure();
    QTest::newRow("tool") << printedTool();
}

void tst_PageFacts::addDocuments()
{
    addOwnDocuments();
    QTest::newRow("guide") << printedGuide();
}

// The tool asks questions, and gives no figure.
void tst_PageFacts::everyFigureIsOnTheSheet()
{
    QFETCH(QString, rtf);
    const QString sheet = factSheet();
    const QStringList figures = allMatches(Figure, plain(rtf));
    QCOMPARE(figures.isEmpty(), QByteArray(QTest::currentDataTag()) == "tool");
    for (const QString &figure : figures)
        QVERIFY2(sheet.contains(QRegularExpression(u"\\b"_s + figure + u"\\b"_s)), qPrintable(figure));
}

void tst_PageFacts::aTimeIsTheSameWhereverItIsTold_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("telling");
    QTest::addColumn<int>("places");
    QTest::newRow("scene") << u"Incident Controller at the scene"_s << u"Incident Controller, is at the scene"_s << 1;
    QTest::newRow("valve") << u"storm-drain valve SV1 shut"_s << u"storm[ -]drain"_s << 2;
    QTest::newRow("team") << u"Incident Action Team at the scene with its equipment"_s
                          << u"Incident Action Team is at the scene"_s << 1;
    QTest::newRow("roll call") << u"roll call complete"_s << u"roll call|account for"_s << 3;
    QTest::newRow("center") << u"incident control center staffed"_s << u"control center is staffed"_s << 1;
    QTest::newRow("authorities") << u"authorities told, when effects may pass the fence"_s << u"authorities"_s << 1;
    QTest::newRow("record") << u"incident record R1.C15 opened"_s << u"opens Record R1\\.C15"_s << 1;
    QTest::newRow("review") << u"review of the plan finished"_s << u"[Rr]eview.*working day"_s << 4;
}

void tst_PageFacts::aTimeIsTheSameWhereverItIsTold()
{
    QFETCH(QString, row);
    QFETCH(QString, telling);
    QFETCH(int, places);
    const QStringList time = allMatches(Figure, fact(row));
    QVERIFY2(time.size() == 1, qPrintable(row));
    int found = 0;
    for (const QString &sentence : sentencesOfAllModules().filter(QRegularExpression(telling))) {
        const QStringList figures = allMatches(Figure, sentence);
        if (figures.isEmpty()) continue;
        QCOMPARE(figures, time);
        ++found;
    }
    QCOMPARE(found, places);
}

void tst_PageFacts::everyNumberToCallIsOnTheSheet()
{
    QFETCH(QString, rtf);
    QString list = factSheet();
    list = list.section(u"## Phone list"_s, 1).section(u"\n## "_s, 0, 0);
    QVERIFY(list.contains(u"| extension 333 |"_s));
    for (const QString &number : allMatches(u"\\b(\\d{3}-\\d{4}|extension \\d+|(?<=calls )\\d{3})\\b"_s, plain(rtf)))
        QVERIFY2(list.contains(u"| "_s + number + u" |"_s), qPrintable(number));
}

void tst_PageFacts::rolesAreNamedAndNotPersons()
{
    QFETCH(QString, rtf);
    const QString people = factSheet().section(u"## People and roles"_s, 1).section(u"\n## "_s, 0, 0);
    const QStringList persons = allMatches(u"(?<=\\| |, )[A-Z] [A-Z][a-z]+"_s, people);
    QCOMPARE(persons.size(), 7);
    const QString text = plain(rtf);
    for (const QString &person : persons)
        QVERIFY2(!text.contains(person), qPrintable(person));
}

void tst_PageFacts::onlyTheCompanysOwnDocumentsNameItsPlaces()
{
    for (const QString &name : {u"Global Inc"_s, u"Millrace Road"_s, u"Ellery River"_s}) {
        QVERIFY2(plain(printedManual()).contains(name), qPrintable(name));
        QVERIFY2(plain(printedProcedure()).contains(name), qPrintable(name));
        QVERIFY2(!plain(printedGuide()).contains(name), qPrintable(name));
        QVERIFY2(!plain(printedTool()).contains(name), qPrintable(name));
    }
}

void tst_PageFacts::servicesAndNeighborsAreNamedAsOnTheSheet()
{
    const QString sheet = factSheet();
    const QStringList named = allMatches(u"(Port Ellery|Calder|Brightwater|Millrace|Weir)( [A-Z][a-z]+)*"_s,
                                         plain(printedProcedure()) + u'\n' + plain(printedManual()));
    QVERIFY(named.size() >= 5);
    for (const QString &name : named)
        QVERIFY2(sheet.contains(name), qPrintable(name));
}

void tst_PageFacts::copiesAreHeldAsOnTheSheet()
{
    const QStringList copies = allMatches(u"Copy \\d: .*"_s, plain(procedureMethod()));
    QCOMPARE(copies.size(), 6);
    for (qsizetype i = 0; i < copies.size(); ++i) {
        const QString holder = fact(QString::number(i + 1)).section(u',', 0, 0);
        QVERIFY(!holder.isEmpty());
        QVERIFY2(copies.at(i).contains(holder), qPrintable(copies.at(i)));
    }
}

void tst_PageFacts::drillsAreHeldAsOnTheSheet_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("drill");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("alarm") << u"alarm test"_s << u"test of the alarm"_s << QStringList{u"every Monday"_s, u"10:00"_s};
    QTest::newRow("equipment") << u"equipment and spill-kit check"_s << u"equipment and the spill kits"_s
                               << QStringList{u"month"_s};
    QTest::newRow("spill") << u"spill drill, and every phone number called"_s << u"spill drill"_s
                           << QStringList{u"once a quarter"_s, u"each shift in turn"_s};
    QTest::newRow("evacuation") << u"evacuation drill"_s << u"evacuation drill"_s
                                << QStringList{u"twice a year"_s, u"on every shift"_s};
    QTest::newRow("exercise") << u"full exercise with the fire department"_s
                              << u"full exercise with the fire department"_s
                              << QStringList{u"once a year"_s, u"in October"_s};
}

void tst_PageFacts::drillsAreHeldAsOnTheSheet()
{
    QFETCH(QString, row);
    QFETCH(QString, drill);
    QFETCH(QStringList, words);
    const QStringList bullet = pageblocks::ofKind(procedureMethod(), u"bullet360"_s).filter(drill);
    QCOMPARE(bullet.size(), 1);
    for (const QString &word : words) {
        QVERIFY2(fact(row).contains(word), qPrintable(fact(row)));
        QVERIFY2(bullet.first().contains(word), qPrintable(bullet.first()));
    }
}

void tst_PageFacts::aParagraphHasTwoToFiveSentences()
{
    QFETCH(QString, rtf);
    const QStringList texts = pageblocks::ofKind(rtf, u"text"_s);
    QVERIFY(!texts.isEmpty());
    for (const QString &text : texts) {
        const qsizetype count = pageblocks::sentences(text).size();
        QVERIFY2(count >= 2 && count <= 5, qPrintable(text));
        QVERIFY2(text.endsWith(u'.') || text.endsWith(u':'), qPrintable(text));
    }
}

// Bullets that end without a dot are names of documents or of lists.
void tst_PageFacts::aBulletHasOneToThreeSentences()
{
    QFETCH(QString, rtf);
    int count = 0;
    for (const pageblocks::Block &block : pageblocks::blocks(rtf)) {
        if (!block.bullet || !block.text.endsWith(u'.')) continue;
        QVERIFY2(pageblocks::sentences(block.text).size() <= 3, qPrintable(block.text));
        ++count;
    }
    QVERIFY(count >= 2);
}

void tst_PageFacts::noSentenceStandsTwice()
{
    QStringList twice;
    const QStringList all = sentencesOfAllModules();
    for (const QString &sentence : all)
        if (sentence.size() > 20 && sentence.endsWith(u'.') && all.count(sentence) > 1) twice << sentence;
    // The two duties of both controllers, of two sentences and of one.
    QCOMPARE(twice.size(), 2 * 3);
    QCOMPARE(twice.removeDuplicates(), 3);
}

void tst_PageFacts::textIsWithinTheCodePage()
{
    QFETCH(QString, rtf);
    const QString text = plain(rtf);
    for (const QChar c : text)
        QVERIFY2(c == u'\n' || CodePage1252::hasCode(c), qPrintable(QString(c)));
}

void tst_PageFacts::aDocumentIsOneBalancedGroupOfAscii()
{
    QFETCH(QString, rtf);
    int depth = 0;
    for (qsizetype i = 0; i < rtf.size(); ++i) {
        const char16_t c = rtf.at(i).unicode();
        QVERIFY2(c >= 0x20 && c < 0x7f, qPrintable(rtf.sliced(i, 1)));
        depth += c == u'{' ? 1 : (c == u'}' ? -1 : 0);
        QCOMPARE(depth == 0, i == rtf.size() - 1);
    }
}

void tst_PageFacts::everyRunIsInTimesAndAKnownSize()
{
    QFETCH(QString, rtf);
    const auto blocks = pageblocks::blocks(rtf);
    QVERIFY(!blocks.isEmpty() && !blocks.first().runs.isEmpty());
    for (const pageblocks::Block &block : blocks)
        for (const pageblocks::Run &run : block.runs) {
            QCOMPARE(run.family, u"Times New Roman"_s);
            QVERIFY2(QList<int>({24, 26, 28, 30}).contains(run.size), qPrintable(run.text));
            QVERIFY2(run.size == 24 || run.bold, qPrintable(run.text));
            QVERIFY2(!run.underline, qPrintable(run.text));
        }
}

void tst_PageFacts::noTwoWordsRunTogetherAndNoBlankIsDoubled()
{
    QFETCH(QString, rtf);
    static const QRegularExpression slip(
        u"(?<!:)  |[,;)](?=[A-Za-z])|[.:](?=[A-Z][a-z])|[a-z](?=[A-Z(])|\\b([a-z]+) \\1\\b| [.,;)]"_s);
    for (const QString &line : plain(rtf).split(u'\n')) {
        const QRegularExpressionMatch match = slip.match(line);
        QVERIFY2(!match.hasMatch(), qPrintable(line.mid(match.capturedStart() - 10, 20)));
    }
}

QTEST_GUILESS_MAIN(tst_PageFacts)
#include "tst_PageFacts.moc"
