// Printing on real queues, of a CUPS scheduler that the test starts for itself.
#include "platform/print/DefaultPrinter.h"
#include "platform/print/PrintFixture.h"
#include "platform/print/Printers.h"
#include "platform/print/dialog/PrintChoice.h"
#include "platform/print/dialog/SystemPrintDialog.h"
#include "support/PrintScheduler.h"
#include "support/QueueHost.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QElapsedTimer>
#include <QPainter>
#include <QPrinter>
#include <QRadioButton>
#include <QSpinBox>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
constexpr int A5Paper = 11;
constexpr int Pages = 4;

// A document of four pages "Page 1" to "Page 4" in the preview.
struct Document {
    explicit Document(int orientation = Portrait)
    {
        window.vs.setPaperSize(A4Paper);
        window.vs.setOrientation(orientation);
        window.vs.setDocName(u"Emergency plan"_s);
        window.vs.StartDoc();
        for (int page = 1; page <= Pages; ++page) {
            if (page > 1) window.vs.NewPage();
            window.vs.AddTable(u"<+3000;"_s, {}, u"Page %1;"_s.arg(page));
        }
        window.vs.EndDoc();
    }

    VSPrinter &on(const QString &queue)
    {
        window.vs.setDevice(queue);
        return window.vs;
    }

    QueueHost host;
    PrintWindow window;
};

QStringList numbersOf(const std::vector<PrintedPage> &pages)
{
    QStringList numbers;
    for (const PrintedPage &page : pages)
        numbers << page.texts().value(1);
    return numbers;
}

// What the caller of the print control gets to know, which is what the user was told.
QString failureToPrint(Document &document)
{
    document.host.expectAnyMessage();
    const QString failure = failureOf([&] { document.on(u"Office"_s).PrintDoc(1, 1); });
    const QString told = document.host.messages().empty() ? QString() : document.host.messages().back().text;
    return failure == u"482 "_s + told ? failure : u"another message: "_s + told;
}

// One that is begun.
std::shared_ptr<QPainter> jobOn(QPrinter &printer)
{
    auto painter = std::make_shared<QPainter>(&printer);
    painter->drawText(1000, 1000, u"words"_s);
    return painter;
}

void inDialog(const std::function<void(QWidget &)> &user)
{
    QTimer::singleShot(0, qApp, [user] {
        QWidget *dialog = QApplication::activeModalWidget();
        user(*dialog);
        QMetaObject::invokeMethod(dialog, "accept");
    });
}
} // namespace

class tst_CupsQueue : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void theQueuesAreInstalledPrinters();
    void theUsualQueueComesFirst();
    void aDocumentIsPrintedWhole();
    void twoCopiesArePrinted();
    void aRangeOfPagesIsPrinted();
    void landscapeIsPrinted();
    void bothSidesArePrinted_data();
    void bothSidesArePrinted();
    void aPausedQueueTakesTheJobAndTheUserIsTold();
    void aQueueThatRefusesJobsIsReported();
    void aQueueThatWasDeletedIsReported();
    void aQueueThatIsDeletedDuringTheJobIsReported();
    void aSchedulerThatIsGoneIsReported();
    void aSchedulerThatIsKilledDuringTheJobIsReported();
    void aSchedulerThatDoesNotAnswerHoldsNobodyUp();
    void aFileIsPrintedWhileTheSchedulerDoesNotAnswer();
    void theDialogComesUpWhileTheSchedulerDoesNotAnswer();
    void aSchedulerThatStopsDuringTheJobIsReported();
    void theDialogOffersTheQueues();
    void theDialogKeepsThePaper();
    void thePropertiesShowThePaper();
    void theDialogOpensOnAnyQueueWithItsSettings();
    void theDialogsChoiceComesBack();
    void thePdfPrinterOfTheSystemPrints();

private:
    std::unique_ptr<PrintScheduler> m_scheduler;
};

void tst_CupsQueue::initTestCase()
{
    const QString missing = PrintScheduler::missingProgram();
    if (!missing.isEmpty()) QSKIP(qPrintable(u"CUPS is not installed: there is no "_s + missing));
    m_scheduler = std::make_unique<PrintScheduler>();
}

void tst_CupsQueue::cleanupTestCase()
{
    m_scheduler.reset();
}

void tst_CupsQueue::init()
{
    m_scheduler->start();
    m_scheduler->addQueue(u"Office"_s);
}

void tst_CupsQueue::cleanup()
{
    m_scheduler->kill();
}

