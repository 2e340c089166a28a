// The test's machine with the print queues of the system.
#pragma once

#include "support/TestHost.h"

#include <QPrinter>

namespace orvane::test
{

class QueueHost : public TestHost
{
public:
    // NOLINTBEGIN(bugprone-parent-virtual-call): the system's own answers are what is wanted here
    // clazy:excludeall=skipped-base-method
    std::vector<InstalledPrinter> printQueues() override { return Host::printQueues(); }
    std::unique_ptr<QPrinter> openQueue(const QString &queueName) override { return Host::openQueue(queueName); }
    // NOLINTEND(bugprone-parent-virtual-call)
};

} // namespace orvane::test
