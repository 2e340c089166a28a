#include "support/RunningSystem.h"

#include "platform/controls/Palette.h"
#include "platform/forms/Wiring.h"
#include "platform/system/SettingsStore.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <QTimer>

namespace orvane::test
{

RunningSystem::RunningSystem()
{
    applyLooks(*static_cast<QApplication *>(QCoreApplication::instance()));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::clipboard()->clear();
    if (!m_settings.isValid()) qFatal("no folder for the settings: the user's own would be taken");
    setSettingsFolder(m_settings.path());
    Shared() = SharedState();
    QStringList tags;
    for (const int first : {100, 200, 300, 400, 500, 600})
        for (int tag = first; tag < first + 30; ++tag)
            tags << QString::number(tag);
    writeScript(tags);
}

RunningSystem::~RunningSystem()
{
    auto windows = Forms();
    std::reverse(windows.begin(), windows.end());
    for (Form *window : windows)
        if (windowList().contains(window)) delete window;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    setSettingsFolder({});
    Shared() = SharedState();
}

void RunningSystem::writeScript(const QStringList &tags) const
{
    QByteArray script;
    for (const QString &tag : tags)
        script += QStringLiteral("[%1]\r\nHeader=Step %1\r\nRTF=Text of %1\r\nNextRTF=(none)\r\nPrevRTF=(none)\r\n")
                      .arg(tag)
                      .toLatin1();
    host.writeFile(QStringLiteral("DemoData.ini"), script);
}

void RunningSystem::showSplash()
{
    Default<frmSplash>().Show();
}

void RunningSystem::leaveIntro()
{
    QTest::keyClick(&Default<frmInfo>().shell(), Qt::Key_Return);
}

void RunningSystem::start()
{
    showSplash();
    leaveIntro();
    QTRY_VERIFY(frame().Visible() && console().Visible());
}

void RunningSystem::click(Control &control) const
{
    clickAt(control, control.Width() / 2, control.Height() / 2);
}

void RunningSystem::clickAt(Control &control, double x, double y) const
{
    QTest::mouseClick(&control.mouseTarget(), Qt::LeftButton, {}, QPoint(toPixels(x), toPixels(y)));
}

void RunningSystem::clickTool(Form &window, const QString &bar, const QString &band, const QString &tool) const
{
    ActiveBar &pressed = barOf(window, bar);
    pressed.press(pressed.Bands(band).Tools(tool));
}

void RunningSystem::whileModal(const std::function<void()> &open, const std::function<void()> &act) const
{
    QTimer::singleShot(0, qApp, act);
    open();
}

Form *windowByTag(const QString &tag)
{
    for (Form *window : Forms())
        if (window->Tag() == tag) return window;
    return nullptr;
}

int countWindows(const QString &name)
{
    const auto windows = Forms();
    return static_cast<int>(
        std::count_if(windows.begin(), windows.end(), [&](const Form *window) { return window->Name() == name; }));
}

} // namespace orvane::test
