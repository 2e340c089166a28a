// The four views of the step, and the short documents that announce two of them.
#include "documents/PageText.h"
#include "documents/pages/GuidePages.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::pages;
using namespace pagetext;

class tst_GuideStepViews : public QObject
{
    Q_OBJECT

private slots:
    void aViewIsItsBodyInTheFrame_data();
    void aViewIsItsBodyInTheFrame();
    void theRequirementHasThreeBulletsWithTheirKeyWords();
    void theProcedureViewIsOneBulletThatSaysYes();
    void theTipsAreTwoBulletsWithTheirKeyWords();
    void theActionsBeginWithNumberDotTabAndKeyWord();
    void noOtherDotStandsBeforeATab();
    void theFirstMarkerStandsAtTheSecondCharacter();
    void anActionHasTwoToFourSentences();
    void theShortHeadingsAreExact();
};

void tst_GuideStepViews::aViewIsItsBodyInTheFrame_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("body");
    QTest::newRow("Requirement") << stepRequirement() << stepRequirementBody();
    QTest::newRow("Procedure") << stepProcedure() << stepProcedureBody();
    QTest::newRow("Implementation") << stepImplementation() << stepImplementationBody();
    QTest::newRow("Tips") << stepTips() << stepTipsBody();
}

void tst_GuideStepViews::aViewIsItsBodyInTheFrame()
{
    QFETCH(QString, page);
    QFETCH(QString, body);
    QVERIFY(body.startsWith(uR"(\deflang1033\pard)"_s));
    QCOMPARE(page, stepFrame() + body + u"\\par }"_s);
}

void tst_GuideStepViews::theRequirementHasThreeBulletsWithTheirKeyWords()
{
    const QStringList found = bullets(stepRequirement());
    QCOMPARE(found.size(), 3);
    QVERIFY(found.at(0).contains(bulletOpening() + uR"(\plain\f2\fs24\b Identify\plain\f2\fs24  )"_s));
    QVERIFY(found.at(1).startsWith(uR"(\plain\f2\fs24\b {\pntext\f1\'b7\tab}Plan\plain\f2\fs24  )"_s));
    QVERIFY(found.at(2).startsWith(uR"(\plain\f2\fs24\b {\pntext\f1\'b7\tab}Test\plain\f2\fs24  )"_s));
}

void tst_GuideStepViews::theProcedureViewIsOneBulletThatSaysYes()
{
    const QStringList found = paragraphs(stepProcedure());
    QCOMPARE(found.size(), 1);
    QVERIFY(plainText(found.first()).startsWith(u"Yes. Section 4.4.7"_s));
}

void tst_GuideStepViews::theTipsAreTwoBulletsWithTheirKeyWords()
{
    const QStringList found = paragraphs(stepTips());
    QCOMPARE(found.size(), 2);
    QVERIFY(found.at(0).contains(bulletOpening() + uR"(\plain\f2\fs24\b Include\plain\f2\fs24  )"_s));
    QVERIFY(found.at(1).startsWith(uR"(\plain\f2\fs24\b {\pntext\f1\'b7\tab}Record\plain\f2\fs24  )"_s));
}

void tst_GuideStepViews::theActionsBeginWithNumberDotTabAndKeyWord()
{
    const QStringList words = {u"Assign"_s,  u"Write"_s,    u"Design"_s, u"Identify"_s,
                               u"Prepare"_s, u"Document"_s, u"Test"_s};
    const QStringList found = paragraphs(stepImplementation());
    QCOMPARE(found.size(), words.size());
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString label = QString::number(i + 1) + uR"(.\tab )"_s + words.at(i) + uR"(\plain\f2\fs24  )"_s;
        QVERIFY2(found.at(i).contains(uR"(\plain\f2\fs24\b )"_s + label), qPrintable(found.at(i)));
        QVERIFY(i == 0 || found.at(i).startsWith(uR"(\plain\f2\fs24\b )"_s));
    }
}

void tst_GuideStepViews::noOtherDotStandsBeforeATab()
{
    const QString text = plainText(paragraphs(stepImplementation()).join(u'\n'));
    QCOMPARE(text.count(u".\t"_s), 7);
    QCOMPARE(text.count(u'\t'), 7);
}

void tst_GuideStepViews::theFirstMarkerStandsAtTheSecondCharacter()
{
    QCOMPARE(plainText(stepImplementationBody()).first(10), u"1.\tAssign "_s);
}

void tst_GuideStepViews::anActionHasTwoToFourSentences()
{
    for (const QString &action : paragraphs(stepImplementation())) {
        const qsizetype count = sentences(action);
        QVERIFY2(count >= 2 && count <= 4, qPrintable(action));
    }
}

void tst_GuideStepViews::theShortHeadingsAreExact()
{
    const QString opening =
        uR"({\rtf1\ansi\deff0\deftab720{\fonttbl{\f0\fswiss MS Sans Serif;}{\f1\froman\fcharset2 Symbol;})"
        uR"({\f2\froman\fprq2 Times New Roman;}{\f3\froman Times New Roman;}})"
        uR"({\colortbl\red0\green0\blue0;\red255\green0\blue0;}\deflang2057\pard\plain\f2\fs18\b )"_s;
    const QString click = uR"(\par \plain\f2\fs18\b\par \plain\f2\fs18\cf1\b Click\plain\f2\fs18\cf1  - )"_s;
    const QString tail = uR"(\plain\lang1033\f3\fs20\par })"_s;
    QCOMPARE(implementationHeading(),
             opening + uR"(Implementation action\par \plain\f2\fs18 Key Action Points to implement each ISO 14001 )"_s +
                 u"requirement is provided."_s + click + u"Any of the bolded words"_s + tail);
    QCOMPARE(tipsHeading(),
             opening + uR"(Hot Tips\par \plain\f2\fs18 Use orvane's experience for effective implementation.)"_s +
                 click + u"Close"_s + tail);
}

QTEST_GUILESS_MAIN(tst_GuideStepViews)
#include "tst_GuideStepViews.moc"
