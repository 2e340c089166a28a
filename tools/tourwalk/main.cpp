// tourwalk: walks a tour script through the live program and leaves a page with a picture of each step, and the
// documents of the modules as PDF files.
#include "platform/controls/Palette.h"
#include "platform/system/DisplayStart.h"
#include "platform/system/Guard.h"
#include "platform/system/SettingsStore.h"

#include "Documents.h"
#include "Walk.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{
enum ExitCode { Whole = 0, NotWhole = 1, WrongUse = 2 };

struct Request {
    QString script; // empty: the one beside the program
    QString out;
};

ExitCode refused(const QString &reason)
{
    std::fputs(qUtf8Printable(u"tourwalk: "_s + reason + u'\n'), stderr);
    return WrongUse;
}

// Needs no display: nor does the help.
Request readRequest(int argc, char *argv[])
{
    const QCoreApplication reader(argc, argv);
    QCoreApplication::setApplicationName(u"tourwalk"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(ORVANE_VERSION));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Walks a tour script through the program: a picture of each step, a page of them all (index.html), and each "
        "module's document as PDF.\n"
        "Exit status: 0 the tour came to its end without a complaint, 1 it didn't, 2 wrong use."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption out(u"out"_s, u"The folder that is written to (out)."_s, u"folder"_s, u"out"_s);
    parser.addOption(out);
    parser.addPositionalArgument(u"SCRIPT"_s, u"The script; without one, that beside the program."_s, u"[SCRIPT]"_s);
    parser.process(reader);
    const QStringList scripts = parser.positionalArguments();
    if (scripts.size() > 1) std::exit(refused(u"one script at a time; see --help"_s));
    return {scripts.value(0), parser.value(out)};
}

// A program folder with another script in it. False where the script can't be read.
bool furnish(const QString &folder, const QString &script)
{
    if (!QFile::copy(script, folder + u"/DemoData.ini"_s)) return false;
    for (const QString &name : {u"DealerData.dat"_s, u"Orvane.hlp"_s})
        QFile::link(QCoreApplication::applicationDirPath() + u'/' + name, folder + u'/' + name);
    return true;
}

bool walkThrough(walk::WalkHost &host, walk::HandOut &handOut, const QDir &folder)
{
    walk::Walk walk(host, handOut);
    bool ended = false;
    guarded([&] {
        ended = walk.run();
        if (!host.hasEnded()) walk::printDocuments(folder, handOut);
        if (ended) walk.quit();
    });
    const bool written = handOut.write();
    std::printf("%d steps, %d pictures, %d documents and %d complaints; see %s\n", walk.steps(), handOut.pictures(),
                handOut.documents(), handOut.complaints(), qUtf8Printable(folder.filePath(u"index.html"_s)));
    return ended && written && handOut.complaints() == 0;
}

// Its temporary folders are gone when it returns.
ExitCode answer(const Request &request)
{
    const QTemporaryDir settings; // the tour confirms the user's details, and must not change those of whoever runs it
    const QTemporaryDir program;
    if (!settings.isValid() || !program.isValid()) return refused(u"no temporary folder can be made"_s);
    setSettingsFolder(settings.path());
    if (!request.script.isEmpty() && !furnish(program.path(), request.script))
        return refused(u"\"%1\" can't be read"_s.arg(request.script));
    const QDir folder(request.out);
    if (!folder.mkpath(u"."_s)) return refused(u"\"%1\" can't be made"_s.arg(request.out));
    walk::WalkHost host(request.script.isEmpty() ? QString() : program.path(), folder.absolutePath());
    walk::HandOut handOut(folder);
    return walkThrough(host, handOut, folder) ? Whole : NotWhole;
}
} // namespace

int main(int argc, char *argv[])
{
    const Request request = readRequest(argc, argv);
    prepareForDisplay();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    applyLooks(application);
    const ExitCode exitCode = answer(request);
    std::fflush(stdout);
    std::_Exit(exitCode); // as the program itself ends: no window's clean-up
}
