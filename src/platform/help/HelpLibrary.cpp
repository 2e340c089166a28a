#include "platform/help/HelpLibrary.h"

#include "platform/help/HelpFile.h"
#include "platform/system/RunTimeError.h"

#include <QHelpIndexModel>
#include <QHelpLink>

namespace orvane
{

namespace
{
// The engine reads contents and keywords in threads of their own as soon as it is set up, so it had better find the
// file registered already.
bool registerIn(const QString &collection, const QString &helpFile)
{
    QHelpEngineCore engine(collection);
    engine.setReadOnly(false);
    return engine.setupData() && engine.registerDocumentation(helpFile);
}
} // namespace

HelpLibrary::HelpLibrary(const QString &helpFile)
{
    const QString copy = m_folder.filePath(QStringLiteral("pages"));
    copyHelpFile(helpFile, copy);
    checkHelpFile(copy, helpFile);
    const QString collection = m_folder.filePath(QStringLiteral("collection"));
    const bool isRegistered = registerIn(collection, copy);
    m_engine = std::make_unique<QHelpEngine>(collection);
    m_engine->setReadOnly(false);
    m_engine->setAutoSaveFilter(false);
    m_engine->setUsesFilterEngine(true);
    if (!isRegistered || !m_engine->setupData() || !holds(firstPage()))
        throw RunTimeError(InvalidFileFormat, QStringLiteral("The help file \"%1\" is damaged.").arg(helpFile));
}

HelpLibrary::~HelpLibrary() = default;

QUrl HelpLibrary::firstPage() const
{
    return QUrl(QStringLiteral("qthelp://%1/help/index.html").arg(helpNamespace()));
}

bool HelpLibrary::holds(const QUrl &url) const
{
    return !data(url).isEmpty();
}

QByteArray HelpLibrary::data(const QUrl &url) const
{
    const bool isOurs = url.scheme() == QStringLiteral("qthelp") && url.authority() == helpNamespace();
    return isOurs ? m_engine->fileData(url.adjusted(QUrl::RemoveFragment)) : QByteArray();
}

QStringList HelpLibrary::keywordsWith(const QString &text) const
{
    if (text.isEmpty()) return {};
    return m_engine->indexModel()->stringList().filter(text, Qt::CaseInsensitive);
}

QUrl HelpLibrary::pageOf(const QString &keyword) const
{
    const QList<QHelpLink> pages = m_engine->documentsForKeyword(keyword);
    return pages.isEmpty() ? QUrl() : pages.front().url;
}

} // namespace orvane
