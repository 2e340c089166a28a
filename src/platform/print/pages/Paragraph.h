// A paragraph laid out in lines, in twips: the lines break the same on every screen, at every zoom and on paper.
#pragma once

#include <QTextLayout>
#include <memory>
#include <optional>

class QPainter;
class QTextBlock;

namespace orvane
{

class Paragraph
{
public:
    // A paragraph of a rich text in a column of this width.
    Paragraph(const QTextBlock &block, double width);
    // Plain text. A line end in it ends a line; lines that reach below the greatest height are left out.
    Paragraph(const QString &text, const QFont &font, Qt::Alignment alignment, double width, double greatestHeight);

    int lines() const { return m_layout.lineCount(); }
    double height(int line) const { return m_layout.lineAt(line).height(); }
    double height() const; // of all lines
    double spaceBefore() const { return m_before; }
    double spaceAfter() const { return m_after; }

    bool isBlank() const;
    bool isHeading() const { return m_heading; } // belongs to the text behind it
    bool startsPage() const { return m_startsPage; }

    // These lines, the first of them with its top at the place; the place's x is the column's left edge.
    void draw(QPainter &painter, const QPointF &place, int firstLine, int count) const;
    // What the lines say, with the bullet and without the blanks at which they break.
    QString text(int firstLine, int count) const;

private:
    void breakLines(double width, double firstIndent, double greatestHeight);
    void makeBullet(const QTextBlock &block);

    QTextLayout m_layout;
    std::unique_ptr<QTextLayout> m_bullet;
    double m_left = 0;
    double m_before = 0;
    double m_after = 0;
    bool m_heading = false;
    bool m_startsPage = false;
};

// The font in twips instead of points, measured as its outlines are drawn.
QFont fontInTwips(const QString &family, double points);

} // namespace orvane
