// The printed documents of the modules that are text: their sections in order, each made up of the page on screen.
#include "documents/PageBlocks.h"
#include "documents/PageText.h"
#include "documents/pages/Advice.h"
#include "documents/pages/GuidePages.h"
#include "documents/pages/ManualPages.h"
#include "documents/pages/PrintedPages.h"
#include "documents/pages/ProcedurePages.h"
#include "documents/pages/ToolPages.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::pages;

namespace
{
using Page = QString (*)();

struct Printed {
    Page document;
    QList<Page> pages; // as on screen, in the order of print
};

QString stepAdvice()
{
    QString all = pagetext::stepFrame();
    for (int number = 1; number <= 7; ++number)
        all += (number > 1 ? uR"(\par \pard\plain\f2\fs24 \par )"_s : QString()) + adviceBody(number);
    return all + uR"(\par })"_s;
}

const QMap<QString, Printed> &documents()
{
    static const QMap<QString, Printed> all{
        {u"guide"_s, {printedGuide, {stepRequirement, stepProcedure, stepImplementation, stepAdvice, stepTips}}},
        {u"manual"_s, {printedManual, {manualCommitment, manualProcedures, manualReferences}}},
        {u"procedure"_s,
         {printedProcedure,
          {procedureAim, procedureResponsibility, procedureMethod, procedureRecords, procedureReferences}}},
        {u"tool"_s, {printedTool, {actionTool}}},
    };
    return all;
}

QStringList guideHeadings()
{
    return {u"The Requirement in brief......."_s,
            u"Do I need a Procedure?......."_s,
            u"Implementation action......."_s,
            u"orvane advice......."_s,
            u"HOT TIPS!!......."_s,
            u"Related topics......."_s};
}

} // namespace

class tst_PrintedPages : public QObject
{
    Q_OBJECT

private slots:
    void aDocumentHasTheFrameOnce_data() { addDocuments(); }
    void aDocumentHasTheFrameOnce();
    void headingsStandInOrderAndOnce_data();
    void headingsStandInOrderAndOnce();
    void theGuideOpensWithTheTitleOfItsStep();
    void theGuideHasItsShape();
    void aGuideHeadingIsBoldItalicWithDots();
    void pagesStandWholeAndInOrder_data() { addDocuments(); }
    void pagesStandWholeAndInOrder();
    void aSentenceOfAPageStandsOnce_data() { addDocuments(); }
    void aSentenceOfAPageStandsOnce();
    void sectionsAreSetApartByAnEmptyLineOutsideTheList_data();
    void sectionsAreSetApartByAnEmptyLineOutsideTheList();
    void theProductWordIsLargerInTheAdvice();
    void relatedTopicsNameTheDocumentsOfTheStep();
    void theToolIsPrintedAsItStands();

private:
    static void addDocuments();
};

void tst_PrintedPages::addDocuments()
{
    QTest::addColumn<QString>("document");
    const QStringList names = documents().keys();
    for (const QString &name : names)
        QTest::addRow("%s", qPrintable(name)) << name;
}

void tst_PrintedPages::aDocumentHasTheFrameOnce()
{
    QFETCH(QString, document);
    const QString rtf = documents()[document].document();
    QVERIFY(rtf.startsWith(pagetext::stepFrame() + uR"(\deflang1033\pard\plain\f2\fs)"_s));
    QVERIFY(rtf.endsWith(uR"(\par })"_s));
    QCOMPARE(rtf.count(u"{\\rtf1"_s), 1);
    QCOMPARE(rtf.count(u"{\\colortbl"_s), 1);
}

void tst_PrintedPages::headingsStandInOrderAndOnce_data()
{
    QTest::addColumn<QString>("rtf");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QStringList>("headings");
    QTest::newRow("guide") << printedGuide() << u"28i"_s << guideHeadings();
    QTest::newRow("the guide's title") << printedGuide() << u"30"_s
                                       << QStringList(u"Step 17 Emergency Preparedness and Response"_s);
    QTest::newRow("the guide's section of the standard")
        << printedGuide() << u"26"_s << QStringList(u"ISO 14001  Section 4.4.7"_s);
    QTest::newRow("manual") << printedManual() << u"28"_s
                            << QStringList{u"Commitment"_s, u"Procedures"_s, u"References"_s};
    QTest::newRow("procedure") << printedProcedure() << u"28"_s
                               << QStringList{u"Aim"_s, u"Responsibility"_s, u"Method"_s, u"Records"_s,
                                              u"References"_s};
    QTest::newRow("tool") << printedTool() << u"28"_s
                          << QStringList{u"Types of accident and emergency"_s,
                                         u"Responsibility of the Main Controller "_s,
                                         u"Responsibility of the Incident Controller "_s,
                                         u"Responsibility of the Incident Action Team "_s,
                                         u"Content of the site plan "_s,
                                         u"Items in the incident control center "_s,
                                         u"Items of emergency equipment "_s};
}

