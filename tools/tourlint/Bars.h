// The bars of all windows, found by the names that scripts use.
#pragma once

#include "platform/controls/bars/ToolTable.h"

#include <QString>

namespace orvane::lint
{

struct BarRow {
    std::u16string_view window;
    std::u16string_view bar;
    BarTable bands;
};

std::span<const BarRow> bars();

// Null where there is none.
const BarRow *findBar(const QString &window, const QString &bar);
const BandRow *findBand(BarTable bands, const QString &name);
const ToolRow *findTool(BarTable bands, const QString &band, const QString &tool);

// The tag that a press reports. A link of the Action Tools drops the first of its four digits.
int reportedTag(const ToolRow &tool);

QString text(std::u16string_view view);

} // namespace orvane::lint
