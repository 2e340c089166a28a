// The help engine on a checked copy of the help file, with everything that it writes in a folder of its own.
#pragma once

#include "platform/help/HelpFolder.h"

#include <QByteArray>
#include <QHelpEngine>
#include <QList>
#include <QString>
#include <QUrl>

namespace orvane
{

class HelpLibrary
{
public:
    explicit HelpLibrary(const QString &helpFile); // errors 53, 75 and 321, see WinHelp
    ~HelpLibrary();

    QHelpEngine &engine() { return *m_engine; }

    QUrl firstPage() const;
    bool holds(const QUrl &url) const; // a page, a style sheet, whatever is in the help file; fragments don't count
    QByteArray data(const QUrl &url) const;              // empty for anything else
    QStringList keywordsWith(const QString &text) const; // in their order, whatever the case
    QUrl pageOf(const QString &keyword) const;

private:
    HelpFolder m_folder;
    std::unique_ptr<QHelpEngine> m_engine; // before the folder goes, the engine has to
};

} // namespace orvane
