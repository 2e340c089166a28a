#include "WalkHost.h"

#include <utility>

namespace orvane::walk
{

WalkHost::WalkHost(const QString &programFolder, const QString &outFolder)
    : m_programFolder(programFolder), m_outFolder(outFolder), m_before(setHost(this))
{
}

WalkHost::~WalkHost()
{
    setHost(m_before);
}

QStringList WalkHost::takeMessages()
{
    return std::exchange(m_messages, {});
}

void WalkHost::messageBox(const QString &text, int, const QString &)
{
    m_messages << text;
}

QString WalkHost::programFolder()
{
    return m_programFolder.isEmpty() ? Host::programFolder() : m_programFolder;
}

void WalkHost::endProcess(int exitCode)
{
    if (!m_exitCode) m_exitCode = exitCode;
}

} // namespace orvane::walk
