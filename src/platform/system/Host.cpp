#include "platform/system/Host.h"

#include "platform/print/dialog/SystemPrintDialog.h"
#include "platform/print/preview/PageSetupDialog.h"
#include "platform/print/queues/SystemQueues.h"
#include "platform/system/Application.h"
#include "platform/system/MachineTimers.h"

#include <QApplication>
#include <QCoreApplication>
#include <QMessageBox>
#include <QPrinter>
#include <QStandardPaths>
#include <cstdlib>

namespace orvane
{

namespace
{
Host *inItsPlace = nullptr;

Host &machine()
{
    static Host host;
    return host;
}

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

QDate Host::today()
{
    return QDate::currentDate();
}

std::optional<RegistryKey> Host::openRegistryKey(quint32 rootKey, const QString &subKey)
{
    return openMachineKey(rootKey, subKey);
}

std::vector<InstalledPrinter> Host::printQueues()
{
    return systemQueues();
}

std::unique_ptr<QPrinter> Host::openQueue(const QString &queueName)
{
    return openSystemQueue(queueName);
}

bool Host::printDialog(PrintChoice &choice, quint32 owner)
{
    return showSystemPrintDialog(choice, owner);
}

bool Host::pageSetupDialog(PageChoice &choice)
{
    return showPageSetupDialog(choice);
}

QString Host::documentsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

Host &host()
{
    return inItsPlace ? *inItsPlace : machine();
}

Host *setHost(Host *other)
{
    Host *before = inItsPlace;
    inItsPlace = other;
    return before;
}

void MsgBox(const QString &text, int style, const QString &title)
{
    host().messageBox(text, style, title.isEmpty() ? App().Title() : title);
}

} // namespace orvane
