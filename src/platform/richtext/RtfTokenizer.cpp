#include "platform/richtext/RtfTokenizer.h"

#include <QString>
#include <algorithm>
#include <limits>

namespace orvane
{

namespace
{

constexpr int LongestWord = 32;

bool isLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

int hexDigit(QChar c)
{
    if (isDigit(c)) return c.unicode() - u'0';
    if (c >= u'a' && c <= u'f') return c.unicode() - u'a' + 10;
    if (c >= u'A' && c <= u'F') return c.unicode() - u'A' + 10;
    return -1;
}

} // namespace

bool isRtfTextCharacter(char16_t character)
{
    if (character < 0x20) return false;
    if (character < 0x2029) return true;
    const bool frameMark = character >= 0xFDD0 && character <= 0xFDEF;
    return character != 0x2029 && character < 0xFFFC && !frameMark;
}

RtfToken RtfTokenizer::next()
{
    while (m_at != m_end) {
        const char16_t c = m_at->unicode();
        if (c == u'{' || c == u'}') {
            ++m_at;
            return {c == u'{' ? RtfToken::Open : RtfToken::Close, {}, 0, false, 0};
        }
        if (c == u'\\') return backslash();
        if (isRtfTextCharacter(c)) return characters();
        ++m_at;
        if (c == u'\t') return {RtfToken::Symbol, {}, 0, false, c};
    }
    return {};
}

void RtfTokenizer::skipGroup()
{
    for (qsizetype depth = 1; depth > 0;) {
        const RtfToken token = next();
        if (token.kind == RtfToken::End) return;
        if (token.kind == RtfToken::Open) ++depth;
        if (token.kind == RtfToken::Close) --depth;
    }
}

RtfToken RtfTokenizer::backslash()
{
    if (++m_at == m_end) return {};
    if (isLetter(*m_at)) return word();
    const char16_t symbol = (m_at++)->unicode();
    if (symbol == u'\'') return byte();
    return {RtfToken::Symbol, {}, 0, false, symbol};
}

RtfToken RtfTokenizer::word()
{
    const QChar *start = m_at;
    m_at = std::find_if_not(m_at, m_end, isLetter);
    RtfToken token{RtfToken::Word, {}, 0, false, 0};
    if (m_at - start <= LongestWord) token.text = QStringView(start, m_at);
    const bool minus = m_end - m_at > 1 && *m_at == u'-' && isDigit(m_at[1]);
    if (minus) ++m_at;
    token.hasValue = m_at != m_end && isDigit(*m_at);
    if (token.hasValue) token.value = minus ? -number() : number();
    if (m_at != m_end && *m_at == u' ') ++m_at;
    // Raw bytes follow this word, braces among them, wherever it stands.
    if (token.value > 0 && token.text == QLatin1StringView("bin"))
        m_at += std::min<qsizetype>(token.value, m_end - m_at);
    return token;
}

int RtfTokenizer::number()
{
    constexpr qint64 most = std::numeric_limits<int>::max();
    qint64 value = 0;
    for (; m_at != m_end && isDigit(*m_at); ++m_at)
        value = std::min<qint64>(value * 10 + (m_at->unicode() - u'0'), most);
    return int(value);
}

// Bad digits stay in the text: only what is part of the byte is taken.
RtfToken RtfTokenizer::byte()
{
    int value = 0;
    for (int digits = 0; digits < 2; ++digits, ++m_at) {
        const int digit = m_at == m_end ? -1 : hexDigit(*m_at);
        if (digit < 0) return {RtfToken::Symbol, {}, 0, false, u'\''};
        value = value * 16 + digit;
    }
    return {RtfToken::Byte, {}, value, true, 0};
}

RtfToken RtfTokenizer::characters()
{
    const QChar *start = m_at;
    m_at = std::find_if(
        m_at, m_end, [](QChar c) { return c == u'\\' || c == u'{' || c == u'}' || !isRtfTextCharacter(c.unicode()); });
    return {RtfToken::Text, QStringView(start, m_at), 0, false, 0};
}

} // namespace orvane
