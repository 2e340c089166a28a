// Draws the rows of a table, each as high as its highest cell.
#pragma once

#include "platform/print/pages/Recording.h"
#include "platform/print/pages/TableFormat.h"

#include <QFont>
#include <optional>

namespace orvane
{

enum TableBorders { NoBorder = 0, AllBorders = 7 };

struct TableLook {
    QFont font; // in twips, see fontInTwips
    int border = AllBorders;
};

class Table
{
public:
    // The first row's upper edge is not ruled where the table is joined to one above.
    Table(Recording &recording, QList<TableColumn> columns, TableLook look, bool joined);

    // At the recording's place, which then moves below the row. In a page's body a row that reaches below it goes to
    // the next page. Cells behind the last column are left out, missing ones are empty.
    void addRow(const QStringList &cells, std::optional<QColor> shade);

private:
    using Texts = std::vector<std::shared_ptr<const Paragraph>>; // of each column, none where it doesn't show

    Texts layOut(const QStringList &cells) const;
    void makeRoom(double height);
    void putCell(const QRectF &cell, const std::shared_ptr<const Paragraph> &text, std::optional<QColor> shade);
    void rule(const QRectF &cell);

    Recording &m_recording;
    QList<TableColumn> m_columns;
    TableLook m_look;
    bool m_joined;
};

} // namespace orvane
