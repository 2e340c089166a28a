#include "support/PrintScheduler.h"

#include "platform/print/queues/PrintService.h"

#include <QFile>
#include <QStandardPaths>
#include <QTest>
#include <csignal>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace orvane::test
{

namespace
{
constexpr int MillisecondsToStart = 20000; // longer than one that didn't answer is left alone
constexpr int MillisecondsForAJob = 30000;

QStringList systemFolders()
{
    return {u"/usr/sbin"_s, u"/usr/bin"_s, u"/sbin"_s, u"/bin"_s};
}

QString programPath(const QString &name)
{
    return QStandardPaths::findExecutable(name, systemFolders());
}

bool isRoot()
{
    return ::geteuid() == 0;
}

void write(const QString &fileName, const QString &text)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        qFatal("%s can't be written", qPrintable(fileName));
}

constexpr auto Open = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::WriteGroup |
                      QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
constexpr auto Readable = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup |
                          QFile::ReadOther | QFile::ExeOther;
// The scheduler of root runs as root only those devices that nobody else can run.
constexpr auto OwnersAlone = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
} // namespace

QString PrintScheduler::missingProgram()
{
    for (const QString &name : {u"cupsd"_s, u"lpadmin"_s, u"lpstat"_s, u"cupsdisable"_s, u"pdftotext"_s})
        if (programPath(name).isEmpty()) return name;
    return {};
}

PrintScheduler::PrintScheduler()
{
    makeFolders();
    writeSettings();
    writeDevice();
    qputenv("CUPS_SERVER", path(u"socket"_s).toLocal8Bit());
    qputenv("HOME", path(u"home"_s).toLocal8Bit());
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
}

PrintScheduler::~PrintScheduler()
{
    kill();
}

void PrintScheduler::makeFolders() const
{
    QFile::setPermissions(m_folder.path(), Readable);
    for (const QString &name : {u"etc"_s, u"etc/ppd"_s, u"cache"_s, u"run"_s, u"spool"_s, u"tmp"_s, u"log"_s, u"home"_s,
                                u"bin"_s, u"bin/backend"_s, u"jobs"_s, u"pdf"_s})
        QDir().mkpath(path(name));
    for (const QString &name : {u"tmp"_s, u"pdf"_s})
        QFile::setPermissions(path(name), Open);
    for (const QString &name : {u"filter"_s, u"daemon"_s, u"driver"_s, u"notifier"_s, u"monitor"_s})
        QFile::link(u"/usr/lib/cups/"_s + name, path(u"bin/"_s + name));
}

void PrintScheduler::writeSettings() const
{
    const QString base = m_folder.path();
    write(path(u"etc/cups-files.conf"_s),
          u"User lp\nGroup lp\nSystemGroup root\nServerRoot %1/etc\nCacheDir %1/cache\nStateDir %1/run\n"
          "RequestRoot %1/spool\nTempDir %1/tmp\nServerBin %1/bin\nDataDir /usr/share/cups\nAccessLog %1/log/access\n"
          "ErrorLog %1/log/error\nPageLog %1/log/page\n"_s.arg(base));
    write(path(u"etc/cupsd.conf"_s),
          u"LogLevel warn\nListen %1/socket\nBrowsing No\nWebInterface No\nDefaultAuthType None\n"
          "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
          "<Policy default>\n<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n"_s.arg(base));
    write(path(u"etc/cups-pdf.conf"_s),
          u"Out %1/pdf\nAnonDirName %1/pdf\nSpool %1/tmp\nLog %1/log\nGrp lp\n"_s.arg(base));
}

void PrintScheduler::writeDevice() const
{
    const QString device = path(u"bin/backend/keep"_s);
    QFile::copy(QStringLiteral(ORVANE_SOURCE_DIR "/tests/data/cups/keep"), device);
    QFile::setPermissions(device, isRoot() ? OwnersAlone : Readable);
    if (canHavePdfPrinter()) QFile::copy(u"/usr/lib/cups/backend/cups-pdf"_s, path(u"bin/backend/cups-pdf"_s));
}

