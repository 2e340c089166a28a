#include "platform/print/pages/RecordedPage.h"

#include "platform/print/pages/Paragraph.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextDocument>

namespace orvane
{

namespace
{
constexpr double RuleWidth = 10; // half a point

void drawSheet(QPainter &painter, const PlacedSheet &sheet)
{
    const QSizeF size = sheet.text->pageSize();
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = QRectF({0, sheet.number * size.height()}, size);
    context.palette.setColor(QPalette::Text, Qt::black); // whatever the screen's own is
    painter.save();
    painter.translate(sheet.place - context.clip.topLeft());
    painter.setClipRect(context.clip);
    sheet.text->documentLayout()->draw(&painter, context);
    painter.restore();
}

// Rules and shades end on whole pixels, so that they are as sharp as the text.
struct Draw {
    QPainter &painter;

    void operator()(const FilledArea &item) const { painter.fillRect(item.area, item.colour); }
    void operator()(const Rule &item) const { painter.drawLine(item.line); }
    void operator()(const PlacedPicture &item) const { painter.drawImage(item.area, item.picture); }
    void operator()(const PlacedSheet &item) const { drawSheet(painter, item); }
    void operator()(const PlacedLines &item) const
    {
        item.paragraph->draw(painter, item.place, item.firstLine, item.count);
    }
};
} // namespace

void drawPage(QPainter &painter, const RecordedPage &page)
{
    painter.setPen(QPen(Qt::black, RuleWidth));
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::LosslessImageRendering); // pictures of forms are text too
    for (const PageItem &item : page.items)
        std::visit(Draw{painter}, item);
}

QString textOf(const RecordedPage &page)
{
    QStringList texts;
    for (const PageItem &item : page.items)
        if (const auto *lines = std::get_if<PlacedLines>(&item))
            texts << lines->paragraph->text(lines->firstLine, lines->count);
    texts.removeIf([](const QString &text) { return text.trimmed().isEmpty(); });
    return texts.join(u'\n');
}

} // namespace orvane
