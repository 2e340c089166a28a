// A text on a window that can't have the focus.
#pragma once

#include "platform/controls/Control.h"

class QLabel;

namespace orvane
{

class Label : public Control
{
    Q_OBJECT

public:
    Label(Container &parent, const QString &name);

    QString Caption() const override;
    void setCaption(const QString &caption); // long texts wrap
    void setFont(const QString &family, double points, bool bold);
    void setForeColor(int colour); // blue, green, red
    void setOneLine();             // its letters become narrower, down to four fifths, where its width asks for it

signals:
    void Click();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void moved() override;

private:
    void squeeze();

    QLabel &m_label;
    bool m_oneLine = false;
};

} // namespace orvane
