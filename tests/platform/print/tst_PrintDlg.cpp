// The print dialog's call: what of its records reaches the dialog, and what comes back in them.
#include "platform/print/DefaultPrinter.h"
#include "platform/print/Printers.h"
#include "platform/print/dialog/MovableMemory.h"
#include "platform/print/dialog/PrintDlg.h"
#include "platform/system/CodePage1252.h"
#include "platform/system/RunTimeError.h"
#include "support/TestHost.h"

#include <QTest>
#include <cstring>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
constexpr qint16 LastPage = 7;

template <class Record>
quint32 blockWith(const Record &record)
{
    const quint32 handle = GlobalAlloc(MovableZeroFilled, sizeof(Record));
    RtlMoveMemory(GlobalLock(handle), &record, sizeof(Record));
    GlobalUnlock(handle);
    return handle;
}

template <class Record>
Record recordOf(quint32 handle)
{
    Record record{};
    RtlMoveMemory(&record, GlobalLock(handle), sizeof(Record));
    GlobalUnlock(handle);
    return record;
}

DEVMODE modeOf(const QString &device)
{
    DEVMODE mode{};
    mode.dmDeviceName = device;
    mode.dmSize = sizeof(DEVMODE);
    mode.dmFields = DM_ORIENTATION | DM_DUPLEX;
    mode.dmOrientation = 1;
    return mode;
}

DEVNAMES namesOf(const QString &device)
{
    DEVNAMES names{};
    names.wDriverOffset = 8;
    names.wDeviceOffset = 10;
    names.names = u"d"_s + QChar(u'\0') + device + QChar(u'\0');
    return names;
}

QByteArray textAt(const DEVNAMES &names, int offset)
{
    const QByteArray bytes(reinterpret_cast<const char *>(&names), sizeof(names));
    return bytes.mid(offset, bytes.indexOf('\0', offset) - offset);
}

// A call of the dialog, whose blocks go with it.
struct Call {
    explicit Call(const QString &device) : Call(modeOf(device), namesOf(device)) {}
    Call(const DEVMODE &mode, const DEVNAMES &names)
    {
        record.lStructSize = sizeof(PRINTDLG);
        record.hDevMode = blockWith(mode);
        record.hDevNames = blockWith(names);
        record.Flags = PD_USEDEVMODECOPIESANDCOLLATE;
        record.nFromPage = 1;
        record.nToPage = LastPage;
        record.nMinPage = 1;
        record.nMaxPage = LastPage;
    }
    ~Call()
    {
        GlobalFree(record.hDevMode);
        GlobalFree(record.hDevNames);
    }
    Call(const Call &) = delete;
    Call &operator=(const Call &) = delete;

    DEVMODE mode() const { return recordOf<DEVMODE>(record.hDevMode); }
    DEVNAMES names() const { return recordOf<DEVNAMES>(record.hDevNames); }

    PRINTDLG record{};
};

// What the dialog was opened with.
PrintChoice opened(TestHost &host, Call &call)
{
    PrintChoice seen;
    host.answerPrintDialog([&](PrintChoice &choice) {
        seen = choice;
        return false;
    });
    PrintDlgA(call.record);
    return seen;
}

int answered(TestHost &host, Call &call, const std::function<void(PrintChoice &)> &choose)
{
    host.answerPrintDialog([=](PrintChoice &choice) {
        choose(choice);
        return true;
    });
    return PrintDlgA(call.record);
}

std::vector<InstalledPrinter> twoQueues()
{
    return {{u"Office"_s, u"Laser"_s, {}, true, 9}, {u"Annex"_s, u"Jet"_s, {}, false, 1}};
}

QString fortyLetters()
{
    return QString(40, u'n');
}
} // namespace

class tst_PrintDlg : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theDialogOpensOnThePrinterOfTheNames();
    void withoutNamesItOpensOnThePrinterOfTheMode();
    void anUnknownPrinterGivesTheFirst_data();
    void anUnknownPrinterGivesTheFirst();
    void aNameOutsideAsciiIsFound();
    void aNameOfThirtyOneBytesIsFoundInTheMode();
    void itOpensOnAllPages();
    void theFlagOfPagesOpensItOnTheRange();
    void theRangeStaysWithinItsBounds_data();
    void theRangeStaysWithinItsBounds();
    void unmarkedCopiesAreOne();
    void markedFieldsGoIn();
    void thePaperIsTheDefaultPrintersOwn();
    void anotherPrintersPaperIsItsOwn();
    void landscapeGoesIn();
    void zeroedBlocksOpenItOnTheFirstPrinter();
    void blocksThatAreMissingOpenItToo();
    void cancelChangesNothing();
    void theChoiceComesBackInTheMode();
    void theNamesComeBackWithTheirOffsets();
    void allPagesComeBackAsTheyWentIn();
    void aRangeComesBackWithItsFlag();
    void aLongNameComesBackWithItsEnd();
    void aNameOutsideAsciiComesBackInTheCodePage();
    void aBlockThatIsTooSmallIsReplaced();
    void missingBlocksAreMade();
    void aRecordOfAnotherSizeIsRefused();
    void withoutPrintersThereIsNoDialog();
    void aDialogThatFailsIsAsCancelled();

