// The search in keywords and in the words of all pages.
#pragma once

#include <QUrl>
#include <QWidget>

class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace orvane
{

class HelpLibrary;

class HelpSearchPane : public QWidget
{
    Q_OBJECT

public:
    explicit HelpSearchPane(HelpLibrary &library);

    void takeFocus(); // to where the user types, with what stands there selected

Q_SIGNALS:
    void chosen(const QUrl &page);

private:
    void layOut();
    void search();
    void showKeywords();
    void showPages(int count);
    QTreeWidgetItem &addGroup(const QString &title);
    void tellCount();
    void choose(QTreeWidgetItem *item);

    HelpLibrary &m_library;
    QLineEdit *m_text;
    QTreeWidget *m_found;
    QLabel *m_count;
    QString m_words;        // as they were typed for the query
    QString m_query;        // of the search that is running or was done last
    bool m_indexed = false; // the engine reads all pages before it can search in them
};

} // namespace orvane
