// The preview's window and tools: zoom, pages, page setup, printing.
#include "platform/controls/pictures/PictureBox.h"
#include "platform/print/DefaultPrinter.h"
#include "platform/print/preview/PreviewLayout.h"
#include "printing/PreviewFixture.h"
#include "shell/modFunctions.h"

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
// Pages of one line each.
void showPages(VSPrinter &vs, int count)
{
    vs.StartDoc();
    for (int page = 1; page <= count; ++page) {
        if (page > 1) vs.NewPage();
        vs.AddTable(u"<+2000;"_s, {}, u"Sheet %1;"_s.arg(page));
    }
    vs.EndDoc();
}
} // namespace

class tst_PreviewTools : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theWindowOpensMaximizedWithItsEntries();
    void thePagesFillTheWindowBelowTheTools();
    void aMinimizedWindowLaysOutNothing();
    void theZoomOfAModeFollowsTheFramesSize();
    void thePageSettingsOfTheDesign();
    void anEntryChangesTheView_data();
    void anEntryChangesTheView();
    void aTextThatIsNoEntryChangesNothing();
    void theFractionOfTheZoomIsCut();
    void enterTurnsToThePage_data();
    void enterTurnsToThePage();
    void enterSetsTheZoom_data();
    void enterSetsTheZoom();
    void enterInTheZoomAppliesTheStalePageToo();
    void enterInThePageAppliesTheZoomToo();
    void otherKeysDoNothing();
    void nextAndPrevTurnThePages();
    void prevMayLeaveTheFirstPage();
    void theUsersZoomIsShown();
    void everyToolOfTheBandIsThere();
    void pageSetupLaysTheDocumentOutAnew();
    void aCancelledPageSetupChangesNothing();
    void printerSetupComposesNothing();
    void withoutPrintersAToolDoesNothing_data();
    void withoutPrintersAToolDoesNothing();
    void printHandsPaperAndOrientationToTheDialog();
    void printPrintsTheChosenRange();
    void aCancelledPrintPrintsNothing();
    void aPrinterThatFailsIsToldAndTheDocumentStays();

private:
    const PreviewedSystem &open() const { return *m_open; }
    VSPrinter &vs() const { return m_open->vs(); }
    QString text(const QString &tool) const { return open().tool(tool).Text(); }
    bool enabled(const QString &tool) const { return open().tool(tool).Enabled(); }

    std::unique_ptr<PreviewedSystem> m_open;
};

void tst_PreviewTools::init()
{
    m_open = std::make_unique<PreviewedSystem>();
}

void tst_PreviewTools::cleanup()
{
    m_open.reset();
}

void tst_PreviewTools::theWindowOpensMaximizedWithItsEntries()
{
    open().window().Show();
    QCOMPARE(open().window().WindowState(), int(Maximized));
    QCOMPARE(open().window().Caption(), u"Print Preview"_s);
    QCOMPARE(open().tool(u"miZoom"_s).List(),
             (QStringList{u"400%"_s, u"200%"_s, u"100%"_s, u"75%"_s, u"50%"_s, u"25%"_s, u"Page Width"_s,
                          u"Whole Page"_s, u"Two Pages"_s, u"Thumbnails"_s}));
    QCOMPARE(text(u"miZoom"_s), u"75%"_s);
    QCOMPARE(text(u"PageNumber"_s), u"1"_s);
    QVERIFY(!enabled(u"Next"_s));
}

void tst_PreviewTools::thePagesFillTheWindowBelowTheTools()
{
    open().preview(ToolModule);
    frmPrint &window = open().window();
    QCOMPARE(vs().Left(), 0.0);
    QCOMPARE(vs().Top(), 0.0);
    QCOMPARE(vs().Width(), window.ScaleWidth());
    QCOMPARE(vs().Height(), window.ScaleHeight());
    QCOMPARE(vs().widget().y(), window.mnuPrintPreview.widget().geometry().bottom() + 1);
    QCOMPARE(vs().widget().geometry().bottom(), window.surface().height() - 1);
}

void tst_PreviewTools::aMinimizedWindowLaysOutNothing()
{
    open().preview(ToolModule);
    const double width = vs().Width();
    vs().setWidth(3000);
    open().window().setWindowState(Minimized);
    open().window().Form_Resize();
    QCOMPARE(vs().Width(), 3000.0);
    open().window().setWindowState(Maximized);
    QTRY_COMPARE(vs().Width(), width);
}

