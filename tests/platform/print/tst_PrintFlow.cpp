// How a rich text is broken into pages, and its paragraphs into lines.
#include "platform/print/PrintFixture.h"
#include "platform/print/pages/TextFlow.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPdfWriter>
#include <cstdlib>
#include <new>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
size_t allocations = 0;

// A document with this much room on each page: 20 lines of 12-point text.
struct Flow {
    static constexpr int Lines = 20;
    static constexpr double LineHeight = 276;

    explicit Flow(const QString &body, double freeAtStart = Lines * LineHeight)
    {
        recording.nextSetup().paperSize = LetterPaper;
        recording.nextSetup().bottom = 15840 - 1440 - Lines * LineHeight - 1;
        recording.start();
        recording.bringUpPage();
        recording.place.ry() += Lines * LineHeight - freeAtStart;
        const QString head = uR"({\rtf1{\fonttbl{\f2 Times New Roman;}}\plain\f2\fs24 )"_s;
        TextFlow(recording, paragraphsOf(head + body + u'}', recording.setup().body().width())).run();
        recording.finish();
    }

    QStringList page(int number) const { return textOf(recording.pages()->at(number - 1)).split(u'\n'); }
    int linesOn(int number) const
    {
        int lines = 0;
        for (const PlacedLines &item : itemsOf<PlacedLines>(recording.pages()->at(number - 1)))
            lines += item.count;
        return lines;
    }

    Recording recording{[] {}, [] {}};
};

// One-line paragraphs, and one paragraph of this many lines.
QString single(int count)
{
    return uR"(Text\par )"_s.repeated(count);
}
QString many(int lines)
{
    return (u"m"_s + uR"(\line m)"_s.repeated(lines - 1)) + uR"(\par )"_s;
}
const QString Bulleted =
    uR"({\rtf1{\fonttbl{\f1\fcharset2 Symbol;}{\f2 Times New Roman;}}\f2\fs24\pard\li360\fi-360)"_s +
    uR"({\*\pn\pnlvlblt\pnf1{\pntxtb\'b7}}one\par two})"_s;

QString heading(const QString &text)
{
    return uR"({\b )"_s + text + uR"(}\par )"_s;
}
} // namespace

