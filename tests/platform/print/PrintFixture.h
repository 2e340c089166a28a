// A window with a print control, and what a test asks of recorded pages and printed files.
#pragma once

#include "platform/FormFixture.h"
#include "platform/controls/Twips.h"
#include "platform/forms/Wiring.h"
#include "platform/print/VSPrinter.h"
#include "platform/print/pages/Paragraph.h"
#include "platform/richtext/Rtf.h"

#include <QProcess>
#include <QRectF>
#include <QTextBlock>
#include <QTextDocument>

namespace orvane::test
{

inline constexpr int A4Paper = 9;
inline constexpr int LetterPaper = 1;

// Notes its bands as "header N" and "footer N", N the page, and then lets the test put something there.
class PrintWindow : public PlainWindow
{
public:
    PrintWindow()
    {
        setDesignSize(9000, 9000);
        vs.Move(0, 0, 9000, 9000);
        vs.setPaperSize(LetterPaper);
        wire(vs, &VSPrinter::HeaderBand, *this, [](PrintWindow &self) {
            self.bands << QStringLiteral("header %1").arg(self.vs.CurrentPage());
            if (self.onHeader) self.onHeader();
        });
        wire(vs, &VSPrinter::FooterBand, *this, [](PrintWindow &self) {
            self.bands << QStringLiteral("footer %1").arg(self.vs.CurrentPage());
            if (self.onFooter) self.onFooter();
        });
    }

    VSPrinter vs{*this, QStringLiteral("vs")};
    QStringList bands;
    std::function<void()> onHeader;
    std::function<void()> onFooter;
};

// A rich text of this many one-line paragraphs "Line 1", "Line 2" and so on.
inline QString linesOfText(int count)
{
    QString rtf = QStringLiteral(R"({\rtf1{\fonttbl{\f2 Times New Roman;}}\plain\f2\fs24 )");
    for (int line = 1; line <= count; ++line)
        rtf += QStringLiteral(R"(Line %1\par )").arg(line);
    return rtf + u'}';
}

inline void compose(VSPrinter &vs, const QString &rtf)
{
    vs.StartDoc();
    vs.setTextRTF(rtf);
    vs.EndDoc();
}

// Each page tells its number.
inline void composePages(VSPrinter &vs, int count)
{
    vs.StartDoc();
    for (int page = 1; page <= count; ++page) {
        if (page > 1) vs.NewPage();
        vs.setTextRTF(QStringLiteral("{\\rtf1 Page %1}").arg(page));
    }
    vs.EndDoc();
}

// The paragraphs of a rich text, laid out in a column of this width.
inline std::vector<std::shared_ptr<const Paragraph>> paragraphsOf(const QString &rtf, double width)
{
    QTextDocument document;
    readRtf(rtf, document);
    std::vector<std::shared_ptr<const Paragraph>> paragraphs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        paragraphs.push_back(std::make_shared<const Paragraph>(block, width));
    return paragraphs;
}

template <class Item>
std::vector<Item> itemsOf(const RecordedPage &page)
{
    std::vector<Item> items;
    for (const PageItem &item : page.items)
        if (const auto *found = std::get_if<Item>(&item)) items.push_back(*found);
    return items;
}

inline QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        QTest::qFail(qPrintable(program + QStringLiteral(" failed: ") + process.errorString()), __FILE__, __LINE__);
    return process.readAllStandardOutput();
}

struct PrintedWord {
    QString text;
    QRectF place; // twips from the paper's corner
};

struct PrintedPage {
    QSizeF size; // twips
    std::vector<PrintedWord> words;

    QStringList texts() const
    {
        QStringList all;
        for (const PrintedWord &word : words)
            all << word.text;
        return all;
    }
    QRectF placeOf(const QString &text) const
    {
        for (const PrintedWord &word : words)
            if (word.text == text) return word.place;
        return {};
    }
};

// The pages of a PDF file, read by a program that isn't ours.
inline std::vector<PrintedPage> readPdf(const QString &fileName)
{
    const QString html = QString::fromUtf8(
        outputOf(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), fileName, QStringLiteral("-")}));
    static const QRegularExpression element(
        QStringLiteral("<page width=\"([0-9.]+)\" height=\"([0-9.]+)\">|<word xMin=\"([-0-9.]+)\" yMin=\"([-0-9.]+)\" "
                       "xMax=\"([-0-9.]+)\" yMax=\"([-0-9.]+)\">(.*?)</word>"));
    std::vector<PrintedPage> pages;
    for (auto match = element.globalMatch(html); match.hasNext();) {
        const auto found = match.next();
        const auto number = [&](int index) { return found.captured(index).toDouble() * TwipsPerPoint; };
        if (found.hasCaptured(1))
            pages.push_back({{number(1), number(2)}, {}});
        else
            pages.back().words.push_back(
                {found.captured(7), {QPointF(number(3), number(4)), QPointF(number(5), number(6))}});
    }
    return pages;
}

} // namespace orvane::test
