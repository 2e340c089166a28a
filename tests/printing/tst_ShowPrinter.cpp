// The printer dialog: what goes in from the default printer, and what the user's choice does to it and to the preview.
#include "platform/forms/Window.h"
#include "platform/print/DefaultPrinter.h"
#include "platform/print/Printers.h"
#include "platform/print/VSPrinter.h"
#include "platform/print/dialog/MovableMemory.h"
#include "platform/print/dialog/PrintRecords.h"
#include "platform/system/RunTimeError.h"
#include "printing/modPrinter.h"
#include "support/TestHost.h"

#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
std::vector<InstalledPrinter> threeQueues()
{
    return {
        {u"LASER"_s, u"Fast"_s, {}, true, 9}, {u"Jet"_s, u"Slow"_s, {}, false, 1}, {u"PLOT"_s, u"Wide"_s, {}, true, 8}};
}

class PreviewWindow : public Window
{
public:
    PreviewWindow() : Window(u"frmPrint"_s, FixedBorder) {}
};

// The preview's window with pages 1 to 7 to print, and what the dialog was opened with.
struct Preview {
    Preview() { host.setPrintQueues(threeQueues()); }

    void show(const std::function<bool(PrintChoice &)> &answer)
    {
        host.answerPrintDialog([&, answer](PrintChoice &choice) {
            opened = choice;
            return answer(choice);
        });
        ShowPrinter(window, vs, firstPage, lastPage, cancelled, flags);
    }

    // Block 1 is the device mode, 2 the device names: handles are numbered in order.
    QByteArray bytesGoingIn(quint32 block)
    {
        const quint32 before = GlobalAlloc(MovableZeroFilled, 1);
        const quint32 handle = before + block;
        QByteArray bytes;
        show([&](PrintChoice &) {
            bytes = QByteArray(static_cast<const char *>(GlobalLock(handle)), qsizetype(GlobalSize(handle)));
            GlobalUnlock(handle);
            return false;
        });
        GlobalFree(before);
        return bytes;
    }

    TestHost host;
    PreviewWindow window;
    VSPrinter vs{window, u"vs"_s};
    qint16 firstPage = 1;
    qint16 lastPage = 7;
    Boolean16 cancelled = False;
    qint32 flags = 0;
    PrintChoice opened;
};

bool cancel(PrintChoice &)
{
    return false;
}

bool accept(PrintChoice &)
{
    return true;
}
} // namespace

class tst_ShowPrinter : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void theDefaultPrinterAndItsSettingsGoIn();
    void theDeviceModeGoesInByteForByte();
    void theDeviceNamesGoInByteForByte();
    void aPrinterWithoutDuplexGoesInAsItIs();
    void theDialogOpensOnAllPages();
    void theCallersFlagsGoIn();
    void cancelChangesNothing();
    void cancelLeavesBothBlocks();
    void okFreesBothBlocks();
    void okTakesBackTheFlagOfCancel();
    void theChoiceGoesIntoTheDefaultPrinter();
    void theChoiceGoesIntoThePreview();
    void theOrientationGoesIntoThePreviewAsItStands();
    void theRangeComesBack();
    void allPagesComeBack();
    void anotherPrinterBecomesTheDefaultOne();
    void aLowerCaseNameTakesTheWalk();
    void anUpperCaseNameDoesNot();
    void theWalkDoesNotStopAtTheMatch();
    void aPrinterThatRefusesDuplexStopsNothing();
    void eachRefusalIsPassedOver();
    void pendingEventsRunBeforeThePrinterIsSet();
    void aPrinterThatIsGoneLeavesTheDefaultOne();
    void theFilePrinterCanBeChosen();
    void withoutPrintersTheFailureShows();
    void aPrinterWithALongDriverStillOpens();

private:
    std::size_t m_blocks = 0;
};

void tst_ShowPrinter::init()
{
    m_blocks = movableBlocks();
}

