// The tree of all pages. It follows the page on show.
#pragma once

#include <QUrl>
#include <QWidget>

namespace orvane
{

class HelpLibrary;

class HelpContentsPane : public QWidget
{
    Q_OBJECT

public:
    explicit HelpContentsPane(HelpLibrary &library);

    void takeFocus();
    void select(const QUrl &page);

Q_SIGNALS:
    void chosen(const QUrl &page);

private:
    void choose(const QModelIndex &index);

    HelpLibrary &m_library;
    QUrl m_selected;
};

} // namespace orvane
