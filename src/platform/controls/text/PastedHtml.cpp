#include "platform/controls/text/PastedHtml.h"

#include "platform/controls/text/HtmlTags.h"

#include <QStringList>

namespace orvane
{

using namespace Qt::Literals::StringLiterals;

namespace
{
// The toolkit's reader looks at all elements round each one.
constexpr qsizetype DeepestElement = 60;

bool isOf(const QString &name, const QStringList &names)
{
    return names.contains(name);
}

bool hasNoText(const QString &name)
{
    static const QStringList names{u"script"_s,   u"style"_s, u"title"_s,  u"svg"_s,   u"math"_s,
                                   u"noscript"_s, u"head"_s,  u"select"_s, u"object"_s};
    return isOf(name, names);
}

// The toolkit's own name for an element with looks, "div" for another that stands on lines of its own, or nothing.
QString keptAs(const QString &name)
{
    static const QStringList kept{
        u"a"_s,   u"b"_s,     u"big"_s, u"blockquote"_s, u"center"_s, u"code"_s, u"del"_s, u"div"_s, u"em"_s, u"font"_s,
        u"h1"_s,  u"h2"_s,    u"h3"_s,  u"h4"_s,         u"h5"_s,     u"h6"_s,   u"i"_s,   u"ins"_s, u"li"_s, u"p"_s,
        u"pre"_s, u"small"_s, u"s"_s,   u"span"_s,       u"strong"_s, u"sub"_s,  u"sup"_s, u"tt"_s,  u"u"_s,  u"ul"_s};
    static const QStringList blocks{u"address"_s, u"article"_s, u"aside"_s,  u"caption"_s, u"dd"_s,  u"dt"_s,
                                    u"dl"_s,      u"footer"_s,  u"header"_s, u"main"_s,    u"nav"_s, u"ol"_s,
                                    u"section"_s, u"table"_s,   u"td"_s,     u"th"_s,      u"tr"_s,  u"figure"_s};
    if (isOf(name, kept)) return name;
    return isOf(name, blocks) ? u"div"_s : QString();
}

QString attributesOf(const HtmlTag &tag)
{
    static const QStringList looks{u"align"_s, u"color"_s, u"dir"_s, u"face"_s, u"size"_s, u"style"_s};
    QString text;
    for (const HtmlAttribute &attribute : tag.attributes) {
        if (!isOf(attribute.name, looks) || attribute.value.contains("url"_L1, Qt::CaseInsensitive)) continue;
        QString value = attribute.value;
        value.replace(u'"', "&quot;"_L1).replace(u'<', "&lt;"_L1).replace(u'>', "&gt;"_L1);
        text += u' ' + attribute.name + "=\""_L1 + value + u'"';
    }
    return text;
}

class HtmlTamer
{
public:
    QString tamed(const HtmlTag &tag);

private:
    struct Element {
        QString name;
        QString end;  // its closing tag in the tamed text
        int item = 0; // the number of the last item of a numbered list
    };

    QString opened(const HtmlTag &tag);
    QString closedTo(qsizetype depth);
    QString closedOf(const QString &name);

    QList<Element> m_open;
};

QString HtmlTamer::tamed(const HtmlTag &tag)
{
    if (tag.name == "br"_L1 || tag.name == "hr"_L1) return u"<br>"_s;
    if (keptAs(tag.name).isEmpty()) return {};
    return tag.closing ? closedOf(tag.name) : opened(tag);
}

QString HtmlTamer::opened(const HtmlTag &tag)
{
    // These end the one before of their kind, which few pages trouble to close.
    const bool follows =
        !m_open.isEmpty() && m_open.last().name == tag.name && isOf(tag.name, {u"p"_s, u"li"_s, u"td"_s});
    QString text = follows ? closedTo(m_open.size() - 1) : QString();
    const bool numbered = tag.name == "li"_L1 && !m_open.isEmpty() && m_open.last().name == "ol"_L1;
    const QString kept = numbered ? u"div"_s : keptAs(tag.name);
    const bool tooDeep = m_open.size() >= DeepestElement;
    if (!tooDeep) text += u'<' + kept + attributesOf(tag) + u'>';
    if (numbered) text += QString::number(++m_open.last().item) + ". "_L1;
    if (tag.closed || tooDeep) return text;
    m_open.append({tag.name, "</"_L1 + kept + u'>'});
    return text;
}

QString HtmlTamer::closedTo(qsizetype depth)
{
    QString text;
    while (m_open.size() > depth)
        text += m_open.takeLast().end;
    return text;
}

// An end without a beginning is left out.
QString HtmlTamer::closedOf(const QString &name)
{
    for (qsizetype at = m_open.size() - 1; at >= 0; --at)
        if (m_open.at(at).name == name) return closedTo(at);
    return {};
}
} // namespace

QString tamedHtml(const QString &html)
{
    HtmlTags tags(html);
    HtmlTamer tamer;
    QString text;
    for (;;) {
        text += tags.textBefore();
        const HtmlTag tag = tags.tag();
        if (tag.name.isEmpty()) return text;
        if (!tag.closing && !tag.closed && hasNoText(tag.name))
            tags.skipContent(tag.name);
        else
            text += tamer.tamed(tag);
    }
}

} // namespace orvane
