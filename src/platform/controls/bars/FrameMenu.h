// A bar on show as the menu of a frame: its first band's tools, each opening its flyout.
#pragma once

#include <QMenuBar>
#include <QPointer>

namespace orvane
{

class ActiveBar;

class FrameMenu : public QMenuBar
{
    Q_OBJECT

public:
    FrameMenu();

    void showBar(ActiveBar &bar);

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void tellTitle(QAction *title);

    QPointer<ActiveBar> m_bar;
};

} // namespace orvane
