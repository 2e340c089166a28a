#include "HandOut.h"

#include <QFile>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace orvane::walk
{

namespace
{
constexpr QLatin1StringView Head =
    "<!DOCTYPE html>\n<html lang=\"en-US\">\n<head>\n<meta charset=\"utf-8\">\n<title>The guided tour of "
    "orvane</title>\n"
    "<style>\n"
    "body { font: 11pt/1.45 Arial, sans-serif; color: #222; max-width: 60em; margin: 2em auto; padding: 0 1em; }\n"
    "section { break-inside: avoid; border-top: 1px solid #bbb; padding: 1em 0; }\n"
    "img { max-width: 100%; border: 1px solid #bbb; }\n"
    "code { font-size: 9pt; overflow-wrap: anywhere; }\n"
    "dl { display: grid; grid-template-columns: 4em 1fr; font-size: 9pt; }\n"
    "dd { margin: 0; }\n"
    ".complaint { color: #a00; font-weight: bold; }\n"
    "@media print { body { margin: 0; } img { max-height: 15cm; } }\n"
    "</style>\n</head>\n<body>\n<h1>The guided tour of orvane</h1>\n"_L1;

QString scripts(const Entry &entry)
{
    if (entry.next.isEmpty() && entry.back.isEmpty()) return {};
    return u"<dl><dt>Next</dt><dd><code>%1</code></dd><dt>Back</dt><dd><code>%2</code></dd></dl>\n"_s.arg(
        entry.next.toHtmlEscaped(), entry.back.toHtmlEscaped());
}
} // namespace

void HandOut::add(const Entry &entry, const QPixmap &picture)
{
    const QString file = u"%1-%2.png"_s.arg(pictures(), 2, 10, QLatin1Char('0')).arg(entry.name);
    m_pages.push_back({entry, file, {}});
    if (!picture.save(m_folder.filePath(file))) complain(u"\"%1\" can't be written."_s.arg(m_folder.filePath(file)));
}

void HandOut::addDocument(const QString &fileName, const QString &title)
{
    m_documents << u"<li><a href=\"%1\">%2</a></li>\n"_s.arg(fileName.toHtmlEscaped(), title.toHtmlEscaped());
}

void HandOut::complain(const QString &complaint)
{
    ++m_complaints;
    if (!m_pages.empty()) m_pages.back().complaints << complaint;
    std::fputs(qUtf8Printable(u"tourwalk: "_s + complaint + u'\n'), stderr);
}

bool HandOut::write()
{
    QFile file(m_folder.filePath(u"index.html"_s));
    const QByteArray bytes = html().toUtf8();
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush()) return true;
    complain(u"\"%1\" can't be written: %2"_s.arg(file.fileName(), file.errorString()));
    return false;
}

QString HandOut::html() const
{
    QString text = Head;
    for (const Page &page : m_pages)
        text += html(page);
    if (!m_documents.isEmpty())
        text += u"<section>\n<h2>The documents</h2>\n<ul>\n"_s + m_documents.join(QString()) + u"</ul>\n</section>\n"_s;
    return text + u"</body>\n</html>\n"_s;
}

QString HandOut::html(const Page &page) const
{
    QString text = u"<section>\n<h2>"_s + page.entry.heading.toHtmlEscaped() + u"</h2>\n"_s + page.entry.body +
                   u"\n<p><img src=\""_s + page.file.toHtmlEscaped() + u"\" alt=\""_s +
                   page.entry.seen.toHtmlEscaped() + u"\"></p>\n"_s + scripts(page.entry);
    for (const QString &complaint : page.complaints)
        text += u"<p class=\"complaint\">"_s + complaint.toHtmlEscaped() + u"</p>\n"_s;
    return text + u"</section>\n"_s;
}

} // namespace orvane::walk
