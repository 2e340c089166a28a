// What a process has open and has begun, as the kernel tells of it.
#pragma once

#include <QStringList>

namespace orvane::test
{

// The sockets that are none of this machine's own kind, each as "socket:[number]". Those of the machine, which have no
// address beyond it, lead to the display, the buses and the print service.
QStringList socketsToElsewhere(qint64 processId);
int socketsOfThisMachine(qint64 processId);

// The programs that the process has started and that still run, by their files.
QStringList childrenOf(qint64 processId);

} // namespace orvane::test
