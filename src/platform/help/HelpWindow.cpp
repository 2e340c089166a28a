#include "platform/help/HelpWindow.h"

#include "platform/help/HelpContentsPane.h"
#include "platform/help/HelpIndexPane.h"
#include "platform/help/HelpLibrary.h"
#include "platform/help/HelpPage.h"
#include "platform/help/HelpSearchPane.h"

#include <QAction>
#include <QApplication>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QToolBar>
#include <QWindow>

// Outside any namespace, as the pictures' own code is; a static library drops them unless they are asked for.
static void bringPicturesIn()
{
    Q_INIT_RESOURCE(helpwindow);
}

namespace orvane
{

namespace
{
constexpr QSize FirstSize(960, 700); // pixels, where the screen has room for it
constexpr QSize LeastSize(480, 320);
constexpr int SideWidth = 280;
constexpr int IconSize = 16;
} // namespace

// Above the others, since the tour's console is too and would lie over it.
HelpWindow::HelpWindow(const QString &helpFile, Print print)
    : QMainWindow(nullptr, Qt::Window | Qt::WindowStaysOnTopHint), m_helpFile(helpFile), m_print(std::move(print)),
      m_library(std::make_unique<HelpLibrary>(helpFile)), m_page(new HelpPage(*m_library)),
      m_contents(new HelpContentsPane(*m_library)), m_index(new HelpIndexPane(*m_library)),
      m_search(new HelpSearchPane(*m_library)), m_tabs(new QTabWidget), m_tools(addToolBar(QStringLiteral("Tools")))
{
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(QStringLiteral("orvane Help"));
    addTabs();
    addTools();
    addKeys();
    layOut();
    followPage();
    takeFirstPlace();
    m_page->setSource(m_library->firstPage());
}

// What shows the pages goes before the pages do.
HelpWindow::~HelpWindow()
{
    delete takeCentralWidget();
}

void HelpWindow::addTabs()
{
    m_tabs->setObjectName(QStringLiteral("tabs"));
    m_tabs->setAccessibleName(QStringLiteral("Ways to a page"));
    m_tabs->setUsesScrollButtons(false); // all three are always on show
    m_tabs->addTab(m_contents, QStringLiteral("&Contents"));
    m_tabs->addTab(m_index, QStringLiteral("&Index"));
    m_tabs->addTab(m_search, QStringLiteral("S&earch"));
}

QAction &HelpWindow::addTool(const QString &name, const QString &caption, const QString &tip, const QKeySequence &key)
{
    const QIcon picture(QStringLiteral(":/helpwindow/%1.svg").arg(name));
    QAction *tool = m_tools->addAction(picture, caption);
    tool->setObjectName(name);
    tool->setShortcut(key);
    tool->setToolTip(QStringLiteral("%1 (%2)").arg(tip, key.toString(QKeySequence::NativeText)));
    m_tools->widgetForAction(tool)->setObjectName(name + QStringLiteral("Button"));
    m_tools->widgetForAction(tool)->setFocusPolicy(Qt::TabFocus);
    return *tool;
}

void HelpWindow::addTools()
{
    bringPicturesIn();
    m_tools->setObjectName(QStringLiteral("tools"));
    m_tools->setAccessibleName(QStringLiteral("Help tools"));
    m_tools->setMovable(false);
    m_tools->setContextMenuPolicy(Qt::PreventContextMenu);
    m_tools->setIconSize(QSize(IconSize, IconSize));
    m_tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QAction &back = addTool(QStringLiteral("back"), QStringLiteral("Back"), QStringLiteral("The page before"),
                            Qt::ALT | Qt::Key_Left);
    QAction &forward = addTool(QStringLiteral("forward"), QStringLiteral("Forward"),
                               QStringLiteral("The page that you came back from"), Qt::ALT | Qt::Key_Right);
    QAction &contents = addTool(QStringLiteral("contents"), QStringLiteral("Contents"),
                                QStringLiteral("The contents and the first page"), Qt::Key_F1);
    QAction &printer = addTool(QStringLiteral("print"), QStringLiteral("Print..."), QStringLiteral("Print this page"),
                               QKeySequence(Qt::CTRL | Qt::Key_P));
    back.setEnabled(false);
    forward.setEnabled(false);
    connect(&back, &QAction::triggered, m_page, &HelpPage::backward);
    connect(&forward, &QAction::triggered, m_page, &HelpPage::forward);
    connect(&contents, &QAction::triggered, this, &HelpWindow::showContents);
    connect(&printer, &QAction::triggered, this, [this] { m_print(*m_page->document(), *this); });
    connect(m_page, &HelpPage::backwardAvailable, &back, &QAction::setEnabled);
    connect(m_page, &HelpPage::forwardAvailable, &forward, &QAction::setEnabled);
}

void HelpWindow::addKeys()
{
    auto *search = new QShortcut(Qt::CTRL | Qt::Key_F, this);
    connect(search, &QShortcut::activated, this, &HelpWindow::showSearch);
    auto *leave = new QShortcut(Qt::Key_Escape, this);
    connect(leave, &QShortcut::activated, this, &HelpWindow::close);
}

void HelpWindow::layOut()
{
    auto *halves = new QSplitter;
    halves->setObjectName(QStringLiteral("halves"));
    halves->setAccessibleName(QStringLiteral("Contents and page"));
    halves->setChildrenCollapsible(false);
    halves->addWidget(m_tabs);
    halves->addWidget(m_page);
    halves->setStretchFactor(0, SideWidth);
    halves->setStretchFactor(1, FirstSize.width() - SideWidth);
    halves->setSizes({SideWidth, FirstSize.width() - SideWidth});
    setCentralWidget(halves);
    setMinimumSize(LeastSize);
}

void HelpWindow::followPage()
{
    const auto open = [this](const QUrl &page) { m_page->setSource(page); };
    connect(m_contents, &HelpContentsPane::chosen, m_page, open);
    connect(m_index, &HelpIndexPane::chosen, m_page, open);
    connect(m_search, &HelpSearchPane::chosen, m_page, open);
    connect(m_page, &HelpPage::sourceChanged, m_contents, &HelpContentsPane::select);
}

void HelpWindow::takeFirstPlace()
{
    const QWidget *active = QApplication::activeWindow();
    const QRect room = (active ? active->screen() : screen())->availableGeometry();
    // At the left, since it stands before the tour's console, which goes on at the right edge.
    resize(FirstSize.boundedTo(QSize(room.width() * 2 / 3, room.height() * 9 / 10)));
    move(room.left(), room.center().y() - rect().center().y());
}

// A modal window bars all windows but those that stand over it.
void HelpWindow::bringForward()
{
    create();
    const QWidget *modal = QApplication::activeModalWidget();
    QWindow *below = modal ? modal->window()->windowHandle() : nullptr;
    if (windowHandle()->transientParent() != below) {
        hide();
        windowHandle()->setTransientParent(below);
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

// A closed window goes as soon as its engine can.
void HelpWindow::closeEvent(QCloseEvent *event)
{
    QMainWindow::closeEvent(event);
    m_search->stop();
    if (m_search->isSearching())
        connect(m_search, &HelpSearchPane::searchEnded, this, &QObject::deleteLater);
    else
        deleteLater();
}

void HelpWindow::showContents()
{
    m_tabs->setCurrentWidget(m_contents);
    m_page->setSource(m_library->firstPage());
    m_contents->takeFocus();
}

void HelpWindow::showSearch()
{
    m_tabs->setCurrentWidget(m_search);
    m_search->takeFocus();
}

} // namespace orvane
