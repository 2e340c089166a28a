// The documents of the five modules, printed into PDF files.
#pragma once

#include "HandOut.h"

#include <QDir>

namespace orvane::walk
{

// Through each module's own print tool, the preview and the PDF file printer.
void printDocuments(const QDir &folder, HandOut &handOut);

} // namespace orvane::walk
