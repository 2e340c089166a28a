#include "support/TestHost.h"

#include <QFile>
#include <QTest>

namespace orvane::test
{

TestHost::TestHost() : m_before(setHost(this))
{
    writeFile(QStringLiteral("DealerData.dat"), {});
}

TestHost::~TestHost()
{
    setHost(m_before);
    if (!m_expected.empty()) QTest::qFail("an expected message box didn't come up", __FILE__, __LINE__);
    if (m_expectedEnd) QTest::qFail("the process didn't end as expected", __FILE__, __LINE__);
}

void TestHost::expectMessage(const QString &text)
{
    m_expected.emplace_back(text);
}

void TestHost::expectAnyMessage()
{
    m_expected.emplace_back(std::nullopt);
}

void TestHost::expectEnd(int exitCode)
{
    m_expectedEnd = exitCode;
}

void TestHost::writeFile(const QString &name, const QByteArray &bytes) const
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        QTest::qFail("a file of the test can't be written", __FILE__, __LINE__);
}

QByteArray TestHost::readFile(const QString &name) const
{
    QFile file(m_folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestHost::removeFile(const QString &name) const
{
    QFile::remove(m_folder.filePath(name));
}

void TestHost::advance(int milliseconds)
{
    for (auto [number, due] : std::map(m_timers)) { // a tick may start and stop timers
        if (!m_timers.contains(number)) continue;
        Due &timer = m_timers.at(number);
        timer.left -= milliseconds;
        if (timer.left > 0) continue;
        timer.left += timer.interval;
        due.tick();
    }
}

void TestHost::messageBox(const QString &text, int style, const QString &title)
{
    m_messages.push_back({text, style, title});
    if (m_expected.empty()) {
        QTest::qFail(qPrintable(QStringLiteral("unexpected message box: ") + text), __FILE__, __LINE__);
        return;
    }
    const auto expected = m_expected.front();
    m_expected.erase(m_expected.begin());
    if (expected) QCOMPARE(text, *expected);
}

void TestHost::endProcess(int exitCode)
{
    if (m_expectedEnd != exitCode) QTest::qFail("the process ended unexpectedly", __FILE__, __LINE__);
    m_expectedEnd.reset();
    m_exitCode = exitCode;
}

int TestHost::startTimer(int interval, std::function<void()> tick)
{
    m_timers.emplace(m_nextTimer, Due{interval, interval, std::move(tick)});
    return m_nextTimer++;
}

void TestHost::stopTimer(int number)
{
    m_timers.erase(number);
}

} // namespace orvane::test
