// growth [FILE.svg]: the processor's time for putting a rich text, for pasting one into an editor, and for printing one
// into a PDF file, over documents of 1 to 1,000 pages. Prints a table and the exponents of the fitted lines, and draws
// the plot.
#include "LogPlot.h"
#include "LongDocument.h"
#include "platform/controls/Palette.h"
#include "platform/controls/text/zelRich.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Window.h"
#include "platform/print/Printers.h"
#include "printing/frmPrint.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTextEdit>
#include <cstdio>
#include <ctime>
#include <functional>

using namespace orvane;

namespace
{

constexpr std::array Pages{1, 3, 10, 30, 100, 300, 1000};
constexpr int ParagraphsOnPage = 6;
constexpr double EnoughSeconds = 0.5; // of one measurement: small documents are taken many times
constexpr int MostTimes = 200;

class TextWindow : public Window
{
public:
    TextWindow() : Window(QStringLiteral("growth"), FixedBorder)
    {
        setFixedDesignSize(12000, 9000);
        box.Move(0, 0, 12000, 9000);
    }

    zelRich box{*this, QStringLiteral("rtfData")};
};

// Every page of it fills most of a printed one, and ends there.
QString documentOf(int pages)
{
    QString rtf = QStringLiteral("{\\rtf1\\ansi{\\fonttbl{\\f0\\froman Times New Roman;}}\\f0\\fs24 ");
    for (int page = 0; page < pages; ++page) {
        if (page > 0) rtf += QStringLiteral("\\page ");
        rtf += QStringLiteral("\\b Page %1\\b0\\par ").arg(page + 1);
        for (int paragraph = 0; paragraph < ParagraphsOnPage; ++paragraph) {
            for (int i = 0; i < bench::SentencesEach; ++i)
                rtf += bench::sentence(paragraph, i);
            rtf += QStringLiteral("\\par ");
        }
    }
    return rtf + u'}';
}

double processorSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

// The least of several times: what is more is the machine's.
double secondsOf(const std::function<void()> &work)
{
    double least = 0;
    double sum = 0;
    for (int i = 0; i == 0 || (sum < EnoughSeconds && i < MostTimes); ++i) {
        const double start = processorSeconds();
        work();
        const double seconds = processorSeconds() - start;
        least = i == 0 ? seconds : std::min(least, seconds);
        sum += seconds;
    }
    return least;
}

void print(VSPrinter &printer, const QString &rtf, int pages)
{
    printer.StartDoc();
    printer.setTextRTF(rtf);
    printer.EndDoc();
    if (printer.PageCount() != pages) qFatal("%d pages instead of %d", printer.PageCount(), pages);
    printer.PrintDoc(1, pages);
}

// In the place of all that is there, which can be undone.
void paste(zelRich &box, const QString &rtf)
{
    auto &edit = static_cast<QTextEdit &>(box.widget());
    edit.document()->clear();
    edit.paste();
    if (edit.document()->characterCount() < rtf.size() / 2) qFatal("the text has not been pasted");
}

void offer(const QString &rtf)
{
    auto *data = new QMimeData;
    data->setData(QStringLiteral("text/rtf"), rtf.toLatin1());
    QGuiApplication::clipboard()->setMimeData(data);
}

void measure(bench::Series &put, bench::Series &pasted, bench::Series &job, const QString &fileName)
{
    TextWindow window;
    window.Show();
    auto &preview = Default<frmPrint>();
    setPdfFileName(fileName);
    preview.Show();
    preview.vs.setDevice(pdfPrinterName());
    for (const int pages : Pages) {
        const QString rtf = documentOf(pages);
        offer(rtf);
        for (auto *series : {&put, &pasted, &job})
            series->sizes.append(pages);
        put.costs.append(1000 * secondsOf([&] {
                             window.box.setTextRTF(rtf);
                             QCoreApplication::processEvents();
                         }));
        pasted.costs.append(1000 * secondsOf([&] {
                                paste(window.box, rtf);
                                QCoreApplication::processEvents();
                            }));
        job.costs.append(1000 * secondsOf([&] { print(preview.vs, rtf, pages); }));
        std::printf("%5d pages  %8lld bytes  put %10.2f ms  paste %10.2f ms  print job %10.2f ms\n", pages,
                    static_cast<long long>(rtf.size()), put.costs.last(), pasted.costs.last(), job.costs.last());
        std::fflush(stdout);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    applyLooks(application);
    const QTemporaryDir folder;
    bench::Series put{QStringLiteral("put of a rich text"), QStringLiteral("#1f6f8b"), {}, {}};
    bench::Series pasted{QStringLiteral("paste of a rich text"), QStringLiteral("#5b7f2b"), {}, {}};
    bench::Series job{QStringLiteral("print job into a PDF file"), QStringLiteral("#b04a2f"), {}, {}};
    measure(put, pasted, job, folder.filePath(QStringLiteral("growth.pdf")));
    for (const auto *series : {&put, &pasted, &job})
        std::printf("%s: exponent %.2f, from 10 pages on %.2f\n", qPrintable(series->name),
                    bench::fitOf(*series).exponent, bench::fitOf(*series, 10).exponent);
    std::fflush(stdout);
    if (argc > 1) {
        QFile file(QFile::decodeName(argv[1]));
        const QString plot = bench::LogPlot(0, 3, -1, 4)
                                 .draw(QStringLiteral("Processor time over the length of a document"),
                                       QStringLiteral("pages"), QStringLiteral("ms"), {put, pasted, job});
        if (!file.open(QFile::WriteOnly) || file.write(plot.toUtf8()) <= 0) return 1;
    }
    std::_Exit(0); // the frame refuses every close
}
