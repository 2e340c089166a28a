#include "platform/print/queues/HandOver.h"

#include "platform/print/queues/PrintService.h"

#include <QPainter>
#include <QPrinter>
#include <chrono>
#include <future>
#include <thread>

namespace orvane
{

namespace
{
using namespace std::chrono_literals;

// The service's library remembers for each thread how its last request ended.
QString sendJob(const QPrinter &printer, QPainter &painter)
{
    const bool drawn = painter.end() && printer.printerState() != QPrinter::Error;
    return drawn ? refusalOfLastJob() : QStringLiteral("Its pages can't be written.");
}
} // namespace

QString handOver(const std::shared_ptr<QPrinter> &printer, const std::shared_ptr<QPainter> &painter)
{
    std::promise<QString> told;
    auto answer = told.get_future();
    std::thread([printer = printer, painter = painter, told = std::move(told)]() mutable {
        const QString refusal = sendJob(*printer, *painter);
        painter.reset();
        printer.reset();
        told.set_value(refusal);
    }).detach();
    while (answer.wait_for(2s) != std::future_status::ready)
        if (!printServiceAnswers() && answer.wait_for(0s) != std::future_status::ready)
            return QStringLiteral("The print service doesn't answer.");
    return answer.get();
}

} // namespace orvane
