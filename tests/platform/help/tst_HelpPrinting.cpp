// The help's pages on paper and in PDF files, and what the user is told when one can't be printed.
#include "platform/print/PrintFixture.h"
#include "platform/print/Printers.h"
#include "support/HelpUser.h"
#include "support/NarrowDisk.h"
#include "support/PrintScheduler.h"
#include "support/QueueHost.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTextDocumentFragment>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
constexpr int A5Paper = 11;
constexpr double Margin = 1440;
constexpr auto TakeIt = [](PrintChoice &) { return true; };

// Somebody who reads the page of all keys, on a machine of the given kind.
template <class Machine>
struct Reader {
    Reader()
    {
        user.openContents();
        user.goTo(u"keyboard.html"_s);
    }

    void print(const std::function<bool(PrintChoice &)> &choose)
    {
        host.answerPrintDialog(choose);
        QTest::mouseClick(user.window()->findChild<QWidget *>(u"printButton"_s), Qt::LeftButton);
    }
    void printIntoFile(const QString &name)
    {
        print([&](PrintChoice &choice) {
            choice.deviceName = pdfPrinterName();
            setPdfFileName(host.folder() + u"/paper/"_s + name);
            return true;
        });
    }
    QString told() const { return host.messages().empty() ? QString() : host.messages().back().text; }
    QStringList files() const { return QDir(host.folder() + u"/paper"_s).entryList(QDir::Files | QDir::Hidden); }
    QString path(const QString &name) const { return host.folder() + u"/paper/"_s + name; }
    bool goesOn() const
    {
        user.goTo(u"printing.html"_s);
        return user.window() && user.pageName() == u"printing.html"_s;
    }

    Machine host;
    HelpUser user{host};
};

QStringList sortedWords(const QString &text)
{
    QStringList words = QString(text)
                            .replace(QChar::ObjectReplacementCharacter, u' ')
                            .split(QRegularExpression(u"\\s+"_s), Qt::SkipEmptyParts);
    words.sort();
    return words;
}

bool isInFoot(const PrintedPage &page, const PrintedWord &word)
{
    return word.place.top() >= page.size.height() - Margin;
}

QString lastLineOf(const PrintedPage &page)
{
    double bottom = 0;
    for (const PrintedWord &word : page.words)
        if (!isInFoot(page, word)) bottom = std::max(bottom, word.place.bottom());
    QStringList words;
    for (const PrintedWord &word : page.words)
        if (!isInFoot(page, word) && word.place.bottom() == bottom) words << word.text;
    return words.join(u' ');
}

QStringList headingsOf(const QTextDocument &text)
{
    QStringList headings;
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
        if (block.blockFormat().headingLevel() > 0) headings << block.text();
    return headings;
}

QString footOf(const PrintedPage &page)
{
    QStringList words;
    for (const PrintedWord &word : page.words)
        if (isInFoot(page, word)) words << word.text;
    return words.join(u' ');
}
} // namespace

class tst_HelpPrinting : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void theKeyBringsUpThePrintDialog();
    void theDialogOpensOnAllPagesOfTheUsualPrinter();
    void withoutAPrinterTheUserIsTold();
    void aPageIsPrintedUnderItsTitle();
    void everyWordIsOnPaperWithinTheMargins();
    void theSheetsAreNumbered();
    void aHeadingStaysWithItsText_data();
    void aHeadingStaysWithItsText();
    void paperAndOrientationHold();
    void copiesAndARangeHold();
    void aRangeBehindTheLastSheetIsReported();
    void aFileOfThatNameIsReplacedWhole();
    void aFolderThatIsGoneIsReported();
    void aFullDiskLeavesTheOldFile_data();
    void aFullDiskLeavesTheOldFile();
    void aQueueTakesThePage();
    void aQueueThatRefusesThePageIsReported();
    void aServiceThatDoesNotAnswerIsReported();

private:
    bool startScheduler(); // false where CUPS is missing

    std::unique_ptr<PrintScheduler> m_scheduler;
};

void tst_HelpPrinting::initTestCase()
{
    if (PrintScheduler::missingProgram().isEmpty()) m_scheduler = std::make_unique<PrintScheduler>();
}

void tst_HelpPrinting::cleanup()
{
    if (m_scheduler) m_scheduler->kill();
}

bool tst_HelpPrinting::startScheduler()
{
    if (!m_scheduler) return false;
    m_scheduler->start();
    m_scheduler->addQueue(u"Office"_s);
    return true;
}

