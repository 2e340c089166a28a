// The machine's clock is set while the program runs.
#include "platform/system/Host.h"
#include "platform/system/SettingsStore.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <ctime>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{
constexpr std::int64_t Year = 366LL * 24 * 60 * 60; // seconds, and one day more than most have
std::atomic<std::int64_t> secondsOff = 0;
} // namespace

// The calls of all libraries come here: the time of day is as wrong as the test wants it.
extern "C" int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    const auto result = static_cast<int>(::syscall(SYS_clock_gettime, clock, time));
    if (result == 0 && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE)) time->tv_sec += secondsOff;
    return result;
}

extern "C" int gettimeofday(timeval *time, void *) noexcept
{
    timespec now{};
    const int result = clock_gettime(CLOCK_REALTIME, &now);
    *time = {now.tv_sec, now.tv_nsec / 1000};
    return result;
}

class tst_ClockJumps : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { secondsOff = 0; }
    void todayIsThatOfTheClock();
    void aTimerTicksInItsTime_data();
    void aTimerTicksInItsTime();
    void settingsOfTheFutureAreSaved();
};

void tst_ClockJumps::todayIsThatOfTheClock()
{
    const QDate before = host().today();
    secondsOff = 3 * Year;
    QVERIFY(host().today() > before.addYears(2));
    secondsOff = -3 * Year;
    QVERIFY(host().today() < before.addYears(-2));
}

void tst_ClockJumps::aTimerTicksInItsTime_data()
{
    QTest::addColumn<qint64>("jump");
    QTest::newRow("none") << qint64(0);
    QTest::newRow("an hour on") << qint64(3600);
    QTest::newRow("an hour back") << qint64(-3600);
    QTest::newRow("years on") << qint64(10 * Year);
    QTest::newRow("years back") << qint64(-10 * Year);
}

// The intro's 45 seconds and the notice's two are timers of this kind.
void tst_ClockJumps::aTimerTicksInItsTime()
{
    constexpr int Interval = 300; // milliseconds
    constexpr int Patience = 10 * Interval;
    QFETCH(const qint64, jump);
    QElapsedTimer passed; // by the clock that nobody sets
    qint64 tickedAfter = 0;
    passed.start();
    const int timer = host().startTimer(Interval, [&] { tickedAfter = passed.elapsed(); });
    secondsOff = jump;
    QTRY_VERIFY(tickedAfter > 0);
    host().stopTimer(timer);
    QVERIFY2(tickedAfter >= Interval - 1 && tickedAfter < Patience, qPrintable(QString::number(tickedAfter)));
}

void tst_ClockJumps::settingsOfTheFutureAreSaved()
{
    const QTemporaryDir folder;
    setSettingsFolder(folder.path());
    const auto save = [](const QString &name) { SaveSetting(u"program"_s, u"section"_s, u"Name"_s, name); };
    save(u"Ada"_s);
    QFile file(folder.filePath(u"program.ini"_s));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addYears(2), QFileDevice::FileModificationTime));
    file.close();
    QCOMPARE(GetSetting(u"program"_s, u"section"_s, u"Name"_s), u"Ada"_s);
    for (const QString &name : {u"Bob"_s, u"Eve"_s}) {
        save(name);
        QCOMPARE(GetSetting(u"program"_s, u"section"_s, u"Name"_s), name);
    }
    setSettingsFolder({});
}

QTEST_GUILESS_MAIN(tst_ClockJumps)
#include "tst_ClockJumps.moc"
