// The list of printers, the run time's default printer, and the printers that are opened to print.
#include "platform/print/DefaultPrinter.h"
#include "platform/print/Printers.h"
#include "support/ErrorOf.h"
#include "support/TestHost.h"

#include <QPainter>
#include <QPrinter>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
QStringList deviceNames()
{
    QStringList names;
    for (const InstalledPrinter &printer : installedPrinters())
        names << printer.deviceName;
    return names;
}

QString longName(const QString &end)
{
    return QString(40, u'n') + end;
}

InstalledPrinter simple(const QString &name)
{
    return {name, QStringLiteral("Driver of ") + name, {}, false, 1};
}

InstalledPrinter twoSided(const QString &name)
{
    return {name, QStringLiteral("Driver of ") + name, {}, true, 9};
}
} // namespace

class tst_Printers : public QObject
{
    Q_OBJECT

private slots:
    void aFreshMachineHasTheFilePrinter();
    void queuesComeBeforeTheFilePrinter();
    void aFolderThatCanBeMadeIsNotMadeByTheList();
    void aFolderThatCantBeWrittenTakesTheFilePrinterAway_data();
    void aFolderThatCantBeWrittenTakesTheFilePrinterAway();
    void withoutQueueAndFolderThereIsNoPrinter();
    void aQueuesJobsGoWhereTheQueueIsCalledSo();
    void aLongNameIsCut();
    void cutNamesAreToldApart();
    void aQueueNamedLikeTheFilePrinterIsToldApart();
    void aNameOutsideTheCodePageIsSubstituted();
    void theDefaultPrinterIsTheFirst();
    void theDefaultPrinterStaysWhatItIs();
    void withoutPrintersTheDefaultPrinterHasNoName();
    void theDefaultPrinterTakesItsSettings();
    void theDefaultPrinterRefusesWhatNoPrinterHas_data();
    void theDefaultPrinterRefusesWhatNoPrinterHas();
    void aPrinterOfOneSideHasNoDuplex();
    void theDefaultPrinterStartsOnThePrintersPaper();
    void anotherPrinterBringsItsOwnSettings();
    void aPrinterIsOpenedInFullPageMode();
    void thePdfPrinterWritesIntoTheDocumentsFolder();
    void thePdfPrinterWritesWhereTheUserSaid();
    void aPrinterThatWentAwayIsRefused();
    void aCutNameOpensItsQueue();
};

void tst_Printers::aFreshMachineHasTheFilePrinter()
{
    const TestHost host;
    QCOMPARE(deviceNames(), QStringList{pdfPrinterName()});
    QCOMPARE(installedPrinters().front().driverName, u"PDF"_s);
    QCOMPARE(installedPrinters().front().port, u"FILE:"_s);
}

void tst_Printers::queuesComeBeforeTheFilePrinter()
{
    TestHost host;
    host.setPrintQueues({simple(u"Office"_s), simple(u"Annex"_s)});
    QCOMPARE(deviceNames(), (QStringList{u"Office"_s, u"Annex"_s, pdfPrinterName()}));
}

void tst_Printers::aFolderThatCanBeMadeIsNotMadeByTheList()
{
    TestHost host;
    host.setDocumentsFolder(host.folder() + u"/some/where/Documents"_s);
    QCOMPARE(deviceNames(), QStringList{pdfPrinterName()});
    QVERIFY(!QFileInfo::exists(host.folder() + u"/some"_s));
}

void tst_Printers::aFolderThatCantBeWrittenTakesTheFilePrinterAway_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("a file") << u"DealerData.dat"_s;
    QTest::newRow("below a file") << u"DealerData.dat/Documents"_s;
}

void tst_Printers::aFolderThatCantBeWrittenTakesTheFilePrinterAway()
{
    QFETCH(const QString, folder);
    TestHost host;
    host.setPrintQueues({simple(u"Office"_s)});
    host.setDocumentsFolder(host.folder() + u'/' + folder);
    QCOMPARE(deviceNames(), QStringList{u"Office"_s});
}

void tst_Printers::withoutQueueAndFolderThereIsNoPrinter()
{
    TestHost host;
    host.setNoPrinters();
    QVERIFY(installedPrinters().empty());
    host.setDocumentsFolder({});
    QVERIFY(installedPrinters().empty());
}

