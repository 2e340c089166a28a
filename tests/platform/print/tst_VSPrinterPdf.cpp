// Documents printed into PDF files and read back by a program that isn't ours.
#include "platform/print/PrintFixture.h"
#include "platform/print/PrintJob.h"
#include "platform/print/PrintProgress.h"
#include "platform/print/Printers.h"

#include <QDir>
#include <QFileInfo>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_VSPrinterPdf : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theFileBearsTheDocumentsName_data();
    void theFileBearsTheDocumentsName();
    void anotherFileOfThatNameStays();
    void aFileThatTheUserChoseIsReplaced();
    void nothingButTheFileIsLeft();
    void aFolderThatCannotBeWrittenIsAFailure();
    void aPrinterThatIsNotThereIsAFailure();
    void theWordsComeBackInOrder();
    void pagesHaveThePapersSize_data();
    void pagesHaveThePapersSize();
    void uprightAndAcrossInOneDocument();
    void nothingOfTheTextIsOutsideTheMargins();
    void bandsStandInTheMargins();
    void aRangeOfPagesIsPrinted_data();
    void aRangeOfPagesIsPrinted();
    void aRangeWithoutPagesIsRefused_data();
    void aRangeWithoutPagesIsRefused();
    void aDocumentInTheWorksIsNotPrinted();
    void copiesComeOneAfterTheOther();
    void aPictureFillsItsPlace();
    void paperShowsWhatThePreviewShows();
    void headerAndFooterTextsStandInTheMargins();
    void aQueueOfTheSystemIsPrintedOn();
    void theProgressTellsThePageAndWhereItGoes();
    void aJobThatCannotBeTakenBackHasNoCancel();
    void aCancelledJobLeavesNoFile();

private:
    VSPrinter &vs() const { return m_window->vs; }
    QString file(const QString &name) const { return m_host->documentsFolder() + u'/' + name + u".pdf"_s; }
    std::vector<PrintedPage> printed(const QString &rtf, int from = 1, int to = 999);
    QImage paper(int page) const; // an inch in 96 pixels

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<PrintWindow> m_window;
};

void tst_VSPrinterPdf::init()
{
    m_host = std::make_unique<TestHost>();
    m_window = std::make_unique<PrintWindow>();
    vs().setDocName(u"Guide"_s);
}

void tst_VSPrinterPdf::cleanup()
{
    m_window.reset();
    m_host.reset();
}

std::vector<PrintedPage> tst_VSPrinterPdf::printed(const QString &rtf, int from, int to)
{
    compose(vs(), rtf);
    vs().PrintDoc(from, to);
    return readPdf(file(u"Guide"_s));
}

QImage tst_VSPrinterPdf::paper(int page) const
{
    const QString number = QString::number(page);
    const QByteArray png =
        outputOf(u"pdftoppm"_s, {u"-r"_s, u"96"_s, u"-png"_s, u"-f"_s, number, u"-l"_s, number, file(u"Guide"_s)});
    return QImage::fromData(png).convertToFormat(QImage::Format_RGB32);
}

void tst_VSPrinterPdf::theFileBearsTheDocumentsName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("fileName");
    QTest::newRow("plain") << u"ISO14001 - Implementation Guide"_s << u"ISO14001 - Implementation Guide.pdf"_s;
    QTest::newRow("none") << QString() << u"Document.pdf"_s;
    QTest::newRow("folders") << u"../../etc/passwd"_s << u"etc passwd.pdf"_s;
    QTest::newRow("what file systems refuse") << u"a:b*c?\"d\"<e>|f"_s << u"a b c d e f.pdf"_s;
    QTest::newRow("hidden") << u"...secret. "_s << u"secret.pdf"_s;
    QTest::newRow("control characters") << u"a\nb\u0001c"_s << u"a b c.pdf"_s;
    QTest::newRow("dots alone") << u".."_s << u"Document.pdf"_s;
    QTest::newRow("long") << u"x"_s.repeated(1000) << u"x"_s.repeated(60) + u".pdf"_s;
}

void tst_VSPrinterPdf::theFileBearsTheDocumentsName()
{
    QFETCH(QString, name);
    QFETCH(QString, fileName);
    vs().setDocName(name);
    compose(vs(), linesOfText(1));
    vs().PrintDoc(1, 1);
    QCOMPARE(QDir(m_host->documentsFolder()).entryList(QDir::Files | QDir::Hidden), QStringList{fileName});
}

void tst_VSPrinterPdf::anotherFileOfThatNameStays()
{
    compose(vs(), linesOfText(1));
    vs().PrintDoc(1, 1);
    compose(vs(), linesOfText(100));
    vs().PrintDoc(1, 99);
    vs().PrintDoc(1, 99);
    QCOMPARE(readPdf(file(u"Guide"_s)).size(), 1U);
    QCOMPARE(readPdf(file(u"Guide (2)"_s)).size(), 3U);
    QCOMPARE(readPdf(file(u"Guide (3)"_s)).size(), 3U);
}

