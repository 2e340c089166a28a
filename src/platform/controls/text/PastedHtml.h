// Hypertext of other programs, made harmless before the toolkit reads it.
#pragma once

#include <QString>

namespace orvane
{

// The same text with the looks of its characters and paragraphs and its lists. Pictures, links, scripts and what else
// could name something outside are left out; each table cell is a paragraph, and the numbers of numbered lists are in
// the text. Elements that lie too deep lose their tags. The time is linear in the length.
QString tamedHtml(const QString &html);

} // namespace orvane
