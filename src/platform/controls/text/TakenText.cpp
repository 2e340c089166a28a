#include "platform/controls/text/TakenText.h"

#include "platform/controls/text/PastedHtml.h"
#include "platform/richtext/Rtf.h"
#include "platform/richtext/RtfTokenizer.h"
#include "platform/system/CodePage1252.h"

#include <QMimeData>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <algorithm>

namespace orvane
{

using namespace Qt::Literals::StringLiterals;

namespace
{
// Some seconds of reading at worst.
constexpr qsizetype LongestHtml = 1'000'000;
// A shelf of books; more would only keep the user waiting for its layout.
constexpr qsizetype LongestPlainText = 2'000'000;

bool readRtfOf(const QMimeData &data, QTextDocument &document)
{
    for (const QString &format : richTextFormats()) {
        const QString rtf = CodePage1252::decode(data.data(format));
        if (!isRtf(rtf)) continue;
        readRtf(rtf, document);
        if (!document.isEmpty()) return true;
    }
    return false;
}

// By way of RTF, so that nothing but what that keeps gets in.
bool readHtmlOf(const QMimeData &data, QTextDocument &document)
{
    const QString html = data.hasHtml() ? data.html() : QString();
    if (html.isEmpty() || html.size() > LongestHtml) return false;
    QTextDocument all;
    all.setUndoRedoEnabled(false);
    all.setDefaultFont(document.defaultFont());
    QTextCursor(&all).insertFragment(QTextDocumentFragment::fromHtml(tamedHtml(html)));
    if (all.isEmpty()) return false;
    readRtf(writeRtf(all), document);
    return !document.isEmpty();
}
} // namespace

QStringList richTextFormats()
{
    return {u"text/rtf"_s, u"application/rtf"_s, u"text/richtext"_s};
}

bool holdsRichText(const QMimeData &data)
{
    const QStringList formats = richTextFormats();
    return data.hasHtml() ||
           std::any_of(formats.begin(), formats.end(), [&](const QString &format) { return data.hasFormat(format); });
}

bool holdsPlainText(const QMimeData &data)
{
    return data.hasText();
}

bool readRichText(const QMimeData &data, QTextDocument &document)
{
    return readRtfOf(data, document) || readHtmlOf(data, document);
}

QString readPlainText(const QMimeData &data)
{
    QString text = data.text().left(LongestPlainText);
    text.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
    return text.removeIf([](QChar c) { return c != u'\n' && c != u'\t' && !isRtfTextCharacter(c.unicode()); });
}

} // namespace orvane
