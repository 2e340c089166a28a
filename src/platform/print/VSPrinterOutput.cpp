// What leaves the print control: the job at the printer, and the dialogs.
#include "platform/print/VSPrinter.h"

#include "platform/print/PrintJob.h"
#include "platform/print/preview/PageSetupDialog.h"
#include "platform/system/Host.h"
#include "platform/system/RunTimeError.h"

#include <algorithm>

namespace orvane
{

void VSPrinter::PrintDoc(int from, int to)
{
    const int first = std::max(from, 1);
    const int last = std::min(to, PageCount());
    if (m_recording.isOpen() || first > last)
        throw RunTimeError(InvalidProcedureCall, QStringLiteral("There are no such pages to print."));
    try {
        printPages(*m_recording.pages(), {printerName(), m_docName, first, last, m_copies, m_duplex});
    } catch (const RunTimeError &error) {
        MsgBox(error.Description(), CriticalIcon); // who prints may ignore the failure
        throw;
    }
}

bool VSPrinter::PrintDialog(int dialog)
{
    if (dialog != PrinterSetup && dialog != PageSetupOfPrinter)
        throw RunTimeError(InvalidProcedureCall, QStringLiteral("There is no printer dialog of that number."));
    setup();
    PageChoice choice{dialog == PrinterSetup, m_recording.nextSetup(), {}};
    if (choice.withPrinters) choice.deviceName = printerName();
    if (!host().pageSetupDialog(choice)) return false;
    m_recording.nextSetup() = choice.setup;
    if (choice.withPrinters) m_device = choice.deviceName;
    return true;
}

} // namespace orvane