void tst_ShowPrinter::theDefaultPrinterAndItsSettingsGoIn()
{
    Preview preview;
    Printer().setOrientation(2);
    Printer().setDuplex(3);
    Printer().setPaperSize(11);
    preview.show(cancel);
    QCOMPARE(preview.opened.deviceName, u"LASER"_s);
    QCOMPARE(preview.opened.orientation, 2);
    QCOMPARE(preview.opened.duplex, 3);
    QCOMPARE(preview.opened.paperSize, 11);
    QCOMPARE(preview.opened.copies, 1);
}

void tst_ShowPrinter::theDeviceModeGoesInByteForByte()
{
    Preview preview;
    Printer().setOrientation(2);
    Printer().setDuplex(3);
    Printer().setPaperSize(11);
    Printer().setCopies(4);
    QByteArray expected(122, '\0');
    expected.replace(0, 32, QByteArray("LASER").leftJustified(32));
    expected.replace(36, 2, QByteArray::fromHex("7A00"));     // dmSize
    expected.replace(40, 4, QByteArray::fromHex("01100000")); // dmFields
    expected.replace(44, 2, QByteArray::fromHex("0200"));     // dmOrientation
    expected.replace(62, 2, QByteArray::fromHex("0300"));     // dmDuplex
    QCOMPARE(preview.bytesGoingIn(1).toHex(), expected.toHex());
}

void tst_ShowPrinter::theDeviceNamesGoInByteForByte()
{
    Preview preview;
    preview.host.setPrintQueues({{u"A queue of a name that is longer than most"_s, u"Fast"_s, {}, true, 9}});
    const QByteArray device = "A queue of a name that is longer than most";
    QByteArray expected = QByteArray::fromHex("08000D0038000000"); // 8, 8 + 1 + 4, and 1 + 42 for the port on top
    expected += QByteArray("Fast") + '\0' + device.left(31) + '\0' + device + '\0';
    QCOMPARE(preview.bytesGoingIn(2).toHex(), expected.leftJustified(108).toHex());
}

void tst_ShowPrinter::aPrinterWithoutDuplexGoesInAsItIs()
{
    Preview preview;
    Printer().select(installedPrinters()[1]);
    preview.show(cancel);
    QCOMPARE(preview.opened.deviceName, u"Jet"_s);
    QCOMPARE(preview.opened.duplex, 0);
}

void tst_ShowPrinter::theDialogOpensOnAllPages()
{
    Preview preview;
    preview.show(cancel);
    QVERIFY(!preview.opened.pageRange);
    QCOMPARE(preview.opened.firstPage, 1);
    QCOMPARE(preview.opened.lastPage, 7);
    QCOMPARE(preview.opened.minPage, 1);
    QCOMPARE(preview.opened.maxPage, 7);
}

void tst_ShowPrinter::theCallersFlagsGoIn()
{
    Preview preview;
    preview.flags = PD_PAGENUMS;
    preview.firstPage = 2;
    preview.show(cancel);
    QVERIFY(preview.opened.pageRange);
    QCOMPARE(preview.opened.firstPage, 2);
    QCOMPARE(preview.flags, qint32(PD_PAGENUMS));
}

void tst_ShowPrinter::cancelChangesNothing()
{
    Preview preview;
    const int orientation = preview.vs.Orientation();
    preview.show([](PrintChoice &choice) {
        choice.copies = 5;
        choice.orientation = 2;
        choice.lastPage = 2;
        return false;
    });
    QCOMPARE(preview.cancelled, True);
    QCOMPARE(Printer().Copies(), 1);
    QCOMPARE(Printer().Orientation(), 1);
    QCOMPARE(preview.vs.Orientation(), orientation);
    QCOMPARE(preview.vs.Device(), QString());
    QCOMPARE(int(preview.lastPage), 7);
}

void tst_ShowPrinter::cancelLeavesBothBlocks()
{
    Preview preview;
    preview.show(cancel);
    QCOMPARE(movableBlocks(), m_blocks + 2);
}

void tst_ShowPrinter::okFreesBothBlocks()
{
    Preview preview;
    preview.show(accept);
    QCOMPARE(movableBlocks(), m_blocks);
}

