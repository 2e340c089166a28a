#include "platform/print/pages/TableFormat.h"

#include <algorithm>
#include <limits>

namespace orvane
{

namespace
{
// The number at the start, as far as it goes.
int readWidth(QStringView text)
{
    constexpr int Largest = std::numeric_limits<qint16>::max();
    const bool negative = text.startsWith(u'-');
    int width = 0;
    for (const QChar digit : text.sliced(negative ? 1 : 0)) {
        if (digit < u'0' || digit > u'9') break;
        width = std::min(width * 10 + digit.digitValue(), Largest);
    }
    return negative ? -width : width;
}

TableColumn readColumn(QStringView text, Qt::Alignment textAlignment)
{
    TableColumn column{textAlignment, 0};
    for (; !text.isEmpty() && QStringView(u"<^>+").contains(text.front()); text = text.sliced(1)) {
        if (text.front() == u'<') column.alignment = Qt::AlignLeft;
        if (text.front() == u'^') column.alignment = Qt::AlignHCenter;
        if (text.front() == u'>') column.alignment = Qt::AlignRight;
    }
    column.width = readWidth(text);
    return column;
}
} // namespace

QList<TableColumn> readTableFormat(const QString &format, TableSeparators separators, Qt::Alignment textAlignment)
{
    QList<TableColumn> columns;
    const QStringView row = QStringView(format).left(format.indexOf(separators.row));
    for (const QStringView column : row.split(separators.column))
        columns << readColumn(column, textAlignment);
    return columns;
}

QList<QStringList> readTableRows(const QString &text, TableSeparators separators)
{
    QStringList rows = text.split(separators.row);
    if (rows.last().isEmpty()) rows.removeLast();
    QList<QStringList> cells;
    for (const QString &row : rows)
        cells << row.split(separators.column);
    return cells;
}

} // namespace orvane
