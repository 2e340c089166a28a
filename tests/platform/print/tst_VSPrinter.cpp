// The print control while a document is composed: pages and their bands, places, papers, and what it refuses.
#include "platform/print/PrintFixture.h"
#include "platform/print/preview/PageSetupDialog.h"

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
QImage redPicture()
{
    QImage picture(76, 50, QImage::Format_RGB32);
    picture.fill(Qt::red);
    return picture;
}
} // namespace

class tst_VSPrinter : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void eachPageHasItsBandsInOrder_data();
    void eachPageHasItsBandsInOrder();
    void aPageComesUpWithTheFirstThingOnIt();
    void aNewPageEndsTheOneBefore();
    void theHeaderLeavesTheBodyInItsPlace();
    void aTableMovesThePlaceDownAndKeepsX();
    void fontAndBorderStayAsABandLeavesThem();
    void aBandCannotEndItsPage();
    void aSecondDocumentReplacesTheFirst();
    void nothingIsRecordedOutsideADocument();
    void withoutAPrinterADocumentHasNoPages();
    void aDocumentWithNothingOnItHasNoPages();
    void orientationTurnsThePaper_data();
    void orientationTurnsThePaper();
    void anOrientationSetAfterStartDocHoldsForTheFirstPage();
    void aPageKeepsThePaperItCameUpWith();
    void marginsThatMeetLeaveAStripOfText();
    void designSettings();
    void settingsAreReadBack();
    void settingsThatAreNoneAreRefused_data();
    void settingsThatAreNoneAreRefused();
    void thePaperIsFirstThePrintersOwn();
    void outsideThePreviewADocumentIsPrinted();
    void pageSetupHoldsForTheNextDocument();
    void aCancelledPageSetupChangesNothing();
    void printerSetupChoosesThePrinter();
    void anUnknownDialogIsRefused();
    void eachPrinterIsCounted();
    void theWorkingPointerIsTaken();

private:
    VSPrinter &vs() const { return m_window->vs; }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<PrintWindow> m_window;
};

void tst_VSPrinter::init()
{
    m_host = std::make_unique<TestHost>();
    m_window = std::make_unique<PrintWindow>();
}

void tst_VSPrinter::cleanup()
{
    m_window.reset();
    m_host.reset();
}

void tst_VSPrinter::eachPageHasItsBandsInOrder_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<QStringList>("bands");
    QTest::newRow("one page") << 10 << QStringList{u"header 1"_s, u"footer 1"_s};
    QTest::newRow("three pages") << 120 << QStringList{u"header 1"_s, u"footer 1"_s, u"header 2"_s,
                                                       u"footer 2"_s, u"header 3"_s, u"footer 3"_s};
}

void tst_VSPrinter::eachPageHasItsBandsInOrder()
{
    QFETCH(int, lines);
    compose(vs(), linesOfText(lines));
    QTEST(m_window->bands, "bands");
    QCOMPARE(vs().PageCount(), int(m_window->bands.size() / 2));
    QCOMPARE(vs().PreviewPage(), 1);
}

void tst_VSPrinter::aPageComesUpWithTheFirstThingOnIt()
{
    vs().StartDoc();
    QCOMPARE(m_window->bands, QStringList());
    QCOMPARE(vs().PageCount(), 0);
    vs().DrawPicture(redPicture(), 1440, 1440, 3000, 2000);
    QCOMPARE(m_window->bands, QStringList{u"header 1"_s});
    QCOMPARE(vs().CurrentPage(), 1);
    vs().EndDoc();
    QCOMPARE(m_window->bands, (QStringList{u"header 1"_s, u"footer 1"_s}));
}

void tst_VSPrinter::aNewPageEndsTheOneBefore()
{
    vs().StartDoc();
    vs().DrawPicture(redPicture(), 1440, 1440, 3000, 2000);
    vs().NewPage();
    QCOMPARE(m_window->bands, (QStringList{u"header 1"_s, u"footer 1"_s, u"header 2"_s}));
    vs().DrawPicture(redPicture(), 1440, 1440, 3000, 2000);
    vs().EndDoc();
    QCOMPARE(m_window->bands.last(), u"footer 2"_s);
    QCOMPARE(vs().PageCount(), 2);
}

