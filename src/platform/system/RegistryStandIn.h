// Stands in for the registry of systems that have one: the few keys that the program reads, answered from what this
// machine knows of its user and of its tools. Names of keys and values compare without case.
//
//   HKEY_USERS, .Default\Software\Microsoft\MS Setup (ACME)\User Info   DefName, the full name of the user's account;
//                                                                       no DefCompany: accounts have none
//   HKEY_LOCAL_MACHINE, SOFTWARE\Microsoft\Shared Tools\MSINFO          PATH, the desktop's system information tool
//
// The first is there for a user with a local account, the second where such a tool is installed; no other key is.
#pragma once

#include <QString>
#include <map>
#include <optional>

namespace orvane
{

inline constexpr quint32 HKEY_LOCAL_MACHINE = 0x80000002;
inline constexpr quint32 HKEY_USERS = 0x80000003;

enum RegistryTypes { RegistryString = 1, RegistryBinary = 3, RegistryNumber = 4 };

// What is kept under a name: a character for each byte, those of a number from the lowest to the highest. A string's
// final NUL belongs to its data where it was stored with one.
struct RegistryValue {
    int type = RegistryString;
    QString data;
};

class RegistryKey
{
public:
    void set(const QString &valueName, const RegistryValue &value);

    // Nothing where there is no such value, or where its data are longer than the room for them.
    std::optional<RegistryValue> query(const QString &valueName, qsizetype room) const;

private:
    std::map<QString, RegistryValue> m_values;
};

// Nothing where the key can't be opened.
std::optional<RegistryKey> openMachineKey(quint32 rootKey, const QString &subKey);

} // namespace orvane
