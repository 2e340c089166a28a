// All tools that a script can press, as a table.
#pragma once

#include <QString>

namespace orvane::lint
{

// One line for each tool in the bars' stored order, under a line of column names; columns are separated by tabs.
QString toolList();

} // namespace orvane::lint
