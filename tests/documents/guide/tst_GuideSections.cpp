// The four introductory sections of the guide.
#include "documents/PageText.h"
#include "documents/pages/GuidePages.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::pages;
using namespace pagetext;

namespace
{

// True when every text of the list stands in the page, each behind the one before it.
bool standsInOrder(const QString &page, const QStringList &texts)
{
    qsizetype from = 0;
    for (const QString &text : texts) {
        const qsizetype found = page.indexOf(text, from);
        if (found < 0) {
            qWarning() << "not found in its place:" << text;
            return false;
        }
        from = found + text.size();
    }
    return true;
}

} // namespace

class tst_GuideSections : public QObject
{
    Q_OBJECT

private slots:
    void theWelcomeTitleHasALargerProductWordAndALowBlankLine();
    void theWelcomeHasThreeParagraphsOfIntroduction();
    void theWelcomeHasSixBlocksInOrder();
    void aBlockIsAHeadingABlankLineAndOneParagraph_data();
    void aBlockIsAHeadingABlankLineAndOneParagraph();
    void theWelcomeEndsWithTheAddressAndAGreeting();
    void thePhasesStandAsThreeBulletsWithTwoTabs();
    void theViewsAreDescribedInTheOrderOfTheirTools();
    void theAdviceHeadingHasARaisedSign();
    void theContentsStateTheCounts();
    void aStepLineHasItsTabs_data();
    void aStepLineHasItsTabs();
    void thePhaseHeadingsArePlacedUnequally();
    void aSpacerStandsBetweenTwoStepsOfAPhaseOnly();
    void theStandardIsNamedInBold();
    void eachRunInHeadingIsFollowedByAList_data();
    void eachRunInHeadingIsFollowedByAList();
};

void tst_GuideSections::theWelcomeTitleHasALargerProductWordAndALowBlankLine()
{
    const QStringList found = paragraphs(guideSection1());
    QCOMPARE(found.at(0), uR"(\deflang1033\pard\plain\f2\fs32\b Welcome to \plain\f2\fs34\b orvane)"_s);
    QCOMPARE(found.at(1), uR"(\plain\f2\fs20 )"_s);
}

void tst_GuideSections::theWelcomeHasThreeParagraphsOfIntroduction()
{
    const QString page = guideSection1();
    const QString introduction = page.first(page.indexOf(u"\\ul "_s));
    const QStringList found = paragraphs(introduction + u"\\par }"_s).filter(u". "_s);
    QCOMPARE(found.size(), 3);
    for (const QString &paragraph : found) {
        QVERIFY2(sentences(paragraph) >= 2 && sentences(paragraph) <= 5, qPrintable(paragraph));
    }
    QVERIFY(found.at(0).contains(uR"(\plain\f2\fs26\b orvane\plain\f2\fs24 )"_s));
}

void tst_GuideSections::theWelcomeHasSixBlocksInOrder()
{
    const QString heading = uR"(\par \plain\f2\fs28\b\ul )"_s;
    const QString page = guideSection1();
    QCOMPARE(page.count(heading), 6);
    QVERIFY(standsInOrder(page, {heading + u"Command Center \\par "_s, heading + u"Implementation Guide \\par "_s,
                                 heading + u"Environment Manual \\par "_s, heading + u"Management Procedures \\par "_s,
                                 heading + u"Example Records \\par "_s, heading + u"Action Tools \\par "_s}));
}

void tst_GuideSections::aBlockIsAHeadingABlankLineAndOneParagraph_data()
{
    QTest::addColumn<QString>("heading");
    for (const char *heading : {"Command Center ", "Implementation Guide ", "Environment Manual ",
                                "Management Procedures ", "Example Records ", "Action Tools "}) {
        QTest::newRow(heading) << QString::fromLatin1(heading);
    }
}

