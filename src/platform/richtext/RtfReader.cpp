#include "platform/richtext/RtfReader.h"

#include <QFont>
#include <QTextDocument>
#include <algorithm>
#include <utility>

namespace orvane
{

namespace
{

// Numbers have a letter or a digit. The ring of a list's second level comes as the letter of that look.
bool isBulletMark(QStringView mark)
{
    return mark == u"o" || std::none_of(mark.begin(), mark.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

} // namespace

RtfReader::RtfReader(QStringView text, QTextDocument &document)
    : m_tokenizer(text), m_builder(document), m_documentFamily(charactersOf(document.defaultFont()).family)
{
    resetCharacters();
}

void RtfReader::read()
{
    while (!m_over && !m_builder.isFull()) {
        RtfToken token = m_tokenizer.next();
        m_over = token.kind == RtfToken::End;
        if (!skips(token)) take(token);
    }
    m_builder.finish(labelledParagraph(), m_group.characters);
}

void RtfReader::take(const RtfToken &token)
{
    if (token.kind == RtfToken::Word) return takeWord(token);
    if (token.kind == RtfToken::Symbol && token.symbol == u'*' && m_groupStart) {
        m_starred = true;
        return;
    }
    m_groupStart = m_starred = false;
    switch (token.kind) {
    case RtfToken::Open:
        return openGroup();
    case RtfToken::Close:
        return closeGroup();
    case RtfToken::Symbol:
        return takeSymbol(token.symbol);
    case RtfToken::Byte:
        return takeByte(token.value);
    case RtfToken::Text:
        return takeText(token.text);
    default:
        return;
    }
}

// Behind a "\u" each character, byte and word counts as one; a brace ends the count.
bool RtfReader::skips(RtfToken &token)
{
    if (token.kind == RtfToken::Open || token.kind == RtfToken::Close) m_skip = 0;
    if (m_skip == 0) return false;
    const int count = token.kind == RtfToken::Text ? int(std::min<qsizetype>(m_skip, token.text.size())) : 1;
    m_skip -= count;
    if (token.kind == RtfToken::Text) token.text = token.text.sliced(count);
    return token.kind != RtfToken::Text || token.text.isEmpty();
}

void RtfReader::openGroup()
{
    if (m_outer.size() >= MostGroups) return m_tokenizer.skipGroup();
    m_outer.push_back(m_group);
    m_groupStart = true;
}

// What the outermost group ends with is what its last paragraph ends with, so it is not left.
void RtfReader::closeGroup()
{
    m_over = m_outer.size() <= 1;
    if (!m_over) leaveGroup();
}

void RtfReader::leaveGroup()
{
    const RtfGroup left = std::exchange(m_group, std::move(m_outer.back()));
    m_outer.pop_back();
    if (left.destination == m_group.destination) return;
    if (left.destination == RtfGroup::Fonts) {
        m_fonts.endEntry();
        useFont(m_fonts.defaultFont());
    }
    if (left.destination == RtfGroup::ListLabel) takeLabel(left);
    if (left.destination == RtfGroup::BulletDefinition) {
        m_group.paragraph.bullet = left.paragraph.bullet;
        m_group.paragraph.bulletIndent = left.paragraph.bulletIndent;
        m_group.paragraph.numbered = left.paragraph.numbered;
    }
}

// Programs that keep their lists in a table give each item its label for readers that don't know the table.
void RtfReader::takeLabel(const RtfGroup &label)
{
    const QString text = std::exchange(m_label, {});
    const QString mark = text.trimmed();
    if (mark.isEmpty()) return;
    if (label.codePage == SymbolCodePage || isBulletMark(mark))
        m_labelBullet = true;
    else
        m_builder.addText(text, label.characters);
}

void RtfReader::skipRestOfGroup()
{
    m_tokenizer.skipGroup();
    leaveGroup();
}

void RtfReader::takeSymbol(char16_t symbol)
{
    switch (symbol) {
    case u'\\':
    case u'{':
    case u'}':
    case u'\t':
        return takeCharacter(symbol);
    case u'~':
        return takeCharacter(QChar::Nbsp);
    case u'-':
        return takeCharacter(QChar::SoftHyphen);
    case u'_':
        return takeCharacter(0x2011);
    case u'\r':
    case u'\n':
        return endParagraph();
    default:
        return;
    }
}

void RtfReader::takeText(QStringView text)
{
    switch (m_group.destination) {
    case RtfGroup::Body:
        return takeBodyText(text);
    case RtfGroup::Fonts:
        return m_fonts.addText(text);
    case RtfGroup::Colours:
        return m_colours.addText(text);
    case RtfGroup::ListLabel:
        m_label += text;
        return;
    case RtfGroup::BulletDefinition:
        return;
    }
}

// Blanks between the tables of the header are no text.
void RtfReader::takeBodyText(QStringView text)
{
    while (m_header && text.startsWith(u' '))
        text = text.sliced(1);
    m_header = m_header && text.isEmpty();
    if (!text.isEmpty()) m_builder.addText(text, m_group.characters);
}

void RtfReader::takeByte(int byte)
{
    const bool inName = m_group.destination == RtfGroup::Fonts;
    const QChar character = characterOfByte(inName ? m_fonts.entryCodePage() : m_group.codePage, byte);
    if (isRtfTextCharacter(character.unicode())) takeCharacter(character.unicode());
}

void RtfReader::takeCharacter(char16_t character)
{
    const QChar text(character);
    takeText(QStringView(&text, 1));
}

// Numbers above 32767 come as negative ones, characters above 65535 as two surrogates; some writers do neither.
void RtfReader::takeCodePoint(int value)
{
    const char32_t code = value < 0 && value >= -0x8000 ? char32_t(value + 0x10000) : char32_t(value);
    if (code <= 0xFFFF && isRtfTextCharacter(char16_t(code))) return takeCharacter(char16_t(code));
    if (code <= 0xFFFF || code > QChar::LastValidCodePoint) return;
    takeCharacter(QChar::highSurrogate(code));
    takeCharacter(QChar::lowSurrogate(code));
}

} // namespace orvane
