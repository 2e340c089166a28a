// What all pages of the guide have in common, read as the bytes that are handed to the text area.
#include "documents/PageText.h"
#include "documents/pages/GuidePages.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane::pages;
using namespace pagetext;

namespace
{

struct Page {
    const char *name;
    QString (*make)();
};

const Page AllPages[] = {
    {"Section 1", guideSection1},
    {"Section 2", guideSection2},
    {"Section 3", guideSection3},
    {"Section 4", guideSection4},
    {"Requirement", stepRequirement},
    {"Procedure", stepProcedure},
    {"Implementation", stepImplementation},
    {"Tips", stepTips},
    {"Implementation heading", implementationHeading},
    {"Tips heading", tipsHeading},
};

void everyPage()
{
    QTest::addColumn<QString>("page");
    for (const Page &page : AllPages) {
        QTest::newRow(page.name) << page.make();
    }
}

} // namespace

class tst_GuidePages : public QObject
{
    Q_OBJECT

private slots:
    void aPageOpensWithItsFrameAndTitle_data();
    void aPageOpensWithItsFrameAndTitle();
    void onlyTheIntroductionsHaveABlankBehindTheClosing_data();
    void onlyTheIntroductionsHaveABlankBehindTheClosing();
    void aPageIsOneBalancedGroupOfAscii_data();
    void aPageIsOneBalancedGroupOfAscii();
    void everyRunNamesItsFontAndAKnownSize_data();
    void everyRunNamesItsFontAndAKnownSize();
    void aListEndsWithAParagraphThatIsReset_data();
    void aListEndsWithAParagraphThatIsReset();
    void aBulletHasOneToThreeSentences_data();
    void aBulletHasOneToThreeSentences();
    void aPageHasWordsEnough_data();
    void aPageHasWordsEnough();
};

void tst_GuidePages::aPageOpensWithItsFrameAndTitle_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("opening");
    const QString title = uR"(\deflang1033\pard\plain\f2\fs32\b )"_s;
    const QString leadingBullet = uR"(\deflang1033\pard\li360\fi-360\tx360)"_s + bulletList();
    QTest::newRow("Section 1") << guideSection1() << stepFrame() + title + u"Welcome to "_s;
    QTest::newRow("Section 2") << guideSection2() << spacedFrame() + title + u"Using this Guide \\par "_s;
    QTest::newRow("Section 3") << guideSection3()
                               << spacedFrame() + title +
                                      uR"(Three Phase Plan for ISO 14001 \endash  Your Route to Success \par )"_s;
    QTest::newRow("Section 4") << guideSection4() << spacedFrame() + title + u"What is ISO14001? \\par "_s;
    QTest::newRow("Requirement") << stepRequirement()
                                 << stepFrame() + uR"(\deflang1033\pard\plain\f2\fs26\b ISO 14001  Section 4.4.7)"_s +
                                        uR"(\par \pard\tx360\plain\f2\fs24\par \pard\li360)"_s;
    QTest::newRow("Procedure") << stepProcedure() << stepFrame() + leadingBullet + uR"(\plain\f2\fs24\b Yes. )"_s;
    QTest::newRow("Implementation")
        << stepImplementation()
        << stepFrame() + uR"(\deflang1033\pard\li360\fi-360\tx360\tx10024\plain\f2\fs24\b 1.\tab Assign)"_s;
    QTest::newRow("Tips") << stepTips() << stepFrame() + leadingBullet + uR"(\plain\f2\fs24\b Include)"_s;
}

void tst_GuidePages::aPageOpensWithItsFrameAndTitle()
{
    QFETCH(QString, page);
    QFETCH(QString, opening);
    QCOMPARE(page.first(opening.size()), opening);
}

void tst_GuidePages::onlyTheIntroductionsHaveABlankBehindTheClosing_data()
{
    everyPage();
}

