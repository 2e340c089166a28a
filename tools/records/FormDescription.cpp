#include "records/FormDescription.h"

#include "records/FormError.h"
#include "records/TextLines.h"

#include <QHash>
#include <QStringList>
#include <algorithm>
#include <numeric>
#include <optional>

namespace orvane::records
{

namespace
{

std::optional<RowKind> kindOf(const QString &word)
{
    static const QHash<QString, RowKind> kinds{{QStringLiteral("band"), RowKind::Band},
                                               {QStringLiteral("title"), RowKind::Title},
                                               {QStringLiteral("head"), RowKind::Head},
                                               {QStringLiteral("row"), RowKind::Row},
                                               {QStringLiteral("note"), RowKind::Note}};
    const auto found = kinds.find(word);
    return found == kinds.end() ? std::nullopt : std::optional(*found);
}

void addWords(Cell &cell, const QString &text, Word::Styles style)
{
    for (const QString &word : text.simplified().split(u' ', Qt::SkipEmptyParts))
        cell.words.push_back({word, style});
}

// A box's blank would part it into two words.
void addPrinted(Cell &cell, QString text, Word::Styles style)
{
    text.replace(QStringLiteral("[ ]"), QStringLiteral("[]"));
    for (const QString &word : text.simplified().split(u' ', Qt::SkipEmptyParts)) {
        if (word == QStringLiteral("[]"))
            cell.words.push_back({{}, Word::Box});
        else if (word == QStringLiteral("[x]"))
            cell.words.push_back({{}, Word::Ticked});
        else
            cell.words.push_back({word, style});
    }
}

Cell cellOf(QString text)
{
    Cell cell;
    text = text.trimmed();
    cell.centered = text.startsWith(u'^');
    if (cell.centered) text.remove(0, 1);
    const bool bold = text.startsWith(u'!');
    if (bold) text.remove(0, 1);
    addPrinted(cell, text.section(u'~', 0, 0), bold ? Word::Bold : Word::Printed);
    const QString hand = text.section(u'~', 1);
    const bool signature = hand.startsWith(u'~');
    addWords(cell, signature ? hand.mid(1) : hand, signature ? Word::Signature : Word::Hand);
    return cell;
}

class Reader
{
public:
    explicit Reader(const QString &fileName) : m_file(fileName) {}

    std::vector<Page> read()
    {
        for (const TextLine &line : readLines(m_file))
            readEntry(line);
        if (m_pages.empty()) throw FormError(m_file, 1, QStringLiteral("There is no page."));
        return m_pages;
    }

private:
    void readEntry(const TextLine &line)
    {
        m_line = line.number;
        const QString word = line.text.section(u' ', 0, 0);
        const QString rest = line.text.section(u' ', 1);
        if (word == QStringLiteral("page"))
            beginPage();
        else if (word == QStringLiteral("columns"))
            readColumns(rest);
        else if (m_pages.empty())
            refuse(QStringLiteral("A page has to come first."));
        else if (word == QStringLiteral("gap"))
            m_top += number(rest);
        else if (const auto kind = kindOf(word))
            readRow(*kind, rest);
        else
            refuse(QStringLiteral("\"%1\" is no entry.").arg(word));
    }

    void beginPage()
    {
        m_pages.emplace_back();
        m_top = 0;
    }

    void readColumns(const QString &text)
    {
        m_shares.clear();
        for (const QString &word : text.split(u' ', Qt::SkipEmptyParts))
            m_shares.push_back(number(word));
        const double all = std::accumulate(m_shares.begin(), m_shares.end(), 0.0);
        for (double &share : m_shares)
            share /= all;
    }

    void readRow(RowKind kind, const QString &text)
    {
        QStringList parts = text.split(u'|');
        Row row{kind, m_line, m_top, number(parts.takeFirst().trimmed()), {}, m_shares};
        for (const QString &part : parts)
            row.cells.push_back(cellOf(part));
        const size_t count = row.cells.size();
        if (count == 0) refuse(QStringLiteral("The row has no cells."));
        if (count == 1) row.shares = {1};
        if (count != row.shares.size())
            refuse(QStringLiteral("The row has %1 cells for %2 columns.").arg(count).arg(row.shares.size()));
        m_top += row.height;
        m_pages.back().rows.push_back(row);
    }

    int number(const QString &text) const
    {
        bool valid = false;
        const int value = text.toInt(&valid);
        if (!valid || value <= 0) refuse(QStringLiteral("\"%1\" is no length.").arg(text));
        return value;
    }

    [[noreturn]] void refuse(const QString &message) const { throw FormError(m_file, m_line, message); }

    QString m_file;
    std::vector<Page> m_pages;
    std::vector<double> m_shares{1};
    int m_top = 0;
    int m_line = 0;
};

} // namespace

std::vector<Page> readForm(const QString &fileName)
{
    return Reader(fileName).read();
}

} // namespace orvane::records
