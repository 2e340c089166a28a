// How a job becomes the document in the preview.
// A connection's context goes before what its handler holds: clazy:excludeall=lambda-in-connect
#include "platform/controls/pictures/PictureBox.h"
#include "printing/PreviewFixture.h"

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
const QString Bullet = u"\u2022"_s; // as large as it has to be, and higher than its line

// The headings, in order.
QStringList guideHeadings()
{
    return {u"Step 17 Emergency Preparedness and Response"_s,
            u"The Requirement in brief......."_s,
            u"ISO 14001 Section 4.4.7"_s,
            u"Do I need a Procedure?......."_s,
            u"Implementation action......."_s,
            u"orvane advice......."_s,
            u"HOT TIPS!!......."_s,
            u"Related topics......."_s};
}

QStringList manualHeadings()
{
    return {u"Commitment"_s, u"Procedures"_s, u"References"_s};
}

QStringList procedureHeadings()
{
    return {u"Aim"_s, u"Responsibility"_s, u"Method"_s, u"Records"_s, u"References"_s};
}

QStringList toolHeadings()
{
    return {u"Types of accident and emergency"_s,
            u"Responsibility of the Main Controller"_s,
            u"Responsibility of the Incident Controller"_s,
            u"Responsibility of the Incident Action Team"_s,
            u"Content of the site plan"_s,
            u"Items in the incident control center"_s,
            u"Items of emergency equipment"_s};
}

// What stands between the head and the foot of the page, line by line; a line that is set in begins with ">".
QStringList bodyLines(const PrintedPage &page)
{
    constexpr double Margin = 1440;
    constexpr double LineHeight = 150; // twips: less than any line's
    const double foot = page.placeOf(u"Page:"_s).top() - LineHeight;
    std::map<int, QStringList> lines;
    for (const PrintedWord &word : page.words) {
        if (word.place.center().y() < Margin || word.place.top() > foot || word.text == Bullet) continue;
        QStringList &line = lines[qRound(word.place.bottom() / LineHeight)];
        if (line.isEmpty() && word.place.left() > Margin + LineHeight) line << u">"_s;
        line << word.text;
    }
    QStringList texts;
    for (const auto &[y, words] : lines)
        texts << words.join(u' ');
    return texts;
}
} // namespace

class tst_Composition : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void eachModuleHasItsTitleAndCompany_data();
    void eachModuleHasItsTitleAndCompany();
    void anOwnVersionWithoutSavedCompanyBearsNoName();
    void theCallersTextsAreInTheSecondRow();
    void everySectionIsPrintedOnceAndInOrder_data();
    void everySectionIsPrintedOnceAndInOrder();
    void noPageEndsWithAHeading_data();
    void noPageEndsWithAHeading();
    void nothingLiesOutsideTheMargins_data();
    void nothingLiesOutsideTheMargins();
    void withoutPrintersNothingIsComposed();
    void withoutPrintersTheDocumentBeforeStays();
    void aSecondJobReplacesTheFirst();
    void theNameForTheSpoolerComesBeforeOrAfterTheText_data();
    void theNameForTheSpoolerComesBeforeOrAfterTheText();
    void thePointersWaitOnlyWhileItIsComposed();
    void theFirstPageIsOnShow();
    void aDocumentOfOnePageHasNoOther();
    void aDocumentOfTwoPagesGoesOn();
    void aRecordWithoutBackIsOnePage();
    void aRecordFillsTheSpaceBetweenTheMargins();
    void aRecordLeavesThePrinterUpright();
    void aRecordIsComposedAnewAfterItsWindowHasGone();
    void aRecordBearsTheCompanyOfTheWindowsLoad();
    void theRecordsHeadIsThatOfTheJobBefore();
    void aRecordWithoutPrintersHasNoPages();
    void aHiddenPreviewShowsTheNextJob();
    void linksPrintNothing();

private:
    const PreviewedSystem &open() const { return *m_open; }
    VSPrinter &vs() const { return m_open->vs(); }

    std::unique_ptr<PreviewedSystem> m_open;
};

void tst_Composition::init()
{
    m_open = std::make_unique<PreviewedSystem>();
}

void tst_Composition::cleanup()
{
    m_open.reset();
}

