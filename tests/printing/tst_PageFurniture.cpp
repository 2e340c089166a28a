// The tables at the head and foot of every page.
// A connection's context goes before what its handler holds: clazy:excludeall=lambda-in-connect
#include "platform/controls/pictures/PictureBox.h"
#include "printing/PreviewFixture.h"

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
constexpr double Slack = 20; // twips: what a PDF rounds

bool isNear(double a, double b, double slack = Slack)
{
    return std::abs(a - b) <= slack;
}
} // namespace

class tst_PageFurniture : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theHeadBeginsAboveTheMargin();
    void theRulesStandWhereTheWidthsSay_data();
    void theRulesStandWhereTheWidthsSay();
    void aBlankRowPartsTheFootFromTheLegalLine();
    void theHeadsColumnsAreCentred();
    void theSecondRowOfTheHeadIsShaded();
    void thePageNumberFollowsThePageInTheWorks();
    void theIssueBlockHasItsLabels_data();
    void theIssueBlockHasItsLabels();
    void theFootTellsThePageThatIsLaidOut();
    void theLegalLineIsSmallAndWithoutBorder();
    void theFootLeavesSizeAndBorderBehind();
    void textsThatHoldASeparatorBreakTheirRow_data();
    void textsThatHoldASeparatorBreakTheirRow();
    void aNarrowPageIsNoHarm();
    void aPageNarrowerThanItsMarginsIsNoHarm();
    void aPageMayBeWiderThanAWidthCanTell();
    void aRecordRaisesBothBands();
    void aHeadingIsWrapped();
    void aTextIsWrapped();
    void piecesAreAppendedWithASpacerBehindEach();
    void emptyPiecesAreLeftOut();

private:
    const PreviewedSystem &open() const { return *m_open; }
    VSPrinter &vs() const { return m_open->vs(); }
    QImage paper() const; // the first page, 144 pixels an inch
    QImage strip(int y, int height) const;

    std::unique_ptr<PreviewedSystem> m_open;
};

void tst_PageFurniture::init()
{
    m_open = std::make_unique<PreviewedSystem>();
}

void tst_PageFurniture::cleanup()
{
    m_open.reset();
}

QImage tst_PageFurniture::paper() const
{
    open().printed();
    const QString file = m_open->system.host.printedFile(u"LASER"_s);
    outputOf(u"pdftoppm"_s, {u"-r"_s, u"144"_s, u"-png"_s, u"-singlefile"_s, file, file});
    return QImage(file + u".png"_s);
}

// Of the first page, a pixel for each twip.
QImage tst_PageFurniture::strip(int y, int height) const
{
    open().printed();
    const auto number = [](int value) { return QString::number(value); };
    const QString file = m_open->system.host.printedFile(u"LASER"_s);
    outputOf(u"pdftoppm"_s, {u"-r"_s, u"1440"_s, u"-gray"_s, u"-singlefile"_s, u"-x"_s, u"0"_s, u"-y"_s, number(y),
                             u"-W"_s, u"12240"_s, u"-H"_s, number(height), file, file});
    return QImage(file + u".pgm"_s);
}

void tst_PageFurniture::theRulesStandWhereTheWidthsSay_data()
{
    QTest::addColumn<int>("top"); // of the table, twips
    QTest::addColumn<QList<int>>("rules");
    QTest::newRow("head") << 1440 - 800 << QList<int>{1440, 1440 + 2250, 10800 - 2};
    QTest::newRow("foot") << 15840 - 1440 << QList<int>{1440, 1440 + 3500, 10800 - 2 - 1500, 10800 - 2};
}

// Seen between the table's upper edge and its text.
void tst_PageFurniture::theRulesStandWhereTheWidthsSay()
{
    QFETCH(int, top);
    QFETCH(QList<int>, rules);
    constexpr int RuleWidth = 10;
    open().preview(ManualModule);
    const QImage shown = strip(top - 2 * RuleWidth, 4 * RuleWidth);
    const auto isDark = [&](int x, int y) { return qGray(shown.pixel(x, y)) < 128; };
    QList<double> found;
    for (int x = 0; x < shown.width(); ++x) {
        if (!isDark(x, shown.height() - 1)) continue;
        const int from = x;
        while (isDark(x, shown.height() - 1))
            ++x;
        found << (from + x) / 2.0;
    }
    QCOMPARE(found.size(), rules.size());
    for (qsizetype rule = 0; rule < rules.size(); ++rule)
        QVERIFY2(isNear(found[rule], rules[rule], 1.5), qPrintable(QString::number(found[rule])));
    QVERIFY(isDark(2000, 2 * RuleWidth) && !isDark(2000, RuleWidth) && !isDark(2000, 3 * RuleWidth));
}

