#include "support/TestHost.h"

#include "platform/print/DefaultPrinter.h"
#include "platform/print/Printers.h"

#include <QFile>
#include <QPrinter>
#include <QTest>
#include <algorithm>

namespace orvane::test
{

TestHost::TestHost() : m_before(setHost(this))
{
    writeFile(QStringLiteral("DealerData.dat"), {});
    m_documents = m_folder.filePath(QStringLiteral("Documents"));
    Printer() = DefaultPrinter();
    setPdfFileName({});
}

TestHost::~TestHost()
{
    setHost(m_before);
    if (!m_expected.empty()) QTest::qFail("an expected message box didn't come up", __FILE__, __LINE__);
    if (!m_dialogAnswers.empty()) QTest::qFail("an expected print dialog didn't come up", __FILE__, __LINE__);
    if (!m_pageSetupAnswers.empty()) QTest::qFail("an expected page setup dialog didn't come up", __FILE__, __LINE__);
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
    for (const auto &[number, due] : std::map(m_timers)) { // a tick may start and stop timers
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

void TestHost::setNoPrinters()
{
    m_queues.clear();
    m_documents = m_folder.filePath(QStringLiteral("DealerData.dat/Documents"));
}

void TestHost::answerPrintDialog(std::function<bool(PrintChoice &)> answer)
{
    m_dialogAnswers.push_back(std::move(answer));
}

std::unique_ptr<QPrinter> TestHost::openQueue(const QString &queueName)
{
    if (std::none_of(m_queues.begin(), m_queues.end(), [&](const auto &each) { return each.deviceName == queueName; }))
        return nullptr;
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(printedFile(queueName));
    return printer;
}

void TestHost::answerPageSetup(std::function<bool(PageChoice &)> answer)
{
    m_pageSetupAnswers.push_back(std::move(answer));
}

bool TestHost::pageSetupDialog(PageChoice &choice)
{
    if (m_pageSetupAnswers.empty()) {
        QTest::qFail("unexpected page setup dialog", __FILE__, __LINE__);
        return false;
    }
    const auto answer = m_pageSetupAnswers.front();
    m_pageSetupAnswers.erase(m_pageSetupAnswers.begin());
    return answer(choice);
}

bool TestHost::printDialog(PrintChoice &choice, quint32)
{
    if (m_dialogAnswers.empty()) {
        QTest::qFail("unexpected print dialog", __FILE__, __LINE__);
        return false;
    }
    const auto answer = m_dialogAnswers.front();
    m_dialogAnswers.erase(m_dialogAnswers.begin());
    return answer(choice);
}

} // namespace orvane::test
