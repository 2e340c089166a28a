// The page of Action Tool T1.C11.
#include "documents/PageBlocks.h"
#include "documents/PageText.h"
#include "documents/pages/ToolPages.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::pages;

namespace
{
QStringList headings()
{
    return {u"Types of accident and emergency"_s,
            u"Responsibility of the Main Controller "_s,
            u"Responsibility of the Incident Controller "_s,
            u"Responsibility of the Incident Action Team "_s,
            u"Content of the site plan "_s,
            u"Items in the incident control center "_s,
            u"Items of emergency equipment "_s};
}

// The bullets under a heading.
QStringList listUnder(const QString &heading)
{
    QStringList found;
    bool inList = false;
    for (const pageblocks::Block &block : pageblocks::blocks(actionTool())) {
        if (inList && !block.bullet) break;
        if (inList) found << block.text;
        if (pageblocks::kind(block) == u"28"_s && block.text == heading) inList = true;
    }
    return found;
}
} // namespace

class tst_ToolPages : public QObject
{
    Q_OBJECT

private slots:
    void thePageIsItsBodyInTheFrame();
    void thePageOpensWithItsFirstSentence();
    void thePageHasItsShape();
    void headingsStandInOrderAndOnce();
    void theKeyElementsAreTheHeadings();
    void aListHasItsNumberOfKeyPoints_data();
    void aListHasItsNumberOfKeyPoints();
    void theListsHave50KeyPoints();
    void theControllersShareTwoBulletsAndNoOthersAreAlike();
    void aHeadingOpensWithItsRunAndIsNotUnderlined();
    void onlyTheKindOfDocumentIsBoldInText();
};

void tst_ToolPages::thePageIsItsBodyInTheFrame()
{
    QCOMPARE(actionTool(), pagetext::stepFrame() + actionToolBody() + uR"(\par })"_s);
}

void tst_ToolPages::thePageOpensWithItsFirstSentence()
{
    const QString opening = uR"(\deflang1033\pard\plain\f2\fs24 This \plain\f2\fs24\b Action Tool\plain\f2\fs24 )"_s +
                            u" assists you to prepare and review emergency plans."_s;
    QCOMPARE(actionToolBody().first(opening.size()), opening);
}

void tst_ToolPages::thePageHasItsShape()
{
    QCOMPARE(pageblocks::shape(actionTool()),
             u"text . text . text . text 7*bullet283 . 28 6*bullet283 . 28 11*bullet283 . 28 8*bullet283"
             " . 28 6*bullet283 . 28 10*bullet283 . 28 4*bullet283 . 28 5*bullet283"_s);
}

void tst_ToolPages::headingsStandInOrderAndOnce()
{
    QCOMPARE(pageblocks::ofKind(actionTool(), u"28"_s), headings());
}

void tst_ToolPages::theKeyElementsAreTheHeadings()
{
    const QStringList bullets = pageblocks::ofKind(actionTool(), u"bullet283"_s);
    QCOMPARE(bullets.first(headings().size()), headings());
}

void tst_ToolPages::aListHasItsNumberOfKeyPoints_data()
{
    QTest::addColumn<QString>("heading");
    QTest::addColumn<int>("count");
    const QList<int> counts{6, 11, 8, 6, 10, 4, 5};
    for (qsizetype i = 0; i < counts.size(); ++i)
        QTest::addRow("%s", qPrintable(headings().at(i))) << headings().at(i) << counts.at(i);
}

void tst_ToolPages::aListHasItsNumberOfKeyPoints()
{
    QFETCH(QString, heading);
    QFETCH(int, count);
    QCOMPARE(listUnder(heading).size(), count);
}

void tst_ToolPages::theListsHave50KeyPoints()
{
    qsizetype count = 0;
    for (const QString &heading : headings())
        count += listUnder(heading).size();
    QCOMPARE(count, 50);
}

void tst_ToolPages::theControllersShareTwoBulletsAndNoOthersAreAlike()
{
    const QStringList ofIncident = listUnder(headings().at(2));
    QStringList shared;
    for (const QString &bullet : listUnder(headings().at(1)))
        if (ofIncident.contains(bullet)) shared << bullet;
    QCOMPARE(shared.size(), 2);
    QStringList all;
    for (const QString &heading : headings())
        all << listUnder(heading);
    QCOMPARE(all.removeDuplicates(), 2);
}

void tst_ToolPages::aHeadingOpensWithItsRunAndIsNotUnderlined()
{
    const QString page = actionTool();
    for (const QString &heading : headings())
        QCOMPARE(page.count(uR"(\par \pard\plain\f2\fs24\par \plain\f2\fs28\b )"_s + heading +
                            uR"(\par \pard\li283\fi-283{)"_s),
                 1);
    QVERIFY(!page.contains(u"\\ul"_s));
}

void tst_ToolPages::onlyTheKindOfDocumentIsBoldInText()
{
    QCOMPARE(pageblocks::boldWords(actionTool()), QStringList(u"Action Tool"_s));
}

QTEST_GUILESS_MAIN(tst_ToolPages)
#include "tst_ToolPages.moc"
