// What the program knows of a printer that it can print on.
#pragma once

#include <QString>

namespace orvane
{

struct InstalledPrinter {
    QString deviceName; // by which the program knows it: at most 31 characters of code page 1252, each name once
    QString driverName;
    QString port;          // where its jobs go: the queue's own name at the print service
    bool twoSided = false; // prints on both sides
    int paperSize = 0;     // its own, by the published numbers: 1 Letter, 5 Legal, 9 A4...; 0 unknown
};

} // namespace orvane
