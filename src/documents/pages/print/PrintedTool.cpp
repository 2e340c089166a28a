// The tool has one page, so its print is that page.
#include "documents/pages/PrintedPages.h"
#include "documents/pages/ToolPages.h"

namespace orvane::pages
{

QString printedTool()
{
    return actionTool();
}

} // namespace orvane::pages