void tst_ShowPrinter::okTakesBackTheFlagOfCancel()
{
    Preview preview;
    preview.cancelled = True;
    preview.show(accept);
    QCOMPARE(preview.cancelled, False);
}

void tst_ShowPrinter::theChoiceGoesIntoTheDefaultPrinter()
{
    Preview preview;
    preview.show([](PrintChoice &choice) {
        choice.copies = 3;
        choice.duplex = 2;
        choice.orientation = 2;
        choice.paperSize = 5;
        return true;
    });
    QCOMPARE(Printer().DeviceName(), u"LASER"_s);
    QCOMPARE(Printer().Copies(), 3);
    QCOMPARE(Printer().Duplex(), 2);
    QCOMPARE(Printer().Orientation(), 2);
    QCOMPARE(Printer().PaperSize(), 5);
}

void tst_ShowPrinter::theChoiceGoesIntoThePreview()
{
    Preview preview;
    preview.show([](PrintChoice &choice) {
        choice.deviceName = u"PLOT"_s;
        choice.copies = 3;
        choice.duplex = 2;
        choice.paperSize = 5;
        return true;
    });
    QCOMPARE(preview.vs.Device(), u"PLOT"_s);
    QCOMPARE(preview.vs.Copies(), 3);
    QCOMPARE(preview.vs.Duplex(), 2);
    QCOMPARE(preview.vs.PaperSize(), 5);
}

void tst_ShowPrinter::theOrientationGoesIntoThePreviewAsItStands()
{
    Preview preview;
    preview.vs.setOrientation(Portrait);
    preview.show(accept); // on portrait, which is 1 to the printer and landscape to the preview
    QCOMPARE(Printer().Orientation(), 1);
    QCOMPARE(preview.vs.Orientation(), int(Landscape));
}

void tst_ShowPrinter::theRangeComesBack()
{
    Preview preview;
    preview.show([](PrintChoice &choice) {
        choice.pageRange = true;
        choice.firstPage = 2;
        choice.lastPage = 4;
        return true;
    });
    QCOMPARE(int(preview.firstPage), 2);
    QCOMPARE(int(preview.lastPage), 4);
    QCOMPARE(preview.flags, 0);
}

void tst_ShowPrinter::allPagesComeBack()
{
    Preview preview;
    preview.show(accept);
    QCOMPARE(int(preview.firstPage), 1);
    QCOMPARE(int(preview.lastPage), 7);
}

void tst_ShowPrinter::anotherPrinterBecomesTheDefaultOne()
{
    Preview preview;
    preview.show([](PrintChoice &choice) {
        choice.deviceName = u"Jet"_s;
        return true;
    });
    QCOMPARE(Printer().DeviceName(), u"Jet"_s);
    QCOMPARE(Printer().DriverName(), u"Slow"_s);
    QCOMPARE(preview.vs.Device(), u"Jet"_s);
}

// What tells the walk from staying: a printer that is selected is looked up anew.
void tst_ShowPrinter::aLowerCaseNameTakesTheWalk()
{
    Preview preview;
    Printer().select(installedPrinters()[1]);
    preview.show([&](PrintChoice &) {
        preview.host.setPrintQueues({{u"Jet"_s, u"New driver"_s, {}, false, 1}});
        return true;
    });
    QCOMPARE(Printer().DeviceName(), u"Jet"_s);
    QCOMPARE(Printer().DriverName(), u"New driver"_s);
}

void tst_ShowPrinter::anUpperCaseNameDoesNot()
{
    Preview preview;
    preview.show([&](PrintChoice &) {
        preview.host.setPrintQueues({{u"LASER"_s, u"New driver"_s, {}, true, 9}});
        return true;
    });
    QCOMPARE(Printer().DriverName(), u"Fast"_s);
}

