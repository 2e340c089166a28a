#include "platform/richtext/RtfGroup.h"

#include <algorithm>

namespace orvane
{

namespace
{

constexpr int UsualRaise = 6;

int clampedLength(int twips)
{
    return std::clamp(twips, -LargestLengthTwips, LargestLengthTwips);
}

int clampedSize(int halfPoints)
{
    return halfPoints <= 0 ? RtfCharacters().size : std::clamp(halfPoints, SmallestHalfPoints, LargestHalfPoints);
}

} // namespace

void RtfGroup::applyToCharacters(const RtfKeyword &keyword, int value, bool hasValue)
{
    const bool on = !hasValue || value != 0;
    const int raise = hasValue ? value : UsualRaise;
    switch (keyword.word) {
    case RtfWord::FontSize:
        characters.size = clampedSize(value);
        break;
    case RtfWord::Bold:
        characters.bold = on;
        break;
    case RtfWord::Italic:
        characters.italic = on;
        break;
    case RtfWord::Underline:
        characters.underline = on;
        break;
    case RtfWord::UnderlineNone:
        characters.underline = false;
        break;
    case RtfWord::Raise:
        characters.raise = keyword.value * std::clamp(raise, -LargestHalfPoints, LargestHalfPoints);
        break;
    case RtfWord::Script:
        characters.script = RtfCharacters::Script(keyword.value);
        break;
    default:
        break;
    }
}

void RtfGroup::applyToParagraph(const RtfKeyword &keyword, int value)
{
    switch (keyword.word) {
    case RtfWord::ParagraphDefaults:
        paragraph = {};
        break;
    case RtfWord::Align:
        paragraph.alignment = Qt::AlignmentFlag(keyword.value);
        break;
    case RtfWord::LeftIndent:
        paragraph.left = clampedLength(value);
        break;
    case RtfWord::RightIndent:
        paragraph.right = clampedLength(value);
        break;
    case RtfWord::FirstIndent:
        paragraph.first = clampedLength(value);
        break;
    case RtfWord::SpaceBefore:
        paragraph.before = clampedLength(value);
        break;
    case RtfWord::SpaceAfter:
        paragraph.after = clampedLength(value);
        break;
    case RtfWord::TabType:
        tabType = QTextOption::TabType(keyword.value);
        break;
    case RtfWord::TabStop:
        addTabStop(value);
        break;
    default:
        break;
    }
}

void RtfGroup::applyToBullet(const RtfKeyword &keyword, int value)
{
    switch (keyword.word) {
    case RtfWord::Bullet:
        paragraph.bullet = true;
        break;
    case RtfWord::Numbered:
        paragraph.numbered = true;
        break;
    case RtfWord::BulletIndent:
        paragraph.bulletIndent = std::clamp(value, 0, LargestLengthTwips);
        break;
    default:
        break;
    }
}

void RtfGroup::addTabStop(int position)
{
    if (position > 0 && paragraph.tabs.size() < MostTabs)
        paragraph.tabs.append({std::min(position, LargestLengthTwips), tabType});
    tabType = QTextOption::LeftTab;
}

} // namespace orvane