void tst_CupsQueue::theQueuesAreInstalledPrinters()
{
    const QueueHost host;
    const auto printers = installedPrinters();
    QCOMPARE(printers.size(), std::size_t(2));
    QCOMPARE(printers[0].deviceName, u"Office"_s);
    QCOMPARE(printers[0].driverName, u"orvane Two-sided"_s);
    QCOMPARE(printers[0].port, u"Office"_s);
    QCOMPARE(printers[0].paperSize, A4Paper);
    QVERIFY(printers[0].twoSided);
    QCOMPARE(printers[1].deviceName, pdfPrinterName());
}

void tst_CupsQueue::theUsualQueueComesFirst()
{
    const QueueHost host;
    m_scheduler->addQueue(u"Zoo"_s);
    m_scheduler->makeUsual(u"Zoo"_s);
    QCOMPARE(installedPrinters()[0].deviceName, u"Zoo"_s);
    QCOMPARE(installedPrinters()[1].deviceName, u"Office"_s);
    m_scheduler->removeQueue(u"Zoo"_s);
}

void tst_CupsQueue::aDocumentIsPrintedWhole()
{
    Document document;
    document.on(u"Office"_s).PrintDoc(1, Pages);
    const KeptJob job = m_scheduler->nextJob();
    QCOMPARE(numbersOf(readPdf(job.pdf)), (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s}));
    QCOMPARE(job.title, u"Emergency plan"_s);
    QCOMPARE(job.copies, 1);
}

void tst_CupsQueue::twoCopiesArePrinted()
{
    Document document;
    document.on(u"Office"_s).setCopies(2);
    document.window.vs.PrintDoc(1, Pages);
    const KeptJob job = m_scheduler->nextJob();
    QCOMPARE(job.copies, 2);
    QCOMPARE(readPdf(job.pdf).size(), std::size_t(Pages));
}

void tst_CupsQueue::aRangeOfPagesIsPrinted()
{
    Document document;
    document.on(u"Office"_s).PrintDoc(2, 3);
    QCOMPARE(numbersOf(readPdf(m_scheduler->nextJob().pdf)), (QStringList{u"2"_s, u"3"_s}));
}

void tst_CupsQueue::landscapeIsPrinted()
{
    Document document(Landscape);
    document.on(u"Office"_s).PrintDoc(1, 1);
    const auto pages = readPdf(m_scheduler->nextJob().pdf);
    QCOMPARE(pages.size(), std::size_t(1));
    QCOMPARE(pages[0].size, QSizeF(16840, 11900));
}

void tst_CupsQueue::bothSidesArePrinted_data()
{
    QTest::addColumn<int>("duplex");
    QTest::addColumn<QString>("option");
    QTest::newRow("one side") << 1 << u"sides=one-sided"_s;
    QTest::newRow("long edge") << 2 << u"sides=two-sided-long-edge"_s;
    QTest::newRow("short edge") << 3 << u"sides=two-sided-short-edge"_s;
}

void tst_CupsQueue::bothSidesArePrinted()
{
    QFETCH(const int, duplex);
    QFETCH(const QString, option);
    Document document;
    document.on(u"Office"_s).setDuplex(duplex);
    document.window.vs.PrintDoc(1, 2);
    const KeptJob job = m_scheduler->nextJob();
    QVERIFY2(job.options.contains(option), qPrintable(job.options.join(u' ')));
}

void tst_CupsQueue::aPausedQueueTakesTheJobAndTheUserIsTold()
{
    Document document;
    m_scheduler->pause(u"Office"_s);
    document.host.expectMessage(
        u"The printer \"Office\" is paused. The document waits there until the printer is resumed."_s);
    document.on(u"Office"_s).PrintDoc(1, 1);
    QCOMPARE(document.window.vs.PageCount(), Pages);
    QCOMPARE(m_scheduler->waitingJobs(u"Office"_s), 1);
    QCOMPARE(m_scheduler->keptJobs(), 0);
    m_scheduler->resume(u"Office"_s);
    QCOMPARE(readPdf(m_scheduler->nextJob().pdf).size(), std::size_t(1));
}

void tst_CupsQueue::aQueueThatRefusesJobsIsReported()
{
    Document document;
    m_scheduler->refuseJobs(u"Office"_s);
    const QString failure = failureToPrint(document);
    QVERIFY2(failure.startsWith(u"482 The printer \"Office\" didn't take the document. "_s), qPrintable(failure));
    QVERIFY2(failure.contains(u"not accepting jobs"_s), qPrintable(failure));
    QCOMPARE(document.window.vs.PageCount(), Pages); // the document stays
}

