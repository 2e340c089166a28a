// The three records of the print dialog's call, byte for byte as they are published: packed on 2-byte bounds, texts in
// code page 1252. The device mode is the early one, without the fields for the management of colour.
#pragma once

#include <QString>
#include <cstddef>

namespace orvane
{

// Puts the text's bytes, cut or padded with blanks to the length.
void putText(char *bytes, std::size_t length, const QString &text);
// A character for each byte, codes 0 included.
QString textOf(const char *bytes, std::size_t length);

template <std::size_t Length>
struct FixedText {
    char bytes[Length];

    FixedText &operator=(const QString &text)
    {
        putText(bytes, Length, text);
        return *this;
    }
    QString text() const { return textOf(bytes, Length); }
};

enum PrintDialogFlags {
    PD_ALLPAGES = 0x0,
    PD_PAGENUMS = 0x2,
    PD_USEDEVMODECOPIESANDCOLLATE = 0x40000,
};

// Which fields of a device mode hold something.
enum DeviceModeFields {
    DM_ORIENTATION = 0x1,
    DM_PAPERSIZE = 0x2,
    DM_COPIES = 0x100,
    DM_DUPLEX = 0x1000,
};

#pragma pack(push, 2)

struct PRINTDLG {
    quint32 lStructSize;
    quint32 hwndOwner;
    quint32 hDevMode;
    quint32 hDevNames;
    quint32 hDC;
    quint32 Flags;
    qint16 nFromPage;
    qint16 nToPage;
    qint16 nMinPage;
    qint16 nMaxPage;
    qint16 nCopies;
    quint32 hInstance;
    quint32 lCustData;
    quint32 lpfnPrintHook;
    quint32 lpfnSetupHook;
    quint32 lpPrintTemplateName;
    quint32 lpSetupTemplateName;
    quint32 hPrintTemplate;
    quint32 hSetupTemplate;
};

struct DEVMODE {
    FixedText<32> dmDeviceName;
    qint16 dmSpecVersion;
    qint16 dmDriverVersion;
    qint16 dmSize;
    qint16 dmDriverExtra;
    quint32 dmFields;
    qint16 dmOrientation;
    qint16 dmPaperSize;
    qint16 dmPaperLength;
    qint16 dmPaperWidth;
    qint16 dmScale;
    qint16 dmCopies;
    qint16 dmDefaultSource;
    qint16 dmPrintQuality;
    qint16 dmColor;
    qint16 dmDuplex;
    qint16 dmYResolution;
    qint16 dmTTOption;
    qint16 dmCollate;
    FixedText<32> dmFormName;
    qint16 dmUnusedPadding;
    qint16 dmBitsPerPel;
    quint32 dmPelsWidth;
    quint32 dmPelsHeight;
    quint32 dmDisplayFlags;
    quint32 dmDisplayFrequency;
};

struct DEVNAMES {
    quint16 wDriverOffset; // of the texts, from the record's beginning; each ends with a code 0
    quint16 wDeviceOffset;
    quint16 wOutputOffset;
    quint16 wDefault;
    FixedText<100> names;
};

#pragma pack(pop)

static_assert(sizeof(PRINTDLG) == 66);
static_assert(offsetof(PRINTDLG, Flags) == 20 && offsetof(PRINTDLG, nFromPage) == 24);
static_assert(offsetof(PRINTDLG, nMaxPage) == 30 && offsetof(PRINTDLG, hInstance) == 34);
static_assert(sizeof(DEVMODE) == 122);
static_assert(offsetof(DEVMODE, dmSize) == 36 && offsetof(DEVMODE, dmFields) == 40);
static_assert(offsetof(DEVMODE, dmCopies) == 54 && offsetof(DEVMODE, dmDuplex) == 62);
static_assert(offsetof(DEVMODE, dmFormName) == 70 && offsetof(DEVMODE, dmPelsWidth) == 106);
static_assert(sizeof(DEVNAMES) == 108 && offsetof(DEVNAMES, names) == 8);

} // namespace orvane
