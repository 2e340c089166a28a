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

    // The engine must not be destroyed while it searches.
    bool isSearching() const { return m_isSearching; }
    void stop(); // starts no search any more that waits for the pages, or for another one

Q_SIGNALS:
    void chosen(const QUrl &page);
    void searchEnded();

private:
    void layOut();
    void followEngine();
    void takeWords();
    void search(); // for the words that were taken last
    void start();
    void endSearch(int count);
    void showKeywords();
    void showPages(int count);
    QTreeWidgetItem &addGroup(const QString &title);
    void tellCount();
    void choose(QTreeWidgetItem *item);

    HelpLibrary &m_library;
    QLineEdit *m_text;
    QTreeWidget *m_found;
    QLabel *m_count;
    QString m_words; // as they were typed for the query
    QString m_query; // of the search that is running or was done last, or waits
    // The engine reads its pages and its keywords, each in a thread, before it can search in them.
    bool m_hasPages = false;
    bool m_hasKeywords = false;
    bool m_isSearching = false;
};

} // namespace orvane