void *operator new(size_t size)
{
    ++allocations;
    if (void *memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
void *operator new(size_t size, const std::nothrow_t &) noexcept
{
    ++allocations;
    return std::malloc(size);
}
void operator delete(void *memory) noexcept
{
    std::free(memory);
}
void operator delete(void *memory, size_t) noexcept
{
    std::free(memory);
}

class tst_PrintFlow : public QObject
{
    Q_OBJECT

private slots:
    void aPageTakesAsManyLinesAsThereIsRoom();
    void noLineReachesBelowTheBody();
    void aParagraphIsParted_data();
    void aParagraphIsParted();
    void aHeadingGoesWithTheTextBehindIt_data();
    void aHeadingGoesWithTheTextBehindIt();
    void headingsThatFillAPageAreSetAsTheyCome();
    void aLongBoldParagraphIsNoHeading();
    void blankLinesAtThePagesEndAreLeftOut();
    void aPageBreakStartsAPage();
    void aPageBreakAtThePagesTopStartsNone();
    void aLineTallerThanThePageStandsOnAPageOfItsOwn();
    void spaceAboveIsDroppedAtThePagesTop();
    void theLargerSpaceBetweenTwoParagraphsCounts();
    void linesBreakAsTheToolkitsOwnLayoutBreaksThem();
    void indentsAndTabsAreWhereTheTextSays();
    void aBulletStandsBeforeItsText();
    void aBulletIsWhereItIsOnScreen();
    void sizesAreInTwips();
    void theWorkGrowsWithThePages();
    void hostileTextsEnd_data();
    void hostileTextsEnd();
};

void tst_PrintFlow::aPageTakesAsManyLinesAsThereIsRoom()
{
    const Flow flow(single(2 * Flow::Lines + 5));
    QCOMPARE(flow.recording.count(), 3);
    QCOMPARE(flow.linesOn(1), Flow::Lines);
    QCOMPARE(flow.linesOn(2), Flow::Lines);
    QCOMPARE(flow.linesOn(3), 5);
}

void tst_PrintFlow::noLineReachesBelowTheBody()
{
    QString body;
    for (int size = 12; size < 80; ++size)
        body += uR"(\fs%1 Some words of this size, more than fit into a single line of the column\par )"_s.arg(size);
    const Flow flow(body);
    QVERIFY(flow.recording.count() > 4);
    for (const RecordedPage &page : *flow.recording.pages())
        for (const PlacedLines &item : itemsOf<PlacedLines>(page)) {
            double bottom = item.place.y();
            for (int line = 0; line < item.count; ++line)
                bottom += item.paragraph->height(item.firstLine + line);
            QVERIFY(bottom <= page.setup.body().bottom());
            QVERIFY(item.place.y() >= page.setup.body().top());
        }
}

void tst_PrintFlow::aParagraphIsParted_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("room"); // lines left on the first page
    QTest::addColumn<int>("first");
    QTest::newRow("all fit") << 5 << 5 << 5;
    QTest::newRow("in the middle") << 8 << 4 << 4;
    QTest::newRow("a last line doesn't go alone") << 5 << 4 << 3;
    QTest::newRow("nor does a first line stay alone") << 5 << 1 << 0;
    QTest::newRow("two lines aren't parted") << 2 << 1 << 0;
    QTest::newRow("three lines aren't parted") << 3 << 2 << 0;
    QTest::newRow("four lines are halved") << 4 << 3 << 2;
    QTest::newRow("four lines, two fit") << 4 << 2 << 2;
}

void tst_PrintFlow::aParagraphIsParted()
{
    QFETCH(int, lines);
    QFETCH(int, room);
    const Flow flow(single(Flow::Lines - room) + many(lines));
    QTEST(flow.linesOn(1) - (Flow::Lines - room), "first");
    QFETCH(int, first);
    QCOMPARE(flow.recording.count(), first == lines ? 1 : 2);
    if (first < lines) QCOMPARE(flow.linesOn(2), lines - first);
}

void tst_PrintFlow::aHeadingGoesWithTheTextBehindIt_data()
{
    QTest::addColumn<QString>("tail");
    QTest::addColumn<int>("room");
    QTest::addColumn<QString>("opening"); // of page 2, or nothing where all stays
    const QString head = heading(u"Head"_s);
    const QString blank = uR"(\par )"_s;
    QTest::newRow("fits with its line") << head + single(1) << 2 << QString();
    QTest::newRow("goes along") << head + single(1) << 1 << u"Head"_s;
    QTest::newRow("over a blank line") << head + blank + single(1) << 2 << u"Head"_s;
    QTest::newRow("over a blank line that fits") << head + blank + single(1) << 3 << QString();
    QTest::newRow("two headings") << heading(u"First"_s) + head + single(1) << 2 << u"First"_s;
    QTest::newRow("with two lines of a long paragraph") << head + many(6) << 2 << u"Head"_s;
    QTest::newRow("a heading at the end") << single(1) + head << 1 << u"Head"_s;
    QTest::newRow("italic too") << heading(uR"(\i Head)"_s) + single(1) << 1 << u"Head"_s;
    QTest::newRow("bold in part is no heading") << uR"({\b Half} of it\par )"_s + single(1) << 1 << u"Text"_s;
    QTest::newRow("a page break behind it") << head + uR"(\page )"_s + single(1) << 1 << u"Text"_s;
}

void tst_PrintFlow::aHeadingGoesWithTheTextBehindIt()
{
    QFETCH(QString, tail);
    QFETCH(int, room);
    QFETCH(QString, opening);
    const Flow flow(single(Flow::Lines - room) + tail);
    QCOMPARE(flow.recording.count(), opening.isEmpty() ? 1 : 2);
    if (!opening.isEmpty()) QCOMPARE(flow.page(2).constFirst(), opening);
}

void tst_PrintFlow::headingsThatFillAPageAreSetAsTheyCome()
{
    const Flow flow(single(3) + heading(u"Bold"_s).repeated(Flow::Lines + 5) + single(1));
    QCOMPARE(flow.recording.count(), 2);
    QVERIFY(flow.linesOn(1) > 3);
}

void tst_PrintFlow::aLongBoldParagraphIsNoHeading()
{
    const Flow flow(single(Flow::Lines - 3) + uR"({\b )"_s + many(3) + u'}' + single(1));
    QCOMPARE(flow.linesOn(1), Flow::Lines);
    QCOMPARE(flow.page(2), QStringList{u"Text"_s});
}

void tst_PrintFlow::blankLinesAtThePagesEndAreLeftOut()
{
    const Flow flow(single(Flow::Lines) + uR"(\par\par )"_s + single(1));
    QCOMPARE(flow.recording.count(), 2);
    QCOMPARE(flow.linesOn(2), 1);
    const Flow ending(single(Flow::Lines) + uR"(\par\par )"_s);
    QCOMPARE(ending.recording.count(), 1);
}

void tst_PrintFlow::aPageBreakStartsAPage()
{
    const Flow flow(single(2) + uR"(\page )"_s + single(1));
    QCOMPARE(flow.recording.count(), 2);
    QCOMPARE(flow.linesOn(1), 2);
}

void tst_PrintFlow::aPageBreakAtThePagesTopStartsNone()
{
    const Flow flow(single(Flow::Lines) + uR"(\page )"_s + single(1));
    QCOMPARE(flow.recording.count(), 2);
    const Flow first(uR"(\page )"_s + single(1));
    QCOMPARE(first.recording.count(), 1);
}

void tst_PrintFlow::aLineTallerThanThePageStandsOnAPageOfItsOwn()
{
    const Flow flow(single(1) + uR"({\fs800 A\par B\par })"_s + single(1));
    QCOMPARE(flow.recording.count(), 4);
    QCOMPARE(flow.page(2), QStringList{u"A"_s});
    QCOMPARE(flow.page(3), QStringList{u"B"_s});
}

void tst_PrintFlow::spaceAboveIsDroppedAtThePagesTop()
{
    const Flow flow(uR"(\sb240 )"_s + single(Flow::Lines));
    for (const RecordedPage &page : *flow.recording.pages())
        QCOMPARE(itemsOf<PlacedLines>(page).front().place.y(), page.setup.body().top());
    const auto items = itemsOf<PlacedLines>(flow.recording.pages()->front());
    QCOMPARE(items[1].place.y() - items[0].place.y(), Flow::LineHeight + 240);
}

void tst_PrintFlow::theLargerSpaceBetweenTwoParagraphsCounts()
{
    const Flow flow(uR"(\sa300 A\par\sa0\sb200 B\par\sb400 C\par )"_s);
    const auto items = itemsOf<PlacedLines>(flow.recording.pages()->front());
    QCOMPARE(items[1].place.y() - items[0].place.y(), Flow::LineHeight + 300);
    QCOMPARE(items[2].place.y() - items[1].place.y(), Flow::LineHeight + 400);
}

// The toolkit's own layout of the same document, for a device on which a twip is a pixel.
void tst_PrintFlow::linesBreakAsTheToolkitsOwnLayoutBreaksThem()
{
    QString text;
    for (int word = 0; word < 400; ++word)
        text += u"w%1%2 "_s.arg(u"ord"_s.repeated(word % 4)).arg(word);
    const QString rtf =
        uR"({\rtf1{\fonttbl{\f2 Times New Roman;}}\plain\f2\fs24 %1\par\fs20\b %1\par\qj\i %1})"_s.arg(text);
    QPdfWriter device(u"unused"_s);
    device.setResolution(1440);
    QTextDocument document;
    readRtf(rtf, document);
    document.setDocumentMargin(0);
    document.documentLayout()->setPaintDevice(&device);
    document.setTextWidth(9360);
    const auto paragraphs = paragraphsOf(rtf, 9360);
    int index = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next(), ++index) {
        document.documentLayout()->blockBoundingRect(block);
        QCOMPARE(paragraphs[index]->lines(), block.layout()->lineCount());
        for (int line = 0; line < block.layout()->lineCount(); ++line) {
            const QTextLine theirs = block.layout()->lineAt(line);
            const QString words = block.text().mid(theirs.textStart(), theirs.textLength()).trimmed();
            QCOMPARE(paragraphs[index]->text(line, 1), words);
        }
    }
    QVERIFY(index == 3 && paragraphs[0]->lines() > 10);
}

