// The entries of a description file.
#pragma once

#include <QString>
#include <vector>

namespace orvane::records
{

struct TextLine {
    int number = 0; // from 1, of the line that the entry begins in
    QString text;
};

// Comments and empty lines are left out; a line that begins with a blank goes on with the one before. Throws FormError
// where there is no such file.
std::vector<TextLine> readLines(const QString &fileName);

} // namespace orvane::records
