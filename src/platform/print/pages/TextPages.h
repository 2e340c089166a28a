// The sheets of a text as a text browser shows it, with tables and shades.
#pragma once

#include "platform/print/pages/RecordedPage.h"

class QTextDocument;

namespace orvane
{

// As many as the text takes, numbered in the lower margin. No line is cut, and no heading is left behind. They can be
// drawn as long as the text lives.
std::shared_ptr<const RecordedPages> textPages(QTextDocument &text, const PageSetup &setup);

} // namespace orvane
