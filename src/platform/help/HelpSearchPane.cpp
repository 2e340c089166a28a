#include "platform/help/HelpSearchPane.h"

#include "platform/help/HelpLibrary.h"

#include <QHelpIndexModel>
#include <QHelpSearchEngine>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace orvane
{

namespace
{
constexpr int PageRole = Qt::UserRole;

// The engine has a language of its own; in quotes a word is nothing but its letters. All words have to be on a page,
// whole or as the beginning of a longer one.
QString queryOf(const QString &text)
{
    static const QRegularExpression word(QStringLiteral("\\w+"), QRegularExpression::UseUnicodePropertiesOption);
    QStringList words;
    for (auto matches = word.globalMatch(text); matches.hasNext();)
        words << u'"' + matches.next().captured() + QStringLiteral("\"*");
    return words.join(u' ');
}

void add(QTreeWidgetItem &group, const QString &title, const QUrl &page)
{
    auto *item = new QTreeWidgetItem(&group, {title});
    item->setData(0, PageRole, page);
    item->setToolTip(0, title);
}
} // namespace

HelpSearchPane::HelpSearchPane(HelpLibrary &library)
    : m_library(library), m_text(new QLineEdit), m_found(new QTreeWidget), m_count(new QLabel)
{
    layOut();
    connect(m_text, &QLineEdit::returnPressed, this, &HelpSearchPane::takeWords);
    connect(m_found, &QTreeWidget::itemActivated, this, &HelpSearchPane::choose);
    connect(m_found, &QTreeWidget::itemClicked, this, &HelpSearchPane::choose);
    followEngine();
}

void HelpSearchPane::followEngine()
{
    QHelpSearchEngine *engine = m_library.engine().searchEngine();
    const auto go = [this](bool &isThere) {
        isThere = true;
        search();
    };
    connect(engine, &QHelpSearchEngine::indexingFinished, this, [this, go] { go(m_hasPages); });
    connect(m_library.engine().indexModel(), &QHelpIndexModel::indexCreated, this, [this, go] { go(m_hasKeywords); });
    connect(engine, &QHelpSearchEngine::searchingFinished, this, &HelpSearchPane::endSearch);
    engine->scheduleIndexDocumentation();
}

void HelpSearchPane::layOut()
{
    m_text->setObjectName(QStringLiteral("searchText"));
    m_text->setPlaceholderText(QStringLiteral("Words to look for"));
    m_text->setAccessibleName(QStringLiteral("Words to look for"));
    m_text->setClearButtonEnabled(true);
    auto *start = new QPushButton(QStringLiteral("&Search"));
    start->setObjectName(QStringLiteral("searchStart"));
    connect(start, &QPushButton::clicked, this, &HelpSearchPane::takeWords);
    m_found->setObjectName(QStringLiteral("searchFound"));
    m_found->setAccessibleName(QStringLiteral("What was found"));
    m_found->setHeaderHidden(true);
    m_found->setRootIsDecorated(false);
    m_count->setObjectName(QStringLiteral("searchCount"));
    m_count->setWordWrap(true);
    auto *line = new QHBoxLayout;
    line->addWidget(m_text);
    line->addWidget(start);
    auto *column = new QVBoxLayout(this);
    column->addLayout(line);
    column->addWidget(m_count);
    column->addWidget(m_found);
}

void HelpSearchPane::takeFocus()
{
    m_text->setFocus();
    m_text->selectAll();
}

void HelpSearchPane::takeWords()
{
    m_words = m_text->text().trimmed();
    m_query = queryOf(m_words);
    search();
}

void HelpSearchPane::search()
{
    m_found->clear();
    m_count->clear();
    if (m_query.isEmpty()) return;
    showKeywords();
    if (!m_hasPages || !m_hasKeywords)
        m_count->setText(QStringLiteral("Reading the pages..."));
    else if (!m_isSearching)
        start();
}

void HelpSearchPane::stop()
{
    m_query.clear();
}

// One at a time: the engine doesn't say which search has ended, and where two overlap not even of each that it has.
void HelpSearchPane::start()
{
    m_isSearching = true;
    m_library.engine().searchEngine()->search(m_query);
}

void HelpSearchPane::endSearch(int count)
{
    m_isSearching = false;
    if (m_library.engine().searchEngine()->searchInput() == m_query)
        showPages(count);
    else if (!m_query.isEmpty())
        start(); // the user has gone on to another one
    if (!m_isSearching) Q_EMIT searchEnded();
}

void HelpSearchPane::showKeywords()
{
    const QStringList keywords = m_library.keywordsWith(m_words);
    if (keywords.isEmpty()) return;
    QTreeWidgetItem &group = addGroup(QStringLiteral("Keywords"));
    for (const QString &keyword : keywords)
        add(group, keyword, m_library.pageOf(keyword));
}

void HelpSearchPane::showPages(int count)
{
    const QHelpSearchEngine &engine = *m_library.engine().searchEngine();
    m_found->clear();
    showKeywords();
    if (count > 0) {
        QTreeWidgetItem &group = addGroup(QStringLiteral("Pages"));
        for (const QHelpSearchResult &result : engine.searchResults(0, count))
            add(group, result.title(), result.url());
    }
    tellCount();
}

QTreeWidgetItem &HelpSearchPane::addGroup(const QString &title)
{
    auto *group = new QTreeWidgetItem(m_found, {title});
    group->setFlags(Qt::ItemIsEnabled);
    QFont font = m_found->font();
    font.setBold(true);
    group->setFont(0, font);
    group->setExpanded(true);
    return *group;
}

void HelpSearchPane::tellCount()
{
    int found = 0;
    for (int i = 0; i < m_found->topLevelItemCount(); ++i)
        found += m_found->topLevelItem(i)->childCount();
    m_count->setText(found == 0 ? QStringLiteral("Nothing was found. Try fewer words, or the beginning of a word.")
                                : QStringLiteral("%1 found").arg(found));
}

void HelpSearchPane::choose(QTreeWidgetItem *item)
{
    const QUrl page = item->data(0, PageRole).toUrl();
    if (page.isValid()) Q_EMIT chosen(page);
}

} // namespace orvane
