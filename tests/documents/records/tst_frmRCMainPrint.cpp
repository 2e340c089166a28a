// Which pictures of a record come out on paper: read from the file that a printer would get.
#include "documents/records/RecordWindow.h"

#include "platform/print/PrintFixture.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

struct PrintingRecord : RecordWindow {
    explicit PrintingRecord(const QString &section) : RecordWindow(section)
    {
        system.host.setPrintQueues({{u"LASER"_s, u"Fast"_s, {}, true, LetterPaper}});
    }

    // Pages are named after their pictures; one that isn't one of those has no name.
    QStringList printedPages() const
    {
        VSPrinter &vs = Default<frmPrint>().vs;
        vs.setDevice(u"LASER"_s);
        vs.PrintDoc(1, vs.PageCount());
        const QTemporaryDir folder;
        outputOf(u"pdfimages"_s, {u"-png"_s, system.host.printedFile(u"LASER"_s), folder.filePath(u"page"_s)});
        QStringList pages;
        for (const QString &file : QDir(folder.path()).entryList({u"*.png"_s}, QDir::Files, QDir::Name))
            pages << nameOf(QImage(folder.filePath(file)));
        return pages;
    }

    static QString nameOf(const QImage &page)
    {
        for (const char *name : {"picRCF", "picRCB", "picf1", "picf2", "picb1", "picb2", "picf1a", "picb1a"}) {
            const QImage &picture = PictureObject::stored(QString::fromLatin1(name)).image();
            if (page.convertToFormat(QImage::Format_RGB32) == picture.convertToFormat(QImage::Format_RGB32))
                return QString::fromLatin1(name);
        }
        return {};
    }
};

} // namespace

class tst_frmRCMainPrint : public QObject
{
    Q_OBJECT

private slots:
    void theFormsGoToPaperAsTheyAre_data();
    void theFormsGoToPaperAsTheyAre();
    void whatIsOnShowDoesNotMatter();
    void oncePrintedAsThePlanItStaysThePlan();
    void theSectionIsReadAtTheClick();
    void printingReportsNothing();
    void anotherPrintTakesTheOldPreviewAway();
};

void tst_frmRCMainPrint::theFormsGoToPaperAsTheyAre_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QStringList>("pages");
    QTest::newRow("plan, completed") << u"511"_s << u"prtRecordFilled"_s << QStringList{u"picf1"_s, u"picf2"_s};
    QTest::newRow("plan, blank") << u"511"_s << u"prtRecordBlank"_s << QStringList{u"picb1"_s, u"picb2"_s};
    QTest::newRow("sample, completed") << u"519"_s << u"prtRecordFilled"_s << QStringList{u"picf1a"_s};
    QTest::newRow("sample, blank") << u"519"_s << u"prtRecordBlank"_s << QStringList{u"picb1a"_s};
    QTest::newRow("another, completed") << u"502"_s << u"prtRecordFilled"_s << QStringList{u"picf1a"_s};
}

void tst_frmRCMainPrint::theFormsGoToPaperAsTheyAre()
{
    QFETCH(QString, section);
    QFETCH(QString, tool);
    const PrintingRecord open(section);
    QVERIFY(open.choosePrint(tool));
    QCOMPARE(open.system.active()->Name(), u"frmPrint"_s);
    QTEST(open.printedPages(), "pages");
}

void tst_frmRCMainPrint::whatIsOnShowDoesNotMatter()
{
    const PrintingRecord open(u"519"_s);
    open.press(u"vwOption"_s);
    QVERIFY(open.choosePrint(u"prtRecordFilled"_s));
    QCOMPARE(open.printedPages(), QStringList(u"picf1a"_s));
}

void tst_frmRCMainPrint::oncePrintedAsThePlanItStaysThePlan()
{
    const PrintingRecord open(u"519"_s);
    Shared().SectionText = u"511"_s;
    QVERIFY(open.choosePrint(u"prtRecordBlank"_s));
    QCOMPARE(open.printedPages(), QStringList({u"picb1"_s, u"picb2"_s}));
    Shared().SectionText = u"519"_s;
    open.window->SetFocus();
    QVERIFY(open.choosePrint(u"prtRecordFilled"_s));
    QCOMPARE(open.printedPages(), QStringList({u"picf1"_s, u"picf2"_s}));
}

// The plan's window, printed after another module was opened, gives what is on show in one page.
void tst_frmRCMainPrint::theSectionIsReadAtTheClick()
{
    const PrintingRecord open(u"511"_s);
    OpenGuide(u"Using this Guide"_s, u"102"_s);
    open.window->SetFocus();
    QVERIFY(open.choosePrint(u"prtRecordFilled"_s));
    QCOMPARE(open.printedPages(), QStringList(u"picRCF"_s));
}

void tst_frmRCMainPrint::printingReportsNothing()
{
    const PrintingRecord open(u"511"_s);
    QVERIFY(open.choosePrint(u"prtRecordFilled"_s));
    QCOMPARE(open.tags->tags(), QStringList());
}

void tst_frmRCMainPrint::anotherPrintTakesTheOldPreviewAway()
{
    const PrintingRecord open(u"511"_s);
    QVERIFY(open.choosePrint(u"prtRecordFilled"_s));
    const frmPrint &before = Default<frmPrint>();
    open.window->SetFocus();
    QVERIFY(open.choosePrint(u"prtRecordBlank"_s));
    QVERIFY(&Default<frmPrint>() != &before);
    QCOMPARE(countWindows(u"frmPrint"_s), 1);
    QCOMPARE(Default<frmPrint>().vs.PageCount(), 2);
}

QTEST_MAIN(tst_frmRCMainPrint)
#include "tst_frmRCMainPrint.moc"
