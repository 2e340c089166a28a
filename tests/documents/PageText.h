// How the tests look at a page: the pieces that recur in it, its paragraphs, its bullets and its plain text.
#pragma once

#include <QRegularExpression>
#include <QStringList>

namespace pagetext
{

using namespace Qt::Literals::StringLiterals;

inline QString header()
{
    return uR"({\rtf1\ansi\ansicpg1252\deff0\deftab720{\fonttbl{\f0\fswiss MS Sans Serif;})"
           uR"({\f1\froman\fcharset2 Symbol;}{\f2\froman\fprq2 Times New Roman;}})"_s;
}

inline QString colourTable()
{
    return uR"({\colortbl\red0\green0\blue0;})"_s;
}

inline QString stepFrame()
{
    return header() + colourTable();
}

inline QString spacedFrame()
{
    return header() + u' ' + colourTable() + u' ';
}

inline QString bulletList()
{
    return uR"({\*\pn\pnlvlblt\pnf1\pnindent360{\pntxtb\'b7}}\plain\f2\fs24 {\pntext\f1\'b7\tab})"_s;
}

inline QString bulletOpening()
{
    return uR"({\pntext\f1\'b7\tab})"_s;
}

// What stands behind the frame, paragraph by paragraph.
inline QStringList paragraphs(const QString &page)
{
    const qsizetype start = page.indexOf(uR"(\deflang)"_s);
    const QString body = page.sliced(start, page.lastIndexOf(uR"(\par })"_s) - start);
    return body.split(QRegularExpression(uR"(\\par(?![a-z]) ?)"_s));
}

inline QString plainText(QString rtf)
{
    rtf.remove(QRegularExpression(uR"(\{\\(\*|pntext)(\{[^{}]*\}|[^{}])*\})"_s));
    rtf.replace(QRegularExpression(uR"(\\tab ?)"_s), u"\t"_s);
    rtf.replace(uR"(\'85)"_s, QString(QChar(0x2026)));
    rtf.replace(uR"(\'92)"_s, QString(QChar(0x2019)));
    return rtf.remove(QRegularExpression(uR"(\\[a-z]+-?\d* ?)"_s));
}

inline qsizetype sentences(const QString &paragraph)
{
    static const QRegularExpression end(u"[.!?](?= |$)"_s);
    return plainText(paragraph).count(end);
}

inline QStringList bullets(const QString &page)
{
    return paragraphs(page).filter(bulletOpening());
}

} // namespace pagetext
