#include "platform/print/TextPrinting.h"

#include "platform/print/DefaultPrinter.h"
#include "platform/print/PrintJob.h"
#include "platform/print/Printers.h"
#include "platform/print/dialog/PrintChoice.h"
#include "platform/print/dialog/WindowHandle.h"
#include "platform/print/pages/TextPages.h"
#include "platform/system/Host.h"
#include "platform/system/RunTimeError.h"

#include <QTextDocument>
#include <algorithm>

namespace orvane
{

namespace
{
std::shared_ptr<const RecordedPages> pagesFor(const PrintChoice &choice, QTextDocument &text)
{
    PageSetup setup;
    setup.paperSize = choice.paperSize;
    setup.landscape = choice.orientation == 2;
    return textPages(text, setup);
}

// All sheets, upright, on the usual printer and its paper.
PrintChoice firstChoice(QTextDocument &text)
{
    PrintChoice choice;
    choice.deviceName = DefaultPrinter().DeviceName();
    choice.paperSize = ownPaperSize(choice.deviceName);
    choice.maxPage = static_cast<int>(pagesFor(choice, text)->size());
    choice.lastPage = choice.maxPage;
    return choice;
}

// On the paper that was chosen there may be fewer sheets than the dialog let choose from.
PrintJob jobOf(const PrintChoice &choice, const QString &title, int sheets)
{
    PrintJob job{choice.deviceName, title, 1, sheets, choice.copies, choice.duplex};
    if (!choice.pageRange) return job;
    job.from = choice.firstPage;
    job.to = std::min(choice.lastPage, sheets);
    if (job.from > job.to)
        throw RunTimeError(InvalidProcedureCall, QStringLiteral("There are no such pages to print."));
    return job;
}

void askAndPrint(QTextDocument &text, quint32 owner)
{
    PrintChoice choice = firstChoice(text);
    if (!host().printDialog(choice, owner)) return;
    const auto pages = pagesFor(choice, text);
    const QString title = text.metaInformation(QTextDocument::DocumentTitle);
    printPages(*pages, jobOf(choice, title, static_cast<int>(pages->size())));
}
} // namespace

void printText(QTextDocument &text, const QWidget &owner)
{
    try {
        askAndPrint(text, hWnd(owner));
    } catch (const RunTimeError &error) {
        MsgBox(error.Description(), CriticalIcon);
    }
}

} // namespace orvane
