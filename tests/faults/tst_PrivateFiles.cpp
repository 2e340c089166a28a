// What the program writes for a while only: nobody else may read it, and it is gone afterwards.
#include "faults/SteppedProcess.h"
#include "platform/print/PrintFixture.h"
#include "platform/print/Printers.h"
#include "platform/system/SettingsStore.h"
#include "support/HelpUser.h"
#include "support/PrintScheduler.h"
#include "support/QueueHost.h"

#include <QDirIterator>
#include <QPainter>
#include <QPrinter>

#include <algorithm>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
constexpr auto Others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;

// The names of the files under a folder that hold something and that others of the machine can read or write. What lies
// in a folder of the owner's alone is out of their reach.
QStringList openToOthers(const QString &folder)
{
    QStringList names;
    const auto entries = QDir(folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        const bool isOpen = (entry.permissions() & Others) != 0;
        if (entry.isDir() && isOpen) names += openToOthers(entry.filePath());
        if (entry.isFile() && isOpen && entry.size() > 0) names += entry.filePath();
    }
    return names;
}

// A lock tells other programs which process has the folder, and nothing else.
bool isLocksAlone(const QStringList &files)
{
    return std::all_of(files.begin(), files.end(), [](const QString &file) { return file.endsWith(u".lock"); });
}

// The fonts' own library keeps its lists of the machine's fonts there, for anybody to read.
QStringList ownAmong(QStringList files, const HelpUser &user)
{
    const QString fonts = user.cache() + u"/fontconfig/"_s;
    files.removeIf([&fonts](const QString &file) { return file.startsWith(fonts); });
    return files;
}

QStringList filesUnder(const QString &folder)
{
    QStringList names;
    for (QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); it.hasNext();)
        names += it.next();
    return names;
}
} // namespace

class tst_PrivateFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void newSettingsAreTheOwnersAtEveryMoment();
    void settingsLeaveNothingBeside();
    void theHelpsFolderIsTheOwners();
    void aPrintJobIsTheOwnersUntilItIsHandedOver();

private:
    QTemporaryDir m_folder;
    mode_t m_maskBefore = 0;
};

void tst_PrivateFiles::init()
{
    m_maskBefore = ::umask(022); // by which others may read what is new
    m_folder = QTemporaryDir();
    QVERIFY(m_folder.isValid());
}

void tst_PrivateFiles::cleanup()
{
    ::umask(m_maskBefore);
    setSettingsFolder({});
}

void tst_PrivateFiles::newSettingsAreTheOwnersAtEveryMoment()
{
    if (!SteppedProcess::isPossible()) QSKIP("this system lets nobody trace a process");
    const QString folder = m_folder.filePath(u"settings"_s);
    setSettingsFolder(folder);
    const auto save = [] { SaveSetting(u"orvane Quillmark CD"_s, u"UserDetails"_s, u"Name"_s, u"Ada"_s); };
    int point = 0;
    for (; QDir(folder).removeRecursively() && SteppedProcess::killAt(point, save); ++point)
        QCOMPARE(openToOthers(folder), QStringList());
    QVERIFY(point > 100);
    QCOMPARE(filesUnder(folder).size(), 1); // the last one came to its end
}

void tst_PrivateFiles::settingsLeaveNothingBeside()
{
    setSettingsFolder(m_folder.path());
    SaveSetting(u"orvane Quillmark CD"_s, u"UserDetails"_s, u"Name"_s, u"Ada"_s);
    const QString only = m_folder.filePath(u"orvane Quillmark CD.ini"_s);
    QCOMPARE(filesUnder(m_folder.path()), QStringList{only});
    QCOMPARE(QFile::permissions(only) & Others, QFile::Permissions());
}

void tst_PrivateFiles::theHelpsFolderIsTheOwners()
{
    const TestHost host;
    {
        const HelpUser user(host);
        user.openContents();
        QVERIFY(HelpUser::window());
        QVERIFY(ownAmong(filesUnder(user.cache()), user).size() > 1);
        const QStringList open = ownAmong(openToOthers(user.cache()), user);
        QVERIFY2(isLocksAlone(open), qPrintable(open.join(u' ')));
        QVERIFY(HelpUser::closeAndWait());
        const QStringList left = ownAmong(filesUnder(user.cache()), user);
        QVERIFY2(isLocksAlone(left), qPrintable(left.join(u' ')));
    }
}

void tst_PrivateFiles::aPrintJobIsTheOwnersUntilItIsHandedOver()
{
    const QString missing = PrintScheduler::missingProgram();
    if (!missing.isEmpty()) QSKIP(qPrintable(u"CUPS is not installed: there is no "_s + missing));
    PrintScheduler scheduler;
    scheduler.start();
    scheduler.addQueue(u"Office"_s);
    const QueueHost host;
    qputenv("TMPDIR", QFile::encodeName(m_folder.path()));
    const std::shared_ptr<QPrinter> printer = openPrinter(u"Office"_s);
    auto painter = std::make_shared<QPainter>(printer.get());
    painter->drawText(1000, 1000, u"words"_s);
    QVERIFY(printer->newPage()); // so that something is written
    QCOMPARE(filesUnder(m_folder.path()).size(), 1);
    QCOMPARE(openToOthers(m_folder.path()), QStringList());
    finishJob(printer, painter);
    qunsetenv("TMPDIR");
    QCOMPARE(filesUnder(m_folder.path()), QStringList());
    scheduler.nextJob();
}

QTEST_MAIN(tst_PrivateFiles)
#include "tst_PrivateFiles.moc"
