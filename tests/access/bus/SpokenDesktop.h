// A desktop of the test's own for the real program: a display, a session bus, and an accessibility bus on which
// somebody listens. All of it ends with the test; that of the machine is left alone.
#pragma once

#include "access/bus/Spoken.h"
#include "support/PrivateDisplay.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <memory>
#include <optional>

namespace orvane::test
{

class SpokenDesktop
{
public:
    static QString missingProgram(); // of those that are needed; nothing where all are there

    SpokenDesktop();
    ~SpokenDesktop();

    // False where one of its parts didn't come up; problem() tells which.
    bool start();
    QString problem() const { return m_problem; }

    bool startProgram(); // up to the intro, with settings of its own
    bool programRuns() const { return m_program && m_program->state() == QProcess::Running; }
    void endProgram();

    const AccessBus &bus() const { return *m_bus; }
    Spoken program() const; // with its windows; without role where it isn't on the bus

private:
    bool startSessionBus();
    bool startAccessibilityBus();
    bool failed(const QString &problem);
    std::unique_ptr<QProcess> newProcess(const QString &name, const QStringList &arguments) const;

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
    PrivateDisplay m_display{{1280, 1024}};
    std::unique_ptr<QProcess> m_sessionBus;
    std::unique_ptr<QProcess> m_program;
    std::optional<AccessBus> m_bus;
    QString m_problem;
};

} // namespace orvane::test