private:
    std::size_t m_blocks = 0;
};

void tst_PrintDlg::init()
{
    m_blocks = movableBlocks();
}

void tst_PrintDlg::cleanup()
{
    QCOMPARE(movableBlocks(), m_blocks);
}

void tst_PrintDlg::theDialogOpensOnThePrinterOfTheNames()
{
    TestHost host;
    host.setPrintQueues(twoQueues());
    Call call(modeOf(u"Office"_s), namesOf(u"Annex"_s));
    QCOMPARE(opened(host, call).deviceName, u"Annex"_s);
}

void tst_PrintDlg::withoutNamesItOpensOnThePrinterOfTheMode()
{
    TestHost host;
    host.setPrintQueues(twoQueues());
    Call call(modeOf(u"Annex"_s), DEVNAMES{});
    QCOMPARE(opened(host, call).deviceName, u"Annex"_s);
}

void tst_PrintDlg::anUnknownPrinterGivesTheFirst_data()
{
    QTest::addColumn<quint16>("offset");
    QTest::newRow("unknown name") << quint16(10);
    QTest::newRow("offset at the end") << quint16(108);
    QTest::newRow("offset far beyond") << quint16(65535);
}

void tst_PrintDlg::anUnknownPrinterGivesTheFirst()
{
    QFETCH(const quint16, offset);
    TestHost host;
    host.setPrintQueues(twoQueues());
    DEVNAMES names = namesOf(u"Gone"_s);
    names.wDeviceOffset = offset;
    Call call(modeOf(u"Gone too"_s), names);
    QCOMPARE(opened(host, call).deviceName, u"Office"_s);
}

void tst_PrintDlg::aNameOutsideAsciiIsFound()
{
    TestHost host;
    const QString name = QString::fromUtf8("B\xC3\xBCro \xE2\x82\xAC");
    host.setPrintQueues({{u"Office"_s, {}, {}}, {name, {}, {}}});
    Call call(name);
    QCOMPARE(opened(host, call).deviceName, name);
}

void tst_PrintDlg::aNameOfThirtyOneBytesIsFoundInTheMode()
{
    TestHost host;
    host.setPrintQueues({{u"Office"_s, {}, {}}, {fortyLetters(), {}, {}}});
    const QString name = fortyLetters().left(31);
    Call call(modeOf(name), DEVNAMES{});
    QCOMPARE(opened(host, call).deviceName, name);
}

void tst_PrintDlg::itOpensOnAllPages()
{
    TestHost host;
    Call call(pdfPrinterName());
    const PrintChoice choice = opened(host, call);
    QVERIFY(!choice.pageRange);
    QCOMPARE(choice.firstPage, 1);
    QCOMPARE(choice.lastPage, 7);
    QCOMPARE(choice.minPage, 1);
    QCOMPARE(choice.maxPage, 7);
}

void tst_PrintDlg::theFlagOfPagesOpensItOnTheRange()
{
    TestHost host;
    Call call(pdfPrinterName());
    call.record.Flags |= PD_PAGENUMS;
    call.record.nFromPage = 2;
    call.record.nToPage = 3;
    const PrintChoice choice = opened(host, call);
    QVERIFY(choice.pageRange);
    QCOMPARE(choice.firstPage, 2);
    QCOMPARE(choice.lastPage, 3);
}

void tst_PrintDlg::theRangeStaysWithinItsBounds_data()
{
    QTest::addColumn<qint16>("from");
    QTest::addColumn<qint16>("to");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::newRow("below") << qint16(-4) << qint16(-1) << 1 << 1;
    QTest::newRow("above") << qint16(8) << qint16(30000) << 7 << 7;
    QTest::newRow("backward") << qint16(5) << qint16(2) << 5 << 5;
}

void tst_PrintDlg::theRangeStaysWithinItsBounds()
{
    QFETCH(const qint16, from);
    QFETCH(const qint16, to);
    TestHost host;
    Call call(pdfPrinterName());
    call.record.nFromPage = from;
    call.record.nToPage = to;
    const PrintChoice choice = opened(host, call);
    QTEST(choice.firstPage, "first");
    QTEST(choice.lastPage, "last");
}