void tst_GuidePages::onlyTheIntroductionsHaveABlankBehindTheClosing()
{
    QFETCH(QString, page);
    const bool isIntroduction = QByteArrayView(QTest::currentDataTag()).startsWith("Section");
    QVERIFY(page.endsWith(isIntroduction ? u"\\par } "_s : u"\\par }"_s));
}

void tst_GuidePages::aPageIsOneBalancedGroupOfAscii_data()
{
    everyPage();
}

void tst_GuidePages::aPageIsOneBalancedGroupOfAscii()
{
    QFETCH(QString, page);
    int depth = 0;
    const qsizetype last = page.trimmed().size() - 1;
    for (qsizetype i = 0; i <= last; ++i) {
        const char16_t c = page.at(i).unicode();
        QVERIFY2(c >= 0x20 && c < 0x7f, qPrintable(page.sliced(i, 1)));
        depth += c == u'{' ? 1 : (c == u'}' ? -1 : 0);
        QCOMPARE(depth == 0, i == last);
    }
}

void tst_GuidePages::everyRunNamesItsFontAndAKnownSize_data()
{
    everyPage();
}

void tst_GuidePages::everyRunNamesItsFontAndAKnownSize()
{
    QFETCH(QString, page);
    static const QRegularExpression run(
        uR"(\\plain(\\f2\\fs(34|32|28|26|24|20|19|18|12)(\\cf1)?(\\b|\\b\\i|\\b\\ul|\\b\\up14)?)"
        uR"(|\\lang1033\\f3\\fs20)(?=[ \\]))"_s);
    QCOMPARE(page.count(run), page.count(u"\\plain"_s));
}

void tst_GuidePages::aListEndsWithAParagraphThatIsReset_data()
{
    everyPage();
}

void tst_GuidePages::aListEndsWithAParagraphThatIsReset()
{
    QFETCH(QString, page);
    bool inList = false;
    for (const QString &paragraph : paragraphs(page)) {
        const bool opensList = paragraph.contains(bulletList());
        const bool isBullet = paragraph.contains(bulletOpening());
        const bool isReset = paragraph.contains(u"\\pard"_s);
        QVERIFY2(!isBullet || inList || opensList, qPrintable(paragraph));
        QVERIFY2(isBullet || !inList || isReset, qPrintable(paragraph));
        inList = isBullet;
    }
}

void tst_GuidePages::aBulletHasOneToThreeSentences_data()
{
    everyPage();
}

void tst_GuidePages::aBulletHasOneToThreeSentences()
{
    QFETCH(QString, page);
    for (const QString &bullet : bullets(page)) {
        const bool isWholeView = bullet.contains(u"Yes. "_s); // the one bullet of the Procedure view
        const qsizetype count = sentences(bullet);
        QVERIFY2(count >= 1, qPrintable(bullet));
        QVERIFY2(count <= (isWholeView ? 6 : 3), qPrintable(bullet));
        QVERIFY2(plainText(bullet).trimmed().size() >= 50, qPrintable(bullet));
    }
}

void tst_GuidePages::aPageHasWordsEnough_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    QTest::newRow("Section 1") << guideSection1() << 450 << 670;
    QTest::newRow("Section 2") << guideSection2() << 480 << 700;
    QTest::newRow("Section 4") << guideSection4() << 500 << 800;
    QTest::newRow("Requirement") << stepRequirement() << 140 << 450;
    QTest::newRow("Procedure") << stepProcedure() << 100 << 250;
    QTest::newRow("Implementation") << stepImplementation() << 250 << 450;
    QTest::newRow("Tips") << stepTips() << 140 << 450;
}

void tst_GuidePages::aPageHasWordsEnough()
{
    QFETCH(QString, page);
    QFETCH(int, least);
    QFETCH(int, most);
    const qsizetype words =
        plainText(paragraphs(page).join(u' ')).split(QRegularExpression(u"\\s+"_s), Qt::SkipEmptyParts).size();
    QVERIFY2(words >= least && words <= most, qPrintable(QString::number(words)));
}

QTEST_GUILESS_MAIN(tst_GuidePages)
#include "tst_GuidePages.moc"