void tst_VSPrinter::theHeaderLeavesTheBodyInItsPlace()
{
    m_window->onHeader = [this] {
        vs().setCurrentX(100);
        vs().setCurrentY(vs().MarginTop() - 800);
        vs().AddTable(u"<+3000;"_s, {}, u"head;"_s);
    };
    vs().StartDoc();
    vs().NewPage();
    QCOMPARE(vs().CurrentX(), 1440.0);
    QCOMPARE(vs().CurrentY(), 1440.0);
    vs().setTextRTF(linesOfText(2));
    QCOMPARE(vs().CurrentX(), 1440.0);
    QCOMPARE(vs().CurrentY(), 1440.0 + 2 * 276);
}

void tst_VSPrinter::aTableMovesThePlaceDownAndKeepsX()
{
    vs().StartDoc();
    vs().NewPage();
    vs().setCurrentX(2000);
    vs().setCurrentY(3000);
    vs().AddTable(u"<+2000|<+2000;"_s, u"Head|Head;"_s, u"a|b;c|d;"_s);
    QCOMPARE(vs().CurrentX(), 2000.0);
    const double row = (vs().CurrentY() - 3000) / 3;
    QVERIFY(row > 260 && row < 400);
    vs().setFontSize(8);
    vs().AddTable(u"<+2000|<+2000;"_s, {}, u"a|b;"_s);
    QVERIFY(vs().CurrentY() - 3000 - 3 * row < row);
}

void tst_VSPrinter::fontAndBorderStayAsABandLeavesThem()
{
    m_window->onFooter = [this] {
        vs().setFontSize(8);
        vs().setTableBorder(0);
    };
    compose(vs(), linesOfText(1));
    QCOMPARE(vs().FontSize(), 8.0);
    QCOMPARE(vs().TableBorder(), 0);
}

void tst_VSPrinter::aBandCannotEndItsPage()
{
    QList<int> refusals;
    m_window->onHeader = [&] {
        refusals << errorOf([this] { vs().NewPage(); });
        refusals << errorOf([this] { vs().EndDoc(); });
        refusals << errorOf([this] { vs().StartDoc(); });
    };
    compose(vs(), linesOfText(1));
    QCOMPARE(refusals, (QList<int>{InvalidProcedureCall, InvalidProcedureCall, InvalidProcedureCall}));
    QCOMPARE(vs().PageCount(), 1);
}

void tst_VSPrinter::aSecondDocumentReplacesTheFirst()
{
    compose(vs(), linesOfText(120));
    vs().setPreviewPage(3);
    compose(vs(), linesOfText(1));
    QCOMPARE(vs().PageCount(), 1);
    QCOMPARE(vs().PreviewPage(), 1);
}

void tst_VSPrinter::nothingIsRecordedOutsideADocument()
{
    vs().setTextRTF(linesOfText(1));
    vs().DrawPicture(redPicture(), 0, 0, 100, 100);
    vs().AddTable(u"<+2000;"_s, {}, u"a;"_s);
    vs().NewPage();
    vs().EndDoc();
    QCOMPARE(vs().PageCount(), 0);
    QCOMPARE(vs().PreviewPage(), 0);
    QCOMPARE(m_window->bands, QStringList());
}

void tst_VSPrinter::withoutAPrinterADocumentHasNoPages()
{
    compose(vs(), linesOfText(1));
    m_host->setNoPrinters();
    m_window->bands.clear();
    QCOMPARE(vs().NDevices(), 0);
    vs().StartDoc();
    vs().DrawPicture(redPicture(), 1440, 1440, vs().PageWidth() - 2880, vs().PageHeight() - 2880);
    vs().NewPage();
    vs().EndDoc();
    QCOMPARE(vs().PageCount(), 0);
    QCOMPARE(m_window->bands, QStringList());
}

void tst_VSPrinter::aDocumentWithNothingOnItHasNoPages()
{
    vs().StartDoc();
    vs().EndDoc();
    QCOMPARE(vs().PageCount(), 0);
    QCOMPARE(vs().PreviewPage(), 0);
}

void tst_VSPrinter::orientationTurnsThePaper_data()
{
    QTest::addColumn<int>("paper");
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("Letter upright") << LetterPaper << int(Portrait) << QSizeF(12240, 15840);
    QTest::newRow("Letter across") << LetterPaper << int(Landscape) << QSizeF(15840, 12240);
    QTest::newRow("A4 upright") << A4Paper << int(Portrait) << QSizeF(11900, 16840);
    QTest::newRow("A4 across") << A4Paper << int(Landscape) << QSizeF(16840, 11900);
}

