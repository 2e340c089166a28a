// A flat button of a toolbar, which presses a tool or opens a menu.
//
// It is reached with Tab and never takes the focus by a click, so that what was typed in keeps it. Space and Enter
// press it; Down and Alt+Down open its menu.
#pragma once

#include "platform/controls/bars/StripItem.h"

#include <QToolButton>

class QMenu;
class QPainter;

namespace orvane
{

class ToolButton : public QToolButton, public StripItem
{
    Q_OBJECT

public:
    explicit ToolButton(QWidget *parent);

    void setFlyout(QMenu *menu);
    void menuClosed(); // the button has its usual look again

    QWidget &widget() override { return *this; }
    QWidget &focusTarget() override { return *this; }
    void follow(const Tool &tool, bool withAccessKey) override;
    int widthFor(bool compact) const override;
    void setCompact(bool compact) override;
    QSize sizeHint() const override;

signals:
    void chosen();
    void flyoutAsked();

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void nextCheckState() override {} // the tool says whether it is checked

private:
    bool showsCaption(bool compact) const;
    int contentWidth(bool compact) const;
    void paintGround(QPainter &painter) const;
    void paintContent(QPainter &painter) const;
    void paintArrow(QPainter &painter) const;

    int m_leastWidth = 0;
    int m_slack = 0; // for the outer blanks of the caption
    bool m_compact = false;
};

} // namespace orvane
