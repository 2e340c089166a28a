// What stands on each page beside the document, and the pieces of a document that is put together in rtfPrint.
//
// Texts are joined into rows as they are: one that holds "|" or ";" breaks its row.

#include "printing/frmPrint.h"

#include <algorithm>
#include <limits>

namespace orvane
{

namespace
{
constexpr double HeaderOffset = 800; // twips, as all widths here
constexpr double HeaderFirstColumn = 2250;
constexpr double FooterFirstColumn = 3500;
constexpr double FooterLastColumn = 1500;
constexpr double LegalLastColumn = 1900;
constexpr double WidthTrim = 2;
constexpr int SecondRowShade = 0xE0E0E0;
constexpr double LegalPoints = 8;
constexpr double PointsAfterwards = 11.25;
constexpr int NoTableBorder = 0;
constexpr int BorderAfterwards = 7;

// A width is a 16-bit integer. There is paper that leaves a column more room than that.
QString widthText(double twips)
{
    using Width = std::numeric_limits<qint16>;
    return QString::number(static_cast<qint16>(std::clamp<double>(twips, Width::min(), Width::max())));
}

QString opening()
{
    return QStringLiteral(R"({\rtf1\ansi\deff0\deftab720{\fonttbl{\f0\fswiss MS Sans Serif;})"
                          R"({\f1\froman\fcharset2 Symbol;}{\f2\froman\fprq2 Times New Roman;}})"
                          R"({\colortbl\red0\green0\blue0;}\deflang1033\pard)");
}

QString spacer()
{
    return QStringLiteral(R"({\rtf1\ansi\deff0\deftab720{\fonttbl{\f0\fswiss MS Sans Serif;})"
                          R"({\f1\froman\fcharset2 Symbol;}{\f2\froman\fprq2 Times New Roman;}{\f3\fswiss Arial;}})"
                          R"({\colortbl\red0\green0\blue0;}\deflang1033\par \pard\plain\f2\fs20\par \par })");
}
} // namespace

void frmPrint::vs_HeaderBand()
{
    tool(QStringLiteral("PageNumber")).setText(QString::number(vs.CurrentPage()));
    vs.setCurrentX(vs.MarginLeft());
    vs.setCurrentY(vs.MarginTop() - HeaderOffset);
    const double column = usableWidth() - HeaderFirstColumn - WidthTrim;
    const QString format = QStringLiteral("^+2250|^+") + widthText(column) + QStringLiteral(";");
    vs.AddTable(format, {}, m_company + QStringLiteral("|") + m_documentTitle + QStringLiteral(";"));
    vs.AddTable(format, {}, m_number + QStringLiteral("|") + m_heading + QStringLiteral(";"), {}, SecondRowShade, true);
}

void frmPrint::vs_FooterBand()
{
    vs.setCurrentX(vs.MarginLeft());
    vs.setTextAlign(AlignLeft);
    vs.setCurrentY(vs.PageHeight() - vs.MarginBottom());
    const double middle = usableWidth() - FooterFirstColumn - FooterLastColumn - WidthTrim;
    const QString format = QStringLiteral("<+3500|<+") + widthText(middle) + QStringLiteral("|<+1500;");
    const QString page = QString::number(vs.CurrentPage());
    if (m_footerStyle == IssueBlockToo || m_footerStyle == IssueBlock)
        vs.AddTable(format, {},
                    QStringLiteral("Issue: ") + m_issue + QStringLiteral("  ") + m_date +
                        QStringLiteral("|Authorized by:") + m_authorized + QStringLiteral("|Page: ") + page +
                        QStringLiteral(";"));
    else
        vs.AddTable(format, {}, QStringLiteral(" | |Page: ") + page + QStringLiteral(";"));
    const double notice = usableWidth() - LegalLastColumn - WidthTrim;
    vs.setFontSize(LegalPoints);
    vs.setTableBorder(NoTableBorder);
    const QString legal = QStringLiteral("<+") + widthText(notice) + QStringLiteral("|>+1900;");
    vs.AddTable(legal, {}, QStringLiteral(" | ;"));
    vs.AddTable(legal, {}, QStringLiteral("\u00A9 1999 orvane. All rights reserved.|www.orvane.example;"));
    vs.setFontSize(PointsAfterwards);
    vs.setTableBorder(BorderAfterwards);
}

QString frmPrint::HeadingRtf(const QString &heading)
{
    return opening() + QStringLiteral(R"(\plain\f2\fs28\b\i )") + heading +
           QStringLiteral(R"(\'85\'85.\plain\f0\fs17\par })");
}

QString frmPrint::BodyRtf(const QString &text)
{
    return opening() + QStringLiteral(R"(\plain\f2\fs24 )") + text + QStringLiteral(R"(\plain\f0\fs17\par })");
}

void frmPrint::AppendRtf(const QString &heading, const QString &body)
{
    if (!heading.isEmpty()) {
        rtfPrint.setSelRTF(HeadingRtf(heading));
        rtfPrint.setSelRTF(spacer());
    }
    if (body.isEmpty()) return;
    rtfPrint.setSelRTF(body);
    rtfPrint.setSelRTF(spacer());
}

} // namespace orvane
