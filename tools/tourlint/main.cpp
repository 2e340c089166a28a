// tourlint: tells an author what would go wrong in a tour script, before the tour does.
#include "ToolList.h"
#include "TourLint.h"

#include "platform/system/RunTimeError.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{
enum ExitCode { Clean = 0, Found = 1, WrongUse = 2 };

int complain(const QString &reason)
{
    std::fputs(qUtf8Printable("tourlint: "_L1 + reason + u'\n'), stderr);
    return WrongUse;
}

int write(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    const bool written = std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout) == size_t(bytes.size());
    if (written && std::fflush(stdout) == 0) return Clean;
    return complain("cannot write the standard output: "_L1 + qt_error_string());
}

int report(const QString &fileName, lint::Extent extent)
{
    try {
        QString lines;
        for (const lint::Finding &finding : lint::lookThrough(fileName, extent))
            lines += "%1:%2: %3\n"_L1.arg(fileName, QString::number(finding.line), finding.message);
        const int written = write(lines);
        return written == Clean && !lines.isEmpty() ? Found : written;
    } catch (const RunTimeError &refusal) {
        return complain("cannot read \"%1\": %2"_L1.arg(fileName, refusal.Description()));
    }
}

int lookThroughAll(const QStringList &fileNames, lint::Extent extent)
{
    int worst = Clean;
    for (const QString &fileName : fileNames)
        worst = std::max(worst, report(fileName, extent));
    return worst;
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"tourlint"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(ORVANE_VERSION));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Reports what would go wrong in a script of the guided tour, as FILE:LINE: MESSAGE.\n"
        "Exit status: 0 nothing found, 1 something found, 2 wrong use or a file that can't be read."_s);
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Tells how the program is used."_s);
    const QCommandLineOption version({u"v"_s, u"version"_s}, u"Tells the program's version."_s);
    const QCommandLineOption tools(u"tools"_s, u"Lists all tools that a script can press, separated by tabs."_s);
    const QCommandLineOption draft(
        u"draft"_s, u"Passes over missing sections for what a user presses by hand: the script isn't finished."_s);
    parser.addOptions({help, version, tools, draft});
    parser.addPositionalArgument(u"FILE"_s, u"The script, for instance DemoData.ini."_s, u"FILE..."_s);
    if (!parser.parse(QCoreApplication::arguments())) return complain(parser.errorText());
    const QStringList files = parser.positionalArguments();
    if (parser.isSet(help)) return write(parser.helpText());
    if (parser.isSet(version)) return write("tourlint "_L1 + QCoreApplication::applicationVersion() + u'\n');
    if (parser.isSet(tools) && files.isEmpty()) return write(lint::toolList());
    if (parser.isSet(tools) || files.isEmpty()) return complain(u"name a file, or ask for --tools; see --help"_s);
    return lookThroughAll(files, parser.isSet(draft) ? lint::Extent::Draft : lint::Extent::Whole);
}
