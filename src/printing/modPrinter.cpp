#include "printing/modPrinter.h"

#include "platform/print/DefaultPrinter.h"
#include "platform/print/Printers.h"
#include "platform/print/VSPrinter.h"
#include "platform/print/dialog/MovableMemory.h"
#include "platform/print/dialog/PrintDlg.h"
#include "platform/print/dialog/WindowHandle.h"
#include "platform/system/Guard.h"
#include "platform/system/SendKeys.h"

namespace orvane
{

namespace
{
// Of the names only so much is read back; nothing is made of them.
constexpr std::size_t NamesReadBack = 45;

const QChar EndOfText(u'\0');

PRINTDLG dialogFor(const Form &form, qint16 firstPage, qint16 lastPage, qint32 flags)
{
    PRINTDLG dialog{};
    dialog.lStructSize = sizeof(PRINTDLG);
    dialog.hwndOwner = hWnd(form);
    dialog.Flags = static_cast<quint32>(flags) + PD_USEDEVMODECOPIESANDCOLLATE;
    dialog.nFromPage = firstPage;
    dialog.nToPage = lastPage;
    dialog.nMinPage = 1;
    dialog.nMaxPage = lastPage;
    return dialog;
}

DEVMODE modeOfPrinter()
{
    DEVMODE mode{};
    mode.dmDeviceName = Printer().DeviceName();
    mode.dmSize = sizeof(DEVMODE);
    mode.dmFields = DM_ORIENTATION | DM_DUPLEX;
    mode.dmOrientation = static_cast<qint16>(Printer().Orientation());
    resumeNext([&] { mode.dmDuplex = static_cast<qint16>(Printer().Duplex()); });
    return mode;
}

DEVNAMES namesOfPrinter()
{
    const QString driver = Printer().DriverName();
    const QString port = Printer().Port();
    DEVNAMES names{};
    names.wDriverOffset = 8;
    names.wDeviceOffset = static_cast<quint16>(names.wDriverOffset + 1 + driver.size());
    names.wOutputOffset =
        static_cast<quint16>(names.wDeviceOffset + 1 + port.size()); // the port's length, not the name's
    names.wDefault = 0;
    names.names = driver + EndOfText + Printer().DeviceName() + EndOfText + port + EndOfText;
    return names;
}

template <class Record>
quint32 blockWith(const Record &record)
{
    const quint32 handle = GlobalAlloc(MovableZeroFilled, sizeof(Record));
    if (void *address = GlobalLock(handle)) RtlMoveMemory(address, &record, sizeof(Record));
    GlobalUnlock(handle);
    return handle;
}

template <class Record>
void takeBack(quint32 handle, Record &record, std::size_t length)
{
    if (const void *address = GlobalLock(handle)) RtlMoveMemory(&record, address, length);
    GlobalUnlock(handle);
    GlobalFree(handle);
}

void selectPrinter(const QString &name)
{
    if (name == Printer().DeviceName()) return;
    for (const InstalledPrinter &printer : installedPrinters())
        if (printer.deviceName.toUpper() == name) Printer().select(printer);
}

void setPrinter(const DEVMODE &mode)
{
    resumeNext([&] { Printer().setCopies(mode.dmCopies); });
    resumeNext([&] { Printer().setDuplex(mode.dmDuplex); });
    resumeNext([&] { Printer().setOrientation(mode.dmOrientation); });
    resumeNext([&] { Printer().setPaperSize(mode.dmPaperSize); });
}

void setPreview(VSPrinter &vs, const DEVMODE &mode)
{
    resumeNext([&] { vs.setCopies(mode.dmCopies); });
    resumeNext([&] { vs.setDuplex(mode.dmDuplex); });
    resumeNext([&] { vs.setOrientation(mode.dmOrientation); }); // counted as the printer does, as it stands
    resumeNext([&] { vs.setPaperSize(mode.dmPaperSize); });
    resumeNext([&] { vs.setDevice(Printer().DeviceName()); });
}
} // namespace

void ShowPrinter(Form &form, VSPrinter &vs, qint16 &firstPage, qint16 &lastPage, Boolean16 &cancelled, qint32 &flags)
{
    PRINTDLG dialog = dialogFor(form, firstPage, lastPage, flags);
    DEVMODE mode = modeOfPrinter();
    dialog.hDevMode = blockWith(mode);
    DEVNAMES names = namesOfPrinter();
    dialog.hDevNames = blockWith(names);
    if (PrintDlgA(dialog) == 0) {
        cancelled = True;
        return;
    }
    takeBack(dialog.hDevNames, names, NamesReadBack);
    takeBack(dialog.hDevMode, mode, sizeof(DEVMODE));
    const QString device = mode.dmDeviceName.text();
    selectPrinter(device.left(device.indexOf(EndOfText)).toUpper());
    resumeNext([] { DoEvents(); });
    setPrinter(mode);
    setPreview(vs, mode);
    firstPage = dialog.nFromPage;
    lastPage = dialog.nToPage;
    cancelled = False;
}

} // namespace orvane
