#include "platform/forms/ShellGeometry.h"

#include "platform/controls/Twips.h"
#include "platform/controls/pictures/PictureView.h"
#include "platform/forms/Form.h"
#include "platform/system/RunTimeError.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFontMetrics>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace orvane
{

namespace
{
constexpr int SettleMilliseconds = 500;
constexpr int WakeMilliseconds = 20;

// What the first paint needs takes about as long as the window manager takes to bring the window up: the two go side by
// side.
void prepareFirstPaint(const QWidget &shell)
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // sends the window off
    QFontMetrics(shell.font()).height();                                 // finds the fonts
    for (PictureView *picture : shell.findChildren<PictureView *>(Qt::FindDirectChildrenOnly))
        picture->drawAhead();
}

bool fillsScreen(const QWidget &shell)
{
    const QSize available = shell.screen()->availableGeometry().size();
    return shell.frameGeometry().width() >= available.width() && shell.frameGeometry().height() >= available.height();
}
} // namespace

double asSet(double twips, int pixels)
{
    return toPixels(twips) == pixels ? twips : toTwips(pixels);
}

void refuseMaximized(int windowState)
{
    if (windowState == Maximized)
        throw RunTimeError(CannotSizeInThisState,
                           QStringLiteral("A window can't be moved or sized while it is maximized."));
}

void resizeOutside(QWidget &shell, int width, int height)
{
    const QSize frame = shell.frameGeometry().size() - shell.size();
    shell.resize(width - frame.width(), height - frame.height());
}

void settle(QWidget &shell, bool maximized)
{
    prepareFirstPaint(shell);
    QElapsedTimer clock;
    clock.start();
    QTimer wake; // so that the wait ends where nothing happens
    wake.start(WakeMilliseconds);
    while (clock.elapsed() < SettleMilliseconds && shell.isVisible()) {
        if (shell.windowHandle()->isExposed() && (!maximized || fillsScreen(shell))) return;
        // With a limit of time this would look for events again and again, at the cost of the one who sends them.
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    }
    if (maximized && shell.isVisible()) shell.setGeometry(shell.screen()->availableGeometry());
}

} // namespace orvane
