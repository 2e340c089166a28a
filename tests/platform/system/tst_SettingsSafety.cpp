// What a save of the settings leaves behind when it can't come to its end.
#include "platform/system/SettingsStore.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{

const QString Application = u"orvane Quillmark CD"_s;
const QString Section = u"UserDetails"_s;
constexpr uid_t Nobody = 65534;

QString &settingsFolderOfTheTest()
{
    static QString folder;
    return folder;
}

// Long enough to be written in several pieces.
QString textBefore()
{
    return QString(30'000, u'o');
}

QString textAfter()
{
    return QString(40'000, u'n');
}

void save(const QString &name)
{
    SaveSetting(Application, Section, u"Name"_s, name);
}

// No file may grow beyond this from now on, as on a full disk.
void limitFileSize(rlim_t bytes, void (*onReached)(int))
{
    const rlimit room{bytes, bytes};
    constexpr rlimit NoDump{0, 0};
    setrlimit(RLIMIT_FSIZE, &room);
    setrlimit(RLIMIT_CORE, &NoDump);
    std::signal(SIGXFSZ, onReached);
}

// Root may read and write anywhere. A process of its own sees the file for the first time.
void saveAsNobody()
{
    if (geteuid() == 0 && setuid(Nobody) != 0) _exit(2);
    setSettingsFolder(settingsFolderOfTheTest() + u"/."_s);
    save(textAfter());
}

// Runs in a process of its own, and gives what waitpid tells of it.
template <typename Act>
int inOwnProcess(Act act)
{
    const pid_t child = fork();
    if (child == 0) {
        act();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

// Saves without end and writes a byte to the pipe after each save.
[[noreturn]] void saveForEver(int pipeEnd)
{
    for (;;) {
        save(textAfter());
        if (write(pipeEnd, "", 1) != 1) _exit(1);
        save(textBefore());
        if (write(pipeEnd, "", 1) != 1) _exit(1);
    }
}

// The process is killed after so many saves, and a little into the next.
void killWhileSaving(int saves, int turns)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) qFatal("no pipe to test with");
    const pid_t child = fork();
    if (child == 0) saveForEver(ends[1]);
    char byte = 0;
    for (int i = 0; i < saves; ++i)
        if (read(ends[0], &byte, 1) != 1) qFatal("the saving process is gone");
    for (volatile int turn = 0; turn < turns;)
        turn = turn + 1;
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    close(ends[0]);
    close(ends[1]);
}

} // namespace

class tst_SettingsSafety : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aFullDiskKeepsTheOldValue_data();
    void aFullDiskKeepsTheOldValue();
    void anEndInTheMiddleOfAWriteKeepsTheOldValue_data();
    void anEndInTheMiddleOfAWriteKeepsTheOldValue();
    void aKillAtAnyMomentLeavesTheOldOrTheNewValue();
    void aReadOnlyFolderKeepsTheOldValue();
    void aFileThatCanNotBeReadIsKept();
    void aClockThatWasSetBackHidesNoValue();

private:
    QByteArray bytes() const;
    QString nameOnDisk() const;
    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_SettingsSafety::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    settingsFolderOfTheTest() = m_folder->path();
    setSettingsFolder(m_folder->path());
    save(textBefore());
    SaveSetting(Application, Section, u"Company"_s, u"Global Inc"_s);
}

void tst_SettingsSafety::cleanup()
{
    setSettingsFolder({});
    m_folder.reset();
}