void tst_PrintedPages::headingsStandInOrderAndOnce()
{
    QFETCH(QString, rtf);
    QFETCH(QString, kind);
    QFETCH(QStringList, headings);
    QCOMPARE(pageblocks::ofKind(rtf, kind), headings);
}

void tst_PrintedPages::theGuideOpensWithTheTitleOfItsStep()
{
    const QString opening = pagetext::stepFrame() +
                            uR"(\deflang1033\pard\plain\f2\fs30\b Step 17 Emergency Preparedness and Response\par )"_s;
    QCOMPARE(printedGuide().first(opening.size()), opening);
}

void tst_PrintedPages::theGuideHasItsShape()
{
    QCOMPARE(pageblocks::shape(printedGuide()),
             u"30 . 28i . 26 . 3*bullet360 . 28i . bullet360 . 28i . 7*text"
             " . 28i . text . text . text . text . text . text . text . 28i . 2*bullet360 . 28i . 4*bullet360"_s);
}

void tst_PrintedPages::aGuideHeadingIsBoldItalicWithDots()
{
    const QString rtf = printedGuide();
    for (const QString &heading : guideHeadings())
        QCOMPARE(rtf.count(uR"(\par \plain\f2\fs28\b\i )"_s + heading + uR"(\par )"_s), 1);
}

void tst_PrintedPages::pagesStandWholeAndInOrder()
{
    QFETCH(QString, document);
    const QList<pageblocks::Block> printed = pageblocks::blocks(documents()[document].document());
    auto from = printed.begin();
    for (Page page : documents()[document].pages) {
        const QList<pageblocks::Block> expected = pageblocks::blocks(page());
        const auto found = std::search(from, printed.end(), expected.begin(), expected.end());
        QVERIFY2(found != printed.end(), qPrintable(expected.first().text));
        from = found + expected.size();
    }
}

void tst_PrintedPages::aSentenceOfAPageStandsOnce()
{
    QFETCH(QString, document);
    const QStringList printed = pageblocks::allSentences(documents()[document].document());
    for (Page page : documents()[document].pages) {
        const QStringList onPage = pageblocks::allSentences(page());
        for (const QString &sentence : onPage)
            QVERIFY2(printed.count(sentence) == onPage.count(sentence), qPrintable(sentence));
    }
}

void tst_PrintedPages::sectionsAreSetApartByAnEmptyLineOutsideTheList_data()
{
    QTest::addColumn<QString>("rtf");
    QTest::addColumn<QString>("kind");
    QTest::newRow("guide") << printedGuide() << u"28i"_s;
    QTest::newRow("manual") << printedManual() << u"28"_s;
    QTest::newRow("procedure") << printedProcedure() << u"28"_s;
    QTest::newRow("tool") << printedTool() << u"28"_s;
}

void tst_PrintedPages::sectionsAreSetApartByAnEmptyLineOutsideTheList()
{
    QFETCH(QString, rtf);
    QFETCH(QString, kind);
    const QList<pageblocks::Block> blocks = pageblocks::blocks(rtf);
    for (qsizetype i = 1; i < blocks.size(); ++i) {
        QVERIFY2(!pageblocks::kind(blocks.at(i)).startsWith(u"hollow"), qPrintable(blocks.at(i - 1).text));
        if (pageblocks::kind(blocks.at(i)) != kind) continue;
        QCOMPARE(pageblocks::kind(blocks.at(i - 1)), u"."_s);
        QCOMPARE(blocks.at(i - 1).left, 0);
        QCOMPARE(blocks.at(i).left, 0);
    }
}

void tst_PrintedPages::theProductWordIsLargerInTheAdvice()
{
    int count = 0;
    for (const pageblocks::Block &block : pageblocks::blocks(printedGuide()))
        for (const pageblocks::Run &run : block.runs) {
            if (!run.text.startsWith(u"orvane"_s) || run.italic) continue;
            QCOMPARE(run.text, u"orvane"_s);
            QCOMPARE(run.size, 26);
            QVERIFY(run.bold);
            ++count;
        }
    QCOMPARE(count, 6);
}

void tst_PrintedPages::relatedTopicsNameTheDocumentsOfTheStep()
{
    const QStringList bullets = pageblocks::ofKind(printedGuide(), u"bullet360"_s);
    QCOMPARE(bullets.last(4), (QStringList{u"Environment Manual, section 4.4.7:  Emergency Preparedness and Response"_s,
                                           u"Management Procedure, C11:  Emergency Planning"_s,
                                           u"Action Tool, T1.C11:  Key Points to Include in Emergency Plans"_s,
                                           u"Record, R1.C11:  Emergency Plan"_s}));
}

void tst_PrintedPages::theToolIsPrintedAsItStands()
{
    QCOMPARE(printedTool(), actionTool());
}

QTEST_GUILESS_MAIN(tst_PrintedPages)
#include "tst_PrintedPages.moc"
