#include "platform/system/Host.h"

#include "platform/system/Application.h"
#include "platform/system/MachineTimers.h"

#include <QApplication>
#include <QCoreApplication>
#include <QMessageBox>
#include <cstdlib>

namespace orvane
{

namespace
{
Host machine;
Host *current = &machine;

QMessageBox::Icon iconOf(int style)
{
    switch (style) {
    case CriticalIcon:
        return QMessageBox::Critical;
    case InformationIcon:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}
} // namespace

void Host::messageBox(const QString &text, int style, const QString &title)
{
    QMessageBox box(iconOf(style), title, text, QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setWindowModality(Qt::ApplicationModal);
    box.setWindowFlag(Qt::WindowStaysOnTopHint); // the tour's console stays on top too
    box.exec();
}

QString Host::programFolder()
{
    return QCoreApplication::applicationDirPath();
}

void Host::endProcess(int exitCode)
{
    std::_Exit(exitCode);
}

int Host::startTimer(int interval, std::function<void()> tick)
{
    return machineTimers().start(interval, std::move(tick));
}

void Host::stopTimer(int number)
{
    machineTimers().stop(number);
}

std::optional<RegistryKey> Host::openRegistryKey(quint32 rootKey, const QString &subKey)
{
    return openMachineKey(rootKey, subKey);
}

Host &host()
{
    return *current;
}

Host *setHost(Host *other)
{
    Host *before = current;
    current = other ? other : &machine;
    return before;
}

void MsgBox(const QString &text, int style, const QString &title)
{
    host().messageBox(text, style, title.isEmpty() ? App().Title() : title);
}

} // namespace orvane
