// The hand-over of a finished job to the print service.
#pragma once

#include <QString>
#include <memory>

class QPainter;
class QPrinter;

namespace orvane
{

// Ends the painter on a printer of the system, which sends the job. Says why the service didn't take it, or nothing
// where it did. The service is waited for as long as it answers; where it doesn't, a thread keeps the two until it
// does.
QString handOver(const std::shared_ptr<QPrinter> &printer, const std::shared_ptr<QPainter> &painter);

} // namespace orvane
