// The advice on the seven actions, read as the bytes that are handed to the pane.
#include "documents/PageText.h"
#include "documents/pages/Advice.h"

#include <QTest>

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::pages;
using namespace pagetext;

namespace
{

constexpr int Actions = 7;

void everyAction()
{
    QTest::addColumn<int>("number");
    for (int number = 1; number <= Actions; ++number) {
        QTest::addRow("%d", number) << number;
    }
}

QString text(int number)
{
    return plainText(paragraphs(advice(number)).join(u'\n'));
}

} // namespace

class tst_Advice : public QObject
{
    Q_OBJECT

private slots:
    void anAdviceOpensWithTheNumberOfItsActionAndAWordOfItsOwn_data();
    void anAdviceOpensWithTheNumberOfItsActionAndAWordOfItsOwn();
    void anAdviceIsItsBodyInTheFrame_data() { everyAction(); }
    void anAdviceIsItsBodyInTheFrame();
    void anAdviceNamesItsDocumentsAndNoOthers_data();
    void anAdviceNamesItsDocumentsAndNoOthers();
    void aDocumentNumberStandsBehindKindAndTitle_data();
    void aDocumentNumberStandsBehindKindAndTitle();
    void onlyTheFourthSendsTheReaderToAnotherStep_data() { everyAction(); }
    void onlyTheFourthSendsTheReaderToAnotherStep();
    void theProductWordIsLargerThanTheTextRoundIt_data() { everyAction(); }
    void theProductWordIsLargerThanTheTextRoundIt();
    void anAdviceIsOneNumberedParagraphOfTwoToFiveSentences_data() { everyAction(); }
    void anAdviceIsOneNumberedParagraphOfTwoToFiveSentences();
    void anAdviceHas80To200Words_data() { everyAction(); }
    void anAdviceHas80To200Words();
    void anAdviceIsOneBalancedGroupOfAscii_data() { everyAction(); }
    void anAdviceIsOneBalancedGroupOfAscii();
    void noTwoWordsRunTogetherAndNoBlankIsDoubled_data() { everyAction(); }
    void noTwoWordsRunTogetherAndNoBlankIsDoubled();
    void thereIsNoAdviceForAnyOtherNumber_data();
    void thereIsNoAdviceForAnyOtherNumber();
};

void tst_Advice::anAdviceOpensWithTheNumberOfItsActionAndAWordOfItsOwn_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("opening");
    int number = 0;
    for (const char *opening : {R"(1.\tab Nominate)", R"(2.\tab Include)", R"(3.\tab Document)", R"(4.\tab Refer)",
                                R"(5.\tab Prepare)", R"(6.\tab Describe)", R"(7.\tab Include)"}) {
        QTest::newRow(opening) << ++number << QString::fromLatin1(opening);
    }
}

void tst_Advice::anAdviceOpensWithTheNumberOfItsActionAndAWordOfItsOwn()
{
    QFETCH(int, number);
    QFETCH(QString, opening);
    const QString start = stepFrame() + uR"(\deflang1033\pard\li360\fi-360\tx360\plain\f2\fs24\b )"_s + opening +
                          uR"(\plain\f2\fs24  )"_s;
    QCOMPARE(advice(number).first(start.size()), start);
}

void tst_Advice::anAdviceIsItsBodyInTheFrame()
{
    QFETCH(int, number);
    QCOMPARE(advice(number), stepFrame() + adviceBody(number) + uR"(\par })"_s);
}

void tst_Advice::anAdviceNamesItsDocumentsAndNoOthers_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QStringList>("documents");
    QTest::newRow("1") << 1 << QStringList{u"(T1.C11)"_s};
    QTest::newRow("2") << 2 << QStringList{u"(C11)"_s};
    QTest::newRow("3") << 3 << QStringList{u"(R1.C11)"_s};
    QTest::newRow("4") << 4 << QStringList{u"(T1.C11)"_s};
    QTest::newRow("5") << 5 << QStringList{u"(T1.C11)"_s};
    QTest::newRow("6") << 6 << QStringList{u"(R1.C11)"_s};
    QTest::newRow("7") << 7 << QStringList{};
}

void tst_Advice::anAdviceNamesItsDocumentsAndNoOthers()
{
    QFETCH(int, number);
    QFETCH(QStringList, documents);
    static const QRegularExpression documentNumber(uR"(\(?\b([TR]\d\.)?[CE]\d+\b\)?)"_s);
    QStringList found;
    for (const QRegularExpressionMatch &match : documentNumber.globalMatch(text(number))) {
        found << match.captured();
    }
    QCOMPARE(found, documents);
}

