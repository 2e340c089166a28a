// The seam between the program and the machine it runs on: a test sets a host of its own to answer message boxes, to
// stand in another folder, to move the clock, and to live on after the end of the process.
#pragma once

#include "platform/system/RegistryStandIn.h"

#include <QString>
#include <functional>
#include <optional>

namespace orvane
{

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

    // Nothing where the key can't be opened.
    virtual std::optional<RegistryKey> openRegistryKey(quint32 rootKey, const QString &subKey);
};

Host &host();
// Sets another host and returns the one before; the caller keeps it alive. nullptr sets the machine's own.
Host *setHost(Host *other);

// A message box; the text alone where no title is given bears the application's.
void MsgBox(const QString &text, int style = NoIcon, const QString &title = {});

} // namespace orvane
