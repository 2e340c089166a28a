// The five pages of Management Procedure C11.
#include "documents/PageBlocks.h"
#include "documents/PageText.h"
#include "documents/pages/ProcedurePages.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::pages;

namespace
{
const QString AfterTitle = uR"(\par \plain\f2\fs24)"_s;

QString title(const QString &name)
{
    return uR"(\deflang1033\pard\plain\f2\fs28\b )"_s + name;
}

QStringList roles()
{
    return {u"Executive Board"_s,     u"Vice President (VP)-Manufacturing"_s,
            u"Department Managers"_s, u"Human Resources Manager"_s,
            u"Environment Manager"_s, u"Maintenance Manager"_s,
            u"Supervisors"_s,         u"All Personnel"_s};
}

} // namespace

class tst_ProcedurePages : public QObject
{
    Q_OBJECT

private slots:
    void aPageIsItsBodyInTheFrame_data();
    void aPageIsItsBodyInTheFrame();
    void aBodyOpensWithItsTitleAndAnEmptyLine_data();
    void aBodyOpensWithItsTitleAndAnEmptyLine();
    void aPageHasItsShape_data();
    void aPageHasItsShape();
    void aPageHasItsBoldWords_data();
    void aPageHasItsBoldWords();
    void theAimLeadsToItsTwoLists();
    void rolesStandInTheirOrder();
    void theMethodIsNumberedFromOneToSixteen();
    void listsOfTheMethodFollowTheirParagraphs_data();
    void listsOfTheMethodFollowTheirParagraphs();
    void aParagraphBehindAListIsSetBack();
    void theListsNameTheirDocuments();
};

void tst_ProcedurePages::aPageIsItsBodyInTheFrame_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("body");
    QTest::newRow("Aim") << procedureAim() << procedureAimBody();
    QTest::newRow("Responsibility") << procedureResponsibility() << procedureResponsibilityBody();
    QTest::newRow("Method") << procedureMethod() << procedureMethodBody();
    QTest::newRow("Records") << procedureRecords() << procedureRecordsBody();
    QTest::newRow("References") << procedureReferences() << procedureReferencesBody();
}

void tst_ProcedurePages::aPageIsItsBodyInTheFrame()
{
    QFETCH(QString, page);
    QFETCH(QString, body);
    QCOMPARE(page, pagetext::stepFrame() + body + uR"(\par })"_s);
}

void tst_ProcedurePages::aBodyOpensWithItsTitleAndAnEmptyLine_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("opening");
    QTest::newRow("Aim") << procedureAimBody() << title(u"Aim"_s) + AfterTitle + uR"(\par This )"_s;
    QTest::newRow("Responsibility") << procedureResponsibilityBody()
                                    << title(u"Responsibility"_s) + AfterTitle + uR"(\par \plain\f2\fs24\b )"_s;
    QTest::newRow("Method") << procedureMethodBody()
                            << title(u"Method"_s) + AfterTitle + uR"(\par \pard\tx360\plain\f2\fs24 1.\tab )"_s;
    QTest::newRow("Records") << procedureRecordsBody() << title(u"Records"_s) + AfterTitle + uR"(\par \pard\li360)"_s;
    QTest::newRow("References") << procedureReferencesBody()
                                << title(u"References"_s) + AfterTitle + uR"(\b\par \pard\li360)"_s;
}

void tst_ProcedurePages::aBodyOpensWithItsTitleAndAnEmptyLine()
{
    QFETCH(QString, body);
    QFETCH(QString, opening);
    QCOMPARE(body.first(opening.size()), opening);
}

void tst_ProcedurePages::aPageHasItsShape_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("shape");
    QTest::newRow("Aim") << procedureAim() << u"28 . text . text . text . text . text 5*bullet283 . text 4*bullet360"_s;
    QTest::newRow("Responsibility")
        << procedureResponsibility()
        << u"28 . bold 2*bullet283 . bold 3*bullet283 . bold 3*bullet283 . bold 3*bullet283 . bold 4*bullet283"
           " . bold 3*bullet283 . bold 3*bullet283 . bold 3*bullet283"_s;
    QTest::newRow("Method") << procedureMethod()
                            << u"28 . text 3*bullet360 . text . text . text . text 6*bullet360 . text"
                               " . text 6*bullet360 . text . text 6*bullet360 . text . text 5*bullet360 . text . text"
                               " . text . text . text"_s;
    QTest::newRow("Records") << procedureRecords() << u"28 . 2*bullet360"_s;
    QTest::newRow("References") << procedureReferences() << u"28 . bullet360 . bullet360 . 2*bullet360 . bullet360"_s;
}

