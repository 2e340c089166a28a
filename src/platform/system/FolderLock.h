// Keeps two programs that save into one folder from undoing each other's work: whoever is first reads, changes and
// replaces its file before the other begins.
#pragma once

#include <QString>

namespace orvane
{

class FolderLock
{
public:
    // Waits for the other program, but not for ever: one that stands still in the middle of its save is passed over
    // after a second, and so is a folder that can't be locked. Nothing is left in the folder.
    explicit FolderLock(const QString &folder);
    ~FolderLock();
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;

private:
    int m_folder; // below 0: not locked
};

} // namespace orvane
