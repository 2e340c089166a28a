// The paper that a page is laid out on, and its margins. Lengths are twips.
#pragma once

#include <QRectF>
#include <QSizeF>

class QPageLayout;

namespace orvane
{

struct PageSetup {
    static constexpr double UsualMargin = 1440;

    int paperSize = 0; // by the published numbers: 1 Letter, 5 Legal, 9 A4...
    bool landscape = false;
    double left = UsualMargin;
    double top = UsualMargin;
    double right = UsualMargin;
    double bottom = UsualMargin;

    QSizeF page() const;
    // Between the margins. Margins that meet leave a strip of half an inch all the same.
    QRectF body() const;
    // The same paper for a printer that draws from the paper's very corner.
    QPageLayout printerLayout() const;
};

} // namespace orvane
