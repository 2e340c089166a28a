#include "platform/print/queues/SystemQueues.h"

#include "platform/print/queues/PrintService.h"

#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

namespace orvane
{

namespace
{
bool printsOnBothSides(const QPrinterInfo &queue)
{
    const auto modes = queue.supportedDuplexModes();
    return modes.contains(QPrinter::DuplexLongSide) || modes.contains(QPrinter::DuplexShortSide);
}

InstalledPrinter printerOf(const QPrinterInfo &queue)
{
    return {queue.printerName(), queue.makeAndModel(), queue.printerName(), printsOnBothSides(queue),
            QPageSize::windowsId(queue.defaultPageSize().id())};
}
} // namespace

std::vector<InstalledPrinter> systemQueues()
{
    if (!printServiceAnswers()) return {};
    auto queues = QPrinterInfo::availablePrinters();
    std::stable_partition(queues.begin(), queues.end(), [](const QPrinterInfo &queue) { return queue.isDefault(); });
    std::vector<InstalledPrinter> printers;
    std::transform(queues.begin(), queues.end(), std::back_inserter(printers), printerOf);
    return printers;
}

std::unique_ptr<QPrinter> openSystemQueue(const QString &queueName)
{
    if (!printServiceAnswers()) return nullptr;
    const QPrinterInfo queue = QPrinterInfo::printerInfo(queueName);
    if (queue.isNull()) return nullptr;
    auto printer = std::make_unique<QPrinter>(queue, QPrinter::HighResolution);
    // A queue that went away just now is passed over in silence, and the job would go to another one.
    if (printer->printerName() != queueName) return nullptr;
    return printer;
}

} // namespace orvane
