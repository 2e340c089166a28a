// The machine as a test wants it: message boxes are answered and noted, time passes when the test says so, the program
// stands in a folder of its own, and the end of the process ends nothing.
//
// A message box or an end of the process that the test didn't expect fails it.
#pragma once

#include "platform/system/Host.h"

#include <QStringList>
#include <QTemporaryDir>
#include <functional>
#include <map>
#include <optional>

namespace orvane::test
{

struct Message {
    QString text;
    int style = 0;
    QString title;
};

class TestHost : public Host
{
public:
    TestHost();
    ~TestHost() override;

    // Each is called once: the next message box has to bear this text, the process has to end with this code.
    void expectMessage(const QString &text);
    void expectAnyMessage();
    void expectEnd(int exitCode);
    const std::vector<Message> &messages() const { return m_messages; }
    std::optional<int> exitCode() const { return m_exitCode; }

    // The program's folder, with an empty dealer file and, once written, a tour script.
    QString folder() const { return m_folder.path(); }
    void writeFile(const QString &name, const QByteArray &bytes) const;
    QByteArray readFile(const QString &name) const;
    void removeFile(const QString &name) const;

    void advance(int milliseconds); // ticks the timers that fall due
    int runningTimers() const { return static_cast<int>(m_timers.size()); }

    void messageBox(const QString &text, int style, const QString &title) override;
    QString programFolder() override { return folder(); }
    void endProcess(int exitCode) override;
    int startTimer(int interval, std::function<void()> tick) override;
    void stopTimer(int number) override;

private:
    struct Due {
        int interval = 0;
        int left = 0;
        std::function<void()> tick;
    };

    QTemporaryDir m_folder;
    std::vector<Message> m_messages;
    std::vector<std::optional<QString>> m_expected;
    std::optional<int> m_expectedEnd;
    std::optional<int> m_exitCode;
    std::map<int, Due> m_timers;
    int m_nextTimer = 1;
    Host *m_before;
};

} // namespace orvane::test
