// What the print control takes as settings, and what it refuses.
#include "platform/print/VSPrinter.h"

#include "platform/controls/text/RichTextBox.h"
#include "platform/print/DefaultPrinter.h"
#include "platform/print/Printers.h"
#include "platform/print/pages/Table.h"
#include "platform/print/preview/PreviewView.h"
#include "platform/system/RunTimeError.h"

#include <QPageSize>
#include <algorithm>

namespace orvane
{

namespace
{
void refuseUnless(bool good, const QString &why)
{
    if (!good) throw RunTimeError(InvalidPropertyValue, why);
}
} // namespace

const PageSetup &VSPrinter::setup() const
{
    if (int &paper = m_recording.nextSetup().paperSize; paper == 0) paper = ownPaperSize(m_device);
    return m_recording.setup();
}

int VSPrinter::Orientation() const
{
    return m_recording.nextSetup().landscape ? Landscape : Portrait;
}

void VSPrinter::setOrientation(int orientation)
{
    refuseUnless(orientation == Portrait || orientation == Landscape,
                 QStringLiteral("There is no orientation of that number."));
    m_recording.nextSetup().landscape = orientation == Landscape;
}

int VSPrinter::PaperSize() const
{
    setup();
    return m_recording.nextSetup().paperSize;
}

void VSPrinter::setPaperSize(int paperSize)
{
    refuseUnless(QPageSize::id(paperSize) != QPageSize::Custom, QStringLiteral("There is no paper of that number."));
    m_recording.nextSetup().paperSize = paperSize;
}

void VSPrinter::setMargin(double PageSetup::*margin, double twips)
{
    refuseUnless(twips >= 0, QStringLiteral("A margin can't be negative."));
    m_recording.nextSetup().*margin = twips;
}

void VSPrinter::setMarginLeft(double twips)
{
    setMargin(&PageSetup::left, twips);
}

void VSPrinter::setMarginTop(double twips)
{
    setMargin(&PageSetup::top, twips);
}

void VSPrinter::setMarginRight(double twips)
{
    setMargin(&PageSetup::right, twips);
}

void VSPrinter::setMarginBottom(double twips)
{
    setMargin(&PageSetup::bottom, twips);
}

void VSPrinter::setTextAlign(int alignment)
{
    refuseUnless(alignment >= AlignLeft && alignment <= AlignCenter,
                 QStringLiteral("There is no alignment of that number."));
    m_textAlign = alignment;
}

void VSPrinter::setFontSize(double points)
{
    refuseUnless(points > 0, QStringLiteral("A font has a size above 0."));
    m_fontSize = points;
}

void VSPrinter::setTableBorder(int border)
{
    refuseUnless(border == NoBorder || border == AllBorders, QStringLiteral("There is no border of that number."));
    m_tableBorder = border;
}

QString VSPrinter::TableSep() const
{
    return QString(m_separators.column) + m_separators.row;
}

void VSPrinter::setTableSep(const QString &separators)
{
    refuseUnless(separators.size() == 2 && separators.front() != separators.back(),
                 QStringLiteral("The separators of a table are two different characters."));
    m_separators = {separators.front(), separators.back()};
}

void VSPrinter::setZoomMode(int mode)
{
    refuseUnless(mode >= ZoomByPercent && mode <= ZoomPageWidth,
                 QStringLiteral("There is no zoom mode of that number."));
    m_view.setZoomMode(mode);
}

void VSPrinter::setCopies(int copies)
{
    refuseUnless(copies >= 1, QStringLiteral("A document is printed once at least."));
    m_copies = copies;
}

void VSPrinter::setDuplex(int duplex)
{
    refuseUnless(duplex >= 0 && duplex <= 3, QStringLiteral("There is no duplex of that number."));
    m_duplex = duplex;
}

int VSPrinter::NDevices() const
{
    return static_cast<int>(installedPrinters().size());
}

QString VSPrinter::printerName() const
{
    return m_device.isEmpty() ? Printer().DeviceName() : m_device;
}

} // namespace orvane