void tst_PageFurniture::aBlankRowPartsTheFootFromTheLegalLine()
{
    constexpr double RowOfEightPoints = 8 * 20 * 1.15;
    open().preview(ManualModule);
    const PrintedPage page = open().printed().front();
    const double gap = page.placeOf(u"1999"_s).top() - page.placeOf(u"Page:"_s).bottom();
    QVERIFY2(gap > RowOfEightPoints && gap < 2.5 * RowOfEightPoints, qPrintable(QString::number(gap)));
}

void tst_PageFurniture::theHeadBeginsAboveTheMargin()
{
    open().preview(GuideModule);
    const PrintedPage page = open().printed().front();
    const QRectF company = page.placeOf(u"orvane"_s);
    const QRectF number = page.placeOf(u"C11"_s);
    QVERIFY(company.top() >= 1440 - 800 && company.bottom() < 1440);
    QVERIFY(number.top() > company.center().y() && number.bottom() < 1440);
}

// The first column is 2250 wide, the second what is left of the 9360 between the margins, less 2.
void tst_PageFurniture::theHeadsColumnsAreCentred()
{
    open().preview(ToolModule);
    const PrintedPage page = open().printed().front();
    QVERIFY(isNear(page.placeOf(u"orvane"_s).center().x(), 1440 + 2250.0 / 2));
    const QRectF title = page.placeOf(u"Action"_s) | page.placeOf(u"Tools"_s);
    QVERIFY(isNear(title.center().x(), 1440 + 2250 + (9360 - 2250 - 2) / 2.0));
}

void tst_PageFurniture::theSecondRowOfTheHeadIsShaded()
{
    open().preview(GuideModule);
    const PrintedPage page = open().printed().front();
    const QImage shown = paper();
    const auto colourBeside = [&](const QString &word) {
        constexpr double TwipsPerPixel = 10;
        const QPointF place = page.placeOf(word).center() / TwipsPerPixel;
        return shown.pixelColor(qRound(1500 / TwipsPerPixel), qRound(place.y()));
    };
    QCOMPARE(colourBeside(u"orvane"_s), QColor(Qt::white));
    QCOMPARE(colourBeside(u"C11"_s), QColor(0xE0, 0xE0, 0xE0));
}

void tst_PageFurniture::thePageNumberFollowsThePageInTheWorks()
{
    QStringList numbers;
    const QObject context;
    connect(&vs(), &VSPrinter::FooterBand, &context, [&] { numbers << open().tool(u"PageNumber"_s).Text(); });
    open().preview(GuideModule);
    QVERIFY(numbers.size() > 1);
    for (qsizetype page = 0; page < numbers.size(); ++page)
        QCOMPARE(numbers[page], QString::number(page + 1));
    QCOMPARE(open().tool(u"PageNumber"_s).Text(), u"1"_s);
}

void tst_PageFurniture::theIssueBlockHasItsLabels_data()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<bool>("labels");
    QTest::newRow("guide") << 1 << false;
    QTest::newRow("manual") << 2 << true;
    QTest::newRow("procedure") << 3 << true;
    QTest::newRow("tool") << 4 << false;
}

void tst_PageFurniture::theIssueBlockHasItsLabels()
{
    QFETCH(int, module);
    QFETCH(bool, labels);
    open().preview(module);
    const auto pages = open().printed();
    QVERIFY(!pages.empty());
    for (std::size_t page = 0; page < pages.size(); ++page) {
        const QString words = wordsOf(pages[page]);
        const QString foot = labels ? u"Issue: Authorized by: Page: %1"_s : u"Page: %1"_s;
        QVERIFY2(words.contains(foot.arg(page + 1)), qPrintable(words));
        QCOMPARE(words.contains(u"Issue: "_s), labels);
        QCOMPARE(words.contains(u"Authorized by:"_s), labels);
    }
}

void tst_PageFurniture::theFootTellsThePageThatIsLaidOut()
{
    open().preview(GuideModule);
    const auto pages = open().printed();
    QCOMPARE(vs().PreviewPage(), 1);
    const QRectF foot = pages.back().placeOf(u"Page:"_s);
    QVERIFY(wordsOf(pages.back()).contains(u"Page: %1"_s.arg(pages.size())));
    QVERIFY(foot.top() >= pages.back().size.height() - 1440);
    QVERIFY(foot.left() >= 1440 + 9360 - 1500 - 2);
}

void tst_PageFurniture::theLegalLineIsSmallAndWithoutBorder()
{
    open().preview(GuideModule);
    const PrintedPage page = open().printed().front();
    const QRectF notice = page.placeOf(u"1999"_s);
    const QRectF address = page.placeOf(u"www.orvane.example"_s);
    QVERIFY(wordsOf(page).contains(u"\u00A9 1999"_s));
    QVERIFY(notice.top() > page.placeOf(u"Page:"_s).bottom());
    QVERIFY(notice.height() < 0.8 * page.placeOf(u"Page:"_s).height());
    QVERIFY(address.right() <= 1440 + 9360 && address.right() > 1440 + 9360 - 200);
    const QImage shown = paper();
    for (int x = 144; x < 144 + 936; ++x) // below the line: a border would show
        QCOMPARE(shown.pixelColor(x, qRound(notice.bottom() / 10) + 8), QColor(Qt::white));
}

