#include "platform/system/Guard.h"

#include "platform/system/Application.h"
#include "platform/system/Host.h"

#include <exception>

namespace orvane
{

namespace
{
constexpr int FailureCode = 1;

void reportAndEnd(const QString &text)
{
    try {
        MsgBox(text, CriticalIcon, App().Title());
        End(FailureCode);
    } catch (const ProgramEnded &) {
        // A host that ends nothing has noted the end; the event loop goes on.
    }
}
} // namespace

void End(int exitCode)
{
    host().endProcess(exitCode);
    throw ProgramEnded{};
}

void guarded(const std::function<void()> &handler) noexcept
{
    try {
        handler();
    } catch (const RunTimeError &error) {
        reportAndEnd(QStringLiteral("Error %1: %2").arg(error.Number()).arg(error.Description()));
    } catch (const ProgramEnded &) {
    } catch (const std::exception &error) {
        reportAndEnd(QString::fromUtf8(error.what()));
    }
}

void resumeNext(const std::function<void()> &step)
{
    try {
        step();
    } catch (const RunTimeError &) {
    }
}

} // namespace orvane
