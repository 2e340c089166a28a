// A long document of plain business prose, as rich text and as HTML of the same content.
#pragma once

#include <QString>

namespace bench
{

inline QString sentence(int paragraph, int number)
{
    return QStringLiteral(
               "Paragraph %1 says in sentence %2 what the plan asks of the people on the site, who does it, by "
               "when it has to be done and where the record of it is kept. ")
        .arg(paragraph)
        .arg(number);
}

inline constexpr int SentencesEach = 4;

inline QString longRtf(int paragraphs)
{
    QString rtf = QStringLiteral(R"({\rtf1\ansi\ansicpg1252\deff0\deftab720{\fonttbl{\f0\fswiss MS Sans Serif;})"
                                 R"({\f1\froman\fcharset2 Symbol;}{\f2\froman\fprq2 Times New Roman;}})"
                                 R"({\colortbl\red0\green0\blue0;}\deflang1033\pard)");
    for (int i = 0; i < paragraphs; ++i) {
        rtf +=
            QStringLiteral(R"(\plain\f2\fs24\b Heading )") + QString::number(i) + QStringLiteral(R"(\plain\f2\fs24  )");
        for (int j = 0; j < SentencesEach; ++j)
            rtf += sentence(i, j);
        rtf += QStringLiteral(R"(\par )");
    }
    return rtf + u'}';
}

inline QString longHtml(int paragraphs)
{
    QString html = QStringLiteral("<html><body style=\"font-family:'Times New Roman';font-size:12pt\">");
    for (int i = 0; i < paragraphs; ++i) {
        html += QStringLiteral("<p><b>Heading ") + QString::number(i) + QStringLiteral("</b> ");
        for (int j = 0; j < SentencesEach; ++j)
            html += sentence(i, j);
        html += QStringLiteral("</p>");
    }
    return html + QStringLiteral("</body></html>");
}

} // namespace bench
