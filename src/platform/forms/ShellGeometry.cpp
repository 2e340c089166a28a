#include "platform/forms/ShellGeometry.h"

#include "platform/controls/Twips.h"
#include "platform/forms/Form.h"
#include "platform/system/RunTimeError.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace orvane
{

namespace
{
constexpr int SettleMilliseconds = 500;

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
                           QStringLiteral("A window can't be moved or sized while it is maximised."));
}

void refuseNegative(double twips)
{
    if (twips < 0) throw RunTimeError(InvalidPropertyValue, QStringLiteral("A width or height can't be negative."));
}

void resizeOutside(QWidget &shell, int width, int height)
{
    const QSize frame = shell.frameGeometry().size() - shell.size();
    shell.resize(width - frame.width(), height - frame.height());
}

void settle(QWidget &shell, bool maximized)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < SettleMilliseconds && shell.isVisible()) {
        if (shell.windowHandle()->isExposed() && (!maximized || fillsScreen(shell))) return;
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents, 20);
    }
    if (maximized && shell.isVisible()) shell.setGeometry(shell.screen()->availableGeometry());
}

} // namespace orvane
