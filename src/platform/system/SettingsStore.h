// The user's settings: a string table by application, section and key, kept in one INI file for each application in the
// user's own configuration folder. A value of any text comes back as it was saved.
#pragma once

#include <QString>

namespace orvane
{

// The default where nothing was saved; a saved empty text is empty. A list that somebody typed into the file by hand,
// with commas and no quotes, is the text with its commas.
QString GetSetting(const QString &application, const QString &section, const QString &key,
                   const QString &defaultValue = {});

// On disk when it returns, the file being replaced in one step. What another program saves at the same time stays. A
// failure isn't reported.
void SaveSetting(const QString &application, const QString &section, const QString &key, const QString &value);

// Where the files stand from now on; empty is the system's place for the user.
void setSettingsFolder(const QString &folder);

} // namespace orvane