void tst_PrintFlow::indentsAndTabsAreWhereTheTextSays()
{
    PrintWindow window;
    TestHost host;
    compose(
        window.vs,
        uR"({\rtf1\plain\fs24\li720\fi-360 hanging\tab after\line below\par\pard\tx2880 a\tab tabbed\par\li1440 in})"_s);
    window.vs.setDocName(u"tabs"_s);
    window.vs.PrintDoc(1, 1);
    const auto pages = readPdf(host.documentsFolder() + u"/tabs.pdf"_s);
    const auto left = [&](const QString &word) { return qRound(pages[0].placeOf(word).left()) - 1440; };
    const auto near = [](int actual, int wanted) { return std::abs(actual - wanted) <= 10; };
    QVERIFY(near(left(u"hanging"_s), 360));
    QVERIFY(near(left(u"below"_s), 720));
    QVERIFY(near(left(u"a"_s), 0));
    QVERIFY(near(left(u"tabbed"_s), 2880));
    QVERIFY(near(left(u"in"_s), 1440));
}

void tst_PrintFlow::aBulletStandsBeforeItsText()
{
    const auto paragraphs = paragraphsOf(Bulleted, 9000);
    QCOMPARE(paragraphs[0]->text(0, 1), u"\u2022 one"_s);
    QVERIFY(!paragraphs[0]->isHeading());
    QVERIFY(!paragraphs[0]->isBlank());
}

