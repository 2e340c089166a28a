#include "platform/print/pages/Paragraph.h"

#include "platform/controls/Twips.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <limits>

namespace orvane
{

namespace
{
constexpr int LongestHeading = 2; // lines
constexpr double Unlimited = std::numeric_limits<double>::max();

int twipsOfPoints(double points)
{
    return std::max(1, qRound(points * TwipsPerPoint));
}

// Documents hold lengths in pixels of the screen and sizes in points; here both are twips.
QTextCharFormat inTwips(QTextCharFormat format, const QFont &standard)
{
    const double points =
        format.hasProperty(QTextFormat::FontPointSize) ? format.fontPointSize() : standard.pointSizeF();
    format.clearProperty(QTextFormat::FontPointSize);
    format.setProperty(QTextFormat::FontPixelSize, twipsOfPoints(points));
    return format;
}

QTextOption optionInTwips(const QTextBlock &block)
{
    QTextOption option = block.document()->defaultTextOption();
    option.setTabStopDistance(option.tabStopDistance() * TwipsPerPixel);
    QList<QTextOption::Tab> tabs = block.blockFormat().tabPositions();
    for (QTextOption::Tab &tab : tabs)
        tab.position *= TwipsPerPixel;
    option.setTabs(tabs);
    if (block.blockFormat().hasProperty(QTextFormat::BlockAlignment))
        option.setAlignment(block.blockFormat().alignment());
    return option;
}

QList<QTextLayout::FormatRange> formatsInTwips(const QTextBlock &block, const QFont &standard)
{
    QList<QTextLayout::FormatRange> ranges = block.textFormats();
    for (QTextLayout::FormatRange &range : ranges)
        range.format = inTwips(range.format, standard);
    return ranges;
}

bool allBold(const QTextBlock &block)
{
    for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment)
        if (fragment.fragment().charFormat().fontWeight() < QFont::DemiBold) return false;
    return true;
}

QFont markFont(const QTextBlock &block)
{
    const QFont standard = block.document()->defaultFont();
    return inTwips(block.charFormat(), standard).font().resolve(fontInTwips(standard.family(), standard.pointSizeF()));
}
} // namespace

QFont fontInTwips(const QString &family, double points)
{
    QFont font(family);
    font.setPixelSize(twipsOfPoints(points));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

Paragraph::Paragraph(const QTextBlock &block, double width) : m_layout(block.text(), markFont(block))
{
    const QTextBlockFormat format = block.blockFormat();
    m_left = format.leftMargin() * TwipsPerPixel;
    m_before = format.topMargin() * TwipsPerPixel;
    m_after = format.bottomMargin() * TwipsPerPixel;
    m_startsPage = format.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore;
    m_layout.setTextOption(optionInTwips(block));
    m_layout.setFormats(formatsInTwips(block, block.document()->defaultFont()));
    breakLines(width - m_left - format.rightMargin() * TwipsPerPixel, format.textIndent() * TwipsPerPixel, Unlimited);
    if (block.textList()) makeBullet(block);
    m_heading = !m_bullet && lines() <= LongestHeading && !isBlank() && allBold(block);
}

Paragraph::Paragraph(const QString &text, const QFont &font, Qt::Alignment alignment, double width,
                     double greatestHeight)
    : m_layout(QString(text).replace(u'\n', QChar::LineSeparator), font)
{
    QTextOption option(alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_layout.setTextOption(option);
    breakLines(width, 0, greatestHeight);
}

// Each line stands at the top of the layout: where it comes on a page is told when it is drawn.
void Paragraph::breakLines(double width, double firstIndent, double greatestHeight)
{
    constexpr double LeastWidth = 1;
    double indent = firstIndent;
    double height = 0;
    m_layout.beginLayout();
    for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(std::max(width - indent, LeastWidth));
        line.setPosition({indent, 0});
        indent = 0;
        height += line.height();
        if (height + line.height() > greatestHeight) break;
    }
    m_layout.endLayout();
}

// As on screen: a third of a line wide, in the middle of the line, a blank before the text. A glyph and not a drawing,
// so that it is copied from a PDF file with its text.
void Paragraph::makeBullet(const QTextBlock &block)
{
    const QString bullet = QStringLiteral("\u2022");
    QFont font = markFont(block);
    const QFontMetricsF text(font);
    const double wide = text.tightBoundingRect(bullet).width();
    if (wide > 0) font.setPixelSize(std::max(1, qRound(font.pixelSize() * text.lineSpacing() / 3 / wide)));
    m_bullet = std::make_unique<QTextLayout>(bullet, font);
    m_bullet->beginLayout();
    QTextLine glyph = m_bullet->createLine();
    m_bullet->endLayout();
    // From the glyph's base line, to which the rectangle reaches down; the dot is as high as it is wide.
    const QRectF dot = QFontMetricsF(font).tightBoundingRect(bullet);
    const double middle = dot.top() + dot.width() / 2;
    const double right = m_layout.lineAt(0).x() - text.horizontalAdvance(u' ');
    glyph.setPosition({right - dot.right(), text.height() / 2 - middle - glyph.ascent()});
}

double Paragraph::height() const
{
    double sum = 0;
    for (int line = 0; line < lines(); ++line)
        sum += height(line);
    return sum;
}

bool Paragraph::isBlank() const
{
    return !m_bullet && m_layout.text().trimmed().isEmpty();
}

void Paragraph::draw(QPainter &painter, const QPointF &place, int firstLine, int count) const
{
    QPointF at = place + QPointF(m_left, 0);
    if (m_bullet && firstLine == 0) m_bullet->lineAt(0).draw(&painter, at);
    for (int line = firstLine; line < firstLine + count; ++line) {
        m_layout.lineAt(line).draw(&painter, at);
        at.ry() += height(line);
    }
}

QString Paragraph::text(int firstLine, int count) const
{
    QStringList texts;
    for (int line = firstLine; line < firstLine + count; ++line) {
        const QTextLine at = m_layout.lineAt(line);
        texts << m_layout.text().sliced(at.textStart(), at.textLength()).trimmed();
    }
    const QString bullet = m_bullet && firstLine == 0 ? QStringLiteral("\u2022 ") : QString();
    return bullet + texts.join(u' ').replace(QChar::LineSeparator, u' ');
}

} // namespace orvane