void tst_ShowPrinter::theWalkDoesNotStopAtTheMatch()
{
    Preview preview;
    preview.host.setPrintQueues({{u"LASER"_s, {}, {}}, {u"Jet"_s, u"First"_s, {}}, {u"JET"_s, u"Second"_s, {}}});
    preview.show([](PrintChoice &choice) {
        choice.deviceName = u"Jet"_s;
        return true;
    });
    QCOMPARE(Printer().DriverName(), u"Second"_s); // both match in upper case
    QCOMPARE(preview.vs.Device(), u"JET"_s);
}

void tst_ShowPrinter::aPrinterThatRefusesDuplexStopsNothing()
{
    Preview preview;
    preview.show([](PrintChoice &choice) {
        choice.deviceName = u"Jet"_s;
        choice.copies = 2;
        choice.duplex = 2;
        choice.orientation = 2;
        choice.paperSize = 5;
        return true;
    });
    QCOMPARE(Printer().Copies(), 2);
    QCOMPARE(Printer().Orientation(), 2);
    QCOMPARE(Printer().PaperSize(), 5);
    QCOMPARE(preview.vs.Duplex(), 2);
    QCOMPARE(preview.cancelled, False);
}

void tst_ShowPrinter::eachRefusalIsPassedOver()
{
    Preview preview;
    const int paper = preview.vs.PaperSize();
    preview.show([](PrintChoice &choice) {
        choice.copies = 0;
        choice.duplex = 9;
        choice.orientation = 9;
        choice.paperSize = 9999;
        return true;
    });
    QCOMPARE(Printer().Copies(), 1);
    QCOMPARE(Printer().Orientation(), 1);
    QCOMPARE(preview.vs.PaperSize(), paper);
    QCOMPARE(preview.vs.Device(), u"LASER"_s); // the last of the settings
    QCOMPARE(preview.cancelled, False);
}

void tst_ShowPrinter::pendingEventsRunBeforeThePrinterIsSet()
{
    Preview preview;
    int copiesThen = 0;
    bool blocksGone = false;
    preview.show([&](PrintChoice &choice) {
        choice.copies = 3;
        QTimer::singleShot(0, &preview.window, [&] {
            copiesThen = Printer().Copies();
            blocksGone = movableBlocks() == m_blocks;
        });
        return true;
    });
    QCOMPARE(copiesThen, 1);
    QVERIFY(blocksGone);
    QCOMPARE(Printer().Copies(), 3);
}

void tst_ShowPrinter::aPrinterThatIsGoneLeavesTheDefaultOne()
{
    Preview preview;
    preview.show([&](PrintChoice &choice) {
        choice.deviceName = u"Jet"_s;
        preview.host.setPrintQueues({threeQueues()[0]});
        return true;
    });
    QCOMPARE(Printer().DeviceName(), u"LASER"_s);
    QCOMPARE(preview.vs.Device(), u"LASER"_s);
}

void tst_ShowPrinter::theFilePrinterCanBeChosen()
{
    Preview preview;
    preview.show([](PrintChoice &choice) {
        choice.deviceName = pdfPrinterName();
        return true;
    });
    QCOMPARE(Printer().DeviceName(), pdfPrinterName());
    QCOMPARE(preview.vs.Device(), pdfPrinterName());
}

void tst_ShowPrinter::withoutPrintersTheFailureShows()
{
    Preview preview;
    preview.host.setNoPrinters();
    try {
        ShowPrinter(preview.window, preview.vs, preview.firstPage, preview.lastPage, preview.cancelled, preview.flags);
        QFAIL("no failure");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.Number(), int(PrinterFailure));
    }
    QCOMPARE(movableBlocks(), m_blocks);
}

void tst_ShowPrinter::aPrinterWithALongDriverStillOpens()
{
    Preview preview;
    preview.host.setPrintQueues({{u"First"_s, {}, {}}, {u"Second"_s, QString(300, u'd'), {}}});
    Printer().select(installedPrinters()[1]);
    preview.show(cancel);
    QCOMPARE(preview.opened.deviceName, u"Second"_s); // by the name in the device mode
}

QTEST_MAIN(tst_ShowPrinter)
#include "tst_ShowPrinter.moc"