void tst_HelpPrinting::theKeyBringsUpThePrintDialog()
{
    Reader<TestHost> reader;
    reader.host.answerPrintDialog([](PrintChoice &) { return false; });
    reader.user.press(Qt::Key_P, Qt::ControlModifier);
    QVERIFY(reader.goesOn());
    QVERIFY(!QFile::exists(reader.host.documentsFolder()));
}

void tst_HelpPrinting::theDialogOpensOnAllPagesOfTheUsualPrinter()
{
    Reader<TestHost> reader;
    reader.host.setPrintQueues({{u"Office"_s, {}, u"Office"_s, false, LetterPaper}});
    PrintChoice shown;
    reader.print([&](const PrintChoice &choice) {
        shown = choice;
        return false;
    });
    QCOMPARE(shown.deviceName, u"Office"_s);
    QCOMPARE(shown.paperSize, LetterPaper);
    QCOMPARE(shown.orientation, 1);
    QVERIFY(!shown.pageRange);
    QVERIFY(shown.maxPage > 1);
    QCOMPARE(shown.lastPage, shown.maxPage);
}

void tst_HelpPrinting::withoutAPrinterTheUserIsTold()
{
    Reader<TestHost> reader;
    reader.host.setNoPrinters();
    reader.host.expectMessage(u"No printer is installed."_s);
    reader.user.press(Qt::Key_P, Qt::ControlModifier);
    QVERIFY(reader.goesOn());
}

void tst_HelpPrinting::aPageIsPrintedUnderItsTitle()
{
    Reader<TestHost> reader;
    reader.print(TakeIt);
    QVERIFY(!readPdf(reader.host.documentsFolder() + u"/All keys.pdf"_s).empty());
}

void tst_HelpPrinting::everyWordIsOnPaperWithinTheMargins()
{
    Reader<TestHost> reader;
    reader.print(TakeIt);
    QStringList words;
    for (const PrintedPage &page : readPdf(reader.host.documentsFolder() + u"/All keys.pdf"_s)) {
        const QRectF body(Margin, Margin, page.size.width() - 2 * Margin, page.size.height() - 2 * Margin);
        for (const PrintedWord &word : page.words) {
            if (isInFoot(page, word)) continue;
            QVERIFY2(body.contains(word.place), qPrintable(word.text));
            words << QTextDocumentFragment::fromHtml(word.text).toPlainText();
        }
    }
    words.sort();
    QCOMPARE(words, sortedWords(reader.user.page().toPlainText()));
}

void tst_HelpPrinting::theSheetsAreNumbered()
{
    Reader<TestHost> reader;
    reader.print(TakeIt);
    const auto pages = readPdf(reader.host.documentsFolder() + u"/All keys.pdf"_s);
    QVERIFY(pages.size() > 1);
    for (std::size_t index = 0; index < pages.size(); ++index)
        QCOMPARE(footOf(pages[index]), QString::number(index + 1));
}

void tst_HelpPrinting::aHeadingStaysWithItsText_data()
{
    QTest::addColumn<int>("paper");
    for (const int paper : {A4Paper, A5Paper, LetterPaper})
        QTest::addRow("paper %d", paper) << paper;
}

void tst_HelpPrinting::aHeadingStaysWithItsText()
{
    QFETCH(const int, paper);
    Reader<TestHost> reader;
    reader.print([paper](PrintChoice &choice) {
        choice.paperSize = paper;
        return true;
    });
    const auto pages = readPdf(reader.host.documentsFolder() + u"/All keys.pdf"_s);
    const QStringList headings = headingsOf(*reader.user.page().document());
    QVERIFY(pages.size() > 1 && headings.contains(u"Records"_s));
    for (const PrintedPage &page : pages)
        QVERIFY2(!headings.contains(lastLineOf(page)), qPrintable(lastLineOf(page)));
}

void tst_HelpPrinting::paperAndOrientationHold()
{
    Reader<TestHost> reader;
    reader.print([](PrintChoice &choice) {
        choice.paperSize = A5Paper;
        choice.orientation = 2;
        return true;
    });
    const auto pages = readPdf(reader.host.documentsFolder() + u"/All keys.pdf"_s);
    QVERIFY(!pages.empty());
    QCOMPARE(pages.front().size, QSizeF(11900, 8400));
}

void tst_HelpPrinting::copiesAndARangeHold()
{
    Reader<TestHost> reader;
    reader.print([](PrintChoice &choice) {
        choice.copies = 3;
        choice.pageRange = true;
        choice.firstPage = 2;
        choice.lastPage = 2;
        return true;
    });
    const auto pages = readPdf(reader.host.documentsFolder() + u"/All keys.pdf"_s);
    QCOMPARE(pages.size(), std::size_t(3));
    for (const PrintedPage &page : pages)
        QCOMPARE(footOf(page), u"2"_s);
}

