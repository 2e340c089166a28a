// What a write leaves behind when it can't come to its end.
#include "platform/system/ProfileBytes.h"
#include "platform/system/ProfileFile.h"

#include <QDir>
#include <QTest>

#include <atomic>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{

constexpr uid_t Nobody = 65534;
constexpr int Refused = 1;

bool writeHeader(const QString &fileName, const QString &value = u"new"_s)
{
    return writeProfileString(u"127"_s, u"Header"_s, value, fileName);
}

// A file that is longer than a write gets room for.
QByteArray longFile(int body = 200'000)
{
    return "[127]\r\nHeader=old\r\nRTF=" + QByteArray(body, 'x') + "\r\n";
}

// Writes in a process of its own after that was prepared, and gives what waitpid tells of it.
template <typename Prepare>
int writeInOwnProcess(const QString &fileName, Prepare prepare)
{
    const pid_t child = fork();
    if (child == 0) {
        prepare();
        _exit(writeHeader(fileName) ? 0 : Refused);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

// No file may grow beyond this from now on, as on a full disk.
void limitFileSize(void (*onReached)(int), rlim_t bytes = 100'000)
{
    const rlimit room{bytes, bytes};
    constexpr rlimit NoDump{0, 0};
    setrlimit(RLIMIT_FSIZE, &room);
    setrlimit(RLIMIT_CORE, &NoDump);
    std::signal(SIGXFSZ, onReached);
}

void becomeNobody()
{
    if (geteuid() == 0 && setuid(Nobody) != 0) _exit(2);
}

QStringList filesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden);
}

} // namespace

class tst_ProfileSafety : public QObject
{
    Q_OBJECT

private slots:
    void aMissingFolderIsRefused();
    void aFolderInPlaceOfTheFileIsRefused();
    void aFileInPlaceOfTheFolderIsRefused();
    void aPipeInPlaceOfTheFileIsRefused();
    void aReadOnlyFolderKeepsTheOldFile();
    void aReadOnlyFileIsKept();
    void anUnreadableFileIsKept();
    void aFullDiskKeepsTheOldFile_data();
    void aFullDiskKeepsTheOldFile();
    void anEndInTheMiddleKeepsTheOldFile();
    void aSecondReaderFindsTheOldOrTheNewValue();
};

void tst_ProfileSafety::aMissingFolderIsRefused()
{
    const ProfileBytes file;
    QVERIFY(!writeHeader(file.folder() + u"/absent/DemoData.ini"_s));
    QVERIFY(QDir(file.folder()).isEmpty());
}

void tst_ProfileSafety::aFolderInPlaceOfTheFileIsRefused()
{
    const ProfileBytes file;
    QVERIFY(QDir().mkpath(file.name()));
    QVERIFY(!writeHeader(file.name()));
    QVERIFY(QDir(file.name()).isEmpty());
}

void tst_ProfileSafety::aFileInPlaceOfTheFolderIsRefused()
{
    const ProfileBytes file("[127]\nHeader=old\n");
    QVERIFY(!writeHeader(file.name() + u"/DemoData.ini"_s));
    QCOMPARE(file.bytes(), "[127]\nHeader=old\n"_ba);
}

void tst_ProfileSafety::aPipeInPlaceOfTheFileIsRefused()
{
    const ProfileBytes file;
    QCOMPARE(mkfifo(qPrintable(file.name()), 0600), 0);
    QVERIFY(!writeHeader(file.name()));
}

// Though the file itself may be written, a write that began there could leave half of it.
void tst_ProfileSafety::aReadOnlyFolderKeepsTheOldFile()
{
    const ProfileBytes file("[127]\nHeader=old\n");
    QCOMPARE(chmod(qPrintable(file.name()), 0666), 0);
    QCOMPARE(chmod(qPrintable(file.folder()), 0555), 0);
    const int status = writeInOwnProcess(file.name(), becomeNobody);
    QCOMPARE(chmod(qPrintable(file.folder()), 0755), 0);
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), Refused);
    QCOMPARE(file.bytes(), "[127]\nHeader=old\n"_ba);
}

void tst_ProfileSafety::aReadOnlyFileIsKept()
{
    const ProfileBytes file("[127]\nHeader=old\n");
    QCOMPARE(chmod(qPrintable(file.folder()), 0777), 0);
    QCOMPARE(chmod(qPrintable(file.name()), 0444), 0);
    const int status = writeInOwnProcess(file.name(), becomeNobody);
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), Refused);
    QCOMPARE(file.bytes(), "[127]\nHeader=old\n"_ba);
    QCOMPARE(filesIn(file.folder()), QStringList{u"DemoData.ini"_s});
}

void tst_ProfileSafety::anUnreadableFileIsKept()
{
    const ProfileBytes file("[127]\nHeader=old\n");
    QCOMPARE(chmod(qPrintable(file.folder()), 0777), 0);
    QCOMPARE(chmod(qPrintable(file.name()), geteuid() == 0 ? 0600 : 0200), 0);
    const int status = writeInOwnProcess(file.name(), becomeNobody);
    QCOMPARE(chmod(qPrintable(file.name()), 0600), 0);
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), Refused);
    QCOMPARE(file.bytes(), "[127]\nHeader=old\n"_ba);
}

void tst_ProfileSafety::aFullDiskKeepsTheOldFile_data()
{
    QTest::addColumn<int>("body");
    QTest::addColumn<int>("missing"); // bytes of the file that the disk has no room for
    for (const int body : {10, 5'000, 16'384, 65'536, 70'000, 200'000})
        for (const int missing : {1, 20, body})
            QTest::addRow("%d of %d", missing, body) << body << missing;
}

void tst_ProfileSafety::aFullDiskKeepsTheOldFile()
{
    QFETCH(int, body);
    QFETCH(int, missing);
    const QByteArray before = longFile(body);
    const ProfileBytes file(before);
    const rlim_t room = rlim_t(before.size() - missing);
    const int status = writeInOwnProcess(file.name(), [room] { limitFileSize(SIG_IGN, room); });
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), Refused);
    QVERIFY(file.bytes() == before);
    QCOMPARE(filesIn(file.folder()), QStringList{u"DemoData.ini"_s});
}

void tst_ProfileSafety::anEndInTheMiddleKeepsTheOldFile()
{
    const ProfileBytes file(longFile());
    const int status = writeInOwnProcess(file.name(), [] { limitFileSize(SIG_DFL); });
    QVERIFY(WIFSIGNALED(status));
    QVERIFY(file.bytes() == longFile());
    QVERIFY(writeHeader(file.name()));
    QVERIFY(file.bytes() == longFile().replace("old", "new"));
}

void tst_ProfileSafety::aSecondReaderFindsTheOldOrTheNewValue()
{
    const QString oldValue(8000, u'o');
    const QString newValue(8100, u'n');
    const ProfileBytes file;
    QVERIFY(writeHeader(file.name(), oldValue));
    std::atomic_bool writing = true;
    std::thread writer([&] {
        for (int i = 0; i < 200; ++i)
            writeHeader(file.name(), i % 2 == 0 ? newValue : oldValue);
        writing = false;
    });
    bool whole = true;
    while (writing) {
        const QString value = readProfileString(u"127"_s, u"Header"_s, u"(none)"_s, 8191, file.name());
        whole = whole && (value == oldValue || value == newValue);
    }
    writer.join();
    QVERIFY(whole);
}

QTEST_GUILESS_MAIN(tst_ProfileSafety)
#include "tst_ProfileSafety.moc"
