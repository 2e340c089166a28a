#include "Screen.h"

#include "platform/controls/Palette.h"
#include "platform/forms/DefaultInstance.h"
#include "shell/mdiMain.h"
#include "tour/frmDemo.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>

namespace orvane::walk
{

namespace
{
constexpr int SettleMilliseconds = 150;
constexpr int PatienceMilliseconds = 5000; // longer than a notice stays up

// Nobody answers a dialog that waits for the user.
void closeWaitingDialog()
{
    if (QWidget *dialog = QApplication::activeModalWidget()) dialog->close();
}

QRect onScreen(const QWidget &window)
{
    return {window.mapToGlobal(QPoint()), window.size()};
}

void paintWindow(QPainter &painter, QWidget &window)
{
    const QRect place = onScreen(window);
    painter.setPen(palette::GreyText);
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
    painter.drawPixmap(place.topLeft(), window.grab());
}

// Dialogs, the help and menus, but neither the frame nor the console.
QWidgetList windowsBetween(const QWidget &frame, const QWidget &console)
{
    QWidgetList between;
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->isVisible() && !window->isMinimized() && window != &frame && window != &console) between << window;
    return between;
}
} // namespace

void settle()
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < SettleMilliseconds)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
}

void press(const CommandButton &button)
{
    QTimer impatience;
    QObject::connect(&impatience, &QTimer::timeout, qApp, closeWaitingDialog);
    impatience.start(PatienceMilliseconds);
    static_cast<QAbstractButton &>(button.widget()).click();
    settle();
}

void pressEnter(const Form &window)
{
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QApplication::sendEvent(&window.shell(), &enter);
    settle();
}

QPixmap pictureOf(const Form &window)
{
    return window.shell().grab();
}

QPixmap pictureOfAll()
{
    QWidget &frame = Default<mdiMain>().shell();
    QWidget &console = Default<frmDemo>().shell();
    const QWidgetList between = windowsBetween(frame, console);
    QRect whole = onScreen(frame) | onScreen(console);
    for (const QWidget *window : between)
        whole |= onScreen(*window);
    QPixmap picture(whole.adjusted(-1, -1, 1, 1).size());
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.translate(QPoint(1, 1) - whole.topLeft());
    paintWindow(painter, frame);
    for (QWidget *window : between)
        paintWindow(painter, *window);
    paintWindow(painter, console);
    return picture;
}

} // namespace orvane::walk
