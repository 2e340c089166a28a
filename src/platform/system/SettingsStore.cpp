#include "platform/system/SettingsStore.h"

#include <QSettings>
#include <QStringList>

#include <memory>

namespace orvane
{

using namespace Qt::Literals::StringLiterals;

namespace
{

QString &settingsFolder()
{
    static QString folder;
    return folder;
}

std::unique_ptr<QSettings> openSettings(const QString &application)
{
    if (settingsFolder().isEmpty())
        return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, application);
    return std::make_unique<QSettings>(settingsFolder() + u'/' + application + u".ini"_s, QSettings::IniFormat);
}

} // namespace

QString GetSetting(const QString &application, const QString &section, const QString &key, const QString &defaultValue)
{
    const QVariant value = openSettings(application)->value(section + u'/' + key, defaultValue);
    if (value.typeId() == QMetaType::QStringList) return value.toStringList().join(u", "_s);
    return value.toString();
}

void SaveSetting(const QString &application, const QString &section, const QString &key, const QString &value)
{
    const auto settings = openSettings(application);
    settings->setAtomicSyncRequired(true);
    settings->setValue(section + u'/' + key, value);
    settings->sync();
}

void setSettingsFolder(const QString &folder)
{
    settingsFolder() = folder;
}

} // namespace orvane
