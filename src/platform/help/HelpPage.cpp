#include "platform/help/HelpPage.h"

#include "platform/help/HelpLibrary.h"

namespace orvane
{

HelpPage::HelpPage(HelpLibrary &library) : m_library(library)
{
    constexpr double Margin = 14; // pixels
    setObjectName(QStringLiteral("page"));
    setAccessibleName(QStringLiteral("Page"));
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(Margin);
}

QVariant HelpPage::loadResource(int, const QUrl &url)
{
    return m_library.data(source().resolved(url));
}

void HelpPage::doSetSource(const QUrl &url, QTextDocument::ResourceType type)
{
    const QUrl target = source().resolved(url);
    if (m_library.holds(target)) QTextBrowser::doSetSource(target, type);
}

} // namespace orvane
