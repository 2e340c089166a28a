// The help window: contents, index and search beside a page. Modeless, above the program's other windows; it forgets
// everything when it is closed.
#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>

class QTabWidget;
class QTextDocument;
class QToolBar;

namespace orvane
{

class HelpContentsPane;
class HelpIndexPane;
class HelpLibrary;
class HelpPage;
class HelpSearchPane;

class HelpWindow : public QMainWindow
{
    Q_OBJECT

public:
    // Prints a page for this window, and tells the user where that fails.
    using Print = std::function<void(QTextDocument &page, const QWidget &owner)>;

    HelpWindow(const QString &helpFile, Print print); // errors 53, 75 and 321, see WinHelp
    ~HelpWindow() override;

    const QString &helpFile() const { return m_helpFile; }

    void bringForward(); // also over a window that is modal
    void showContents(); // the contents, and the first page
    void showSearch();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void layOut();
    void addTabs();
    void addTools();
    QAction &addTool(const QString &name, const QString &caption, const QString &tip, const QKeySequence &key);
    void addKeys();
    void followPage();
    void takeFirstPlace();

    QString m_helpFile;
    Print m_print;
    std::unique_ptr<HelpLibrary> m_library;
    HelpPage *m_page;
    HelpContentsPane *m_contents;
    HelpIndexPane *m_index;
    HelpSearchPane *m_search;
    QTabWidget *m_tabs;
    QToolBar *m_tools;
};

} // namespace orvane