void tst_Composition::eachModuleHasItsTitleAndCompany_data()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<int>("version");
    QTest::addColumn<QString>("head");
    QTest::newRow("guide") << 1 << 1 << u"orvane ISO14001 - Implementation Guide"_s;
    QTest::newRow("manual, master") << 2 << 1 << u"Global Inc Environment Manual"_s;
    QTest::newRow("manual, own") << 2 << 2 << u"Millbrook Mfg Environment Manual"_s;
    QTest::newRow("procedure, master") << 3 << 1 << u"Global Inc Management Procedures"_s;
    QTest::newRow("procedure, own") << 3 << 2 << u"Millbrook Mfg Management Procedures"_s;
    QTest::newRow("tool") << 4 << 1 << u"orvane Action Tools"_s;
}

void tst_Composition::eachModuleHasItsTitleAndCompany()
{
    QFETCH(int, module);
    QFETCH(int, version);
    QFETCH(QString, head);
    open().saveCompany(u"Millbrook Mfg"_s);
    open().preview(module, version);
    QCOMPARE(vs().Orientation(), int(Portrait));
    const auto pages = open().printed();
    QVERIFY(!pages.empty());
    for (const PrintedPage &page : pages)
        QVERIFY2(wordsOf(page).startsWith(head), qPrintable(wordsOf(page).left(80)));
}

void tst_Composition::anOwnVersionWithoutSavedCompanyBearsNoName()
{
    open().preview(ManualModule, OwnVersion);
    QVERIFY(wordsOf(open().printed().front()).startsWith(u"Environment Manual C11"_s));
}

void tst_Composition::theCallersTextsAreInTheSecondRow()
{
    open().preview(ProcedureModule);
    QVERIFY(wordsOf(open().printed().back()).startsWith(u"Global Inc Management Procedures C11 Emergency Planning"_s));
}

void tst_Composition::everySectionIsPrintedOnceAndInOrder_data()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<QStringList>("sections");
    QTest::newRow("guide") << 1 << guideHeadings();
    QTest::newRow("manual") << 2 << manualHeadings();
    QTest::newRow("procedure") << 3 << procedureHeadings();
    QTest::newRow("tool") << 4 << toolHeadings();
}

void tst_Composition::everySectionIsPrintedOnceAndInOrder()
{
    QFETCH(int, module);
    QFETCH(QStringList, sections);
    open().preview(module);
    QStringList found;
    for (const PrintedPage &page : open().printed())
        for (const QString &line : bodyLines(page))
            if (sections.contains(line)) found << line;
    QCOMPARE(found, sections);
}

void tst_Composition::noPageEndsWithAHeading_data()
{
    QTest::addColumn<int>("module");
    for (const int module : {GuideModule, ManualModule, ProcedureModule, ToolModule})
        QTest::addRow("module %d", module) << module;
}

// On pages of many heights, so that each heading comes to stand near the end of one.
void tst_Composition::noPageEndsWithAHeading()
{
    QFETCH(int, module);
    const QStringList headings = guideHeadings() + manualHeadings() + procedureHeadings() + toolHeadings();
    int seen = 0;
    for (int bottom = 1440; bottom < 12000; bottom += 2000) {
        vs().setMarginBottom(bottom);
        open().preview(module);
        for (const PrintedPage &page : open().printed()) {
            const QStringList lines = bodyLines(page);
            QVERIFY2(!headings.contains(lines.constLast()), qPrintable(lines.constLast()));
            for (const QString &line : lines)
                seen += headings.contains(line) ? 1 : 0;
        }
    }
    QVERIFY(seen > 10);
}

void tst_Composition::nothingLiesOutsideTheMargins_data()
{
    QTest::addColumn<int>("module");
    for (const int module : {GuideModule, ManualModule, ProcedureModule, ToolModule})
        QTest::addRow("module %d", module) << module;
}

void tst_Composition::nothingLiesOutsideTheMargins()
{
    QFETCH(int, module);
    open().preview(module);
    constexpr double Margin = 1440;
    constexpr double HeaderRoom = 800;
    constexpr double FooterRoom = 1300;
    constexpr double Rounding = 10;
    for (const PrintedPage &page : open().printed())
        for (const PrintedWord &word : page.words) {
            QVERIFY2(word.place.left() >= Margin - Rounding, qPrintable(word.text));
            QVERIFY2(word.place.right() <= page.size.width() - Margin + Rounding, qPrintable(word.text));
            QVERIFY2(word.place.top() >= Margin - HeaderRoom - Rounding, qPrintable(word.text));
            QVERIFY2(word.place.bottom() <= page.size.height() - Margin + FooterRoom, qPrintable(word.text));
            const bool aboveFoot = word.place.bottom() <= page.size.height() - Margin + Rounding;
            QVERIFY2(aboveFoot || word.place.top() >= page.size.height() - Margin, qPrintable(word.text));
            const bool belowHead = word.place.top() >= Margin - Rounding || word.text == Bullet;
            QVERIFY2(belowHead || word.place.bottom() <= Margin + Rounding, qPrintable(word.text));
        }
}

