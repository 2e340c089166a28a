#include "platform/print/pages/TextPages.h"

#include "platform/controls/Twips.h"
#include "platform/print/pages/Paragraph.h"
#include "platform/print/pages/Recording.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace orvane
{

namespace
{
constexpr double TwipsPerMeter = TwipsPerInch / 0.0254;
constexpr double NumberSize = 10; // points

// What a text is laid out on, its unit the twip. A layout goes on asking its device, so there is one for all.
QImage &twips()
{
    static QImage device = [] {
        QImage image(1, 1, QImage::Format_RGB32);
        image.setDotsPerMeterX(qRound(TwipsPerMeter));
        image.setDotsPerMeterY(qRound(TwipsPerMeter));
        return image;
    }();
    return device;
}

int sheetOf(const QTextBlock &block)
{
    const QTextDocument &text = *block.document();
    return static_cast<int>(text.documentLayout()->blockBoundingRect(block).top() / text.pageSize().height());
}

void keepHeadingsWithTheirText(const QTextDocument &sheets)
{
    for (QTextBlock block = sheets.begin(); block.next().isValid(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        if (format.headingLevel() == 0 || sheetOf(block) == sheetOf(block.next())) continue;
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(block).setBlockFormat(format);
    }
}

// A child of the text, which is asked for the pictures.
std::shared_ptr<const QTextDocument> laidOut(QTextDocument &text, const QSizeF &body)
{
    const std::shared_ptr<QTextDocument> sheets(text.clone(&text));
    QFont font = sheets->defaultFont();
    font.setHintingPreference(QFont::PreferNoHinting);
    sheets->setDefaultFont(font);
    sheets->setDocumentMargin(0);
    sheets->documentLayout()->setPaintDevice(&twips());
    sheets->setPageSize(body);
    keepHeadingsWithTheirText(*sheets);
    return sheets;
}

PlacedLines numberOf(int page, const PageSetup &setup)
{
    const QRectF body = setup.body();
    const auto number =
        std::make_shared<const Paragraph>(QString::number(page), fontInTwips(QStringLiteral("Arial"), NumberSize),
                                          Qt::AlignRight, body.width(), setup.bottom);
    return {number, 0, number->lines(), {body.left(), body.bottom() + setup.bottom / 2}};
}
} // namespace

std::shared_ptr<const RecordedPages> textPages(QTextDocument &text, const PageSetup &setup)
{
    const auto sheets = laidOut(text, setup.body().size());
    Recording recording([] {}, [&] { recording.put(numberOf(recording.count(), setup)); });
    recording.nextSetup() = setup;
    recording.start();
    for (int page = 0; page < sheets->pageCount(); ++page) {
        if (page > 0) recording.newPage();
        recording.put(PlacedSheet{sheets, page, setup.body().topLeft()});
    }
    recording.finish();
    return recording.pages();
}

} // namespace orvane