void tst_PrintDlg::unmarkedCopiesAreOne()
{
    TestHost host;
    DEVMODE mode = modeOf(pdfPrinterName());
    mode.dmCopies = 5;
    Call call(mode, namesOf(pdfPrinterName()));
    QCOMPARE(opened(host, call).copies, 1);
}

void tst_PrintDlg::markedFieldsGoIn()
{
    TestHost host;
    DEVMODE mode = modeOf(pdfPrinterName());
    mode.dmFields = DM_ORIENTATION | DM_DUPLEX | DM_COPIES | DM_PAPERSIZE;
    mode.dmCopies = 5;
    mode.dmDuplex = 3;
    mode.dmPaperSize = 11;
    Call call(mode, namesOf(pdfPrinterName()));
    const PrintChoice choice = opened(host, call);
    QCOMPARE(choice.copies, 5);
    QCOMPARE(choice.duplex, 3);
    QCOMPARE(choice.paperSize, 11);
}

void tst_PrintDlg::thePaperIsTheDefaultPrintersOwn()
{
    TestHost host;
    host.setPrintQueues(twoQueues());
    Printer().setPaperSize(8);
    Call call(u"Office"_s);
    QCOMPARE(opened(host, call).paperSize, 8);
}

void tst_PrintDlg::anotherPrintersPaperIsItsOwn()
{
    TestHost host;
    host.setPrintQueues(twoQueues());
    Printer().setPaperSize(8);
    Call call(u"Annex"_s);
    QCOMPARE(opened(host, call).paperSize, 1);
}

void tst_PrintDlg::landscapeGoesIn()
{
    TestHost host;
    DEVMODE mode = modeOf(pdfPrinterName());
    mode.dmOrientation = 2;
    Call call(mode, namesOf(pdfPrinterName()));
    QCOMPARE(opened(host, call).orientation, 2);
}

void tst_PrintDlg::zeroedBlocksOpenItOnTheFirstPrinter()
{
    TestHost host;
    host.setPrintQueues(twoQueues());
    Call call(DEVMODE{}, DEVNAMES{});
    const PrintChoice choice = opened(host, call);
    QCOMPARE(choice.deviceName, u"Office"_s);
    QCOMPARE(choice.copies, 1);
    QCOMPARE(choice.duplex, 0);
    QCOMPARE(choice.orientation, 1);
}

void tst_PrintDlg::blocksThatAreMissingOpenItToo()
{
    TestHost host;
    PRINTDLG record{};
    record.lStructSize = sizeof(PRINTDLG);
    host.answerPrintDialog([](PrintChoice &) { return false; });
    QCOMPARE(PrintDlgA(record), 0);
    QCOMPARE(record.hDevMode, 0U);
}

void tst_PrintDlg::cancelChangesNothing()
{
    TestHost host;
    host.setPrintQueues(twoQueues());
    Call call(u"Office"_s);
    const PRINTDLG record = call.record;
    const DEVMODE mode = call.mode();
    const DEVNAMES names = call.names();
    opened(host, call);
    QCOMPARE(std::memcmp(&call.record, &record, sizeof(record)), 0);
    QCOMPARE(recordOf<DEVMODE>(record.hDevMode).dmDeviceName.text(), mode.dmDeviceName.text());
    QCOMPARE(textAt(call.names(), 10), textAt(names, 10));
}

void tst_PrintDlg::theChoiceComesBackInTheMode()
{
    TestHost host;
    host.setPrintQueues(twoQueues());
    Call call(u"Office"_s);
    QCOMPARE(answered(host, call,
                      [](PrintChoice &choice) {
                          choice.deviceName = u"Annex"_s;
                          choice.copies = 3;
                          choice.duplex = 2;
                          choice.orientation = 2;
                          choice.paperSize = 5;
                      }),
             1);
    const DEVMODE mode = call.mode();
    QCOMPARE(mode.dmDeviceName.text(), (u"Annex"_s + QChar(u'\0')).leftJustified(32));
    QCOMPARE(int(mode.dmCopies), 3);
    QCOMPARE(int(mode.dmDuplex), 2);
    QCOMPARE(int(mode.dmOrientation), 2);
    QCOMPARE(int(mode.dmPaperSize), 5);
    QCOMPARE(quint32(mode.dmFields), 0x1103U);
    QCOMPARE(int(mode.dmSize), 122);
}

