// The seam between the program and the machine it runs on: a test sets a host of its own to answer message boxes and
// the print dialogs, to stand in another folder, to have other printers, to move the clock, and to live on after the
// end of the process.
#pragma once

#include "platform/print/InstalledPrinter.h"
#include "platform/system/RegistryStandIn.h"

#include <QDate>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QPrinter;

namespace orvane
{

struct PageChoice;
struct PrintChoice;

enum MessageStyles { NoIcon = 0, CriticalIcon = 16, InformationIcon = 64 };

class Host
{
public:
    virtual ~Host() = default;

    virtual void messageBox(const QString &text, int style, const QString &title);
    virtual QString programFolder();
    virtual void endProcess(int exitCode);

    // Calls tick every interval milliseconds until the returned number is handed to stopTimer.
    virtual int startTimer(int interval, std::function<void()> tick);
    virtual void stopTimer(int number);
    virtual QDate today();

    // Nothing where the key can't be opened.
    virtual std::optional<RegistryKey> openRegistryKey(quint32 rootKey, const QString &subKey);

    // The queues of the system's print service under their own names, its default one first.
    virtual std::vector<InstalledPrinter> printQueues();
    // Nothing where the print service has no queue of this name.
    virtual std::unique_ptr<QPrinter> openQueue(const QString &queueName);
    // False where the user cancels, and then nothing of the choice is changed. The owner is a window's handle, or 0.
    virtual bool printDialog(PrintChoice &choice, quint32 owner);
    // The same for the paper and the margins, or for the printer.
    virtual bool pageSetupDialog(PageChoice &choice);
    virtual QString documentsFolder();
};

Host &host();
// Sets another host, which the caller keeps alive, and returns the one before. nullptr is the machine's own, both ways.
Host *setHost(Host *other);

// A message box; the text alone where no title is given bears the application's.
void MsgBox(const QString &text, int style = NoIcon, const QString &title = {});

} // namespace orvane
