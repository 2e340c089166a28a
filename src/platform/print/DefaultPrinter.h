// The run time's default printer object, which holds the user's last choice of printer and settings for the program.
// It starts as the first of the installed printers, with that printer's settings.
#pragma once

#include "platform/print/InstalledPrinter.h"

#include <optional>

namespace orvane
{

class DefaultPrinter
{
public:
    // Error 482 where no printer is installed.
    QString DeviceName() const { return printer().deviceName; }
    QString DriverName() const { return printer().driverName; }
    QString Port() const { return printer().port; }

    int Orientation() const; // 1 portrait, 2 landscape
    int PaperSize() const;   // by the published numbers: 1 Letter, 5 Legal, 8 A3, 9 A4...
    int Copies() const;
    int Duplex() const; // 1 one side, 2 turned over the long edge, 3 over the short one

    // Error 380 for a value that no printer has. Error 483 for the duplex, read or set, of a printer that has none.
    void setOrientation(int orientation);
    void setPaperSize(int paperSize);
    void setCopies(int copies);
    void setDuplex(int duplex);

    // Another installed printer takes the place of the default one, with its own settings.
    void select(const InstalledPrinter &printer);

private:
    const InstalledPrinter &printer() const;

    mutable std::optional<InstalledPrinter> m_printer; // taken at the first use
    int m_orientation = 1;
    int m_paperSize = 0; // 0 the printer's own
    int m_copies = 1;
    int m_duplex = 1;
};

DefaultPrinter &Printer();

} // namespace orvane