void tst_PrintDlg::theNamesComeBackWithTheirOffsets()
{
    TestHost host;
    host.setPrintQueues(twoQueues());
    Call call(u"Office"_s);
    answered(host, call, [](PrintChoice &choice) { choice.deviceName = u"Annex"_s; });
    const DEVNAMES names = call.names();
    QCOMPARE(textAt(names, names.wDriverOffset), QByteArray("Jet"));
    QCOMPARE(textAt(names, names.wDeviceOffset), QByteArray("Annex"));
    QCOMPARE(textAt(names, names.wOutputOffset), QByteArray("Annex"));
    QCOMPARE(int(names.wDriverOffset), 8);
}

void tst_PrintDlg::allPagesComeBackAsTheyWentIn()
{
    TestHost host;
    Call call(pdfPrinterName());
    answered(host, call, [](PrintChoice &choice) { choice.firstPage = 4; }); // counts only in a range
    QCOMPARE(int(call.record.nFromPage), 1);
    QCOMPARE(int(call.record.nToPage), 7);
    QCOMPARE(quint32(call.record.Flags), quint32(PD_USEDEVMODECOPIESANDCOLLATE));
}

void tst_PrintDlg::aRangeComesBackWithItsFlag()
{
    TestHost host;
    Call call(pdfPrinterName());
    answered(host, call, [](PrintChoice &choice) {
        choice.pageRange = true;
        choice.firstPage = 2;
        choice.lastPage = 4;
    });
    QCOMPARE(int(call.record.nFromPage), 2);
    QCOMPARE(int(call.record.nToPage), 4);
    QVERIFY(call.record.Flags & PD_PAGENUMS);
}

void tst_PrintDlg::aLongNameComesBackWithItsEnd()
{
    TestHost host;
    host.setPrintQueues({{fortyLetters(), {}, {}}});
    Call call(fortyLetters());
    answered(host, call, [](PrintChoice &) {});
    QCOMPARE(call.mode().dmDeviceName.text(), QString(31, u'n') + QChar(u'\0'));
}

void tst_PrintDlg::aNameOutsideAsciiComesBackInTheCodePage()
{
    TestHost host;
    host.setPrintQueues({{QString::fromUtf8("B\xC3\xBCro"), {}, {}}});
    Call call(DEVMODE{}, DEVNAMES{});
    answered(host, call, [](PrintChoice &) {});
    QCOMPARE(QByteArray(call.mode().dmDeviceName.bytes, 5), QByteArray("B\xFCro\0", 5));
}

void tst_PrintDlg::aBlockThatIsTooSmallIsReplaced()
{
    TestHost host;
    Call call(pdfPrinterName());
    GlobalFree(call.record.hDevMode);
    const quint32 small = GlobalAlloc(MovableZeroFilled, 10);
    call.record.hDevMode = small;
    QCOMPARE(answered(host, call, [](PrintChoice &choice) { choice.copies = 2; }), 1);
    QVERIFY(call.record.hDevMode != small);
    QCOMPARE(GlobalFree(small), small); // it is gone
    QCOMPARE(int(call.mode().dmCopies), 2);
}

void tst_PrintDlg::missingBlocksAreMade()
{
    TestHost host;
    Call call(pdfPrinterName());
    GlobalFree(call.record.hDevMode);
    GlobalFree(call.record.hDevNames);
    call.record.hDevMode = 0;
    call.record.hDevNames = 0;
    QCOMPARE(answered(host, call, [](PrintChoice &) {}), 1);
    QCOMPARE(call.mode().dmDeviceName.text().left(19), pdfPrinterName());
    QCOMPARE(textAt(call.names(), 8), QByteArray("PDF"));
}

void tst_PrintDlg::aRecordOfAnotherSizeIsRefused()
{
    const TestHost host; // an unexpected dialog would fail the test
    Call call(pdfPrinterName());
    call.record.lStructSize = 68;
    QCOMPARE(PrintDlgA(call.record), 0);
}

void tst_PrintDlg::withoutPrintersThereIsNoDialog()
{
    TestHost host;
    host.setNoPrinters();
    Call call(u"Office"_s);
    QCOMPARE(PrintDlgA(call.record), 0);
}

void tst_PrintDlg::aDialogThatFailsIsAsCancelled()
{
    TestHost host;
    Call call(pdfPrinterName());
    host.answerPrintDialog([](PrintChoice &) -> bool { throw RunTimeError(PrinterFailure, {}); });
    QCOMPARE(PrintDlgA(call.record), 0);
}

QTEST_MAIN(tst_PrintDlg)
#include "tst_PrintDlg.moc"
