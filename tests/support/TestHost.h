// The machine as a test wants it: message boxes are answered and noted, time passes when the test says so, the program
// stands in a folder of its own, and the end of the process ends nothing. There is no print queue but those that the
// test sets up; the PDF file printer is there.
//
// A message box, a print dialog or an end of the process that the test didn't expect fails it.
#pragma once

#include "platform/print/dialog/PrintChoice.h"
#include "platform/print/preview/PageSetupDialog.h"
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

    void advance(int milliseconds);                      // ticks the timers that fall due
    void setToday(const QDate &date) { m_today = date; } // 3 February 2001 until then
    int runningTimers() const { return static_cast<int>(m_timers.size()); }

    // What is printed on a queue of the test comes to lie in a PDF file.
    void setPrintQueues(const std::vector<InstalledPrinter> &queues) { m_queues = queues; }
    QString printedFile(const QString &queueName) const
    {
        return m_folder.filePath(queueName + QStringLiteral(".pdf"));
    }
    void setDocumentsFolder(const QString &folder) { m_documents = folder; }
    void setNoPrinters(); // no queue, and no folder that can be written

    // The next print dialog is handed to the answer, which makes its choice and tells whether it's OK.
    void answerPrintDialog(std::function<bool(PrintChoice &)> answer);

    // The same for the dialog of paper and margins, or of the printer.
    void answerPageSetup(std::function<bool(PageChoice &)> answer);

    void messageBox(const QString &text, int style, const QString &title) override;
    QString programFolder() override { return folder(); }
    void endProcess(int exitCode) override;
    int startTimer(int interval, std::function<void()> tick) override;
    void stopTimer(int number) override;
    QDate today() override { return m_today; }
    std::vector<InstalledPrinter> printQueues() override { return m_queues; }
    std::unique_ptr<QPrinter> openQueue(const QString &queueName) override;
    bool printDialog(PrintChoice &choice, quint32 owner) override;
    bool pageSetupDialog(PageChoice &choice) override;
    QString documentsFolder() override { return m_documents; }

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
    QDate m_today{2001, 2, 3};
    std::vector<InstalledPrinter> m_queues;
    QString m_documents;
    std::vector<std::function<bool(PrintChoice &)>> m_dialogAnswers;
    std::vector<std::function<bool(PageChoice &)>> m_pageSetupAnswers;
    Host *m_before;
};

} // namespace orvane::test
