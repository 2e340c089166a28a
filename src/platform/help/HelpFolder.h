// A folder of the help window's own, for what the help engine writes. It lies in the user's cache or, where that can't
// be written, among the temporary files, and is empty when it is taken and gone when it is given back.
#pragma once

#include <QString>
#include <memory>

class QLockFile;
class QTemporaryDir;

namespace orvane
{

class HelpFolder
{
public:
    HelpFolder(); // error 75 where there is no place for a folder
    ~HelpFolder();
    HelpFolder(const HelpFolder &) = delete;
    HelpFolder &operator=(const HelpFolder &) = delete;

    QString filePath(const QString &name) const;

private:
    bool takeInCache();
    void takeTemporary();

    std::unique_ptr<QLockFile> m_lock;
    std::unique_ptr<QTemporaryDir> m_temporary;
    QString m_path;
};

} // namespace orvane
