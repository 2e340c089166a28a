// The control words that mean something here. All others are left out, and so is what they hold behind a "\*".
#pragma once

#include <QStringView>
#include <string_view>

namespace orvane
{

enum class RtfWord : unsigned char {
    // characters
    Plain,
    Font,
    FontSize,
    Colour,
    Bold,
    Italic,
    Underline,
    UnderlineNone,
    Raise,  // value: 1 up, -1 down
    Script, // value: RtfCharacters::Script
    // paragraphs
    ParagraphDefaults,
    Align, // value: Qt::AlignmentFlag
    LeftIndent,
    RightIndent,
    FirstIndent,
    SpaceBefore,
    SpaceAfter,
    TabStop,
    TabType, // value: QTextOption::TabType
    // text
    Character, // value: the character
    UnicodeCharacter,
    ParagraphBreak,
    PageBreak,
    // document
    FirstOfHeader,
    UnicodeSkip = FirstOfHeader,
    DocumentCodePage,
    DefaultFont,
    DefaultTab,
    // words of the tables and of the bullet group
    Charset,
    Red,
    Green,
    Blue,
    Bullet,
    BulletIndent,
    Numbered,
    // destinations: what a group is, when it begins with one
    FirstDestination,
    SkippedGroup = FirstDestination,
    FontTable,
    ColourTable,
    BulletGroup,
    BulletText,
    ListLabel,
    FieldResult,
};

struct RtfKeyword {
    std::string_view name;
    RtfWord word;
    int value = 0;
};

// Null for a word that means nothing here.
const RtfKeyword *findRtfKeyword(QStringView name);

} // namespace orvane