void tst_Advice::aDocumentNumberStandsBehindKindAndTitle_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("reference");
    const QString tool = u"Action Tool for Key Points to Include in Emergency Plans (T1.C11)"_s;
    const QString record = u"Record of an Emergency Plan (R1.C11)"_s;
    QTest::newRow("1") << 1 << tool;
    QTest::newRow("2") << 2 << u"Management Procedure for Emergency Planning (C11)"_s;
    QTest::newRow("3") << 3 << record;
    QTest::newRow("4") << 4 << tool;
    QTest::newRow("5") << 5 << tool;
    QTest::newRow("6") << 6 << record;
}

void tst_Advice::aDocumentNumberStandsBehindKindAndTitle()
{
    QFETCH(int, number);
    QFETCH(QString, reference);
    QCOMPARE(text(number).count(reference), 1);
}

void tst_Advice::onlyTheFourthSendsTheReaderToAnotherStep()
{
    QFETCH(int, number);
    const qsizetype expected = number == 4 ? 1 : 0;
    QCOMPARE(text(number).count(u"Step 5 of the Guide"_s), expected);
    QCOMPARE(text(number).count(u"Step "_s), expected);
}

void tst_Advice::theProductWordIsLargerThanTheTextRoundIt()
{
    QFETCH(int, number);
    const QString page = advice(number);
    QCOMPARE(page.count(uR"(\plain\f2\fs26\b orvane\plain\f2\fs24  )"_s), page.count(u"orvane"_s));
}

void tst_Advice::anAdviceIsOneNumberedParagraphOfTwoToFiveSentences()
{
    QFETCH(int, number);
    const QStringList found = paragraphs(advice(number));
    QCOMPARE(found.size(), 1);
    QCOMPARE(text(number).count(u'\t'), 1);
    QVERIFY2(text(number).endsWith(u'.'), qPrintable(text(number)));
    const qsizetype count = sentences(found.first());
    QVERIFY2(count >= 2 && count <= 5, qPrintable(QString::number(count)));
}

void tst_Advice::anAdviceHas80To200Words()
{
    QFETCH(int, number);
    static const QRegularExpression blanks(u"\\s+"_s);
    const qsizetype words = text(number).split(blanks, Qt::SkipEmptyParts).size() - 1; // the number is no word
    QVERIFY2(words >= 80 && words <= 200, qPrintable(QString::number(words)));
}

void tst_Advice::anAdviceIsOneBalancedGroupOfAscii()
{
    QFETCH(int, number);
    const QString page = advice(number);
    QVERIFY(!page.isEmpty());
    int depth = 0;
    for (qsizetype i = 0; i < page.size(); ++i) {
        const char16_t c = page.at(i).unicode();
        QVERIFY2(c >= 0x20 && c < 0x7f, qPrintable(page.sliced(i, 1)));
        depth += c == u'{' ? 1 : (c == u'}' ? -1 : 0);
        QCOMPARE(depth == 0, i == page.size() - 1);
    }
}

void tst_Advice::noTwoWordsRunTogetherAndNoBlankIsDoubled()
{
    QFETCH(int, number);
    static const QRegularExpression slip(u"  |[.,:;)](?=[A-Za-z])|[a-z](?=[A-Z(])|\\b([a-z]+) \\1\\b| [.,:;)]"_s);
    QString spoken = text(number);
    spoken.remove(QRegularExpression(uR"( \([TR1.C]+\))"_s)); // a document number has a dot inside
    const QRegularExpressionMatch match = slip.match(spoken);
    QVERIFY2(!match.hasMatch(), qPrintable(spoken.sliced(std::max<qsizetype>(0, match.capturedStart() - 10), 20)));
}

void tst_Advice::thereIsNoAdviceForAnyOtherNumber_data()
{
    QTest::addColumn<int>("number");
    for (int number : {std::numeric_limits<int>::min(), -1, 0, Actions + 1, std::numeric_limits<int>::max()}) {
        QTest::addRow("%d", number) << number;
    }
}

void tst_Advice::thereIsNoAdviceForAnyOtherNumber()
{
    QFETCH(int, number);
    QVERIFY(advice(number).isEmpty());
    QVERIFY(adviceBody(number).isEmpty());
}

QTEST_GUILESS_MAIN(tst_Advice)
#include "tst_Advice.moc"
