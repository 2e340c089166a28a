// The system's profile store: text files of sections, keys and values in code page 1252. A file is named at each call
// and never cached. Names compare without case, and blanks around them don't count.
#pragma once

#include <QString>

namespace orvane
{

// The value of a key, without blanks and one pair of quotes around it. Where the file, the section or the key is
// absent, the default. Of either at most size - 1 characters. An empty value is empty, not the default.
QString readProfileString(const QString &section, const QString &key, const QString &defaultValue, int size,
                          const QString &fileName);

// Puts a value in place of the old one, or adds its line, its section or the file; every other byte stays. The value is
// written as it stands, except that line breaks in it are dropped. The file is replaced in one step: whoever reads it
// finds the old or the new one whole, and of two programs that write one waits for the other. False where that failed,
// or where the names could not be read back; the file is then as it was.
bool writeProfileString(const QString &section, const QString &key, const QString &value, const QString &fileName);

} // namespace orvane
