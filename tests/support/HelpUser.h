// Somebody who reads the help: the help file lies in the program's folder of the test, the help window's own folder in
// another, and what is open at the end is closed.
#pragma once

#include "platform/help/WinHelp.h"
#include "support/TestHost.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPointer>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

namespace orvane::test
{

class HelpUser
{
public:
    explicit HelpUser(const TestHost &host) : m_host(host), m_cacheBefore(qgetenv("XDG_CACHE_HOME"))
    {
        qputenv("XDG_CACHE_HOME", QFile::encodeName(m_cache.path()));
        if (!QFile::copy(QStringLiteral(ORVANE_TOOLS_DIR "/Orvane.hlp"), file()))
            QTest::qFail("the help file isn't built", __FILE__, __LINE__);
    }

    ~HelpUser()
    {
        if (!closeAndWait()) QTest::qFail("the help window doesn't go", __FILE__, __LINE__);
        if (m_cacheBefore.isNull())
            qunsetenv("XDG_CACHE_HOME");
        else
            qputenv("XDG_CACHE_HOME", m_cacheBefore);
    }

    HelpUser(const HelpUser &) = delete;
    HelpUser &operator=(const HelpUser &) = delete;

    QString file() const { return m_host.folder() + QStringLiteral("/Orvane.hlp"); }
    QString cache() const { return m_cache.path(); }

    // Keys reach only a window that is active.
    void openContents() const { open(HelpContents); }
    void openSearch() const { open(HelpPartialKey); }

    static QWidget *window()
    {
        for (QWidget *widget : QApplication::topLevelWidgets())
            if (widget->objectName() == QStringLiteral("helpWindow") && widget->isVisible()) return widget;
        return nullptr;
    }

    // Where there is one. It goes when its search has ended.
    static bool closeAndWait()
    {
        const QPointer<QWidget> open = window();
        if (open) open->close();
        return QTest::qWaitFor([&open] { return open.isNull(); });
    }

    template <class Part>
    static Part &part(const QString &name)
    {
        return *window()->findChild<Part *>(name);
    }

    static QTextBrowser &page() { return part<QTextBrowser>(QStringLiteral("page")); }
    static QString pageName() { return page().source().fileName(); }
    static void goTo(const QString &name) { page().setSource(QUrl(name)); }
    static QString tab()
    {
        auto &tabs = part<QTabWidget>(QStringLiteral("tabs"));
        return tabs.tabText(tabs.currentIndex()).remove(u'&');
    }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QWidget *focus = window()->focusWidget();
        QTest::keyClick(focus ? focus : window(), key, modifiers);
    }

private:
    void open(int command) const
    {
        WinHelp(file(), command);
        QVERIFY(QTest::qWaitForWindowActive(window()));
    }

    const TestHost &m_host;
    QTemporaryDir m_cache;
    QByteArray m_cacheBefore;
};

// The texts of an item view, from the top, each row with a blank for each level below the first.
inline QStringList rowsOf(const QAbstractItemModel &model, const QModelIndex &parent = {}, int level = 0)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        rows << QString(level, u' ') + index.data().toString();
        rows << rowsOf(model, index, level + 1);
    }
    return rows;
}

} // namespace orvane::test