void tst_PreviewTools::theZoomOfAModeFollowsTheFramesSize()
{
    open().preview(GuideModule);
    open().pick(u"Whole Page"_s);
    const double before = vs().Zoom();
    mdiMain &frame = open().system.frame();
    frame.setWindowState(Normal);
    frame.setWidth(9500);
    frame.setHeight(5600);
    QTRY_VERIFY(vs().Zoom() < before - 1);
    QCOMPARE(text(u"miZoom"_s), u"%1%"_s.arg(int(vs().Zoom())));
}

void tst_PreviewTools::thePageSettingsOfTheDesign()
{
    for (const double margin : {vs().MarginLeft(), vs().MarginTop(), vs().MarginRight(), vs().MarginBottom()})
        QCOMPARE(margin, 1440.0);
    QCOMPARE(vs().FontName(), u"Arial"_s);
    QCOMPARE(vs().FontSize(), 11.25);
    QCOMPARE(vs().TableSep(), u"|;"_s);
    QCOMPARE(vs().TableBorder(), 7);
}

void tst_PreviewTools::anEntryChangesTheView_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<double>("zoom"); // 0: what the mode gives
    QTest::newRow("400%") << 0 << 400.0;
    QTest::newRow("200%") << 0 << 200.0;
    QTest::newRow("100%") << 0 << 100.0;
    QTest::newRow("75%") << 0 << 75.0;
    QTest::newRow("50%") << 0 << 50.0;
    QTest::newRow("25%") << 0 << 25.0;
    QTest::newRow("Page Width") << 4 << 0.0;
    QTest::newRow("Whole Page") << 3 << 0.0;
    QTest::newRow("Two Pages") << 2 << 0.0;
    QTest::newRow("Thumbnails") << 1 << 0.0;
}

void tst_PreviewTools::anEntryChangesTheView()
{
    QFETCH(int, mode);
    QFETCH(double, zoom);
    open().preview(GuideModule);
    open().pick(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(vs().ZoomMode(), mode);
    if (zoom > 0) QCOMPARE(vs().Zoom(), zoom);
    QCOMPARE(text(u"miZoom"_s), u"%1%"_s.arg(int(vs().Zoom())));
    QTRY_COMPARE(open().window().ActiveControl(), &vs());
}

void tst_PreviewTools::aTextThatIsNoEntryChangesNothing()
{
    open().preview(GuideModule);
    vs().setZoomMode(ZoomTwoPages);
    open().tool(u"miZoom"_s).setText(u"Three Pages"_s);
    open().window().mnuPrintPreview_ComboSelChange(open().tool(u"miZoom"_s));
    QCOMPARE(vs().ZoomMode(), int(ZoomTwoPages));
    QCOMPARE(text(u"miZoom"_s), u"%1%"_s.arg(int(vs().Zoom())));
}

void tst_PreviewTools::theFractionOfTheZoomIsCut()
{
    open().preview(GuideModule);
    open().enter(u"miZoom"_s, u"75.6"_s);
    QCOMPARE(vs().Zoom(), 75.6);
    QCOMPARE(text(u"miZoom"_s), u"75%"_s);
}

void tst_PreviewTools::enterTurnsToThePage_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("text");
    QTest::newRow("3") << 3 << u"3"_s;
    QTest::newRow("4") << 4 << u"4"_s;
    QTest::newRow("0") << 1 << u"1"_s;
    QTest::newRow("-1") << 1 << u"1"_s;
    QTest::newRow("5") << 1 << u"1"_s;
    QTest::newRow("4.1") << 1 << u"1"_s;
    QTest::newRow("2.9") << 2 << u"2.9"_s;
    QTest::newRow("0.9") << 1 << u"0.9"_s; // above 0, and cut to 0, which the document doesn't have
    QTest::newRow("page") << 1 << u"1"_s;
    QTest::newRow("2nd") << 2 << u"2nd"_s;
    QTest::newRow("") << 1 << u"1"_s;
    QTest::newRow("99999") << 1 << u"1"_s;
}

void tst_PreviewTools::enterTurnsToThePage()
{
    open().window().Show();
    showPages(vs(), 4);
    vs().setPreviewPage(2);
    open().enter(u"PageNumber"_s, QString::fromLatin1(QTest::currentDataTag()));
    QTEST(vs().PreviewPage(), "page");
    QTEST(text(u"PageNumber"_s), "text");
    QCOMPARE(enabled(u"Prev"_s), vs().PreviewPage() > 1);
    QCOMPARE(enabled(u"Next"_s), vs().PreviewPage() < 4);
}

