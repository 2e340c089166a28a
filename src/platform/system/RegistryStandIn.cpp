#include "platform/system/RegistryStandIn.h"

#include "platform/system/AccountRecord.h"
#include "platform/system/StartProgram.h"

#include <unistd.h>

namespace orvane
{

using namespace Qt::Literals::StringLiterals;

namespace
{
RegistryValue asStored(const QString &text)
{
    return {RegistryString, text + QChar(u'\0')};
}

std::optional<RegistryKey> openUserInfo()
{
    const std::optional<QString> name = accountFullName(u"/etc/passwd"_s, getuid());
    if (!name) return {};
    RegistryKey key;
    key.set(u"DefName"_s, asStored(*name));
    return key;
}

std::optional<RegistryKey> openSystemInformation()
{
    for (const QString &tool : {u"hardinfo2"_s, u"hardinfo"_s, u"kinfocenter"_s, u"gnome-system-monitor"_s}) {
        const QString path = findProgram(tool);
        if (path.isEmpty()) continue;
        RegistryKey key;
        key.set(u"PATH"_s, asStored(path));
        return key;
    }
    return {};
}

bool isKey(const QString &subKey, QLatin1StringView known)
{
    return subKey.compare(known, Qt::CaseInsensitive) == 0;
}
} // namespace

void RegistryKey::set(const QString &valueName, const RegistryValue &value)
{
    m_values.insert_or_assign(valueName.toCaseFolded(), value);
}

std::optional<RegistryValue> RegistryKey::query(const QString &valueName, qsizetype room) const
{
    const auto found = m_values.find(valueName.toCaseFolded());
    if (found == m_values.end() || found->second.data.size() > room) return {};
    return found->second;
}

std::optional<RegistryKey> openMachineKey(quint32 rootKey, const QString &subKey)
{
    if (rootKey == HKEY_USERS && isKey(subKey, R"(.Default\Software\Microsoft\MS Setup (ACME)\User Info)"_L1))
        return openUserInfo();
    if (rootKey == HKEY_LOCAL_MACHINE && isKey(subKey, R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)"_L1))
        return openSystemInformation();
    return {};
}

} // namespace orvane
