#include "platform/system/SettingsStore.h"

#include "platform/system/FolderLock.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <optional>

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

bool holdTheSame(const QSettings &one, const QSettings &other)
{
    const QStringList keys = one.allKeys();
    return keys == other.allKeys() && std::all_of(keys.begin(), keys.end(), [&](const QString &key) {
               return one.value(key) == other.value(key);
           });
}

// A disk that runs full in the middle passes for a good write with the toolkit. So what it wrote is read again, under a
// name of which it remembers nothing.
std::optional<QByteArray> writtenBytes(QSettings &draft, const QString &otherName)
{
    draft.sync();
    if (!QFile::rename(draft.fileName(), otherName)) return {};
    if (!holdTheSame(draft, QSettings(otherName, QSettings::IniFormat))) return {};
    QFile file(otherName);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return file.readAll();
}

// The toolkit reads a file again where its size or its time is another.
void makeNewerThan(const QDateTime &before, QFileDevice &file)
{
    if (before.isValid() && file.fileTime(QFileDevice::FileModificationTime) <= before)
        file.setFileTime(before.addMSecs(1), QFileDevice::FileModificationTime);
}

void replaceFile(const QString &fileName, const QByteArray &bytes)
{
    const QDateTime before = QFileInfo(fileName).lastModified();
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) return;
    if (!before.isValid()) file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    if (file.write(bytes) != bytes.size()) return;
    if (!file.flush()) return; // a commit overlooks what its own flush couldn't write
    makeNewerThan(before, file);
    file.commit();
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
    const QString fileName = openSettings(application)->fileName();
    const QString folderName = QFileInfo(fileName).path();
    QDir().mkpath(folderName);
    const FolderLock lock(folderName);
    const auto saved = openSettings(application);
    if (saved->status() == QSettings::AccessError) return; // there may be more in it
    saved->setFallbacksEnabled(false);
    const QTemporaryDir folder(fileName + u".XXXXXX"_s);
    if (!folder.isValid()) return;
    QSettings draft(folder.filePath(u"draft.ini"_s), QSettings::IniFormat);
    for (const QString &known : saved->allKeys())
        draft.setValue(known, saved->value(known));
    draft.setValue(section + u'/' + key, value);
    if (const auto bytes = writtenBytes(draft, folder.filePath(u"written.ini"_s))) replaceFile(fileName, *bytes);
}

void setSettingsFolder(const QString &folder)
{
    settingsFolder() = folder;
}

} // namespace orvane
