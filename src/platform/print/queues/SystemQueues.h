// The print service of the system, through the toolkit: CUPS where the program runs on Linux.
#pragma once

#include "platform/print/InstalledPrinter.h"

#include <memory>
#include <vector>

class QPrinter;

namespace orvane
{

std::vector<InstalledPrinter> systemQueues(); // the default one first; none while the print service has stopped

// Nothing where there is no queue of this name, or the print service has stopped.
std::unique_ptr<QPrinter> openSystemQueue(const QString &queueName);

} // namespace orvane