void tst_PreviewTools::enterSetsTheZoom_data()
{
    QTest::addColumn<double>("zoom");
    QTest::newRow("60") << 60.0;
    QTest::newRow("60%") << 60.0;
    QTest::newRow("120 percent") << 120.0;
    QTest::newRow("0") << SmallestZoom;
    QTest::newRow("-50") << SmallestZoom;
    QTest::newRow("wide") << SmallestZoom;
    QTest::newRow("") << SmallestZoom;
    QTest::newRow("100000") << LargestZoom;
}

void tst_PreviewTools::enterSetsTheZoom()
{
    QFETCH(double, zoom);
    open().preview(GuideModule);
    open().enter(u"miZoom"_s, QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(vs().Zoom(), zoom);
    QCOMPARE(text(u"miZoom"_s), u"%1%"_s.arg(int(zoom)));
}

void tst_PreviewTools::enterInTheZoomAppliesTheStalePageToo()
{
    open().window().Show();
    showPages(vs(), 4);
    open().tool(u"PageNumber"_s).setText(u"3"_s);
    open().enter(u"miZoom"_s, u"50"_s);
    QCOMPARE(vs().PreviewPage(), 3);
}

void tst_PreviewTools::enterInThePageAppliesTheZoomToo()
{
    open().window().Show();
    showPages(vs(), 4);
    open().tool(u"miZoom"_s).setText(u"130"_s);
    open().enter(u"PageNumber"_s, u"2"_s);
    QCOMPARE(vs().Zoom(), 130.0);
    QCOMPARE(text(u"miZoom"_s), u"130%"_s);
}

void tst_PreviewTools::otherKeysDoNothing()
{
    open().window().Show();
    showPages(vs(), 4);
    open().tool(u"PageNumber"_s).setText(u"3"_s);
    open().window().mnuPrintPreview_KeyPress(open().tool(u"PageNumber"_s), ' ');
    QCOMPARE(vs().PreviewPage(), 1);
}

void tst_PreviewTools::nextAndPrevTurnThePages()
{
    open().window().Show();
    showPages(vs(), 3);
    open().window().mnuPrintPreview_Click(open().tool(u"miZoom"_s));
    QVERIFY(!enabled(u"Prev"_s) && enabled(u"Next"_s));
    open().press(u"Next"_s);
    QCOMPARE(text(u"PageNumber"_s), u"2"_s);
    QVERIFY(enabled(u"Prev"_s) && enabled(u"Next"_s));
    open().press(u"Next"_s);
    QCOMPARE(vs().PreviewPage(), 3);
    QVERIFY(enabled(u"Prev"_s) && !enabled(u"Next"_s));
    open().press(u"Prev"_s);
    open().press(u"Prev"_s);
    QCOMPARE(text(u"PageNumber"_s), u"1"_s);
    QVERIFY(!enabled(u"Prev"_s) && enabled(u"Next"_s));
}

// The tool is disabled there; called by name it finds the first page again.
void tst_PreviewTools::prevMayLeaveTheFirstPage()
{
    open().window().Show();
    showPages(vs(), 3);
    open().window().mnuPrintPreview_Click(open().tool(u"Prev"_s));
    QCOMPARE(vs().PreviewPage(), 1);
    QCOMPARE(text(u"PageNumber"_s), u"1"_s);
}

void tst_PreviewTools::theUsersZoomIsShown()
{
    open().preview(GuideModule);
    vs().SetFocus();
    QTest::keyClick(&vs().widget(), Qt::Key_Plus, Qt::ControlModifier);
    QVERIFY(vs().Zoom() > 75);
    QCOMPARE(text(u"miZoom"_s), u"%1%"_s.arg(int(vs().Zoom())));
}

void tst_PreviewTools::everyToolOfTheBandIsThere()
{
    open().preview(GuideModule);
    const ToolList &tools = open().window().mnuPrintPreview.Bands(0).Tools();
    QCOMPARE(tools.Count(), 7);
    for (const auto &shown : tools)
        QVERIFY2(open().window().mnuPrintPreview.widget().findChild<QWidget *>(shown->Name())->isVisible(),
                 qPrintable(shown->Name()));
}

void tst_PreviewTools::pageSetupLaysTheDocumentOutAnew()
{
    open().preview(GuideModule);
    const int pages = vs().PageCount();
    open().press(u"Next"_s);
    m_open->system.host.answerPageSetup([](PageChoice &choice) {
        choice.setup.left = choice.setup.right = 3600;
        return true;
    });
    open().press(u"pagesetup"_s);
    QVERIFY(vs().PageCount() > pages);
    QCOMPARE(vs().PreviewPage(), 1);
    QCOMPARE(text(u"PageNumber"_s), u"1"_s);
    open().preview(GuideModule);
    QCOMPARE(vs().MarginLeft(), 3600.0);
}

void tst_PreviewTools::aCancelledPageSetupChangesNothing()
{
    open().preview(GuideModule);
    open().press(u"Next"_s);
    m_open->system.host.answerPageSetup([](PageChoice &choice) {
        choice.setup.left = 3600;
        return false;
    });
    open().press(u"pagesetup"_s);
    QCOMPARE(vs().PreviewPage(), 2);
    QCOMPARE(vs().MarginLeft(), 1440.0);
}

// A tool that the band doesn't hold.
void tst_PreviewTools::printerSetupComposesNothing()
{
    open().preview(GuideModule);
    open().press(u"Next"_s);
    bool withPrinters = false;
    m_open->system.host.answerPageSetup([&](PageChoice &choice) {
        withPrinters = choice.withPrinters;
        return true;
    });
    Tool setup(open().window().mnuPrintPreview, 20011, u"printsetup"_s);
    open().window().mnuPrintPreview_Click(setup);
    QVERIFY(withPrinters);
    QCOMPARE(vs().PreviewPage(), 2);
}

void tst_PreviewTools::withoutPrintersAToolDoesNothing_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"print", "printsetup", "pagesetup"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_PreviewTools::withoutPrintersAToolDoesNothing()
{
    QFETCH(QString, name);
    open().preview(GuideModule);
    const int pages = vs().PageCount();
    m_open->system.host.setNoPrinters();
    m_open->system.host.expectMessage(u"There are no printers installed on your computer.  This view is unavailable"_s);
    Tool pressed(open().window().mnuPrintPreview, 1, name);
    open().window().mnuPrintPreview_Click(pressed);
    QCOMPARE(vs().PageCount(), pages);
    QVERIFY(open().window().Visible());
}

void tst_PreviewTools::printHandsPaperAndOrientationToTheDialog()
{
    open().preview(GuideModule);
    vs().setPaperSize(A4Paper);
    vs().setOrientation(Landscape);
    PrintChoice opened;
    m_open->system.host.answerPrintDialog([&](PrintChoice &choice) {
        opened = choice;
        return false;
    });
    open().press(u"print"_s);
    QCOMPARE(opened.deviceName, u"LASER"_s);
    QCOMPARE(opened.orientation, 2);
    QCOMPARE(Printer().PaperSize(), A4Paper);
    QCOMPARE(opened.maxPage, vs().PageCount());
    QVERIFY(!opened.pageRange);
    QCOMPARE(vs().Device(), u"LASER"_s);
}

void tst_PreviewTools::printPrintsTheChosenRange()
{
    open().preview(GuideModule);
    m_open->system.host.answerPrintDialog([](PrintChoice &choice) {
        choice.pageRange = true;
        choice.firstPage = 2;
        choice.lastPage = 2;
        return true;
    });
    open().press(u"print"_s);
    const auto pages = readPdf(m_open->system.host.printedFile(u"LASER"_s));
    QCOMPARE(pages.size(), std::size_t(1));
    QVERIFY(wordsOf(pages.front()).contains(u"Page: 2"_s));
}

void tst_PreviewTools::aCancelledPrintPrintsNothing()
{
    open().preview(GuideModule);
    m_open->system.host.answerPrintDialog([](PrintChoice &) { return false; });
    open().press(u"print"_s);
    QVERIFY(!QFile::exists(m_open->system.host.printedFile(u"LASER"_s)));
}

void tst_PreviewTools::aPrinterThatFailsIsToldAndTheDocumentStays()
{
    open().preview(GuideModule);
    const int pages = vs().PageCount();
    m_open->system.host.answerPrintDialog([this](PrintChoice &) {
        m_open->system.host.setPrintQueues({});
        return true;
    });
    m_open->system.host.expectAnyMessage();
    open().press(u"print"_s);
    QCOMPARE(vs().PageCount(), pages);
    QVERIFY(open().window().Visible());
}

QTEST_MAIN(tst_PreviewTools)
#include "tst_PreviewTools.moc"
