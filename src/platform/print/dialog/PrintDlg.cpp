#include "platform/print/dialog/PrintDlg.h"

#include "platform/print/DefaultPrinter.h"
#include "platform/print/Printers.h"
#include "platform/print/dialog/MovableMemory.h"
#include "platform/print/dialog/PrintChoice.h"
#include "platform/system/CodePage1252.h"
#include "platform/system/Guard.h"
#include "platform/system/Host.h"

#include <QByteArray>
#include <algorithm>
#include <cstring>

namespace orvane
{

namespace
{
constexpr qsizetype NameRoom = sizeof(DEVMODE::dmDeviceName);

QByteArray bytesOf(quint32 handle)
{
    const void *address = GlobalLock(handle);
    if (!address) return {};
    const QByteArray bytes(static_cast<const char *>(address), static_cast<qsizetype>(GlobalSize(handle)));
    GlobalUnlock(handle);
    return bytes;
}

template <class Record>
Record recordIn(quint32 handle)
{
    Record record{};
    const QByteArray bytes = bytesOf(handle);
    std::memcpy(&record, bytes.constData(), std::min(sizeof(Record), static_cast<std::size_t>(bytes.size())));
    return record;
}

template <class Record>
void putRecord(quint32 &handle, const Record &record)
{
    if (GlobalSize(handle) < sizeof(Record)) {
        GlobalFree(handle);
        handle = GlobalAlloc(MovableZeroFilled, sizeof(Record));
    }
    RtlMoveMemory(GlobalLock(handle), &record, sizeof(Record));
    GlobalUnlock(handle);
}

QByteArray upToEnd(const QByteArray &text)
{
    return text.contains('\0') ? text.left(text.indexOf('\0')) : text;
}

QByteArray withoutBlanks(QByteArray text)
{
    while (text.endsWith(' '))
        text.chop(1);
    return text;
}

QByteArray deviceIn(const DEVNAMES &names)
{
    const QByteArray bytes(reinterpret_cast<const char *>(&names), sizeof(names));
    return names.wDeviceOffset < sizeof(names) ? upToEnd(bytes.mid(names.wDeviceOffset)) : QByteArray();
}

std::optional<InstalledPrinter> printerOf(const DEVNAMES &names, const DEVMODE &mode)
{
    const auto printers = installedPrinters();
    if (printers.empty()) return std::nullopt;
    const QByteArray device = deviceIn(names);
    const QByteArray shortDevice = withoutBlanks(upToEnd({mode.dmDeviceName.bytes, NameRoom}));
    for (const QByteArray &wanted : {device, shortDevice})
        for (const InstalledPrinter &each : printers)
            if (CodePage1252::encode(each.deviceName) == wanted) return each;
    return printers.front();
}

int paperOf(const DEVMODE &mode, const InstalledPrinter &printer)
{
    if (mode.dmFields & DM_PAPERSIZE) return mode.dmPaperSize;
    return Printer().DeviceName() == printer.deviceName ? Printer().PaperSize() : printer.paperSize;
}

PrintChoice choiceOf(const PRINTDLG &record, const DEVMODE &mode, const InstalledPrinter &printer)
{
    PrintChoice choice;
    choice.deviceName = printer.deviceName;
    choice.copies = mode.dmFields & DM_COPIES ? std::max<int>(1, mode.dmCopies) : 1;
    choice.duplex = mode.dmFields & DM_DUPLEX ? mode.dmDuplex : 0;
    choice.orientation = mode.dmOrientation == 2 ? 2 : 1;
    choice.paperSize = paperOf(mode, printer);
    choice.pageRange = record.Flags & PD_PAGENUMS;
    choice.minPage = record.nMinPage;
    choice.maxPage = std::max(record.nMinPage, record.nMaxPage);
    choice.firstPage = std::clamp<int>(record.nFromPage, choice.minPage, choice.maxPage);
    choice.lastPage = std::clamp<int>(record.nToPage, choice.firstPage, choice.maxPage);
    return choice;
}

void put(const PrintChoice &choice, DEVMODE &mode)
{
    mode.dmDeviceName = choice.deviceName.left(NameRoom - 1) + QChar(u'\0');
    mode.dmFields |= DM_ORIENTATION | DM_PAPERSIZE | DM_COPIES | DM_DUPLEX;
    mode.dmCopies = static_cast<qint16>(choice.copies);
    mode.dmDuplex = static_cast<qint16>(choice.duplex);
    mode.dmOrientation = static_cast<qint16>(choice.orientation);
    mode.dmPaperSize = static_cast<qint16>(choice.paperSize);
}

void put(const PrintChoice &choice, PRINTDLG &record)
{
    record.Flags &= ~static_cast<quint32>(PD_PAGENUMS);
    if (!choice.pageRange) return;
    record.Flags |= PD_PAGENUMS;
    record.nFromPage = static_cast<qint16>(choice.firstPage);
    record.nToPage = static_cast<qint16>(choice.lastPage);
}

DEVNAMES namesOf(const QString &deviceName)
{
    const auto printers = installedPrinters();
    const auto found = std::find_if(printers.begin(), printers.end(),
                                    [&](const InstalledPrinter &each) { return each.deviceName == deviceName; });
    const InstalledPrinter printer = found == printers.end() ? InstalledPrinter{deviceName, {}, {}} : *found;
    const QChar end(u'\0');
    DEVNAMES names{};
    names.wDriverOffset = offsetof(DEVNAMES, names);
    names.wDeviceOffset = static_cast<quint16>(names.wDriverOffset + printer.driverName.size() + 1);
    names.wOutputOffset = static_cast<quint16>(names.wDeviceOffset + printer.deviceName.size() + 1);
    names.names = printer.driverName + end + printer.deviceName + end + printer.port + end;
    return names;
}

bool askUser(PrintChoice &choice, quint32 owner)
{
    bool accepted = false;
    resumeNext([&] { accepted = host().printDialog(choice, owner); });
    return accepted;
}
} // namespace

int PrintDlgA(PRINTDLG &record)
{
    if (record.lStructSize != sizeof(PRINTDLG)) return 0;
    auto mode = recordIn<DEVMODE>(record.hDevMode);
    const auto printer = printerOf(recordIn<DEVNAMES>(record.hDevNames), mode);
    if (!printer) return 0;
    PrintChoice choice = choiceOf(record, mode, *printer);
    if (!askUser(choice, record.hwndOwner)) return 0;
    put(choice, record);
    put(choice, mode);
    putRecord(record.hDevMode, mode);
    putRecord(record.hDevNames, namesOf(choice.deviceName));
    return 1;
}

} // namespace orvane
