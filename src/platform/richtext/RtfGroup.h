// What an open group of an RTF document keeps for itself: the brace that closes it brings back what was before.
#pragma once

#include "platform/richtext/RtfCodePage.h"
#include "platform/richtext/RtfFormats.h"
#include "platform/richtext/RtfKeywords.h"

namespace orvane
{

struct RtfGroup {
    enum Destination { Body, Fonts, Colours, BulletDefinition, ListLabel };

    RtfCharacters characters;
    RtfParagraph paragraph;
    QTextOption::TabType tabType = QTextOption::LeftTab; // of the next tab stop
    int codePage = WesternCodePage;
    int unicodeSkip = 1; // characters that follow a "\u" for readers that don't know it
    Destination destination = Body;

    // Each takes the words that are its own, and is quiet at others. hasValue is false for a word without a number.
    void applyToCharacters(const RtfKeyword &keyword, int value, bool hasValue);
    void applyToParagraph(const RtfKeyword &keyword, int value);
    void applyToBullet(const RtfKeyword &keyword, int value);

private:
    void addTabStop(int position);
};

} // namespace orvane