void tst_Composition::withoutPrintersNothingIsComposed()
{
    const QString message = u"There are no printers installed on your computer.  This view is unavailable"_s;
    m_open->system.host.setNoPrinters();
    m_open->system.host.expectMessage(message);
    open().preview(GuideModule);
    QCOMPARE(m_open->system.host.messages().back().style, int(InformationIcon));
    QVERIFY(open().window().Visible());
    QCOMPARE(vs().PageCount(), 0);
}

void tst_Composition::withoutPrintersTheDocumentBeforeStays()
{
    open().preview(ToolModule);
    const int pages = vs().PageCount();
    m_open->system.host.setNoPrinters();
    m_open->system.host.expectAnyMessage();
    open().preview(GuideModule);
    QCOMPARE(vs().PageCount(), pages);
}

void tst_Composition::aSecondJobReplacesTheFirst()
{
    open().preview(GuideModule);
    const int pages = vs().PageCount();
    open().preview(ManualModule);
    QVERIFY(vs().PageCount() < pages);
    QCOMPARE(vs().PreviewPage(), 1);
    QCOMPARE(countWindows(u"frmPrint"_s), 1);
}

void tst_Composition::theNameForTheSpoolerComesBeforeOrAfterTheText_data()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<QString>("during");
    QTest::addColumn<QString>("afterwards");
    QTest::newRow("guide") << 1 << u"ISO14001 - Implementation Guide"_s << u"ISO14001 - Implementation Guide"_s;
    QTest::newRow("manual") << 2 << u"Environment Manual"_s << u"Environment Manual"_s;
    QTest::newRow("procedure") << 3 << u"a job before"_s << u"Management Procedures"_s;
    QTest::newRow("tool") << 4 << u"a job before"_s << u"Action Tools"_s;
}

void tst_Composition::theNameForTheSpoolerComesBeforeOrAfterTheText()
{
    QFETCH(int, module);
    QString during;
    const QObject context;
    connect(&vs(), &VSPrinter::HeaderBand, &context, [&] { during = vs().DocName(); });
    vs().setDocName(u"a job before"_s);
    open().preview(module);
    QTEST(during, "during");
    QTEST(vs().DocName(), "afterwards");
}

void tst_Composition::thePointersWaitOnlyWhileItIsComposed()
{
    QList<int> during;
    const QObject context;
    connect(&vs(), &VSPrinter::HeaderBand, &context, [&] {
        during = {open().window().MousePointer(), vs().MousePointer()};
    });
    open().preview(ToolModule);
    QCOMPARE(during, (QList<int>{HourglassPointer, ArrowHourglassPointer}));
    QCOMPARE(open().window().MousePointer(), int(DefaultPointer));
    QCOMPARE(vs().MousePointer(), int(DefaultPointer));
}

void tst_Composition::theFirstPageIsOnShow()
{
    open().preview(GuideModule);
    QCOMPARE(vs().PreviewPage(), 1);
    QCOMPARE(open().tool(u"PageNumber"_s).Text(), u"1"_s);
    QCOMPARE(open().system.active(), &open().window());
}

void tst_Composition::aDocumentOfOnePageHasNoOther()
{
    PictureBox front(open().window(), u"front"_s);
    open().window().PrintRecord(front, nullptr);
    QCOMPARE(vs().PageCount(), 1);
    QVERIFY(!open().tool(u"Prev"_s).Enabled());
    QVERIFY(!open().tool(u"Next"_s).Enabled());
}

void tst_Composition::aDocumentOfTwoPagesGoesOn()
{
    PictureBox front(open().window(), u"front"_s);
    PictureBox back(open().window(), u"back"_s);
    open().window().PrintRecord(front, &back);
    QCOMPARE(vs().PageCount(), 2);
    QVERIFY(!open().tool(u"Prev"_s).Enabled());
    QVERIFY(open().tool(u"Next"_s).Enabled());
}

