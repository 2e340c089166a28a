// A machine whose registry is filled by the test.
#pragma once

#include "platform/system/Host.h"

#include <map>
#include <utility>

namespace orvane
{

template <class Base>
class RegistryHost : public Base
{
public:
    void setKey(quint32 rootKey, const QString &subKey, const RegistryKey &key) { m_keys[{rootKey, subKey}] = key; }
    int timesOpened() const { return m_timesOpened; }

    std::optional<RegistryKey> openRegistryKey(quint32 rootKey, const QString &subKey) override
    {
        ++m_timesOpened;
        const auto found = m_keys.find({rootKey, subKey});
        return found == m_keys.end() ? std::nullopt : std::optional(found->second);
    }

private:
    std::map<std::pair<quint32, QString>, RegistryKey> m_keys;
    int m_timesOpened = 0;
};

} // namespace orvane