void tst_ProcedurePages::aPageHasItsShape()
{
    QFETCH(QString, page);
    QFETCH(QString, shape);
    QCOMPARE(pageblocks::shape(page), shape);
}

void tst_ProcedurePages::aPageHasItsBoldWords_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("Aim") << procedureAim() << QStringList{u"Each"_s, u"Emergency Plan"_s};
    QTest::newRow("Responsibility") << procedureResponsibility() << roles();
    QTest::newRow("Method") << procedureMethod() << QStringList{u"Incident"_s, u"Accident"_s, u"Emergency"_s};
    QTest::newRow("Records") << procedureRecords() << QStringList();
    QTest::newRow("References") << procedureReferences() << QStringList();
}

void tst_ProcedurePages::aPageHasItsBoldWords()
{
    QFETCH(QString, page);
    QFETCH(QStringList, words);
    QCOMPARE(pageblocks::boldWords(page), words);
}

void tst_ProcedurePages::theAimLeadsToItsTwoLists()
{
    const QStringList texts = pageblocks::ofKind(procedureAim(), u"text"_s);
    QVERIFY(texts.at(4).endsWith(u" It comprises:"_s));
    QVERIFY(texts.at(5).startsWith(u"Each "_s));
    QVERIFY(texts.at(5).endsWith(u" that aims to:"_s));
}

void tst_ProcedurePages::rolesStandInTheirOrder()
{
    QCOMPARE(pageblocks::ofKind(procedureResponsibility(), u"bold"_s), roles());
}

void tst_ProcedurePages::theMethodIsNumberedFromOneToSixteen()
{
    const QStringList texts = pageblocks::ofKind(procedureMethod(), u"text"_s);
    QCOMPARE(texts.size(), 16);
    for (qsizetype i = 0; i < texts.size(); ++i)
        QVERIFY2(texts.at(i).startsWith(QString::number(i + 1) + u".\t"_s), qPrintable(texts.at(i)));
}

void tst_ProcedurePages::listsOfTheMethodFollowTheirParagraphs_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("firstWord");
    QTest::newRow("terms") << 1 << u"Incident: "_s;
    QTest::newRow("types") << 5 << u"Fire."_s;
    QTest::newRow("contents of a plan") << 7 << u"The type of emergency"_s;
    QTest::newRow("copies") << 9 << u"Copy 1: "_s;
    QTest::newRow("drills") << 11 << u"A test of the alarm"_s;
}

void tst_ProcedurePages::listsOfTheMethodFollowTheirParagraphs()
{
    QFETCH(int, number);
    QFETCH(QString, firstWord);
    const QList<pageblocks::Block> blocks = pageblocks::blocks(procedureMethod());
    const auto above = std::find_if(blocks.begin(), blocks.end(), [&](const pageblocks::Block &block) {
        return block.text.startsWith(QString::number(number) + u".\t"_s);
    });
    QVERIFY(above != blocks.end() && above + 1 != blocks.end());
    QVERIFY2(above->text.endsWith(u':'), qPrintable(above->text));
    QVERIFY((above + 1)->bullet);
    QVERIFY2((above + 1)->text.startsWith(firstWord), qPrintable((above + 1)->text));
}

void tst_ProcedurePages::aParagraphBehindAListIsSetBack()
{
    const QString page = procedureMethod();
    for (const QString &number : {u"2"_s, u"6"_s, u"8"_s, u"10"_s, u"12"_s})
        QCOMPARE(page.count(uR"(\par \pard\tx360\plain\f2\fs24\par )"_s + number + uR"(.\tab )"_s), 1);
}

void tst_ProcedurePages::theListsNameTheirDocuments()
{
    const QString list = u"bullet360"_s;
    QCOMPARE(pageblocks::ofKind(procedureRecords(), list),
             (QStringList{u"Record, R1.C11:  Emergency Plan"_s,
                          u"Record, R1.C15:  Nonconformance and Corrective Action Record"_s}));
    QCOMPARE(pageblocks::ofKind(procedureReferences(), list),
             (QStringList{u"ISO14001 : 1996, requirement 4.4.7:  Emergency preparedness and response"_s,
                          u"Environment Manual, section 4.4.7:  Emergency Preparedness and Response"_s,
                          u"Management Procedure, E1:  Environmental Aspects"_s,
                          u"Management Procedure, C15:  Nonconformance Control"_s,
                          u"Action Tool, T1.C11:  Key Points to Include in Emergency Plans"_s}));
}

QTEST_GUILESS_MAIN(tst_ProcedurePages)
#include "tst_ProcedurePages.moc"