bool PrintScheduler::canHavePdfPrinter()
{
    return isRoot() && QFile::exists(u"/usr/lib/cups/backend/cups-pdf"_s) &&
           QProcess::execute(u"unshare"_s, {u"--mount"_s, u"mount"_s, u"--bind"_s, u"/tmp"_s, u"/etc/cups"_s}) == 0;
}

void PrintScheduler::start()
{
    const QStringList scheduler{programPath(u"cupsd"_s),   u"-f"_s, u"-c"_s,
                                path(u"etc/cupsd.conf"_s), u"-s"_s, path(u"etc/cups-files.conf"_s)};
    if (canHavePdfPrinter())
        m_process.start(u"unshare"_s, QStringList{u"--mount"_s, u"sh"_s, u"-c"_s,
                                                  u"mount --bind \"$0\" /etc/cups && exec \"$@\""_s, path(u"etc"_s)} +
                                          scheduler);
    else
        m_process.start(scheduler.front(), scheduler.mid(1));
    QTRY_VERIFY_WITH_TIMEOUT(printServiceAnswers(), MillisecondsToStart);
}

void PrintScheduler::kill()
{
    m_process.kill();
    m_process.waitForFinished();
}

void PrintScheduler::freeze()
{
    ::kill(static_cast<pid_t>(m_process.processId()), SIGSTOP);
}

QByteArray PrintScheduler::run(const char *program, const QStringList &arguments)
{
    QProcess process;
    process.start(programPath(QString::fromLatin1(program)), arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        QTest::qFail(program + process.readAllStandardError(), __FILE__, __LINE__);
    return process.readAllStandardOutput();
}

void PrintScheduler::addQueue(const QString &name)
{
    run("lpadmin", {u"-p"_s, name, u"-E"_s, u"-v"_s, u"keep:"_s + path(u"jobs"_s), u"-P"_s,
                    QStringLiteral(ORVANE_SOURCE_DIR "/tests/data/cups/two_sided.ppd")});
}

void PrintScheduler::addPdfPrinter(const QString &name)
{
    run("lpadmin",
        {u"-p"_s, name, u"-E"_s, u"-v"_s, u"cups-pdf:/"_s, u"-P"_s, u"/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd"_s});
}

int PrintScheduler::waitingJobs(const QString &name)
{
    return static_cast<int>(run("lpstat", {u"-o"_s, name}).count('\n'));
}

int PrintScheduler::keptJobs() const
{
    return static_cast<int>(QDir(path(u"jobs"_s)).entryList({u"*.pdf"_s}).size());
}

KeptJob PrintScheduler::nextJob()
{
    const QDir jobs(path(u"jobs"_s));
    if (!QTest::qWaitFor([&] { return keptJobs() > 0; }, MillisecondsForAJob)) {
        QTest::qFail("no job came to the device", __FILE__, __LINE__);
        return {};
    }
    const QString number = QFileInfo(jobs.entryList({u"*.pdf"_s}).constFirst()).baseName();
    QFile note(jobs.filePath(number + u".txt"_s));
    (void)note.open(QIODevice::ReadOnly);
    const QStringList lines = QString::fromUtf8(note.readAll()).split(u'\n');
    const QString kept = path(u"job"_s + number + u".pdf"_s);
    QFile::remove(kept);
    QFile::rename(jobs.filePath(number + u".pdf"_s), kept);
    return {lines.value(0), lines.value(1).toInt(), lines.value(2).split(u' '), kept};
}

QString PrintScheduler::nextPdf(const QString &queue)
{
    const QDir files(path(u"pdf"_s));
    const auto names = [&] { return files.entryList({u"*.pdf"_s}, QDir::Files); };
    if (!QTest::qWaitFor([&] { return waitingJobs(queue) == 0 && !names().isEmpty(); }, MillisecondsForAJob)) {
        QTest::qFail("no file came from the PDF printer", __FILE__, __LINE__);
        return {};
    }
    return files.filePath(names().constFirst());
}

} // namespace orvane::test
