#include "platform/print/DefaultPrinter.h"

#include "platform/print/Printers.h"
#include "platform/system/RunTimeError.h"

#include <QPageSize>

namespace orvane
{

namespace
{
constexpr int Orientations = 2;
constexpr int DuplexWays = 3;
constexpr int MostCopies = 9999;

void requireBetween(int value, int first, int last)
{
    if (value < first || value > last)
        throw RunTimeError(InvalidPropertyValue, QStringLiteral("Invalid property value"));
}

void requireDuplex(const InstalledPrinter &printer)
{
    if (!printer.twoSided)
        throw RunTimeError(PrinterHasNoSuchProperty,
                           QStringLiteral("The printer \"%1\" doesn't print on both sides.").arg(printer.deviceName));
}
} // namespace

int DefaultPrinter::Orientation() const
{
    return m_orientation;
}

int DefaultPrinter::PaperSize() const
{
    return m_paperSize == 0 ? printer().paperSize : m_paperSize;
}

int DefaultPrinter::Copies() const
{
    return m_copies;
}

int DefaultPrinter::Duplex() const
{
    requireDuplex(printer());
    return m_duplex;
}

void DefaultPrinter::setOrientation(int orientation)
{
    requireBetween(orientation, 1, Orientations);
    m_orientation = orientation;
}

void DefaultPrinter::setPaperSize(int paperSize)
{
    if (QPageSize::id(paperSize) == QPageSize::Custom)
        throw RunTimeError(InvalidPropertyValue, QStringLiteral("Invalid property value"));
    m_paperSize = paperSize;
}

void DefaultPrinter::setCopies(int copies)
{
    requireBetween(copies, 1, MostCopies);
    m_copies = copies;
}

void DefaultPrinter::setDuplex(int duplex)
{
    requireDuplex(printer());
    requireBetween(duplex, 1, DuplexWays);
    m_duplex = duplex;
}

void DefaultPrinter::select(const InstalledPrinter &printer)
{
    *this = DefaultPrinter();
    m_printer = printer;
}

const InstalledPrinter &DefaultPrinter::printer() const
{
    if (!m_printer) {
        const auto printers = installedPrinters();
        if (printers.empty()) throw RunTimeError(PrinterFailure, QStringLiteral("No printer is installed."));
        m_printer = printers.front();
    }
    return *m_printer;
}

DefaultPrinter &Printer()
{
    static DefaultPrinter printer;
    return printer;
}

} // namespace orvane
