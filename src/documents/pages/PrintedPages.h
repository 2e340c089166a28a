// The printed documents of the four modules that are text: each a whole RTF document with all sections in the order of
// their pages. Number, title, company and page numbers are the business of the header and footer round them.
#pragma once

#include <QString>

namespace orvane::pages
{

QString printedGuide();
QString printedManual();
QString printedProcedure();
QString printedTool();

} // namespace orvane::pages
