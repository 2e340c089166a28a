#include "platform/richtext/RtfTables.h"

#include "platform/richtext/RtfTokenizer.h"
#include <algorithm>
#include <utility>

namespace orvane
{

namespace
{

int clampedPart(int value)
{
    return std::clamp(value, 0, 255);
}

} // namespace

void RtfFontTable::beginEntry(int number)
{
    endEntry();
    m_entryOpen = true;
    m_entryNumber = number;
    m_entry = {{}, m_documentCodePage};
}

void RtfFontTable::setCharset(int charset)
{
    m_entry.codePage = codePageOfCharset(charset, m_documentCodePage);
}

// The name goes up to the semicolon.
void RtfFontTable::addText(QStringView text)
{
    const qsizetype end = text.indexOf(u';');
    const QStringView name = end < 0 ? text : text.left(end);
    if (m_entryOpen) m_entry.family.append(name.left(LongestName - m_entry.family.size()));
    if (end >= 0) endEntry();
}

void RtfFontTable::endEntry()
{
    if (!std::exchange(m_entryOpen, false)) return;
    m_entry.family = m_entry.family.simplified().removeIf([](QChar c) { return !isRtfTextCharacter(c.unicode()); });
    if (m_fonts.size() < MostFonts || m_fonts.contains(m_entryNumber)) m_fonts.insert(m_entryNumber, m_entry);
}

RtfFont RtfFontTable::font(int number) const
{
    const RtfFont none{{}, m_documentCodePage};
    return m_fonts.value(number, number == m_defaultNumber ? none : m_fonts.value(m_defaultNumber, none));
}

void RtfColourTable::setRed(int value)
{
    m_entry = qRgb(clampedPart(value), qGreen(m_entry), qBlue(m_entry));
}

void RtfColourTable::setGreen(int value)
{
    m_entry = qRgb(qRed(m_entry), clampedPart(value), qBlue(m_entry));
}

void RtfColourTable::setBlue(int value)
{
    m_entry = qRgb(qRed(m_entry), qGreen(m_entry), clampedPart(value));
}

void RtfColourTable::addText(QStringView text)
{
    for (qsizetype ends = text.count(u';'); ends > 0; --ends, ++m_number) {
        const QRgb colour = std::exchange(m_entry, 0);
        if (colour && m_colours.size() < MostColours) m_colours.insert(m_number, colour);
    }
}

} // namespace orvane