void tst_CupsQueue::aQueueThatWasDeletedIsReported()
{
    Document document;
    QCOMPARE(installedPrinters()[0].deviceName, u"Office"_s);
    m_scheduler->addQueue(u"Annex"_s);
    m_scheduler->removeQueue(u"Office"_s);
    QCOMPARE(failureToPrint(document), u"482 The printer \"Office\" is not there."_s);
    m_scheduler->removeQueue(u"Annex"_s);
    QCOMPARE(m_scheduler->keptJobs(), 0); // nor did the job go to the other one
}

void tst_CupsQueue::aQueueThatIsDeletedDuringTheJobIsReported()
{
    const QueueHost host;
    const std::shared_ptr<QPrinter> printer = openPrinter(u"Office"_s);
    const auto painter = jobOn(*printer);
    m_scheduler->removeQueue(u"Office"_s);
    const QString failure = failureOf([&] { finishJob(printer, painter); });
    QVERIFY2(failure.startsWith(u"482 The printer \"Office\" didn't take"_s), qPrintable(failure));
}

void tst_CupsQueue::aSchedulerThatIsGoneIsReported()
{
    Document document;
    m_scheduler->kill();
    QCOMPARE(failureToPrint(document), u"482 The printer \"Office\" is not there."_s);
    QCOMPARE(installedPrinters().size(), std::size_t(1));
}

void tst_CupsQueue::aSchedulerThatIsKilledDuringTheJobIsReported()
{
    const QueueHost host;
    const std::shared_ptr<QPrinter> printer = openPrinter(u"Office"_s);
    const auto painter = jobOn(*printer);
    m_scheduler->kill();
    const QString failure = failureOf([&] { finishJob(printer, painter); });
    QVERIFY2(failure.startsWith(u"482 The printer \"Office\" didn't take"_s), qPrintable(failure));
}

void tst_CupsQueue::aSchedulerThatDoesNotAnswerHoldsNobodyUp()
{
    constexpr int Patience = 15000; // milliseconds, for a wait of three seconds
    Document document;
    m_scheduler->freeze();
    QElapsedTimer waited;
    waited.start();
    QCOMPARE(failureToPrint(document), u"482 The printer \"Office\" is not there."_s);
    QCOMPARE(installedPrinters().size(), std::size_t(1));
    QVERIFY(!waited.hasExpired(Patience));
}

void tst_CupsQueue::aFileIsPrintedWhileTheSchedulerDoesNotAnswer()
{
    Document document;
    m_scheduler->freeze();
    document.on(pdfPrinterName()).PrintDoc(1, Pages);
    QCOMPARE(readPdf(document.host.documentsFolder() + u"/Emergency plan.pdf"_s).size(), std::size_t(Pages));
}

void tst_CupsQueue::theDialogComesUpWhileTheSchedulerDoesNotAnswer()
{
    const QueueHost host;
    PrintChoice choice;
    choice.deviceName = pdfPrinterName();
    m_scheduler->freeze();
    QStringList offered;
    inDialog([&](QWidget &dialog) {
        const auto &printers = *dialog.findChild<QComboBox *>(u"printers"_s);
        for (int index = 0; index < printers.count(); ++index)
            offered << printers.itemText(index);
    });
    QVERIFY(showSystemPrintDialog(choice, 0));
    QVERIFY(offered.contains(pdfPrinterName()));
    QVERIFY(!offered.contains(u"Office"_s));
}

void tst_CupsQueue::aSchedulerThatStopsDuringTheJobIsReported()
{
    const QueueHost host;
    const std::shared_ptr<QPrinter> printer = openPrinter(u"Office"_s);
    const auto painter = jobOn(*printer);
    m_scheduler->freeze();
    QCOMPARE(failureOf([&] { finishJob(printer, painter); }),
             u"482 The printer \"Office\" didn't take the document. The print service doesn't answer."_s);
}

void tst_CupsQueue::theDialogOffersTheQueues()
{
    const QueueHost host;
    PrintChoice choice;
    choice.deviceName = pdfPrinterName();
    inDialog([](QWidget &dialog) {
        auto &printers = *dialog.findChild<QComboBox *>(u"printers"_s);
        QCOMPARE(printers.currentText(), pdfPrinterName());
        printers.setCurrentIndex(printers.findText(u"Office"_s));
    });
    QVERIFY(showSystemPrintDialog(choice, 0));
    QCOMPARE(choice.deviceName, u"Office"_s);
}

