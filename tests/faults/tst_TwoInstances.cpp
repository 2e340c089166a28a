// Two programs of one user that save into the same files at the same time: nothing that either of them saved is lost.
#include "platform/system/ProfileFile.h"
#include "platform/system/SettingsStore.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <functional>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{
constexpr int Saves = 40; // of each of the two
const QString Application = u"orvane Quillmark CD"_s;
const QString Section = u"UserDetails"_s;

struct Saver {
    std::function<void(const QString &)> save;
    std::function<QString()> read;
};

// Begins at once, in a process of its own, which fails where a text that it saved is gone when it saves the next.
pid_t saveAgainAndAgain(const Saver &saver)
{
    const pid_t process = fork();
    if (process != 0) return process;
    for (int turn = 1; turn <= Saves; ++turn) {
        if (turn > 1 && saver.read() != QString::number(turn - 1)) _exit(1);
        saver.save(QString::number(turn));
    }
    _exit(0);
}

void sideBySide(const Saver &one, const Saver &other)
{
    const pid_t processes[]{saveAgainAndAgain(one), saveAgainAndAgain(other)};
    for (const pid_t process : processes) {
        int status = 0;
        QCOMPARE(waitpid(process, &status, 0), process);
        QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }
}
} // namespace

class tst_TwoInstances : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { setSettingsFolder({}); }
    void bothSaveTheirSettings();
    void bothSaveTheirSteps();
    void anInstanceThatStandsStillHoldsNobodyUp();

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }
    QString heading(const QString &tag) const { return readProfileString(tag, u"Header"_s, {}, 1023, script()); }
    QString script() const { return file(u"DemoData.ini"_s); }

    QTemporaryDir m_folder;
};

void tst_TwoInstances::init()
{
    m_folder = QTemporaryDir();
    setSettingsFolder(m_folder.path());
}

void tst_TwoInstances::bothSaveTheirSettings()
{
    const auto saver = [](const QString &key) {
        return Saver{[key](const QString &text) { SaveSetting(Application, Section, key, text); },
                     [key] { return GetSetting(Application, Section, key); }};
    };
    sideBySide(saver(u"Name"_s), saver(u"Company"_s));
    QCOMPARE(GetSetting(Application, Section, u"Name"_s), QString::number(Saves));
    QCOMPARE(GetSetting(Application, Section, u"Company"_s), QString::number(Saves));
}

void tst_TwoInstances::bothSaveTheirSteps()
{
    const auto saver = [this](const QString &tag) {
        return Saver{[this, tag](const QString &text) { writeProfileString(tag, u"Header"_s, text, script()); },
                     [this, tag] { return heading(tag); }};
    };
    sideBySide(saver(u"127"_s), saver(u"128"_s));
    QCOMPARE(heading(u"127"_s), QString::number(Saves));
    QCOMPARE(heading(u"128"_s), QString::number(Saves));
}

// One that was stopped in the middle of its save, by a debugger say.
void tst_TwoInstances::anInstanceThatStandsStillHoldsNobodyUp()
{
    constexpr int Patience = 10000; // milliseconds
    const int held = ::open(QFile::encodeName(m_folder.path()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    QCOMPARE(::flock(held, LOCK_EX), 0);
    QElapsedTimer waited;
    waited.start();
    SaveSetting(Application, Section, u"Name"_s, u"Ada"_s);
    QVERIFY(writeProfileString(u"127"_s, u"Header"_s, u"One"_s, script()));
    QVERIFY(!waited.hasExpired(Patience));
    ::close(held);
    QCOMPARE(GetSetting(Application, Section, u"Name"_s), u"Ada"_s);
    QCOMPARE(heading(u"127"_s), u"One"_s);
}

QTEST_GUILESS_MAIN(tst_TwoInstances)
#include "tst_TwoInstances.moc"