// Which can be chosen when a larger paper is chosen too.
void tst_HelpPrinting::aRangeBehindTheLastSheetIsReported()
{
    Reader<TestHost> reader;
    reader.host.expectMessage(u"There are no such pages to print."_s);
    reader.print([](PrintChoice &choice) {
        choice.pageRange = true;
        choice.firstPage = choice.maxPage + 1;
        choice.lastPage = choice.maxPage + 1;
        return true;
    });
    QVERIFY(!QFile::exists(reader.host.documentsFolder() + u"/All keys.pdf"_s));
}

void tst_HelpPrinting::aFileOfThatNameIsReplacedWhole()
{
    Reader<TestHost> reader;
    QVERIFY(QDir(reader.host.folder()).mkdir(u"paper"_s));
    reader.host.writeFile(u"paper/keys.pdf"_s, "the old one");
    reader.printIntoFile(u"keys.pdf"_s);
    QVERIFY(!readPdf(reader.path(u"keys.pdf"_s)).empty());
    QCOMPARE(reader.files(), QStringList{u"keys.pdf"_s});
}

void tst_HelpPrinting::aFolderThatIsGoneIsReported()
{
    Reader<TestHost> reader;
    reader.host.writeFile(u"paper"_s, "no folder");
    reader.host.expectAnyMessage();
    reader.printIntoFile(u"keys.pdf"_s);
    QVERIFY2(reader.told().contains(u"can't print"_s), qPrintable(reader.told()));
    QVERIFY(reader.goesOn());
}

void tst_HelpPrinting::aFullDiskLeavesTheOldFile_data()
{
    QTest::addColumn<int>("percent"); // of the file's size
    for (const int percent : {0, 50, 99})
        QTest::addRow("room for %d %%", percent) << percent;
}

void tst_HelpPrinting::aFullDiskLeavesTheOldFile()
{
    QFETCH(const int, percent);
    Reader<TestHost> reader;
    QVERIFY(QDir(reader.host.folder()).mkdir(u"paper"_s));
    reader.printIntoFile(u"keys.pdf"_s);
    const qint64 size = QFileInfo(reader.path(u"keys.pdf"_s)).size();
    reader.host.writeFile(u"paper/keys.pdf"_s, "the old one");
    reader.host.expectAnyMessage();
    {
        const NarrowDisk disk(size * percent / 100);
        reader.printIntoFile(u"keys.pdf"_s);
    }
    QCOMPARE(reader.told(), u"The file \"keys.pdf\" can't be written in %1."_s.arg(reader.host.folder() + u"/paper"_s));
    QCOMPARE(reader.host.readFile(u"paper/keys.pdf"_s), QByteArray("the old one"));
    QCOMPARE(reader.files(), QStringList{u"keys.pdf"_s});
    QVERIFY(reader.goesOn());
}

void tst_HelpPrinting::aQueueTakesThePage()
{
    if (!startScheduler()) QSKIP("CUPS is not installed");
    Reader<QueueHost> reader;
    reader.print([](PrintChoice &choice) {
        choice.copies = 2;
        return choice.deviceName == u"Office"_s;
    });
    const KeptJob job = m_scheduler->nextJob();
    QCOMPARE(job.title, u"All keys"_s);
    QCOMPARE(job.copies, 2);
    QVERIFY(readPdf(job.pdf).size() > 1);
}

void tst_HelpPrinting::aQueueThatRefusesThePageIsReported()
{
    if (!startScheduler()) QSKIP("CUPS is not installed");
    Reader<QueueHost> reader;
    m_scheduler->refuseJobs(u"Office"_s);
    reader.host.expectAnyMessage();
    reader.print(TakeIt);
    QVERIFY2(reader.told().startsWith(u"The printer \"Office\" didn't take the document. "_s),
             qPrintable(reader.told()));
    QVERIFY(reader.goesOn());
}

void tst_HelpPrinting::aServiceThatDoesNotAnswerIsReported()
{
    constexpr int Patience = 15000; // milliseconds, for a wait of three seconds
    if (!startScheduler()) QSKIP("CUPS is not installed");
    Reader<QueueHost> reader;
    QElapsedTimer waited;
    waited.start();
    reader.host.expectMessage(u"The printer \"Office\" is not there."_s);
    reader.print([&](const PrintChoice &choice) {
        m_scheduler->freeze();
        return choice.deviceName == u"Office"_s;
    });
    QVERIFY(!waited.hasExpired(Patience));
    QVERIFY(reader.goesOn());
}

QTEST_MAIN(tst_HelpPrinting)
#include "tst_HelpPrinting.moc"
