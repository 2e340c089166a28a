// The plain text of a document, character for character: a line or paragraph end is one line feed, and a hard blank
// stays one, which the toolkit's own conversion makes a blank.
#pragma once

#include <QTextDocument>

namespace orvane
{

inline QString textOf(const QTextDocument &document)
{
    constexpr char16_t FrameBegin = 0xFDD0; // as the toolkit marks it
    constexpr char16_t FrameEnd = 0xFDD1;
    QString text = document.toRawText();
    for (const char16_t end :
         {char16_t(QChar::ParagraphSeparator), char16_t(QChar::LineSeparator), FrameBegin, FrameEnd})
        text.replace(QChar(end), u'\n');
    return text;
}

} // namespace orvane