void tst_PageFurniture::theFootLeavesSizeAndBorderBehind()
{
    open().preview(ManualModule);
    QCOMPARE(vs().FontSize(), 11.25);
    QCOMPARE(vs().TableBorder(), 7);
    QCOMPARE(vs().TextAlign(), 0);
}

void tst_PageFurniture::textsThatHoldASeparatorBreakTheirRow_data()
{
    QTest::addColumn<QString>("company");
    QTest::addColumn<QString>("head");
    QTest::newRow("column") << u"Left|Right"_s << u"Left Right C11"_s;
    QTest::newRow("row") << u"Upper;Lower"_s << u"Upper Lower Environment Manual C11"_s;
}

void tst_PageFurniture::textsThatHoldASeparatorBreakTheirRow()
{
    QFETCH(QString, company);
    QFETCH(QString, head);
    open().saveCompany(company);
    open().preview(ManualModule, OwnVersion);
    const QString words = wordsOf(open().printed().front());
    QVERIFY2(words.startsWith(head), qPrintable(words.left(80)));
}

// 3240 between the margins: the middle column of the foot comes out negative.
void tst_PageFurniture::aNarrowPageIsNoHarm()
{
    vs().setMarginLeft(5000);
    vs().setMarginRight(4000);
    open().preview(ManualModule);
    const auto pages = open().printed();
    QVERIFY(pages.size() > 1);
    QVERIFY(wordsOf(pages.front()).contains(u"Issue:"_s));
}

void tst_PageFurniture::aPageNarrowerThanItsMarginsIsNoHarm()
{
    vs().setMarginLeft(7000);
    vs().setMarginRight(7000);
    open().preview(ToolModule);
    QVERIFY(vs().PageCount() > 0);
}

// 48960 between the margins, and 32767 is the largest width.
void tst_PageFurniture::aPageMayBeWiderThanAWidthCanTell()
{
    constexpr int SheetE = 26; // 36 by 48 inches
    vs().setPaperSize(SheetE);
    open().preview(ManualModule);
    const PrintedPage page = open().printed().front();
    QVERIFY(isNear(page.size.width(), 51840));
    const QRectF title = page.placeOf(u"Environment"_s) | page.placeOf(u"Manual"_s);
    QVERIFY2(isNear(title.center().x(), 1440 + 2250 + 32767 / 2.0), qPrintable(wordsOf(page).left(80)));
}

void tst_PageFurniture::aRecordRaisesBothBands()
{
    PictureBox front(open().window(), u"front"_s);
    PictureBox back(open().window(), u"back"_s);
    open().saveCompany(u"Seen by nobody"_s); // the window has loaded
    open().window().PrintRecord(front, &back);
    const auto pages = open().printed();
    QCOMPARE(pages.size(), std::size_t(2));
    QVERIFY(wordsOf(pages[0]).startsWith(u"Page: 1"_s));
    QVERIFY(wordsOf(pages[1]).startsWith(u"Page: 2"_s));
}

void tst_PageFurniture::aHeadingIsWrapped()
{
    const QString rtf = frmPrint::HeadingRtf(u"Aim"_s);
    QVERIFY(rtf.startsWith(uR"({\rtf1\ansi\deff0\deftab720{\fonttbl)"_s));
    QVERIFY(rtf.endsWith(uR"(\deflang1033\pard\plain\f2\fs28\b\i Aim\'85\'85.\plain\f0\fs17\par })"_s));
}

void tst_PageFurniture::aTextIsWrapped()
{
    const QString rtf = frmPrint::BodyRtf(u"Words."_s);
    QVERIFY(rtf.endsWith(uR"(\deflang1033\pard\plain\f2\fs24 Words.\plain\f0\fs17\par })"_s));
    QTextDocument document;
    readRtf(rtf, document);
    QCOMPARE(document.toPlainText(), u"Words."_s);
}

void tst_PageFurniture::piecesAreAppendedWithASpacerBehindEach()
{
    open().window().AppendRtf(u"Aim"_s, frmPrint::BodyRtf(u"Words."_s));
    const QStringList lines = open().window().rtfPrint.Text().split(u'\n');
    const qsizetype heading = lines.indexOf(u"Aim\u2026\u2026."_s);
    const qsizetype text = lines.indexOf(u"Words."_s);
    QCOMPARE(heading, 0);
    QVERIFY(text > heading + 1);
    QVERIFY(lines.size() > text + 1);
}

void tst_PageFurniture::emptyPiecesAreLeftOut()
{
    open().window().AppendRtf({}, {});
    QCOMPARE(open().window().rtfPrint.Text(), QString());
    open().window().AppendRtf({}, frmPrint::BodyRtf(u"Words."_s));
    QVERIFY(open().window().rtfPrint.Text().startsWith(u"Words."_s));
}

QTEST_MAIN(tst_PageFurniture)
#include "tst_PageFurniture.moc"
