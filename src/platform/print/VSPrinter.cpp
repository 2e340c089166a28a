#include "platform/print/VSPrinter.h"

#include "platform/controls/Colour.h"
#include "platform/controls/text/RichTextBox.h"
#include "platform/print/pages/Paragraph.h"
#include "platform/print/pages/Table.h"
#include "platform/print/pages/TextFlow.h"
#include "platform/print/preview/PreviewView.h"
#include "platform/richtext/Rtf.h"

#include <QTextBlock>
#include <QTextDocument>

namespace orvane
{

namespace
{
Qt::Alignment alignmentOf(int textAlign)
{
    if (textAlign == AlignRight) return Qt::AlignRight;
    return textAlign == AlignCenter ? Qt::AlignHCenter : Qt::AlignLeft;
}

TextFlow::Paragraphs paragraphsOf(const QString &rtf, const QFont &font, double width)
{
    QTextDocument document;
    document.setDefaultFont(font);
    readRtf(rtf, document);
    TextFlow::Paragraphs paragraphs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        paragraphs.push_back(std::make_shared<const Paragraph>(block, width));
    return paragraphs;
}
} // namespace

VSPrinter::VSPrinter(Container &parent, const QString &name)
    : Control(parent, name, new PreviewView), m_view(static_cast<PreviewView &>(widget())),
      m_recording([this] { raiseHeader(); }, [this] { raiseFooter(); })
{
    setPurpose(QStringLiteral("Print preview"));
    connect(&m_view, &PreviewView::zoomed, this, &VSPrinter::ViewZoomed);
    connect(&m_view, &PreviewView::scrolled, this, &VSPrinter::ViewScrolled);
    connect(&m_view, &PreviewView::turned, this, &VSPrinter::PageTurned);
}

QWidget &VSPrinter::voice() const
{
    return *m_view.viewport();
}

void VSPrinter::StartDoc()
{
    m_view.setPages(std::make_shared<const RecordedPages>(), setup().page());
    m_recording.start();
    if (NDevices() == 0) m_recording.finish();
}

void VSPrinter::EndDoc()
{
    if (!m_recording.isOpen()) return;
    m_recording.finish();
    if (m_previewMode) {
        m_view.setPages(m_recording.pages(), setup().page());
        if (ZoomMode() != ZoomByPercent) emit ViewZoomed();
    } else if (PageCount() > 0) {
        PrintDoc(1, PageCount());
    }
}

void VSPrinter::NewPage()
{
    m_recording.newPage();
}

void VSPrinter::setTextRTF(const QString &rtf)
{
    if (!m_recording.bringUpPage()) return;
    QFont font(m_fontName);
    font.setPointSizeF(m_fontSize);
    TextFlow(m_recording, paragraphsOf(rtf, font, setup().body().width())).run();
}

void VSPrinter::DrawPicture(const QImage &picture, double x, double y, double width, double height)
{
    m_recording.put(PlacedPicture{{x, y, width, height}, picture});
}

void VSPrinter::AddTable(const QString &format, const QString &header, const QString &body,
                         std::optional<int> headerShade, std::optional<int> bodyShade, bool joined)
{
    const auto shadeOf = [](std::optional<int> shade) {
        return shade ? std::optional(toColour(*shade)) : std::nullopt;
    };
    Table table(m_recording, readTableFormat(format, m_separators, alignmentOf(m_textAlign)),
                {fontInTwips(m_fontName, m_fontSize), m_tableBorder}, joined);
    for (const QStringList &row : readTableRows(header, m_separators))
        table.addRow(row, shadeOf(headerShade));
    for (const QStringList &row : readTableRows(body, m_separators))
        table.addRow(row, shadeOf(bodyShade));
}

void VSPrinter::raiseHeader()
{
    putLine(m_header, setup().top / 2);
    emit HeaderBand();
}

void VSPrinter::raiseFooter()
{
    putLine(m_footer, PageHeight() - setup().bottom / 2);
    emit FooterBand();
}

void VSPrinter::putLine(const QString &text, double y)
{
    if (text.trimmed().isEmpty()) return;
    const QRectF body = setup().body();
    const auto line = std::make_shared<const Paragraph>(
        text, fontInTwips(m_fontName, m_fontSize), alignmentOf(m_textAlign), body.width(), setup().page().height());
    m_recording.put(PlacedLines{line, 0, line->lines(), {body.left(), y}});
}

int VSPrinter::PreviewPage() const
{
    return m_view.page();
}

void VSPrinter::setPreviewPage(int page)
{
    m_view.setPage(page);
}

double VSPrinter::Zoom() const
{
    return m_view.zoom();
}

void VSPrinter::setZoom(double percent)
{
    m_view.setZoom(percent);
}

int VSPrinter::ZoomMode() const
{
    return m_view.zoomMode();
}

} // namespace orvane
