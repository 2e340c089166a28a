// The host of the moment, with a registry that the test fills; it is empty at first.
#pragma once

#include "platform/system/Host.h"

#include <map>
#include <utility>

namespace orvane::test
{

class RegistryHost : public Host
{
public:
    RegistryHost() : m_before(setHost(this)) {}
    ~RegistryHost() override { setHost(m_before); }

    void setKey(quint32 rootKey, const QString &subKey, const RegistryKey &key) { m_keys[{rootKey, subKey}] = key; }
    int timesOpened() const { return m_timesOpened; }

    std::optional<RegistryKey> openRegistryKey(quint32 rootKey, const QString &subKey) override
    {
        ++m_timesOpened;
        const auto found = m_keys.find({rootKey, subKey});
        return found == m_keys.end() ? std::nullopt : std::optional(found->second);
    }

    void messageBox(const QString &text, int style, const QString &title) override
    {
        m_before->messageBox(text, style, title);
    }
    QString programFolder() override { return m_before->programFolder(); }
    void endProcess(int exitCode) override { m_before->endProcess(exitCode); }
    int startTimer(int interval, std::function<void()> tick) override
    {
        return m_before->startTimer(interval, std::move(tick));
    }
    void stopTimer(int number) override { m_before->stopTimer(number); }

private:
    Host *m_before;
    std::map<std::pair<quint32, QString>, RegistryKey> m_keys;
    int m_timesOpened = 0;
};

} // namespace orvane::test
