// The page on show. It loads nothing but what is in the help file, and goes nowhere else.
#pragma once

#include <QTextBrowser>

namespace orvane
{

class HelpLibrary;

class HelpPage : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpPage(HelpLibrary &library);

    QVariant loadResource(int type, const QUrl &url) override;

protected:
    void doSetSource(const QUrl &url, QTextDocument::ResourceType type) override;

private:
    HelpLibrary &m_library;
};

} // namespace orvane