void tst_VSPrinterPdf::aFileThatTheUserChoseIsReplaced()
{
    const QString chosen = m_host->folder() + u"/chosen.pdf"_s;
    m_host->writeFile(u"chosen.pdf"_s, "before");
    setPdfFileName(chosen);
    compose(vs(), linesOfText(1));
    vs().PrintDoc(1, 1);
    QCOMPARE(readPdf(chosen).size(), 1U);
    QVERIFY(!QFile::exists(file(u"Guide"_s)));
}

void tst_VSPrinterPdf::nothingButTheFileIsLeft()
{
    compose(vs(), linesOfText(1));
    vs().PrintDoc(1, 1);
    QCOMPARE(QDir(m_host->documentsFolder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{u"Guide.pdf"_s});
    const auto rights = QFileInfo(file(u"Guide"_s)).permissions();
    QVERIFY(rights & QFile::ReadOwner && rights & QFile::WriteOwner && !(rights & QFile::ExeOwner));
}

void tst_VSPrinterPdf::aFolderThatCannotBeWrittenIsAFailure()
{
    compose(vs(), linesOfText(1));
    QTest::ignoreMessage(QtWarningMsg, "QPainter::begin(): Returned false");
    m_host->writeFile(u"blocked"_s, "a file where a folder should be");
    setPdfFileName(m_host->folder() + u"/blocked/inside.pdf"_s);
    m_host->expectAnyMessage();
    QCOMPARE(errorOf([this] { vs().PrintDoc(1, 1); }), int(PrinterFailure));
    QCOMPARE(m_host->readFile(u"blocked"_s), QByteArray("a file where a folder should be"));
    QCOMPARE(vs().PageCount(), 1);
}

void tst_VSPrinterPdf::aPrinterThatIsNotThereIsAFailure()
{
    compose(vs(), linesOfText(1));
    vs().setDevice(u"Gone"_s);
    m_host->expectMessage(u"The printer \"Gone\" is not there."_s);
    QCOMPARE(errorOf([this] { vs().PrintDoc(1, 1); }), int(PrinterFailure));
    QCOMPARE(vs().PreviewPage(), 1);
}

void tst_VSPrinterPdf::theWordsComeBackInOrder()
{
    const auto pages = printed(linesOfText(120));
    QCOMPARE(pages.size(), 3U);
    QStringList words;
    for (const PrintedPage &page : pages)
        words << page.texts();
    QStringList expected;
    for (int line = 1; line <= 120; ++line)
        expected << u"Line"_s << QString::number(line);
    QCOMPARE(words, expected);
}

void tst_VSPrinterPdf::pagesHaveThePapersSize_data()
{
    QTest::addColumn<int>("paper");
    QTest::addColumn<int>("orientation");
    QTest::newRow("Letter upright") << LetterPaper << int(Portrait);
    QTest::newRow("Letter across") << LetterPaper << int(Landscape);
    QTest::newRow("A4 upright") << A4Paper << int(Portrait);
    QTest::newRow("A4 across") << A4Paper << int(Landscape);
}

void tst_VSPrinterPdf::pagesHaveThePapersSize()
{
    QFETCH(int, paper);
    QFETCH(int, orientation);
    vs().setPaperSize(paper);
    vs().setOrientation(orientation);
    const auto pages = printed(linesOfText(80));
    QVERIFY(pages.size() >= 2);
    for (const PrintedPage &page : pages)
        QCOMPARE(page.size, QSizeF(vs().PageWidth(), vs().PageHeight()));
}

void tst_VSPrinterPdf::uprightAndAcrossInOneDocument()
{
    vs().StartDoc();
    vs().setTextRTF(u"{\\rtf1 upright}"_s);
    vs().setOrientation(Landscape);
    vs().NewPage();
    vs().setTextRTF(u"{\\rtf1 across}"_s);
    vs().EndDoc();
    vs().PrintDoc(1, 2);
    const auto pages = readPdf(file(u"Guide"_s));
    QCOMPARE(pages[0].size, QSizeF(12240, 15840));
    QCOMPARE(pages[1].size, QSizeF(15840, 12240));
}

void tst_VSPrinterPdf::nothingOfTheTextIsOutsideTheMargins()
{
    vs().setMarginLeft(2000);
    vs().setMarginTop(2500);
    vs().setMarginRight(1000);
    vs().setMarginBottom(3000);
    const QString words = u"some words that fill the lines of a page from the left to the right "_s.repeated(60);
    const auto pages =
        printed(u"{\\rtf1{\\fonttbl{\\f2 Times New Roman;}}\\f2\\fs24 %1\\par\\qj %1\\par\\qr %1}"_s.arg(words));
    QVERIFY(pages.size() >= 2);
    const QRectF body = QRectF(2000, 2500, 12240 - 3000, 15840 - 5500).adjusted(-10, -10, 10, 10);
    for (const PrintedPage &page : pages)
        for (const PrintedWord &word : page.words)
            QVERIFY2(body.contains(word.place), qPrintable(word.text));
}

void tst_VSPrinterPdf::bandsStandInTheMargins()
{
    m_window->onHeader = [this] {
        vs().setCurrentX(vs().MarginLeft());
        vs().setCurrentY(vs().MarginTop() - 800);
        vs().AddTable(u"^+2250|^+7108;"_s, {}, u"orvane|Head%1;"_s.arg(vs().CurrentPage()));
    };
    m_window->onFooter = [this] {
        vs().setCurrentX(vs().MarginLeft());
        vs().setCurrentY(vs().PageHeight() - vs().MarginBottom());
        vs().AddTable(u"<+3500|<+4358|<+1500;"_s, {}, u" | |Foot%1;"_s.arg(vs().CurrentPage()));
    };
    const auto pages = printed(linesOfText(120));
    QCOMPARE(pages.size(), 3U);
    for (int number = 1; number <= 3; ++number) {
        const PrintedPage &page = pages[size_t(number - 1)];
        const QRectF head = page.placeOf(u"Head%1"_s.arg(number));
        QVERIFY(head.top() > 640 && head.bottom() < 1440 && head.left() > 1440 + 2250);
        const QRectF foot = page.placeOf(u"Foot%1"_s.arg(number));
        QVERIFY(foot.top() > 15840 - 1440 && foot.left() > 1440 + 7858 && foot.left() < 1440 + 7858 + 100);
    }
}

void tst_VSPrinterPdf::aRangeOfPagesIsPrinted_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QStringList>("pages");
    QTest::newRow("all") << 1 << 3 << QStringList{u"1"_s, u"53"_s, u"105"_s};
    QTest::newRow("the middle") << 2 << 2 << QStringList{u"53"_s};
    QTest::newRow("to behind the end") << 2 << 99 << QStringList{u"53"_s, u"105"_s};
    QTest::newRow("from before the start") << 0 << 1 << QStringList{u"1"_s};
}