void tst_CupsQueue::theDialogKeepsThePaper()
{
    const QueueHost host;
    PrintChoice choice;
    choice.deviceName = u"Office"_s;
    choice.paperSize = A5Paper;
    choice.orientation = 2;
    choice.duplex = 3;
    inDialog([](QWidget &) {});
    QVERIFY(showSystemPrintDialog(choice, 0));
    QCOMPARE(choice.paperSize, A5Paper);
    QCOMPARE(choice.orientation, 2);
    QCOMPARE(choice.duplex, 3);
}

void tst_CupsQueue::thePropertiesShowThePaper()
{
    const QueueHost host;
    PrintChoice choice;
    choice.deviceName = u"Office"_s;
    choice.paperSize = A5Paper;
    QString paper;
    inDialog([&](QWidget &dialog) {
        inDialog(
            [&](QWidget &properties) { paper = properties.findChild<QComboBox *>(u"pageSizeCombo"_s)->currentText(); });
        dialog.findChild<QAbstractButton *>(u"properties"_s)->click();
    });
    QVERIFY(showSystemPrintDialog(choice, 0));
    QCOMPARE(paper, u"A5"_s);
    QCOMPARE(choice.paperSize, A5Paper);
}

void tst_CupsQueue::theDialogOpensOnAnyQueueWithItsSettings()
{
    const QueueHost host;
    m_scheduler->addQueue(u"Annex"_s);
    m_scheduler->makeUsual(u"Annex"_s);
    PrintChoice choice;
    choice.deviceName = u"Office"_s;
    choice.copies = 3;
    choice.duplex = 2;
    choice.orientation = 2;
    choice.paperSize = A5Paper;
    choice.maxPage = Pages;
    choice.lastPage = Pages;
    inDialog([](QWidget &) {});
    QVERIFY(showSystemPrintDialog(choice, 0));
    m_scheduler->removeQueue(u"Annex"_s);
    QCOMPARE(choice.deviceName, u"Office"_s);
    QCOMPARE(choice.copies, 3);
    QCOMPARE(choice.duplex, 2);
    QCOMPARE(choice.orientation, 2);
    QCOMPARE(choice.paperSize, A5Paper);
    QVERIFY(!choice.pageRange);
}

void tst_CupsQueue::theDialogsChoiceComesBack()
{
    const QueueHost host;
    PrintChoice choice;
    choice.deviceName = u"Office"_s;
    choice.maxPage = Pages;
    choice.duplex = 1;
    inDialog([](QWidget &dialog) {
        dialog.findChild<QSpinBox *>(u"copies"_s)->setValue(2);
        dialog.findChild<QRadioButton *>(u"duplexLong"_s)->click();
        dialog.findChild<QRadioButton *>(u"printRange"_s)->click();
        dialog.findChild<QSpinBox *>(u"to"_s)->setValue(3);
    });
    QVERIFY(showSystemPrintDialog(choice, 0));
    QCOMPARE(choice.deviceName, u"Office"_s);
    QCOMPARE(choice.copies, 2);
    QCOMPARE(choice.duplex, 2);
    QVERIFY(choice.pageRange);
    QCOMPARE(choice.lastPage, 3);
}

void tst_CupsQueue::thePdfPrinterOfTheSystemPrints()
{
    if (!PrintScheduler::canHavePdfPrinter()) QSKIP("the PDF printer of CUPS needs root and its package");
    Document document(Landscape);
    m_scheduler->addPdfPrinter(u"Pdf"_s);
    document.on(u"Pdf"_s).setCopies(2);
    document.window.vs.PrintDoc(2, 3);
    const auto pages = readPdf(m_scheduler->nextPdf(u"Pdf"_s));
    QCOMPARE(pages.size(), std::size_t(4)); // two pages, two copies; its way through PostScript loses the letters
    for (const PrintedPage &page : pages) {
        QCOMPARE(page.size, QSizeF(11900, 16840)); // turned, its upper left corner below
        QVERIFY(!page.words.empty());
        QVERIFY(page.words.front().place.top() > 3 * page.size.height() / 4);
        QVERIFY(page.words.front().place.right() < page.size.width() / 4);
    }
}

QTEST_MAIN(tst_CupsQueue)
#include "tst_CupsQueue.moc"
