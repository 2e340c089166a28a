// The three pages of the Environment Manual's section 4.4.7.
#include "documents/PageBlocks.h"
#include "documents/PageText.h"
#include "documents/pages/ManualPages.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::pages;

namespace
{
QString title(const QString &name)
{
    return uR"(\deflang1033\pard\plain\f2\fs28\b )"_s + name;
}
} // namespace

class tst_ManualPages : public QObject
{
    Q_OBJECT

private slots:
    void aPageIsItsBodyInTheFrame_data();
    void aPageIsItsBodyInTheFrame();
    void aBodyOpensWithItsTitleAndAnEmptyLine_data();
    void aBodyOpensWithItsTitleAndAnEmptyLine();
    void aPageHasItsShape_data();
    void aPageHasItsShape();
    void theCommitmentNamesTheCompanyThenTheProcedureOfAspects();
    void theCommitmentLeadsToItsListWithFollowing();
    void theCommitmentEndsInBold();
    void theListsNameTheirDocuments();
};

void tst_ManualPages::aPageIsItsBodyInTheFrame_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("body");
    QTest::newRow("Commitment") << manualCommitment() << manualCommitmentBody();
    QTest::newRow("Procedures") << manualProcedures() << manualProceduresBody();
    QTest::newRow("References") << manualReferences() << manualReferencesBody();
}

void tst_ManualPages::aPageIsItsBodyInTheFrame()
{
    QFETCH(QString, page);
    QFETCH(QString, body);
    QCOMPARE(page, pagetext::stepFrame() + body + uR"(\par })"_s);
}

void tst_ManualPages::aBodyOpensWithItsTitleAndAnEmptyLine_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("opening");
    QTest::newRow("Commitment") << manualCommitmentBody()
                                << title(u"Commitment"_s) + uR"(\par \plain\f2\fs24\par Global Inc)"_s;
    QTest::newRow("Procedures") << manualProceduresBody() << title(u"Procedures"_s) + uR"(\par\par \pard\li360)"_s;
    QTest::newRow("References") << manualReferencesBody()
                                << title(u"References"_s) + uR"(\par \plain\f2\fs24\par \pard\li360)"_s;
}

void tst_ManualPages::aBodyOpensWithItsTitleAndAnEmptyLine()
{
    QFETCH(QString, body);
    QFETCH(QString, opening);
    QCOMPARE(body.first(opening.size()), opening);
}

void tst_ManualPages::aPageHasItsShape_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("shape");
    QTest::newRow("Commitment") << manualCommitment() << u"28 . text . text . text . text 2*bullet283"_s;
    QTest::newRow("Procedures") << manualProcedures() << u"28 . bullet360"_s;
    QTest::newRow("References") << manualReferences() << u"28 . bullet360"_s;
}

void tst_ManualPages::aPageHasItsShape()
{
    QFETCH(QString, page);
    QFETCH(QString, shape);
    QCOMPARE(pageblocks::shape(page), shape);
}

void tst_ManualPages::theCommitmentNamesTheCompanyThenTheProcedureOfAspects()
{
    const QStringList texts = pageblocks::ofKind(manualCommitment(), u"text"_s);
    QVERIFY(texts.at(0).startsWith(u"Global Inc is committed to "_s));
    QVERIFY(texts.at(1).contains(u"Management Procedure E1"_s));
    QVERIFY(texts.at(2).startsWith(u"Emergency planning defines "_s));
}

void tst_ManualPages::theCommitmentLeadsToItsListWithFollowing()
{
    QVERIFY(pageblocks::ofKind(manualCommitment(), u"text"_s).constLast().endsWith(u" following:"_s));
}

void tst_ManualPages::theCommitmentEndsInBold()
{
    QVERIFY(manualCommitment().endsWith(uR"(.\plain\f2\fs24\b\par })"_s));
    QCOMPARE(pageblocks::boldWords(manualCommitment()), QStringList());
}

void tst_ManualPages::theListsNameTheirDocuments()
{
    const QString list = u"bullet360"_s;
    QCOMPARE(pageblocks::ofKind(manualProcedures(), list),
             QStringList(u"Management Procedure, C11:  Emergency Planning"_s));
    QCOMPARE(pageblocks::ofKind(manualReferences(), list),
             QStringList(u"ISO 14001 : 1996, requirement 4.4.7:  Emergency preparedness and response"_s));
}

QTEST_GUILESS_MAIN(tst_ManualPages)
#include "tst_ManualPages.moc"
