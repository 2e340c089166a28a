// A plain area that can bear a picture and hold other controls.
#pragma once

#include "platform/controls/Control.h"

namespace orvane
{

class PictureView;

class PictureBox : public Control, public Container
{
    Q_OBJECT

public:
    PictureBox(Container &parent, const QString &name);

    void setPicture(const QString &name); // a file under pictures/, without its ending
    void setBackColor(const QColor &colour);

    QWidget &surface() override { return widget(); }
    Form &form() override { return Control::form(); }

private:
    PictureView &m_view;
};

} // namespace orvane
