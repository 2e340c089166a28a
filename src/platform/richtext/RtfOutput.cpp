#include "platform/richtext/RtfOutput.h"

#include "platform/richtext/RtfTokenizer.h"
#include "platform/system/CodePage1252.h"
#include <algorithm>

namespace orvane
{

using namespace Qt::Literals::StringLiterals;

namespace
{

bool isPlain(QChar c)
{
    return c >= u' ' && c < u'\x7F' && c != u'\\' && c != u'{' && c != u'}';
}

QString symbolFor(char16_t character)
{
    switch (character) {
    case u'\\':
    case u'{':
    case u'}':
        return u'\\' + QString(QChar(character));
    case QChar::Nbsp:
        return u"\\~"_s;
    case QChar::SoftHyphen:
        return u"\\-"_s;
    case 0x2011:
        return u"\\_"_s;
    default:
        return {};
    }
}

QString byteFor(QChar character)
{
    return u"\\'"_s + QString::fromLatin1(CodePage1252::encode(QStringView(&character, 1)).toHex());
}

} // namespace

void RtfOutput::addCodes(const QString &codes)
{
    if (codes.isEmpty()) return;
    m_text += codes;
    m_afterWord = !codes.endsWith(u'}');
}

void RtfOutput::addText(QStringView text)
{
    while (!text.isEmpty()) {
        const auto *special = std::find_if_not(text.begin(), text.end(), isPlain);
        addPlain(text.left(special - text.begin()));
        if (special != text.end()) addSpecial(special->unicode());
        text = text.sliced(std::min<qsizetype>(special - text.begin() + 1, text.size()));
    }
}

void RtfOutput::addPlain(QStringView plain)
{
    if (plain.isEmpty()) return;
    // Some programs take whatever comes right behind a word for its end.
    if (m_afterWord) m_text += u' ';
    m_text += plain;
    m_afterWord = false;
}

void RtfOutput::addSpecial(char16_t character)
{
    if (character == u'\t') return addCodes(u"\\tab"_s);
    if (character == QChar::LineSeparator) return addCodes(u"\\line"_s);
    if (!isRtfTextCharacter(character)) return;
    const QString symbol = symbolFor(character);
    if (symbol.isEmpty() && !CodePage1252::hasCode(QChar(character))) return addUnicode(character);
    m_text += symbol.isEmpty() ? byteFor(QChar(character)) : symbol;
    m_afterWord = false;
}

void RtfOutput::addUnicode(char16_t character)
{
    addCodes(u"\\u%1"_s.arg(static_cast<qint16>(character)));
    m_hasUnicode = true;
}

} // namespace orvane
