#include "platform/help/HelpContentsPane.h"

#include "platform/help/HelpLibrary.h"

#include <QHelpContentWidget>
#include <QVBoxLayout>

namespace orvane
{

HelpContentsPane::HelpContentsPane(HelpLibrary &library) : m_library(library)
{
    QHelpContentWidget *tree = m_library.engine().contentWidget();
    tree->setObjectName(QStringLiteral("contentsTree"));
    tree->setAccessibleName(QStringLiteral("Contents"));
    connect(tree, &QHelpContentWidget::activated, this, &HelpContentsPane::choose);
    connect(tree, &QHelpContentWidget::clicked, this, &HelpContentsPane::choose);
    connect(m_library.engine().contentModel(), &QHelpContentModel::contentsCreated, this, [this, tree] {
        tree->expandAll();
        select(m_selected);
    });
    auto *column = new QVBoxLayout(this);
    column->addWidget(tree);
}

void HelpContentsPane::takeFocus()
{
    m_library.engine().contentWidget()->setFocus();
}

void HelpContentsPane::select(const QUrl &page)
{
    m_selected = page;
    QHelpContentWidget *tree = m_library.engine().contentWidget();
    QModelIndex index = tree->indexOf(page);
    if (!index.isValid()) index = tree->indexOf(page.adjusted(QUrl::RemoveFragment));
    if (index.isValid()) tree->setCurrentIndex(index);
}

void HelpContentsPane::choose(const QModelIndex &index)
{
    const QHelpContentItem *item = m_library.engine().contentModel()->contentItemAt(index);
    if (item) Q_EMIT chosen(item->url());
}

} // namespace orvane