void tst_GuideSections::aBlockIsAHeadingABlankLineAndOneParagraph()
{
    QFETCH(QString, heading);
    const QStringList found = paragraphs(guideSection1());
    const qsizetype at = found.indexOf(uR"(\plain\f2\fs28\b\ul )"_s + heading);
    QVERIFY(at > 0);
    QCOMPARE(found.at(at + 1), uR"(\plain\f2\fs24 )"_s);
    const qsizetype count = sentences(found.at(at + 2));
    QVERIFY2(count >= 2 && count <= 5, qPrintable(found.at(at + 2)));
    QVERIFY(plainText(found.at(at + 3)).isEmpty());
}

void tst_GuideSections::theWelcomeEndsWithTheAddressAndAGreeting()
{
    QStringList ending = paragraphs(guideSection1());
    ending.removeIf([](const QString &paragraph) { return plainText(paragraph).isEmpty(); });
    QVERIFY(ending.at(ending.size() - 2).contains(u"www.orvane.example"_s));
    QVERIFY(ending.last().endsWith(u'!'));
}

void tst_GuideSections::thePhasesStandAsThreeBulletsWithTwoTabs()
{
    const QStringList found = bullets(guideSection2());
    const auto opening = [](const QString &label, const QString &phase) {
        return bulletOpening() + label + uR"(\tab \tab \plain\f2\fs24\b )"_s + phase + uR"(\plain\f2\fs24 )"_s;
    };
    QVERIFY(found.at(0).contains(opening(u"PHASE I"_s, u"Policy and Planning"_s)));
    QVERIFY(found.at(1).contains(opening(u"PHASE II"_s, u"Implementation and Operation"_s)));
    QVERIFY(found.at(2).contains(opening(u"PHASE III"_s, u"Evaluation and Review"_s)));
}

void tst_GuideSections::theViewsAreDescribedInTheOrderOfTheirTools()
{
    const QString italic = uR"(\plain\f2\fs26\b\i )"_s;
    const QString list = uR"(\par \pard\li360\fi-360\tx360)"_s + bulletList();
    const QString page = guideSection2();
    QVERIFY(standsInOrder(page, {italic + uR"(The Requirement in brief\'85 )"_s + list,
                                 italic + uR"(Do I need a Procedure?\'85 )"_s + list,
                                 italic + uR"(Implementation action\'85 )"_s + list,
                                 italic + uR"( advice\'85)"_s + list, italic + uR"(HOT TIPS!!\'85 )"_s + list}));
    QCOMPARE(page.count(italic), 5);
}

void tst_GuideSections::theAdviceHeadingHasARaisedSign()
{
    const QString page = guideSection2();
    QVERIFY(page.contains(uR"(\plain\f2\fs28\b orvane\plain\f2\fs19\b\up14 )"_s));
    QCOMPARE(page.count(u"\\up14"_s), 1);
}

void tst_GuideSections::theContentsStateTheCounts()
{
    QVERIFY(standsInOrder(
        guideSection2(),
        {uR"(\par {\pntext\f1\'b7\tab}\plain\f2\fs26\b 19 Management Procedures. \plain\f2\fs24 )"_s,
         uR"(\par \plain\f2\fs24\b {\pntext\f1\'b7\tab}21\plain\f2\fs24  example \plain\f2\fs26\b Records\plain)"_s,
         uR"(\par \plain\f2\fs24\b {\pntext\f1\'b7\tab}11 Action Tools\plain\f2\fs24 )"_s}));
}