// A page is told by the first line on it.
void tst_VSPrinterPdf::aRangeOfPagesIsPrinted()
{
    QFETCH(int, from);
    QFETCH(int, to);
    vs().setMarginBottom(15840 - 1440 - 52 * 276);
    QStringList starts;
    for (const PrintedPage &page : printed(linesOfText(120), from, to))
        starts << page.words[1].text;
    QTEST(starts, "pages");
}

void tst_VSPrinterPdf::aRangeWithoutPagesIsRefused_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::newRow("backwards") << 120 << 3 << 2;
    QTest::newRow("behind the end") << 120 << 4 << 9;
    QTest::newRow("before the start") << 120 << -3 << 0;
    QTest::newRow("no document") << 0 << 1 << 1;
}

void tst_VSPrinterPdf::aRangeWithoutPagesIsRefused()
{
    QFETCH(int, lines);
    QFETCH(int, from);
    QFETCH(int, to);
    if (lines > 0) compose(vs(), linesOfText(lines));
    QCOMPARE(errorOf([&] { vs().PrintDoc(from, to); }), int(InvalidProcedureCall));
    QVERIFY(!QFile::exists(file(u"Guide"_s)));
}

void tst_VSPrinterPdf::aDocumentInTheWorksIsNotPrinted()
{
    vs().StartDoc();
    vs().setTextRTF(linesOfText(1));
    QCOMPARE(errorOf([this] { vs().PrintDoc(1, 1); }), int(InvalidProcedureCall));
}

void tst_VSPrinterPdf::copiesComeOneAfterTheOther()
{
    vs().setCopies(2);
    const auto pages = printed(linesOfText(100));
    QCOMPARE(vs().PageCount() * 2, int(pages.size()));
    QCOMPARE(pages[size_t(vs().PageCount())].texts(), pages[0].texts());
}

void tst_VSPrinterPdf::aPictureFillsItsPlace()
{
    QImage picture(76, 50, QImage::Format_Indexed8);
    picture.setColorTable({qRgb(255, 0, 0)});
    picture.fill(0);
    vs().StartDoc();
    vs().DrawPicture(picture, 1500, 3000, 6000, 4500);
    vs().DrawPicture(QImage(), 9000, 9000, 1000, 1000);
    vs().EndDoc();
    vs().PrintDoc(1, 1);
    const QImage shown = paper(1);
    const QRect place(100, 200, 400, 300);
    const QColor red(255, 0, 0);
    for (const QPoint inside : {place.topLeft() + QPoint(2, 2), place.center(), place.bottomRight() - QPoint(2, 2)})
        QCOMPARE(shown.pixelColor(inside), red);
    for (const QPoint outside : {place.topLeft() - QPoint(2, 2), place.bottomRight() + QPoint(2, 2), QPoint(620, 620)})
        QCOMPARE(shown.pixelColor(outside), QColor(Qt::white));
}