void tst_VSPrinter::orientationTurnsThePaper()
{
    QFETCH(int, paper);
    QFETCH(int, orientation);
    vs().setPaperSize(paper);
    vs().setOrientation(orientation);
    QTEST(QSizeF(vs().PageWidth(), vs().PageHeight()), "size");
    QCOMPARE(vs().Orientation(), orientation);
    QCOMPARE(vs().PaperSize(), paper);
}

void tst_VSPrinter::anOrientationSetAfterStartDocHoldsForTheFirstPage()
{
    vs().setOrientation(Landscape);
    double width = 0;
    m_window->onHeader = [&] { width = vs().PageWidth(); };
    vs().StartDoc();
    vs().setOrientation(Portrait);
    vs().setTextRTF(linesOfText(1));
    vs().EndDoc();
    QCOMPARE(width, 12240.0);
}

void tst_VSPrinter::aPageKeepsThePaperItCameUpWith()
{
    QList<double> widths;
    m_window->onFooter = [&] { widths << vs().PageWidth(); };
    vs().StartDoc();
    vs().setTextRTF(linesOfText(1));
    vs().setOrientation(Landscape);
    QCOMPARE(vs().PageWidth(), 12240.0);
    vs().NewPage();
    QCOMPARE(vs().PageWidth(), 15840.0);
    vs().EndDoc();
    QCOMPARE(widths, (QList<double>{12240, 15840}));
}

void tst_VSPrinter::marginsThatMeetLeaveAStripOfText()
{
    vs().setMarginLeft(8000);
    vs().setMarginRight(8000);
    vs().setMarginBottom(20000);
    compose(vs(), linesOfText(8));
    QCOMPARE(vs().PageCount(), 4); // each two lines high, and as wide as a line
    vs().setDocName(u"strip"_s);
    vs().PrintDoc(1, 99);
    for (const PrintedPage &page : readPdf(m_host->documentsFolder() + u"/strip.pdf"_s))
        QCOMPARE(page.words.size(), 4U);
}

void tst_VSPrinter::designSettings()
{
    PrintWindow fresh;
    const VSPrinter &made = fresh.vs;
    for (const double margin : {made.MarginLeft(), made.MarginTop(), made.MarginRight(), made.MarginBottom()})
        QCOMPARE(margin, 1440.0);
    QCOMPARE(made.FontName(), u"Arial"_s);
    QCOMPARE(made.FontSize(), 11.25);
    QCOMPARE(made.TableSep(), u"|;"_s);
    QCOMPARE(made.TableBorder(), 7);
    QCOMPARE(made.Orientation(), int(Portrait));
    QCOMPARE(made.PageCount(), 0);
}

void tst_VSPrinter::settingsAreReadBack()
{
    vs().setMarginLeft(720.5);
    vs().setMarginTop(0);
    vs().setTextAlign(1);
    vs().setTableSep(u"/,"_s);
    vs().setHeader(u" "_s);
    vs().setFooter(u"foot"_s);
    vs().setDocName(u"Record"_s);
    vs().setDevice(u"Laser"_s);
    vs().setCopies(3);
    vs().setDuplex(2);
    QCOMPARE(vs().MarginLeft(), 720.5);
    QCOMPARE(vs().MarginTop(), 0.0);
    QCOMPARE(vs().TextAlign(), 1);
    QCOMPARE(vs().TableSep(), u"/,"_s);
    QCOMPARE(vs().Header() + vs().Footer() + vs().DocName() + vs().Device(), u" footRecordLaser"_s);
    QCOMPARE(vs().Copies(), 3);
    QCOMPARE(vs().Duplex(), 2);
}

void tst_VSPrinter::settingsThatAreNoneAreRefused_data()
{
    using Step = std::function<void(VSPrinter &)>;
    QTest::addColumn<Step>("step");
    QTest::newRow("orientation 2") << Step([](VSPrinter &vs) { vs.setOrientation(2); });
    QTest::newRow("orientation -1") << Step([](VSPrinter &vs) { vs.setOrientation(-1); });
    QTest::newRow("paper 0") << Step([](VSPrinter &vs) { vs.setPaperSize(0); });
    QTest::newRow("paper 9999") << Step([](VSPrinter &vs) { vs.setPaperSize(9999); });
    QTest::newRow("negative margin") << Step([](VSPrinter &vs) { vs.setMarginBottom(-1); });
    QTest::newRow("alignment 3") << Step([](VSPrinter &vs) { vs.setTextAlign(3); });
    QTest::newRow("font size 0") << Step([](VSPrinter &vs) { vs.setFontSize(0); });
    QTest::newRow("border 3") << Step([](VSPrinter &vs) { vs.setTableBorder(3); });
    QTest::newRow("one separator") << Step([](VSPrinter &vs) { vs.setTableSep(u"|"_s); });
    QTest::newRow("equal separators") << Step([](VSPrinter &vs) { vs.setTableSep(u"||"_s); });
    QTest::newRow("zoom mode 5") << Step([](VSPrinter &vs) { vs.setZoomMode(5); });
    QTest::newRow("no copies") << Step([](VSPrinter &vs) { vs.setCopies(0); });
    QTest::newRow("duplex 4") << Step([](VSPrinter &vs) { vs.setDuplex(4); });
}

