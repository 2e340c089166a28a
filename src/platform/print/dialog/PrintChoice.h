// What a print dialog is opened with, and what the user made of it.
#pragma once

#include <QString>

namespace orvane
{

struct PrintChoice {
    QString deviceName; // of an installed printer
    int copies = 1;
    int duplex = 0;         // 1 one side, 2 turned over the long edge, 3 over the short one; 0 the printer's own way
    int orientation = 1;    // 1 portrait, 2 landscape
    int paperSize = 0;      // by the published numbers: 1 Letter, 5 Legal, 8 A3, 9 A4...; 0 the printer's own
    bool pageRange = false; // only the pages from first to last; otherwise all, and the two stay as they were
    int firstPage = 1;
    int lastPage = 1;
    int minPage = 1; // the range can't leave these two
    int maxPage = 1;
};

} // namespace orvane
