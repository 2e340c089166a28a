#include "platform/controls/text/HtmlTags.h"

#include <algorithm>

namespace orvane
{

using namespace Qt::Literals::StringLiterals;

namespace
{
template <class Condition>
qsizetype lengthWhile(QStringView text, Condition holds)
{
    return std::find_if_not(text.begin(), text.end(), holds) - text.begin();
}

bool isBlank(QChar c)
{
    return c.isSpace();
}

// Behind the text found, or the end.
qsizetype behind(QStringView text, QStringView found)
{
    const qsizetype at = text.indexOf(found, 0, Qt::CaseInsensitive);
    return at < 0 ? text.size() : at + found.size();
}
} // namespace

QStringView HtmlTags::take(qsizetype length)
{
    const QStringView taken = m_rest.left(length);
    m_rest = m_rest.sliced(taken.size());
    return taken;
}

// A "<" that no name follows is text.
bool HtmlTags::opens() const
{
    const QStringView behindBracket = m_rest.sliced(1);
    const QStringView name = behindBracket.startsWith(u'/') ? behindBracket.sliced(1) : behindBracket;
    return !name.isEmpty() && name.front().isLetter();
}

QString HtmlTags::textBefore()
{
    QString text;
    while (!m_rest.isEmpty()) {
        text += take(lengthWhile(m_rest, [](QChar c) { return c != u'<'; }));
        if (m_rest.isEmpty() || opens()) break;
        if (m_rest.startsWith(u"<!--"))
            take(behind(m_rest, u"-->"));
        else if (m_rest.startsWith(u"<!") || m_rest.startsWith(u"<?"))
            take(behind(m_rest, u">"));
        else if (take(1) == u"<")
            text += "&lt;"_L1;
    }
    return text;
}

QStringView HtmlTags::takeName()
{
    return take(lengthWhile(m_rest, [](QChar c) { return !c.isSpace() && !u"<>/=\"'"_s.contains(c); }));
}

QString HtmlTags::takeValue()
{
    take(lengthWhile(m_rest, isBlank));
    const QChar quote = m_rest.isEmpty() ? QChar() : m_rest.front();
    if (quote != u'"' && quote != u'\'')
        return take(lengthWhile(m_rest, [](QChar c) { return !c.isSpace() && c != u'>'; })).toString();
    take(1);
    const QString value = take(lengthWhile(m_rest, [quote](QChar c) { return c != quote; })).toString();
    take(1);
    return value;
}

HtmlTag HtmlTags::tag()
{
    HtmlTag tag;
    if (m_rest.isEmpty()) return tag;
    take(1);
    tag.closing = m_rest.startsWith(u'/');
    if (tag.closing) take(1);
    tag.name = takeName().toString().toLower();
    while (!m_rest.isEmpty() && !m_rest.startsWith(u'>')) {
        tag.closed = m_rest.startsWith(u'/');
        HtmlAttribute attribute{takeName().toString().toLower(), {}};
        if (attribute.name.isEmpty() && !m_rest.startsWith(u'=')) take(1);
        const qsizetype blanks = lengthWhile(m_rest, isBlank);
        if (!m_rest.sliced(blanks).startsWith(u'=')) continue;
        take(blanks + 1);
        attribute.value = takeValue();
        if (!attribute.name.isEmpty()) tag.attributes.append(attribute);
    }
    take(1);
    return tag;
}

void HtmlTags::skipContent(const QString &name)
{
    take(behind(m_rest, u"</"_s + name));
    take(behind(m_rest, u">"));
}

} // namespace orvane
