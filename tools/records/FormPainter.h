// Draws the pages of a form, empty or filled in.
#pragma once

#include "records/FormDescription.h"
#include "records/Lettering.h"

#include <QPainter>

namespace orvane::records
{

class FormPainter
{
public:
    enum States { Blank, Completed };

    FormPainter(QPainter &painter, const QString &formName, States state);

    // From that height of the picture on. Both states have the same rules and printed words. Throws FormError where the
    // words don't fit their cell, or the rows the room.
    void draw(const Page &page, int top, int room);

private:
    struct PlacedWord {
        const Word *word;
        double x; // from the left of the cell's inside
        double width;
        int line;
    };

    void drawRow(const Row &row, int top);
    void drawGround(const Row &row, int left, int top, int width);
    void drawCell(const Row &row, const Cell &cell, const QRect &place);
    static double gapBefore(const Row &row, const Word *previous, const Word &word);
    std::vector<PlacedWord> placeWords(const Row &row, const Cell &cell, double room) const;
    void drawWord(const Row &row, const PlacedWord &placed, const QPointF &baseline);
    void drawBox(const QPointF &baseline, bool ticked);
    double widthOf(const Row &row, const Word &word) const;
    [[noreturn]] void refuse(const Row &row, const QString &message) const;

    QPainter &m_painter;
    QString m_form;
    States m_state;
    Lettering m_print;
    Lettering m_boldPrint;
    Lettering m_hand;
    std::minstd_rand m_chance; // always from the same start
};

} // namespace orvane::records