void tst_VSPrinter::settingsThatAreNoneAreRefused()
{
    QFETCH(std::function<void(VSPrinter &)>, step);
    QCOMPARE(errorOf([&] { step(vs()); }), int(InvalidPropertyValue));
    QCOMPARE(vs().PageWidth(), 12240.0);
    QCOMPARE(vs().TableSep(), u"|;"_s);
}

void tst_VSPrinter::thePaperIsFirstThePrintersOwn()
{
    constexpr int A5Paper = 11;
    InstalledPrinter queue;
    queue.deviceName = u"Small"_s;
    queue.paperSize = A5Paper;
    m_host->setPrintQueues({queue});
    PlainWindow window;
    VSPrinter fresh(window, u"vsFresh"_s);
    QCOMPARE(fresh.PaperSize(), A5Paper);
    fresh.setPaperSize(LetterPaper);
    QCOMPARE(fresh.PaperSize(), LetterPaper);
}

void tst_VSPrinter::outsideThePreviewADocumentIsPrinted()
{
    vs().setPreviewMode(false);
    vs().setDocName(u"direct"_s);
    compose(vs(), linesOfText(1));
    QVERIFY(QFile::exists(m_host->documentsFolder() + u"/direct.pdf"_s));
    QCOMPARE(vs().PreviewPage(), 0);
}

void tst_VSPrinter::pageSetupHoldsForTheNextDocument()
{
    compose(vs(), linesOfText(1));
    m_host->answerPageSetup([](PageChoice &choice) {
        choice.setup.paperSize = A4Paper;
        choice.setup.landscape = true;
        choice.setup.left = 2880;
        return !choice.withPrinters;
    });
    QVERIFY(vs().PrintDialog(PageSetupOfPrinter));
    QCOMPARE(vs().PageWidth(), 16840.0);
    QCOMPARE(vs().Orientation(), int(Landscape));
    compose(vs(), linesOfText(1));
    QCOMPARE(vs().MarginLeft(), 2880.0);
    QCOMPARE(vs().PaperSize(), A4Paper);
}

void tst_VSPrinter::aCancelledPageSetupChangesNothing()
{
    m_host->answerPageSetup([](PageChoice &choice) {
        choice.setup.landscape = true;
        return false;
    });
    QVERIFY(!vs().PrintDialog(PageSetupOfPrinter));
    QCOMPARE(vs().Orientation(), int(Portrait));
}

void tst_VSPrinter::printerSetupChoosesThePrinter()
{
    InstalledPrinter queue;
    queue.deviceName = u"Laser"_s;
    m_host->setPrintQueues({queue});
    m_host->answerPageSetup([](PageChoice &choice) {
        choice.deviceName = u"Other"_s;
        return choice.withPrinters;
    });
    QVERIFY(vs().PrintDialog(PrinterSetup));
    QCOMPARE(vs().Device(), u"Other"_s);
}

void tst_VSPrinter::anUnknownDialogIsRefused()
{
    QCOMPARE(errorOf([this] { vs().PrintDialog(2); }), int(InvalidProcedureCall));
}

void tst_VSPrinter::eachPrinterIsCounted()
{
    QCOMPARE(vs().NDevices(), 1);
    InstalledPrinter first;
    first.deviceName = u"Laser"_s;
    InstalledPrinter second;
    second.deviceName = u"Hall"_s;
    m_host->setPrintQueues({first, second});
    QCOMPARE(vs().NDevices(), 3);
}

void tst_VSPrinter::theWorkingPointerIsTaken()
{
    vs().setMousePointer(ArrowHourglassPointer);
    QCOMPARE(vs().MousePointer(), 13);
    QCOMPARE(vs().mouseTarget().cursor().shape(), Qt::BusyCursor);
}

QTEST_MAIN(tst_VSPrinter)
#include "tst_VSPrinter.moc"