QByteArray tst_SettingsSafety::bytes() const
{
    QFile file(m_folder->filePath(Application + u".ini"_s));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// As the next session finds it: from a copy that nothing of this one has seen.
QString tst_SettingsSafety::nameOnDisk() const
{
    const QTemporaryDir copy;
    if (!QFile::copy(m_folder->filePath(Application + u".ini"_s), copy.filePath(Application + u".ini"_s))) return {};
    setSettingsFolder(copy.path());
    const bool whole = GetSetting(Application, Section, u"Company"_s) == u"Global Inc"_s;
    const QString name = GetSetting(Application, Section, u"Name"_s);
    setSettingsFolder(m_folder->path());
    return whole ? name : QString();
}

namespace
{
void addSizes()
{
    QTest::addColumn<quint64>("size");
    for (const quint64 size : {0, 1, 4'096, 16'384, 20'000, 39'000})
        QTest::addRow("%llu bytes", static_cast<unsigned long long>(size)) << size;
}
} // namespace

void tst_SettingsSafety::aFullDiskKeepsTheOldValue_data()
{
    addSizes();
}

void tst_SettingsSafety::aFullDiskKeepsTheOldValue()
{
    QFETCH(quint64, size);
    const QByteArray before = bytes();
    const int status = inOwnProcess([size] {
        limitFileSize(size, SIG_IGN);
        save(textAfter());
    });
    QVERIFY(WIFEXITED(status)); // and nothing was reported
    QVERIFY(bytes() == before);
    QVERIFY(nameOnDisk() == textBefore());
    QCOMPARE(files(), QStringList{Application + u".ini"_s});
    save(textAfter());
    QVERIFY(nameOnDisk() == textAfter());
}

void tst_SettingsSafety::anEndInTheMiddleOfAWriteKeepsTheOldValue_data()
{
    addSizes();
}

void tst_SettingsSafety::anEndInTheMiddleOfAWriteKeepsTheOldValue()
{
    QFETCH(quint64, size);
    const QByteArray before = bytes();
    const int status = inOwnProcess([size] {
        limitFileSize(size, SIG_DFL);
        save(textAfter());
    });
    QVERIFY(WIFSIGNALED(status));
    QVERIFY(bytes() == before);
    save(textAfter()); // what the ended process had locked doesn't stand in the way
    QVERIFY(nameOnDisk() == textAfter());
}

void tst_SettingsSafety::aKillAtAnyMomentLeavesTheOldOrTheNewValue()
{
    constexpr int Kills = 60;
    constexpr int TurnsApart = 10'000;
    for (int i = 0; i < Kills; ++i) {
        killWhileSaving(1 + i % 2, i * TurnsApart);
        const QString name = nameOnDisk();
        QVERIFY2(name == textBefore() || name == textAfter(),
                 qPrintable(u"kill %1: %2 characters"_s.arg(i).arg(name.size())));
    }
    save(u"Ada"_s);
    QCOMPARE(nameOnDisk(), u"Ada"_s);
}

void tst_SettingsSafety::aReadOnlyFolderKeepsTheOldValue()
{
    const QByteArray before = bytes();
    QCOMPARE(chmod(QFile::encodeName(m_folder->path()).constData(), 0555), 0);
    const int status = inOwnProcess([] { saveAsNobody(); });
    QCOMPARE(chmod(QFile::encodeName(m_folder->path()).constData(), 0755), 0);
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 0);
    QVERIFY(bytes() == before);
}

// What else it holds would be lost.
void tst_SettingsSafety::aFileThatCanNotBeReadIsKept()
{
    const QByteArray before = bytes();
    const QByteArray file = QFile::encodeName(m_folder->filePath(Application + u".ini"_s));
    QCOMPARE(chmod(QFile::encodeName(m_folder->path()).constData(), 0777), 0);
    QCOMPARE(chmod(file.constData(), geteuid() == 0 ? 0622 : 0200), 0);
    const int status = inOwnProcess([] { saveAsNobody(); });
    QCOMPARE(chmod(file.constData(), 0600), 0);
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 0);
    QVERIFY(bytes() == before);
}

// A value of the same length leaves only the time of the file to tell that there is something new.
void tst_SettingsSafety::aClockThatWasSetBackHidesNoValue()
{
    save(u"Ada"_s);
    QFile file(m_folder->filePath(Application + u".ini"_s));
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QDateTime ahead = QDateTime::currentDateTime().addDays(1);
    QVERIFY(file.setFileTime(ahead, QFileDevice::FileModificationTime));
    file.close();
    QCOMPARE(GetSetting(Application, Section, u"Name"_s), u"Ada"_s);
    save(u"Eva"_s);
    QCOMPARE(GetSetting(Application, Section, u"Name"_s), u"Eva"_s);
    QVERIFY(QFileInfo(file).lastModified() > ahead);
}

QTEST_GUILESS_MAIN(tst_SettingsSafety)
#include "tst_SettingsSafety.moc"