void tst_GuideSections::aStepLineHasItsTabs_data()
{
    static constexpr const char *titles[] = {"Action Team",
                                             "Management System Scope",
                                             "Initial Review",
                                             "Environmental Policy",
                                             "Environmental Aspects",
                                             "Legal and Other Requirements",
                                             "Objectives and Targets",
                                             "Environmental Management Program(s)",
                                             "Structure and Responsibility",
                                             "Performance Reporting",
                                             "Training, Awareness and Competence",
                                             "Communication",
                                             "Environmental Management System Documentation",
                                             "Document Control",
                                             "Operational Control",
                                             "Purchasing",
                                             "Emergency Preparedness and Response",
                                             "Monitoring and Measurement",
                                             "Calibration of Monitoring Equipment",
                                             "Legal Compliance",
                                             "Nonconformance and Corrective and Preventive Action",
                                             "Records",
                                             "Environmental Management System Audit",
                                             "Management Review"};
    QTest::addColumn<QString>("line");
    int number = 0;
    for (const char *title : titles) {
        ++number;
        const QString tabs = number < 10    ? uR"(\plain\f2\fs24 \tab \tab )"_s
                             : number == 21 ? uR"(\tab \plain\f2\fs24 )"_s
                                            : uR"(\plain\f2\fs24 \tab )"_s;
        QTest::newRow(title) << uR"(\par \plain\f2\fs24\b Step )"_s + QString::number(number) + tabs +
                                    QString::fromLatin1(title) + u" \\par "_s;
    }
}

void tst_GuideSections::aStepLineHasItsTabs()
{
    QFETCH(QString, line);
    QCOMPARE(guideSection3().count(line), 1);
}

void tst_GuideSections::thePhaseHeadingsArePlacedUnequally()
{
    const QString run = uR"(\plain\f2\fs28\b\ul PHASE )"_s;
    QVERIFY(standsInOrder(guideSection3(),
                          {uR"(\par \pard\li2160)"_s + run + u"I   Policy and Planning \\par \\pard\\plain"_s,
                           u"Step 1\\"_s, u"Step 8\\"_s,
                           uR"(\par \pard\qc)"_s + run + u"II   Implementation and Operation \\par \\pard\\plain"_s,
                           u"Step 9\\"_s, u"Step 17\\"_s,
                           uR"(\par \pard\qc)"_s + run + u"III   Evaluation and Review \\par \\pard\\plain"_s,
                           u"Step 18\\"_s, u"Step 24\\"_s}));
}

void tst_GuideSections::aSpacerStandsBetweenTwoStepsOfAPhaseOnly()
{
    const QStringList found = paragraphs(guideSection3());
    for (qsizetype i = 1; i + 1 < found.size(); ++i) {
        const bool betweenSteps = found.at(i - 1).contains(u"Step "_s) && found.at(i + 1).contains(u"Step "_s);
        QCOMPARE(found.at(i) == uR"(\plain\f2\fs12 )"_s, betweenSteps);
    }
    QCOMPARE(found.filter(u"\\fs12"_s).size(), 21);
}

void tst_GuideSections::theStandardIsNamedInBold()
{
    static const QRegularExpression line(uR"('The International \\plain\\f2\\fs24\\b [^\\]*ISO 14001\\plain)"_s);
    QVERIFY(guideSection4().contains(line));
}

void tst_GuideSections::eachRunInHeadingIsFollowedByAList_data()
{
    QTest::addColumn<QString>("heading");
    for (const char *heading : {R"(A few facts\'85\'85.. )", "ISO 14001 is: ", "ISO 14001 provides: ",
                                "ISO 14001 includes: ", "ISO 14001 aims to: ", "ISO 14001 requires you to: ",
                                "ISO 14001 applies to: ", "Revision of ISO 14001 in year 2000-2002 could:"}) {
        QTest::newRow(heading) << QString::fromLatin1(heading);
    }
}

void tst_GuideSections::eachRunInHeadingIsFollowedByAList()
{
    QFETCH(QString, heading);
    const QString expected = uR"(\par \plain\f2\fs24\b )"_s + heading + uR"(\par \pard\li360\fi-360)"_s + bulletList();
    QCOMPARE(guideSection4().count(expected), 1);
}

QTEST_GUILESS_MAIN(tst_GuideSections)
#include "tst_GuideSections.moc"