void tst_Printers::aQueuesJobsGoWhereTheQueueIsCalledSo()
{
    TestHost host;
    host.setPrintQueues({simple(longName({}))});
    QCOMPARE(installedPrinters().front().port, longName({}));
    QCOMPARE(installedPrinters().front().driverName, u"Driver of "_s + longName({}));
}

void tst_Printers::aLongNameIsCut()
{
    TestHost host;
    host.setPrintQueues({simple(longName({}))});
    QCOMPARE(deviceNames().constFirst(), QString(31, u'n'));
}

void tst_Printers::cutNamesAreToldApart()
{
    TestHost host;
    host.setPrintQueues({simple(longName(u"a"_s)), simple(longName(u"b"_s)), simple(longName(u"c"_s))});
    const QStringList names = deviceNames();
    QCOMPARE(names[0], QString(31, u'n'));
    QCOMPARE(names[1], QString(29, u'n') + u"~2"_s);
    QCOMPARE(names[2], QString(29, u'n') + u"~3"_s);
}

void tst_Printers::aQueueNamedLikeTheFilePrinterIsToldApart()
{
    TestHost host;
    host.setPrintQueues({simple(pdfPrinterName())});
    QCOMPARE(deviceNames(), (QStringList{pdfPrinterName() + u"~2"_s, pdfPrinterName()}));
}

void tst_Printers::aNameOutsideTheCodePageIsSubstituted()
{
    TestHost host;
    host.setPrintQueues({simple(QString::fromUtf8("B\xC3\xBCro \xD0\x96"))});
    QCOMPARE(deviceNames().constFirst(), QString::fromUtf8("B\xC3\xBCro ?"));
}

void tst_Printers::theDefaultPrinterIsTheFirst()
{
    TestHost host;
    host.setPrintQueues({simple(u"Office"_s), simple(u"Annex"_s)});
    QCOMPARE(Printer().DeviceName(), u"Office"_s);
    QCOMPARE(Printer().DriverName(), u"Driver of Office"_s);
    QCOMPARE(Printer().Port(), u"Office"_s);
    QCOMPARE(Printer().Orientation(), 1);
    QCOMPARE(Printer().Copies(), 1);
}

void tst_Printers::theDefaultPrinterStaysWhatItIs()
{
    TestHost host;
    host.setPrintQueues({simple(u"Office"_s)});
    QCOMPARE(Printer().DeviceName(), u"Office"_s);
    host.setPrintQueues({simple(u"Annex"_s)});
    QCOMPARE(Printer().DeviceName(), u"Office"_s);
}

void tst_Printers::withoutPrintersTheDefaultPrinterHasNoName()
{
    TestHost host;
    host.setNoPrinters();
    QCOMPARE(errorOf([] { Printer().DeviceName(); }), int(PrinterFailure));
    host.setPrintQueues({simple(u"Office"_s)}); // and is found when there is one
    QCOMPARE(Printer().DeviceName(), u"Office"_s);
}

void tst_Printers::theDefaultPrinterTakesItsSettings()
{
    TestHost host;
    host.setPrintQueues({twoSided(u"Office"_s)});
    Printer().setOrientation(2);
    Printer().setPaperSize(8);
    Printer().setCopies(3);
    Printer().setDuplex(2);
    QCOMPARE(Printer().Orientation(), 2);
    QCOMPARE(Printer().PaperSize(), 8);
    QCOMPARE(Printer().Copies(), 3);
    QCOMPARE(Printer().Duplex(), 2);
}

void tst_Printers::theDefaultPrinterRefusesWhatNoPrinterHas_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<void (DefaultPrinter::*)(int)>("setter");
    QTest::newRow("orientation 0") << 0 << &DefaultPrinter::setOrientation;
    QTest::newRow("orientation 3") << 3 << &DefaultPrinter::setOrientation;
    QTest::newRow("paper 0") << 0 << &DefaultPrinter::setPaperSize;
    QTest::newRow("paper 9999") << 9999 << &DefaultPrinter::setPaperSize;
    QTest::newRow("paper -1") << -1 << &DefaultPrinter::setPaperSize;
    QTest::newRow("no copy") << 0 << &DefaultPrinter::setCopies;
    QTest::newRow("10000 copies") << 10000 << &DefaultPrinter::setCopies;
    QTest::newRow("duplex 0") << 0 << &DefaultPrinter::setDuplex;
    QTest::newRow("duplex 4") << 4 << &DefaultPrinter::setDuplex;
}

