// The part of the reader that acts on control words.
#include "platform/richtext/RtfReader.h"

#include <algorithm>
#include <utility>

namespace orvane
{

namespace
{

constexpr int MostSkipped = 255;

} // namespace

void RtfReader::takeWord(const RtfToken &token)
{
    const bool groupStart = std::exchange(m_groupStart, false);
    const bool starred = std::exchange(m_starred, false);
    const RtfKeyword *keyword = findRtfKeyword(token.text);
    const bool destination = keyword && keyword->word >= RtfWord::FirstDestination;
    if (starred && !destination) return skipRestOfGroup();
    if (!keyword) return;
    if (destination) {
        if (groupStart) enterDestination(keyword->word);
        return;
    }
    switch (m_group.destination) {
    case RtfGroup::Body:
    case RtfGroup::ListLabel:
        return applyToBody(*keyword, token);
    case RtfGroup::Fonts:
        return applyToFonts(keyword->word, token.value);
    case RtfGroup::Colours:
        return applyToColours(keyword->word, token.value);
    case RtfGroup::BulletDefinition:
        return m_group.applyToBullet(*keyword, token.value);
    }
}

void RtfReader::enterDestination(RtfWord word)
{
    if (m_group.destination != RtfGroup::Body) return skipRestOfGroup();
    switch (word) {
    case RtfWord::FontTable:
        m_group.destination = RtfGroup::Fonts;
        return;
    case RtfWord::ColourTable:
        m_group.destination = RtfGroup::Colours;
        return;
    case RtfWord::BulletGroup:
        return enterBulletDefinition();
    case RtfWord::ListLabel:
        m_group.destination = RtfGroup::ListLabel;
        m_label.clear();
        return;
    case RtfWord::FieldResult:
        return;
    // Numbers of a list are part of the text, bullets are not.
    case RtfWord::BulletText:
        if (!m_group.paragraph.numbered) skipRestOfGroup();
        return;
    default:
        return skipRestOfGroup();
    }
}

void RtfReader::enterBulletDefinition()
{
    m_group.destination = RtfGroup::BulletDefinition;
    m_group.paragraph.bullet = false;
    m_group.paragraph.numbered = false;
    m_group.paragraph.bulletIndent = 0;
}

void RtfReader::applyToBody(const RtfKeyword &keyword, const RtfToken &token)
{
    m_header = m_header && keyword.word >= RtfWord::FirstOfHeader;
    switch (keyword.word) {
    case RtfWord::Plain:
        return resetCharacters();
    case RtfWord::Font:
        return useFont(m_fonts.font(token.value));
    case RtfWord::Colour:
        m_group.characters.colour = m_colours.colour(token.value);
        return;
    case RtfWord::Character:
        return takeCharacter(char16_t(keyword.value));
    case RtfWord::ParagraphBreak:
        return endParagraph();
    case RtfWord::PageBreak:
        return breakPage();
    case RtfWord::UnicodeSkip:
        m_group.unicodeSkip = std::clamp(token.value, 0, MostSkipped);
        return;
    case RtfWord::UnicodeCharacter:
        takeCodePoint(token.value);
        m_skip = m_group.unicodeSkip;
        return;
    default:
        break;
    }
    m_group.applyToCharacters(keyword, token.value, token.hasValue);
    m_group.applyToParagraph(keyword, token.value);
    applyToDocument(keyword.word, token.value);
}

void RtfReader::applyToFonts(RtfWord word, int value)
{
    switch (word) {
    case RtfWord::Font:
        return m_fonts.beginEntry(value);
    case RtfWord::Charset:
        return m_fonts.setCharset(value);
    case RtfWord::UnicodeCharacter:
        takeCodePoint(value);
        m_skip = m_group.unicodeSkip;
        return;
    default:
        return;
    }
}

void RtfReader::applyToColours(RtfWord word, int value)
{
    switch (word) {
    case RtfWord::Red:
        return m_colours.setRed(value);
    case RtfWord::Green:
        return m_colours.setGreen(value);
    case RtfWord::Blue:
        return m_colours.setBlue(value);
    default:
        return;
    }
}

void RtfReader::applyToDocument(RtfWord word, int value)
{
    switch (word) {
    case RtfWord::DefaultFont:
        return m_fonts.setDefaultNumber(value);
    case RtfWord::DefaultTab:
        return m_builder.setDefaultTab(value);
    case RtfWord::DocumentCodePage:
        m_fonts.setDocumentCodePage(value);
        m_group.codePage = value;
        return;
    default:
        return;
    }
}

void RtfReader::useFont(const RtfFont &font)
{
    m_group.characters.family = font.family.isEmpty() ? m_documentFamily : font.family;
    m_group.codePage = font.codePage;
}

void RtfReader::resetCharacters()
{
    m_group.characters = {};
    useFont(m_fonts.defaultFont());
}

void RtfReader::endParagraph()
{
    if (m_group.destination == RtfGroup::Body) m_builder.endParagraph(labelledParagraph(), m_group.characters);
}

void RtfReader::breakPage()
{
    if (m_group.destination == RtfGroup::Body) m_builder.breakPage(labelledParagraph(), m_group.characters);
}

// A label is of one paragraph only.
RtfParagraph RtfReader::labelledParagraph()
{
    RtfParagraph paragraph = m_group.paragraph;
    paragraph.bullet |= std::exchange(m_labelBullet, false);
    return paragraph;
}

} // namespace orvane
