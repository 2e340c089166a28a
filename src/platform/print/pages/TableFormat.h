// The language of tables. A format is columns parted by the column separator, up to the row separator: an alignment
// mark ("<" left, "^" centred, ">" right), "+", and a width in twips, as in "<+3500|>+1200;". A text is rows ended by
// the row separator, of cells parted by the column separator; a cell can't hold either.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace orvane
{

struct TableSeparators {
    QChar column = u'|';
    QChar row = u';';
};

struct TableColumn {
    Qt::Alignment alignment;
    int width = 0; // twips, a 16-bit integer; nothing of a column is shown where it isn't above 0
};

// Any text is taken. A column without a mark has the alignment of the text, one without a number no width.
QList<TableColumn> readTableFormat(const QString &format, TableSeparators separators, Qt::Alignment textAlignment);

// The last row needn't be ended.
QList<QStringList> readTableRows(const QString &text, TableSeparators separators);

} // namespace orvane
