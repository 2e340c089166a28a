#include "platform/help/HelpIndexPane.h"

#include "platform/help/HelpLibrary.h"

#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QLineEdit>
#include <QVBoxLayout>

namespace orvane
{

HelpIndexPane::HelpIndexPane(HelpLibrary &library) : m_library(library), m_filter(new QLineEdit)
{
    layOut();
    QHelpIndexWidget *keywords = m_library.engine().indexWidget();
    connect(m_filter, &QLineEdit::textChanged, keywords,
            [keywords](const QString &text) { keywords->filterIndices(text); });
    connect(m_filter, &QLineEdit::returnPressed, keywords, &QHelpIndexWidget::activateCurrentItem);
    connect(keywords, &QAbstractItemView::clicked, keywords, &QHelpIndexWidget::activateCurrentItem);
    connect(keywords, &QHelpIndexWidget::documentActivated, this,
            [this](const QHelpLink &link) { Q_EMIT chosen(link.url); });
}

void HelpIndexPane::layOut()
{
    m_filter->setObjectName(QStringLiteral("indexFilter"));
    m_filter->setPlaceholderText(QStringLiteral("Part of a keyword"));
    m_filter->setAccessibleName(QStringLiteral("Part of a keyword"));
    m_filter->setClearButtonEnabled(true);
    QHelpIndexWidget *keywords = m_library.engine().indexWidget();
    keywords->setObjectName(QStringLiteral("indexKeywords"));
    keywords->setAccessibleName(QStringLiteral("Keywords"));
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_filter);
    column->addWidget(keywords);
}

} // namespace orvane