void tst_Printers::theDefaultPrinterRefusesWhatNoPrinterHas()
{
    using Setter = void (DefaultPrinter::*)(int);
    QFETCH(const int, value);
    QFETCH(const Setter, setter);
    TestHost host;
    host.setPrintQueues({twoSided(u"Office"_s)});
    QCOMPARE(errorOf([&] { (Printer().*setter)(value); }), int(InvalidPropertyValue));
    QCOMPARE(Printer().Orientation(), 1);
    QCOMPARE(Printer().PaperSize(), 9);
    QCOMPARE(Printer().Copies(), 1);
    QCOMPARE(Printer().Duplex(), 1);
}

void tst_Printers::aPrinterOfOneSideHasNoDuplex()
{
    TestHost host;
    host.setPrintQueues({simple(u"Office"_s)});
    QCOMPARE(errorOf([] { Printer().setDuplex(2); }), int(PrinterHasNoSuchProperty));
    QCOMPARE(errorOf([] { Printer().Duplex(); }), int(PrinterHasNoSuchProperty));
}

void tst_Printers::theDefaultPrinterStartsOnThePrintersPaper()
{
    TestHost host;
    host.setPrintQueues({twoSided(u"Office"_s)});
    QCOMPARE(Printer().PaperSize(), 9);
}

void tst_Printers::anotherPrinterBringsItsOwnSettings()
{
    TestHost host;
    host.setPrintQueues({twoSided(u"Office"_s), simple(u"Annex"_s)});
    Printer().setOrientation(2);
    Printer().setCopies(3);
    Printer().setPaperSize(8);
    Printer().select(installedPrinters()[1]);
    QCOMPARE(Printer().DeviceName(), u"Annex"_s);
    QCOMPARE(Printer().Orientation(), 1);
    QCOMPARE(Printer().Copies(), 1);
    QCOMPARE(Printer().PaperSize(), 1);
}

void tst_Printers::aPrinterIsOpenedInFullPageMode()
{
    TestHost host;
    host.setPrintQueues({simple(u"Office"_s)});
    QVERIFY(openPrinter(u"Office"_s)->fullPage());
    QCOMPARE(openPrinter(u"Office"_s)->outputFileName(), host.printedFile(u"Office"_s));
    QVERIFY(openPrinter(pdfPrinterName())->fullPage());
}

void tst_Printers::thePdfPrinterWritesIntoTheDocumentsFolder()
{
    const TestHost host;
    const auto printer = openPrinter(pdfPrinterName());
    QCOMPARE(printer->outputFormat(), QPrinter::PdfFormat);
    QCOMPARE(printer->outputFileName(), host.folder() + u"/Documents/Document.pdf"_s);
    QVERIFY(QFileInfo(host.folder() + u"/Documents"_s).isDir());
}

void tst_Printers::thePdfPrinterWritesWhereTheUserSaid()
{
    const TestHost host;
    setPdfFileName(host.folder() + u"/mine.pdf"_s);
    QCOMPARE(openPrinter(pdfPrinterName())->outputFileName(), host.folder() + u"/mine.pdf"_s);
}

void tst_Printers::aPrinterThatWentAwayIsRefused()
{
    TestHost host;
    host.setPrintQueues({simple(u"Office"_s)});
    QCOMPARE(installedPrinters().size(), std::size_t(2));
    host.setPrintQueues({});
    QCOMPARE(errorOf([] { openPrinter(u"Office"_s); }), int(PrinterFailure));
    QCOMPARE(errorOf([] { openPrinter({}); }), int(PrinterFailure));
}

void tst_Printers::aCutNameOpensItsQueue()
{
    TestHost host;
    host.setPrintQueues({simple(longName(u"a"_s)), simple(longName(u"b"_s))});
    QCOMPARE(openPrinter(deviceNames().at(1))->outputFileName(), host.printedFile(longName(u"b"_s)));
}

QTEST_MAIN(tst_Printers)
#include "tst_Printers.moc"
