// Where a window's focus rests when no control on show is to have it. The Tab key passes over it.
#pragma once

#include <QFocusEvent>
#include <QWidget>

namespace orvane
{

class FocusRest : public QWidget
{
    Q_OBJECT

public:
    explicit FocusRest(QWidget &surface) : QWidget(&surface)
    {
        setObjectName(QStringLiteral("focusRest"));
        setFocusPolicy(Qt::TabFocus);
        setGeometry(-2, -2, 1, 1);
        show();
    }

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        if (event->reason() == Qt::TabFocusReason) focusNextChild();
        if (event->reason() == Qt::BacktabFocusReason) focusPreviousChild();
    }
};

} // namespace orvane
