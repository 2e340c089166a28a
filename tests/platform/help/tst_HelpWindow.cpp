// The help window as a window: how it comes up, and what its keys do.
#include "platform/system/RunTimeError.h"
#include "support/HelpUser.h"

#include <QAccessible>
#include <QTabBar>
#include <QWindow>
#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_HelpWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void contentsCommandShowsTheContents();
    void searchCommandShowsTheSearch();
    void anotherCommandIsRefused_data();
    void anotherCommandIsRefused();
    void theWindowIsModeless();
    void aSecondCallTakesTheSameWindow();
    void aSecondCallBringsAMinimizedWindowBack();
    void aClosedWindowComesUpAnew();
    void aWindowThatIsGoingIsNotTakenAgain();
    void anotherFileGetsAWindowOfItsOwn();
    void overAModalWindowTheHelpCanBeUsed();
    void theWindowStaysAboveTheConsole();
    void theKeysOfTheWindow();
    void escapeClosesTheWindow_data();
    void escapeClosesTheWindow();
    void everyControlHasANameAndIsSpoken();
    void whatTakesTheFocusHasAName();
    void inASmallWindowNothingIsCutOff();

private:
    void openContents() const { m_user->openContents(); }
    void openSearch() const { m_user->openSearch(); }

    std::optional<TestHost> m_host;
    std::optional<HelpUser> m_user;
};

void tst_HelpWindow::init()
{
    m_host.emplace();
    m_user.emplace(*m_host);
}

void tst_HelpWindow::cleanup()
{
    m_user.reset();
    m_host.reset();
}

void tst_HelpWindow::contentsCommandShowsTheContents()
{
    openContents();
    QVERIFY(m_user->window());
    QCOMPARE(m_user->tab(), u"Contents"_s);
    QCOMPARE(m_user->pageName(), u"index.html"_s);
    QTRY_COMPARE(QApplication::focusWidget(), &m_user->part<QAbstractItemView>(u"contentsTree"_s));
}

void tst_HelpWindow::searchCommandShowsTheSearch()
{
    openSearch();
    QCOMPARE(m_user->tab(), u"Search"_s);
    QTRY_COMPARE(QApplication::focusWidget(), &m_user->part<QLineEdit>(u"searchText"_s));
}

void tst_HelpWindow::anotherCommandIsRefused_data()
{
    QTest::addColumn<int>("command");
    for (const int command : {-1, 0, 1, 2, 4, 257, 260, 262})
        QTest::addRow("%d", command) << command;
}

void tst_HelpWindow::anotherCommandIsRefused()
{
    QFETCH(int, command);
    try {
        WinHelp(m_user->file(), command);
        QFAIL("the command was taken");
    } catch (const RunTimeError &error) {
        QCOMPARE(error.Number(), 5);
    }
    QVERIFY(!m_user->window());
}

