// The machine of a walk: nobody is there to answer a dialog, the program's end isn't the walk's, and the one printer is
// the PDF file printer.
#pragma once

#include "platform/print/InstalledPrinter.h"
#include "platform/system/Host.h"

#include <QStringList>
#include <optional>

namespace orvane::walk
{

class WalkHost : public Host
{
public:
    // An empty program folder is the one that the walk's own program lies in.
    WalkHost(const QString &programFolder, const QString &outFolder);
    ~WalkHost() override;

    bool hasEnded() const { return m_exitCode.has_value(); }
    int exitCode() const { return m_exitCode.value_or(0); }
    QStringList takeMessages(); // the message boxes since the last call

    void messageBox(const QString &text, int style, const QString &title) override;
    QString programFolder() override;
    void endProcess(int exitCode) override;
    std::vector<InstalledPrinter> printQueues() override { return {}; }
    bool printDialog(PrintChoice &, quint32) override { return false; }
    bool pageSetupDialog(PageChoice &) override { return false; }
    QString documentsFolder() override { return m_outFolder; }

private:
    QString m_programFolder;
    QString m_outFolder;
    QStringList m_messages;
    std::optional<int> m_exitCode;
    Host *m_before;
};

} // namespace orvane::walk