// Ink left of the text, in twips: on paper, and on a screen of a pixel for each twip.
void tst_PrintFlow::aBulletIsWhereItIsOnScreen()
{
    const auto bulletIn = [](const std::function<void(QPainter &)> &draw) {
        QImage image(350, 276, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter);
        painter.end();
        QRect ink;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qGray(image.pixel(x, y)) < 128) ink |= QRect(x, y, 1, 1);
        return ink;
    };
    const QRect printed = bulletIn([](QPainter &painter) { paragraphsOf(Bulleted, 9000)[0]->draw(painter, {}, 0, 1); });
    QTextDocument document;
    readRtf(Bulleted, document);
    document.setDocumentMargin(0);
    const QRect shown = bulletIn([&](QPainter &painter) {
        painter.scale(TwipsPerPixel, TwipsPerPixel);
        document.documentLayout()->draw(&painter, {});
    });
    const QMargins apart(shown.left() - printed.left(), shown.top() - printed.top(), printed.right() - shown.right(),
                         printed.bottom() - shown.bottom());
    QVERIFY(printed.width() > 80 && printed.width() < 110);
    for (const int distance : {apart.left(), apart.top(), apart.right(), apart.bottom()})
        QVERIFY(std::abs(distance) <= 15); // a pixel of the screen, on which fonts are measured in whole ones
}

void tst_PrintFlow::sizesAreInTwips()
{
    for (const int halfPoints : {16, 24, 30, 56}) {
        const auto paragraphs =
            paragraphsOf(uR"({\rtf1{\fonttbl{\f2 Times New Roman;}}\f2\fs%1 x})"_s.arg(halfPoints), 9000);
        const double size = halfPoints * 10; // twips
        QVERIFY2(std::abs(paragraphs[0]->height() / size - 1.15) < 0.01, qPrintable(QString::number(halfPoints)));
    }
}

// Counts what is allocated on the way, for a page, and for ten times as many pages.
void tst_PrintFlow::theWorkGrowsWithThePages()
{
    const auto cost = [](int pages) {
        const size_t before = allocations;
        const Flow flow(single(pages * Flow::Lines));
        const size_t spent = allocations - before;
        return flow.recording.count() == pages ? spent : 0;
    };
    cost(1);
    const size_t twenty = cost(20);
    const size_t twoHundred = cost(200);
    QVERIFY(twenty > 400);
    QVERIFY(twoHundred > 9 * twenty && twoHundred < 11 * twenty);
}

void tst_PrintFlow::hostileTextsEnd_data()
{
    QTest::addColumn<QString>("body");
    QTest::newRow("one word of 100,000 letters") << u"x"_s.repeated(100000);
    QTest::newRow("50,000 words in one paragraph") << u"word "_s.repeated(50000);
    QTest::newRow("5,000 headings") << heading(u"Bold"_s).repeated(5000);
    QTest::newRow("20,000 blank lines") << uR"(\par )"_s.repeated(20000) + single(1);
    QTest::newRow("1,000 page breaks") << uR"(x\page )"_s.repeated(1000);
    QTest::newRow("tabs") << uR"(\tab )"_s.repeated(20000);
    QTest::newRow("indents wider than the page") << uR"(\li31680\ri31680 some words\par )"_s.repeated(10);
}

void tst_PrintFlow::hostileTextsEnd()
{
    QFETCH(QString, body);
    const Flow flow(body);
    QVERIFY(flow.recording.count() >= 1);
}

QTEST_MAIN(tst_PrintFlow)
#include "tst_PrintFlow.moc"
