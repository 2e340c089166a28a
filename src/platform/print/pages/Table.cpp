#include "platform/print/pages/Table.h"

#include "platform/print/pages/Paragraph.h"

#include <algorithm>

namespace orvane
{

namespace
{
// Between a cell's edges and its text.
constexpr double SidePadding = 60;
constexpr double RowPadding = 30;
} // namespace

Table::Table(Recording &recording, QList<TableColumn> columns, TableLook look, bool joined)
    : m_recording(recording), m_columns(std::move(columns)), m_look(std::move(look)), m_joined(joined)
{
}

void Table::addRow(const QStringList &cells, std::optional<QColor> shade)
{
    if (!m_recording.bringUpPage()) return;
    const Texts texts = layOut(cells);
    double height = 0;
    for (const auto &text : texts)
        if (text) height = std::max(height, text->height() + 2 * RowPadding);
    makeRoom(height);
    QPointF corner = m_recording.place;
    for (qsizetype index = 0; index < m_columns.size(); ++index) {
        if (!texts[index]) continue;
        putCell({corner, QSizeF(m_columns[index].width, height)}, texts[index], shade);
        corner.rx() += m_columns[index].width;
    }
    m_recording.place.ry() += height;
    m_joined = true;
}

Table::Texts Table::layOut(const QStringList &cells) const
{
    Texts texts;
    const double page = m_recording.setup().page().height();
    for (qsizetype index = 0; index < m_columns.size(); ++index) {
        const TableColumn &column = m_columns[index];
        const bool shows = column.width > 0;
        texts.push_back(shows ? std::make_shared<const Paragraph>(cells.value(index), m_look.font, column.alignment,
                                                                  column.width - 2 * SidePadding, page)
                              : nullptr);
    }
    return texts;
}

void Table::makeRoom(double height)
{
    const QRectF body = m_recording.setup().body();
    const double y = m_recording.place.y();
    if (m_recording.inBand() || y <= body.top() || y + height <= body.bottom()) return;
    const double x = m_recording.place.x();
    m_recording.newPage();
    m_recording.place.setX(x);
    m_joined = false;
}

void Table::putCell(const QRectF &cell, const std::shared_ptr<const Paragraph> &text, std::optional<QColor> shade)
{
    if (shade) m_recording.put(FilledArea{cell, *shade});
    m_recording.put(PlacedLines{text, 0, text->lines(), cell.topLeft() + QPointF(SidePadding, RowPadding)});
    if (m_look.border == AllBorders) rule(cell);
}

// Neighbours share their edges: a cell rules its left one again, which is as good as once.
void Table::rule(const QRectF &cell)
{
    if (!m_joined) m_recording.put(Rule{{cell.topLeft(), cell.topRight()}});
    m_recording.put(Rule{{cell.topLeft(), cell.bottomLeft()}});
    m_recording.put(Rule{{cell.topRight(), cell.bottomRight()}});
    m_recording.put(Rule{{cell.bottomLeft(), cell.bottomRight()}});
}

} // namespace orvane