void tst_HelpWindow::theWindowIsModeless()
{
    openContents();
    QVERIFY(!m_user->window()->isModal());
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_HelpWindow::aSecondCallTakesTheSameWindow()
{
    openContents();
    const QWidget *first = m_user->window();
    m_user->goTo(u"printing.html"_s);
    openSearch();
    QCOMPARE(m_user->window(), first);
    QCOMPARE(m_user->tab(), u"Search"_s);
    QCOMPARE(m_user->pageName(), u"printing.html"_s);
    openContents();
    QCOMPARE(m_user->tab(), u"Contents"_s);
    QCOMPARE(m_user->pageName(), u"index.html"_s);
}

void tst_HelpWindow::aSecondCallBringsAMinimizedWindowBack()
{
    openContents();
    m_user->window()->showMinimized();
    openContents();
    QVERIFY(!m_user->window()->isMinimized());
    QTRY_VERIFY(m_user->window()->isActiveWindow());
}

void tst_HelpWindow::aClosedWindowComesUpAnew()
{
    openContents();
    m_user->goTo(u"printing.html"_s);
    QPointer<QWidget> first = m_user->window();
    first->close();
    QTRY_VERIFY(!first);
    openSearch();
    QCOMPARE(m_user->pageName(), u"index.html"_s);
    QVERIFY(!m_user->page().isBackwardAvailable());
}

void tst_HelpWindow::aWindowThatIsGoingIsNotTakenAgain()
{
    openContents();
    m_user->window()->close();
    openContents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(m_user->window());
    QCOMPARE(m_user->pageName(), u"index.html"_s);
}

void tst_HelpWindow::anotherFileGetsAWindowOfItsOwn()
{
    openContents();
    QPointer<QWidget> first = m_user->window();
    const QString other = m_host->folder() + u"/Other.hlp"_s;
    QVERIFY(QFile::copy(m_user->file(), other));
    WinHelp(other, HelpContents);
    QTRY_VERIFY(!first);
    QVERIFY(m_user->window());
    QCOMPARE(m_user->pageName(), u"index.html"_s);
}

// A modal window bars the others, but whoever asks for help in it has to be able to read it.
void tst_HelpWindow::overAModalWindowTheHelpCanBeUsed()
{
    openContents();
    QWidget dialog;
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    QTRY_COMPARE(QApplication::activeModalWidget(), &dialog);
    openContents();
    QVERIFY(m_user->window()->isVisible());
    m_user->press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(m_user->tab(), u"Search"_s);
    QTest::mouseClick(m_user->window()->findChild<QWidget *>(u"contentsButton"_s), Qt::LeftButton);
    QCOMPARE(m_user->tab(), u"Contents"_s);
    dialog.close();
    openContents();
    QVERIFY(!m_user->window()->windowHandle()->transientParent());
}

void tst_HelpWindow::theWindowStaysAboveTheConsole()
{
    openContents();
    QVERIFY(m_user->window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(!m_user->window()->parentWidget());
}

void tst_HelpWindow::theKeysOfTheWindow()
{
    openContents();
    m_user->press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(m_user->tab(), u"Search"_s);
    QTRY_COMPARE(QApplication::focusWidget(), &m_user->part<QLineEdit>(u"searchText"_s));
    m_user->press(Qt::Key_I, Qt::AltModifier);
    QCOMPARE(m_user->tab(), u"Index"_s);
    m_user->goTo(u"printing.html"_s);
    m_user->press(Qt::Key_F1);
    QCOMPARE(m_user->tab(), u"Contents"_s);
    QCOMPARE(m_user->pageName(), u"index.html"_s);
}

void tst_HelpWindow::escapeClosesTheWindow_data()
{
    QTest::addColumn<QString>("where");
    for (const auto &part : {u"contentsTree"_s, u"page"_s, u"searchText"_s, u"searchFound"_s, u"indexFilter"_s,
                             u"indexKeywords"_s, u"printButton"_s})
        QTest::newRow(qPrintable(part)) << part;
}

void tst_HelpWindow::escapeClosesTheWindow()
{
    QFETCH(QString, where);
    openContents();
    QTest::keyClick(m_user->window()->findChild<QWidget *>(where), Qt::Key_Escape);
    QVERIFY(!m_user->window());
}

void tst_HelpWindow::everyControlHasANameAndIsSpoken()
{
    openContents();
    for (const auto &part :
         {u"contentsTree"_s, u"indexFilter"_s, u"indexKeywords"_s, u"searchText"_s, u"searchStart"_s, u"searchFound"_s,
          u"page"_s, u"tabs"_s, u"backButton"_s, u"forwardButton"_s, u"contentsButton"_s, u"printButton"_s}) {
        QWidget *widget = m_user->window()->findChild<QWidget *>(part);
        QVERIFY2(widget, qPrintable(part));
        const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(spoken && !spoken->text(QAccessible::Name).isEmpty(), qPrintable(part));
    }
}

void tst_HelpWindow::whatTakesTheFocusHasAName()
{
    openSearch();
    QStringList passed;
    for (int steps = 0; steps < 60; ++steps) {
        const QWidget *focus = m_user->window()->focusWidget();
        QVERIFY2(!focus->objectName().isEmpty(), focus->metaObject()->className());
        passed << focus->objectName();
        QTest::keyClick(m_user->window()->focusWidget(), Qt::Key_Tab);
    }
    for (const auto &part :
         {u"searchText"_s, u"searchStart"_s, u"searchFound"_s, u"page"_s, u"contentsButton"_s, u"printButton"_s})
        QVERIFY2(passed.contains(part), qPrintable(part));
}

void tst_HelpWindow::inASmallWindowNothingIsCutOff()
{
    openContents();
    m_user->window()->resize(m_user->window()->minimumSize());
    for (const auto &part : {u"backButton"_s, u"forwardButton"_s, u"contentsButton"_s, u"printButton"_s, u"page"_s}) {
        const QWidget *widget = m_user->window()->findChild<QWidget *>(part);
        QVERIFY2(widget->isVisible(), qPrintable(part));
        const QRect place(widget->mapTo(m_user->window(), QPoint()), widget->size());
        QVERIFY2(m_user->window()->rect().contains(place), qPrintable(part));
    }
    QVERIFY(m_user->page().width() >= 180);
    const QTabBar *tabs = m_user->part<QTabWidget>(u"tabs"_s).tabBar();
    for (int i = 0; i < tabs->count(); ++i)
        QVERIFY(tabs->rect().contains(tabs->tabRect(i)));
}

QTEST_MAIN(tst_HelpWindow)
#include "tst_HelpWindow.moc"
