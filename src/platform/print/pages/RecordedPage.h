// What stands on a page: the list of what is drawn, in twips from the paper's corner. The one routine that draws it
// serves the preview, the printer and the PDF file.
#pragma once

#include "platform/print/pages/PageSetup.h"

#include <QColor>
#include <QImage>
#include <QLineF>
#include <memory>
#include <variant>
#include <vector>

class QPainter;
class QTextDocument;

namespace orvane
{

class Paragraph;

struct PlacedLines {
    std::shared_ptr<const Paragraph> paragraph;
    int firstLine = 0;
    int count = 0;
    QPointF place;
};

struct FilledArea {
    QRectF area;
    QColor colour;
};

struct Rule {
    QLineF line;
};

struct PlacedPicture {
    QRectF area;
    QImage picture;
};

// One of the sheets of a text that is laid out in twips.
struct PlacedSheet {
    std::shared_ptr<const QTextDocument> text;
    int number = 0; // from 0
    QPointF place;
};

using PageItem = std::variant<FilledArea, Rule, PlacedPicture, PlacedLines, PlacedSheet>;

struct RecordedPage {
    PageSetup setup;
    std::vector<PageItem> items;
};

using RecordedPages = std::vector<RecordedPage>;

// The painter's unit is the twip. The paper itself is not drawn.
void drawPage(QPainter &painter, const RecordedPage &page);

// The page's words from top to bottom, a line for each paragraph or cell.
QString textOf(const RecordedPage &page);

} // namespace orvane
