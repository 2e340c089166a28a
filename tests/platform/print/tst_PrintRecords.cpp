// The records of the print dialog's call: each field fed, each byte read.
#include "platform/print/dialog/PrintRecords.h"

#include <QTest>
#include <cstring>

using namespace orvane;

namespace
{
template <class Record>
QByteArray bytesOf(const Record &record)
{
    return QByteArray(reinterpret_cast<const char *>(&record), sizeof(Record));
}

// The bytes of a record in which one field is set and all others are zero.
template <class Record, class Feed>
QByteArray fed(Feed feed)
{
    Record record{};
    feed(record);
    return bytesOf(record);
}

QByteArray zerosBut(qsizetype size, qsizetype offset, const QByteArray &bytes)
{
    QByteArray record(size, '\0');
    return record.replace(offset, bytes.size(), bytes);
}

void addField(const char *name, const QByteArray &record, int offset, const QByteArray &hexBytes)
{
    QTest::newRow(name) << record << offset << QByteArray::fromHex(hexBytes);
}

#define FEED(Record, field, value, offset, hex)                                                                        \
    addField(#field, fed<Record>([](Record &record) { record.field = (value); }), offset, hex)
} // namespace

class tst_PrintRecords : public QObject
{
    Q_OBJECT

private slots:
    void printDlgFieldsHaveTheirPlaces_data();
    void printDlgFieldsHaveTheirPlaces() { fieldIsInItsPlace(66); }
    void devModeFieldsHaveTheirPlaces_data();
    void devModeFieldsHaveTheirPlaces() { fieldIsInItsPlace(122); }
    void devNamesFieldsHaveTheirPlaces_data();
    void devNamesFieldsHaveTheirPlaces() { fieldIsInItsPlace(108); }
    void aTextIsPaddedWithBlanks();
    void aLongTextIsCut();
    void aTextGoesInTheCodePage();
    void aTextKeepsItsCodesOfZero();

private:
    void fieldIsInItsPlace(qsizetype size);
};

void tst_PrintRecords::fieldIsInItsPlace(qsizetype size)
{
    QFETCH(const QByteArray, record);
    QFETCH(const int, offset);
    QFETCH(const QByteArray, bytes);
    QCOMPARE(record.toHex(), zerosBut(size, offset, bytes).toHex());
}

void tst_PrintRecords::printDlgFieldsHaveTheirPlaces_data()
{
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QByteArray>("bytes");
    FEED(PRINTDLG, lStructSize, 66, 0, "42000000");
    FEED(PRINTDLG, hwndOwner, 0x11223344, 4, "44332211");
    FEED(PRINTDLG, hDevMode, 0x11223344, 8, "44332211");
    FEED(PRINTDLG, hDevNames, 0x11223344, 12, "44332211");
    FEED(PRINTDLG, hDC, 0x11223344, 16, "44332211");
    FEED(PRINTDLG, Flags, PD_USEDEVMODECOPIESANDCOLLATE, 20, "00000400");
    FEED(PRINTDLG, nFromPage, 0x1234, 24, "3412");
    FEED(PRINTDLG, nToPage, 0x1234, 26, "3412");
    FEED(PRINTDLG, nMinPage, 1, 28, "0100");
    FEED(PRINTDLG, nMaxPage, -2, 30, "FEFF");
    FEED(PRINTDLG, nCopies, 3, 32, "0300");
    FEED(PRINTDLG, hInstance, 0x11223344, 34, "44332211");
    FEED(PRINTDLG, lCustData, 0x11223344, 38, "44332211");
    FEED(PRINTDLG, lpfnPrintHook, 0x11223344, 42, "44332211");
    FEED(PRINTDLG, lpfnSetupHook, 0x11223344, 46, "44332211");
    FEED(PRINTDLG, lpPrintTemplateName, 0x11223344, 50, "44332211");
    FEED(PRINTDLG, lpSetupTemplateName, 0x11223344, 54, "44332211");
    FEED(PRINTDLG, hPrintTemplate, 0x11223344, 58, "44332211");
    FEED(PRINTDLG, hSetupTemplate, 0x11223344, 62, "44332211");
}

void tst_PrintRecords::devModeFieldsHaveTheirPlaces_data()
{
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QByteArray>("bytes");
    FEED(DEVMODE, dmDeviceName, QStringLiteral("Laser"), 0,
         "4C61736572202020202020202020202020202020202020202020202020202020");
    FEED(DEVMODE, dmSpecVersion, 0x1234, 32, "3412");
    FEED(DEVMODE, dmDriverVersion, 0x1234, 34, "3412");
    FEED(DEVMODE, dmSize, 122, 36, "7A00");
    FEED(DEVMODE, dmDriverExtra, 0x1234, 38, "3412");
    FEED(DEVMODE, dmFields, DM_ORIENTATION | DM_DUPLEX, 40, "01100000");
    FEED(DEVMODE, dmOrientation, 2, 44, "0200");
    FEED(DEVMODE, dmPaperSize, 9, 46, "0900");
    FEED(DEVMODE, dmPaperLength, 0x1234, 48, "3412");
    FEED(DEVMODE, dmPaperWidth, 0x1234, 50, "3412");
    FEED(DEVMODE, dmScale, 100, 52, "6400");
    FEED(DEVMODE, dmCopies, 3, 54, "0300");
    FEED(DEVMODE, dmDefaultSource, 7, 56, "0700");
    FEED(DEVMODE, dmPrintQuality, -4, 58, "FCFF");
    FEED(DEVMODE, dmColor, 2, 60, "0200");
    FEED(DEVMODE, dmDuplex, 3, 62, "0300");
    FEED(DEVMODE, dmYResolution, 600, 64, "5802");
    FEED(DEVMODE, dmTTOption, 1, 66, "0100");
    FEED(DEVMODE, dmCollate, 1, 68, "0100");
    FEED(DEVMODE, dmFormName, QStringLiteral("A4"), 70,
         "4134202020202020202020202020202020202020202020202020202020202020");
    FEED(DEVMODE, dmUnusedPadding, 0x1234, 102, "3412");
    FEED(DEVMODE, dmBitsPerPel, 24, 104, "1800");
    FEED(DEVMODE, dmPelsWidth, 0x11223344, 106, "44332211");
    FEED(DEVMODE, dmPelsHeight, 0x11223344, 110, "44332211");
    FEED(DEVMODE, dmDisplayFlags, 0x11223344, 114, "44332211");
    FEED(DEVMODE, dmDisplayFrequency, 0x11223344, 118, "44332211");
}

void tst_PrintRecords::devNamesFieldsHaveTheirPlaces_data()
{
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<int>("offset");
    QTest::addColumn<QByteArray>("bytes");
    FEED(DEVNAMES, wDriverOffset, 8, 0, "0800");
    FEED(DEVNAMES, wDeviceOffset, 0x1234, 2, "3412");
    FEED(DEVNAMES, wOutputOffset, 0x1234, 4, "3412");
    FEED(DEVNAMES, wDefault, 1, 6, "0100");
    FEED(DEVNAMES, names, QStringLiteral("driver"), 8, "647269766572" + QByteArray("20").repeated(94));
}

void tst_PrintRecords::aTextIsPaddedWithBlanks()
{
    const FixedText<6> text = [] {
        FixedText<6> field{};
        field = QStringLiteral("abc");
        return field;
    }();
    QCOMPARE(bytesOf(text), QByteArray("abc   "));
    QCOMPARE(text.text(), QStringLiteral("abc   "));
}

void tst_PrintRecords::aLongTextIsCut()
{
    FixedText<4> field{};
    field = QStringLiteral("abcdef");
    QCOMPARE(bytesOf(field), QByteArray("abcd"));
}

void tst_PrintRecords::aTextGoesInTheCodePage()
{
    FixedText<6> field{};
    field = QString::fromUtf8("B\xC3\xBCro\xE2\x82\xAC\xD0\x96"); // the last character has no code
    QCOMPARE(bytesOf(field), QByteArray("B\xFCro\x80?"));
    QCOMPARE(field.text(), QString::fromUtf8("B\xC3\xBCro\xE2\x82\xAC?"));
}

void tst_PrintRecords::aTextKeepsItsCodesOfZero()
{
    FixedText<6> field{};
    field = QStringLiteral("ab") + QChar(u'\0') + QStringLiteral("c");
    QCOMPARE(bytesOf(field), QByteArray("ab\0c  ", 6));
    QCOMPARE(field.text().indexOf(QChar(u'\0')), 2);
}

QTEST_GUILESS_MAIN(tst_PrintRecords)
#include "tst_PrintRecords.moc"
