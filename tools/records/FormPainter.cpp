#include "records/FormPainter.h"

#include "records/FormColours.h"
#include "records/FormError.h"

#include <algorithm>
#include <cmath>

namespace orvane::records
{

namespace
{

constexpr int Margin = 12; // of the paper, pixels
constexpr double Padding = 5;
constexpr double HandSize = 14;
constexpr double SignatureSize = 20;
constexpr double BoxSize = 10;
constexpr double BeforeHand = 6;
constexpr double BeforeBox = 9;
constexpr double AfterBox = 5; // room for a tick

bool isHand(const Word &word)
{
    return word.style == Word::Hand || word.style == Word::Signature;
}

bool hasRules(RowKind kind)
{
    return kind == RowKind::Row || kind == RowKind::Head || kind == RowKind::Band;
}

bool isBold(const Row &row, const Word &word)
{
    return word.style == Word::Bold || (row.kind != RowKind::Row && row.kind != RowKind::Note);
}

bool isBox(const Word &word)
{
    return word.style == Word::Box || word.style == Word::Ticked;
}

double sizeOf(RowKind kind)
{
    switch (kind) {
    case RowKind::Band:
        return 15;
    case RowKind::Title:
        return 19;
    case RowKind::Note:
        return 11;
    default:
        return 12;
    }
}

double lineHeight(const Row &row, const Cell &cell)
{
    const bool hand = std::any_of(cell.words.begin(), cell.words.end(), isHand);
    return hand ? 17 : std::ceil(sizeOf(row.kind) * 1.2);
}

QColor inkOf(RowKind kind)
{
    return kind == RowKind::Band ? colours::Paper : colours::Ink;
}

} // namespace

FormPainter::FormPainter(QPainter &painter, const QString &formName, States state)
    : m_painter(painter), m_form(formName), m_state(state), m_print(QStringLiteral("Liberation Sans"), false),
      m_boldPrint(QStringLiteral("Liberation Sans"), true), m_hand(QStringLiteral("Kaushan Script"), false)
{
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setPen(Qt::NoPen);
}

void FormPainter::draw(const Page &page, int top, int room)
{
    for (const Row &row : page.rows) {
        const int foot = Margin + row.top + row.height + 1;
        if (foot > room) refuse(row, QStringLiteral("The row ends at %1 of %2 pixels.").arg(foot).arg(room));
        drawRow(row, top + Margin + row.top);
    }
}

void FormPainter::drawRow(const Row &row, int top)
{
    const int all = m_painter.device()->width() - 2 * Margin - 1;
    drawGround(row, Margin, top, all);
    double share = 0;
    for (size_t i = 0; i < row.cells.size(); ++i) {
        const int left = Margin + static_cast<int>(std::lround(share * all));
        share += row.shares[i];
        const int right = Margin + static_cast<int>(std::lround(share * all));
        drawCell(row, row.cells[i], QRect(left, top, right - left, row.height));
    }
}

void FormPainter::drawGround(const Row &row, int left, int top, int width)
{
    if (row.kind == RowKind::Band) m_painter.fillRect(left, top, width + 1, row.height + 1, colours::Ground);
    if (row.kind == RowKind::Head) m_painter.fillRect(left, top, width, row.height, colours::Tint);
    if (!hasRules(row.kind)) return;
    m_painter.fillRect(left, top, width + 1, 1, colours::Rule);
    m_painter.fillRect(left, top + row.height, width + 1, 1, colours::Rule);
}

void FormPainter::drawCell(const Row &row, const Cell &cell, const QRect &place)
{
    if (row.kind == RowKind::Row || row.kind == RowKind::Head) {
        m_painter.fillRect(place.left(), place.top(), 1, place.height(), colours::Rule);
        m_painter.fillRect(place.left() + place.width(), place.top(), 1, place.height() + 1, colours::Rule);
    }
    const double room = place.width() - 2 * Padding;
    const auto words = placeWords(row, cell, room);
    if (words.empty()) return;
    const double height = lineHeight(row, cell);
    const int lines = words.back().line + 1;
    if (lines * height > row.height - 1)
        refuse(row, QStringLiteral("The cell needs %1 pixels: %2").arg(lines * height).arg(words.front().word->text));
    const double top = std::floor(place.top() + 1 + (row.height - 1 - lines * height) / 2);
    for (const PlacedWord &placed : words) {
        double indent = 0;
        for (const PlacedWord &other : words)
            if (cell.centered && other.line == placed.line) indent = (room - other.x - other.width) / 2;
        const QPointF baseline(place.left() + Padding + indent + placed.x,
                               top + placed.line * height + std::round(height * 0.77));
        drawWord(row, placed, baseline);
    }
}

// From the word before; none where there is no word before.
double FormPainter::gapBefore(const Row &row, const Word *previous, const Word &word)
{
    if (!previous) return 0;
    if (isHand(word)) return isHand(*previous) ? HandSize * 0.26 : BeforeHand;
    if (isBox(word)) return BeforeBox;
    return isBox(*previous) ? AfterBox : sizeOf(row.kind) * 0.28;
}

std::vector<FormPainter::PlacedWord> FormPainter::placeWords(const Row &row, const Cell &cell, double room) const
{
    std::vector<PlacedWord> words;
    double right = 0;
    int line = 0;
    for (const Word &word : cell.words) {
        const double width = widthOf(row, word);
        if (width > room) refuse(row, QStringLiteral("The word is wider than its cell: %1").arg(word.text));
        double left = right + gapBefore(row, words.empty() ? nullptr : words.back().word, word);
        if (left + width > room) {
            left = 0;
            ++line;
        }
        words.push_back({&word, left, width, line});
        right = left + width;
    }
    return words;
}

double FormPainter::widthOf(const Row &row, const Word &word) const
{
    switch (word.style) {
    case Word::Box:
    case Word::Ticked:
        return BoxSize;
    case Word::Hand:
        return m_hand.width(word.text, HandSize);
    case Word::Signature:
        return m_hand.width(word.text, SignatureSize);
    default:
        break;
    }
    const bool bold = isBold(row, word);
    return (bold ? m_boldPrint : m_print).width(word.text, sizeOf(row.kind));
}

void FormPainter::drawWord(const Row &row, const PlacedWord &placed, const QPointF &baseline)
{
    const Word &word = *placed.word;
    if (isBox(word)) {
        drawBox(baseline, word.style == Word::Ticked && m_state == Completed);
        return;
    }
    if (isHand(word)) {
        const double size = word.style == Word::Signature ? SignatureSize : HandSize;
        const QPainterPath outline = m_hand.uneven(word.text, size, baseline, m_chance);
        if (m_state == Completed) m_painter.fillPath(outline, colours::Pen);
        return;
    }
    const bool bold = isBold(row, word);
    m_painter.fillPath((bold ? m_boldPrint : m_print).outline(word.text, sizeOf(row.kind), baseline), inkOf(row.kind));
}

// The tick goes beyond the box, as ticks do.
void FormPainter::drawBox(const QPointF &baseline, bool ticked)
{
    const QRect box(static_cast<int>(std::lround(baseline.x())),
                    static_cast<int>(std::lround(baseline.y() - BoxSize + 1)), static_cast<int>(BoxSize),
                    static_cast<int>(BoxSize));
    m_painter.fillRect(box, colours::Ink);
    m_painter.fillRect(box.adjusted(1, 1, -1, -1), colours::Paper);
    if (!ticked) return;
    QPainterPath tick(QPointF(box.left() + 1.5, box.top() + 4.5));
    tick.quadTo(QPointF(box.left() + 3, box.top() + 6), QPointF(box.left() + 4, box.top() + 8.5));
    tick.quadTo(QPointF(box.left() + 7, box.top() + 2), QPointF(box.left() + 12.5, box.top() - 3));
    m_painter.strokePath(tick, QPen(colours::Pen, 2, Qt::SolidLine, Qt::RoundCap));
}

void FormPainter::refuse(const Row &row, const QString &message) const
{
    throw FormError(m_form, row.line, message);
}

} // namespace orvane::records