// Looked at from a distance, from which the edges of letters, a matter of each program, don't count.
void tst_VSPrinterPdf::paperShowsWhatThePreviewShows()
{
    const QSize sheet(816, 1056);
    vs().Move(0, 0, toTwips(sheet.width() + 32), toTwips(sheet.height() + 32));
    vs().setZoom(100);
    compose(
        vs(),
        uR"({\rtf1{\fonttbl{\f2 Times New Roman;}}\f2\fs48\b Large {\ul lined} text\par\li720 indented \i words})"_s);
    showActive(*m_window);
    vs().PrintDoc(1, 1);
    const auto fromAfar = [&](const QImage &image) {
        return image.scaled(sheet / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage onPaper = fromAfar(paper(1));
    const QImage onScreen = fromAfar(vs().widget().grab(QRect(QPoint(16, 16), sheet)).toImage());
    int inked = 0;
    for (int y = 0; y < onPaper.height(); ++y)
        for (int x = 0; x < onPaper.width(); ++x) {
            inked += qGray(onPaper.pixel(x, y)) < 160;
            QVERIFY(std::abs(qGray(onPaper.pixel(x, y)) - qGray(onScreen.pixel(x, y))) < 80);
        }
    QVERIFY(inked > 150);
}

void tst_VSPrinterPdf::headerAndFooterTextsStandInTheMargins()
{
    vs().setHeader(u"Above"_s);
    vs().setFooter(u"Below"_s);
    const auto pages = printed(linesOfText(60));
    QCOMPARE(pages.size(), 2U);
    for (const PrintedPage &page : pages) {
        const QRectF above = page.placeOf(u"Above"_s);
        QVERIFY(above.bottom() < 1440 && above.top() > 0);
        QCOMPARE(qRound(above.left() / 20), 72);
        QVERIFY(page.placeOf(u"Below"_s).top() > 15840 - 1440);
    }
}

void tst_VSPrinterPdf::aQueueOfTheSystemIsPrintedOn()
{
    InstalledPrinter queue;
    queue.deviceName = u"Laser"_s;
    m_host->setPrintQueues({queue});
    vs().setDevice(u"Laser"_s);
    vs().setDuplex(2);
    compose(vs(), linesOfText(100));
    vs().PrintDoc(1, 99);
    QCOMPARE(readPdf(m_host->printedFile(u"Laser"_s)).size(), 3U);
}

void tst_VSPrinterPdf::theProgressTellsThePageAndWhereItGoes()
{
    PrintProgress progress({u"Laser"_s, u"Guide"_s, 3, 6}, u"laser1"_s, 0);
    QVERIFY(progress.goOn(3) && progress.goOn(4));
    const auto *shown = qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
    QVERIFY(shown);
    QCOMPARE(shown->windowTitle(), u"Printing..."_s);
    QCOMPARE(shown->labelText(), u"Now printing Page 4 of\nGuide\n on the Laser on laser1"_s);
    QCOMPARE(shown->maximum(), 4);
    auto *cancel = shown->findChild<QPushButton *>();
    QCOMPARE(cancel->text(), u"Cancel"_s);
    QVERIFY(progress.goOn(5));
    QTest::mouseClick(cancel, Qt::LeftButton);
    QVERIFY(!progress.goOn(6));
}

void tst_VSPrinterPdf::aJobThatCannotBeTakenBackHasNoCancel()
{
    PrintProgress progress({u"Laser"_s, u"Guide"_s, 1, 9}, u"laser1"_s, 0);
    progress.withholdCancel();
    QVERIFY(progress.goOn(1) && progress.goOn(2));
    QWidget *shown = QApplication::activeModalWidget();
    QVERIFY(shown && !shown->findChild<QPushButton *>());
    shown->close();
    QVERIFY(progress.goOn(3));
}

// A job that is long enough to bring the window up.
void tst_VSPrinterPdf::aCancelledJobLeavesNoFile()
{
    compose(vs(), linesOfText(1));
    vs().setCopies(200000);
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        auto *shown = qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
        if (!shown) return;
        watch.stop();
        QTest::mouseClick(shown->findChild<QPushButton *>(), Qt::LeftButton);
    });
    watch.start(1);
    vs().PrintDoc(1, 1);
    QVERIFY(!watch.isActive());
    const QDir documents(m_host->documentsFolder());
    QCOMPARE(documents.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
}

QTEST_MAIN(tst_VSPrinterPdf)
#include "tst_VSPrinterPdf.moc"
