// A printed form as its description file tells it: pages of rows, rows of cells, in pixels.
//
// A line of the file is an entry, or goes on with the one before if it begins with a blank. # begins a comment.
//
//     page                                 begins a page
//     columns 3 1                          shares the width among the cells of the rows that follow
//     gap 6                                leaves room
//     KIND HEIGHT | cell | cell            a row of one of the kinds below
//
// A cell is the printed words, then ~ and the words in hand, or ~~ and a signature. ^ before it sets it in the middle,
// ! in bold type. [ ] among the printed words is a box, [x] one that is ticked by hand.
#pragma once

#include <QString>
#include <vector>

namespace orvane::records
{

enum class RowKind {
    Band,  // white words on a dark ground: the form's name
    Title, // the name of a plainer form: large, without rules
    Head,  // headings on a tinted ground
    Row,   // ruled, to be filled in
    Note   // small words without rules
};

struct Word {
    enum Styles { Printed, Bold, Box, Ticked, Hand, Signature };

    QString text; // none of a box
    Styles style = Printed;
};

struct Cell {
    std::vector<Word> words;
    bool centered = false;
};

struct Row {
    RowKind kind = RowKind::Row;
    int line = 0;   // of the file
    int top = 0;    // from the top of the page
    int height = 0; // with the rule at its foot
    std::vector<Cell> cells;
    std::vector<double> shares; // of the width, one for each cell; they add up to 1
};

struct Page {
    std::vector<Row> rows;
};

// Throws FormError where the file breaks the rules above.
std::vector<Page> readForm(const QString &fileName);

} // namespace orvane::records