void tst_Composition::aRecordWithoutBackIsOnePage()
{
    PictureBox front(open().window(), u"front"_s);
    PictureBox back(open().window(), u"back"_s);
    open().window().PrintRecord(front, &back);
    open().window().PrintRecord(front, nullptr);
    QCOMPARE(vs().PageCount(), 1);
    QVERIFY(!open().tool(u"Next"_s).Enabled());
}

// Seen on the paper itself: the sheet is blue, everything round it is not.
void tst_Composition::aRecordFillsTheSpaceBetweenTheMargins()
{
    PictureBox front(open().window(), u"front"_s);
    front.setPicture(sheet(Qt::blue));
    open().window().PrintRecord(front, nullptr);
    const auto pages = open().printed();
    QCOMPARE(pages.front().size, QSizeF(15840, 12240));
    const QString file = m_open->system.host.printedFile(u"LASER"_s);
    outputOf(u"pdftoppm"_s, {u"-r"_s, u"72"_s, u"-png"_s, u"-singlefile"_s, file, file});
    const QImage paper(file + u".png"_s);
    QCOMPARE(paper.size(), QSize(792, 612));
    const auto isBlue = [&](int x, int y) { return paper.pixelColor(x, y).red() < 8; };
    QVERIFY(isBlue(74, 300));
    QVERIFY(isBlue(717, 537));
    QVERIFY(!isBlue(70, 300));
    QVERIFY(!isBlue(722, 300));
}

void tst_Composition::aRecordLeavesThePrinterUpright()
{
    PictureBox front(open().window(), u"front"_s);
    open().window().PrintRecord(front, nullptr);
    QCOMPARE(vs().Orientation(), int(Portrait));
    QCOMPARE(vs().DocName(), u"Record"_s);
}

void tst_Composition::aRecordIsComposedAnewAfterItsWindowHasGone()
{
    auto front = std::make_unique<PictureBox>(open().window(), u"front"_s);
    front->setPicture(sheet(Qt::blue));
    open().window().PrintRecord(*front, front.get());
    front.reset();
    m_open->system.host.answerPageSetup([](PageChoice &choice) {
        choice.setup.left = 2880;
        return true;
    });
    open().press(u"pagesetup"_s);
    QCOMPARE(vs().PageCount(), 2);
    QCOMPARE(vs().Orientation(), int(Portrait));
    QCOMPARE(open().printed().front().size, QSizeF(15840, 12240));
}

void tst_Composition::aRecordBearsTheCompanyOfTheWindowsLoad()
{
    open().saveCompany(u"Millbrook Mfg"_s);
    PictureBox front(open().system.diagram(), u"front"_s);
    open().window().PrintRecord(front, nullptr);
    open().saveCompany(u"Another"_s);
    open().window().PrintRecord(front, nullptr);
    QVERIFY(wordsOf(open().printed().front()).startsWith(u"Millbrook Mfg Page: 1"_s));
}

void tst_Composition::theRecordsHeadIsThatOfTheJobBefore()
{
    open().preview(ManualModule);
    PictureBox front(open().window(), u"front"_s);
    open().window().PrintRecord(front, nullptr);
    const QString words = wordsOf(open().printed().front());
    QVERIFY2(words.startsWith(u"Global Inc Environment Manual C11 Emergency Planning Issue:"_s), qPrintable(words));
}

void tst_Composition::aRecordWithoutPrintersHasNoPages()
{
    m_open->system.host.setNoPrinters();
    PictureBox front(open().window(), u"front"_s);
    open().window().PrintRecord(front, nullptr);
    QCOMPARE(vs().PageCount(), 0);
    QVERIFY(!open().tool(u"Next"_s).Enabled());
}

void tst_Composition::aHiddenPreviewShowsTheNextJob()
{
    open().preview(ToolModule);
    open().press(u"close"_s);
    QVERIFY(!open().window().Visible());
    open().preview(ManualModule);
    QVERIFY(open().window().Visible());
    QCOMPARE(open().system.active(), &open().window());
    QCOMPARE(vs().DocName(), u"Environment Manual"_s);
}

void tst_Composition::linksPrintNothing()
{
    open().window().PrintLinks(1, 1);
    QCOMPARE(vs().PageCount(), 0);
}

QTEST_MAIN(tst_Composition)
#include "tst_Composition.moc"
