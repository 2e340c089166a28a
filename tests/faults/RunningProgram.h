// The program as it is installed: its own process, in a folder of its own beside its data files, with a home folder of
// its own, on a display of the test.
#pragma once

#include "support/PrivateDisplay.h"

#include <QProcess>
#include <QTemporaryDir>
#include <optional>

namespace orvane::test
{

class RunningProgram
{
public:
    explicit RunningProgram(const PrivateDisplay &display);
    ~RunningProgram();

    // Before the start.
    QString folder() const { return m_folder.path(); }
    QString file(const QString &name) const { return m_folder.filePath(name); }
    QString home() const { return m_home.path(); }
    void set(const QString &variable, const QString &value) { m_environment.insert(variable, value); }
    void unset(const QString &variable) { m_environment.remove(variable); }
    void runAsNobody(); // for whom the folder is for reading only, and so is the home folder

    void start();
    qint64 processId() const { return m_process.processId(); }
    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }
    QByteArray complaints() { return m_process.readAllStandardError(); }

    // Each waits, and is false or nothing where it waited in vain.
    bool showsIntro() const;
    bool leaveIntro();
    void leaveIntroAtOnce() const; // one that is up
    std::optional<ShownWindow> console() const;
    std::optional<ShownWindow> frame() const;
    std::optional<ShownWindow> message() const;
    QStringList titles() const; // of the windows that are up at this moment
    void pressNext(const ShownWindow &console) const;
    void pressQuit(const ShownWindow &console) const;
    bool closeAndQuit();
    std::optional<int> exitCode(); // nothing where the program crashed too

private:
    using Which = std::function<bool(const ShownWindow &)>;

    std::optional<ShownWindow> find(const Which &isIt) const;
    std::optional<ShownWindow> shown(const Which &isIt) const; // waits for it

    const PrivateDisplay &m_display;
    QTemporaryDir m_folder;
    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    QProcess m_process;
};

} // namespace orvane::test
