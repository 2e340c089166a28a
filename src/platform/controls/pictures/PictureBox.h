// A plain area that can bear a picture and hold other controls.
#pragma once

#include "platform/controls/Control.h"
#include "platform/controls/pictures/PictureObject.h"

namespace orvane
{

class PictureView;

class PictureBox : public Control, public Container
{
    Q_OBJECT

public:
    PictureBox(Container &parent, const QString &name);

    void setPicture(const QString &name); // a drawing: a file under pictures/, without its ending
    PictureObject Picture() const;        // of pixels; blank where there is none
    void setPicture(const PictureObject &picture);
    void setAutoSize(bool autoSize); // the box takes the size of each picture of pixels that it is given
    void setBackColor(const QColor &colour);

    QWidget &surface() override { return widget(); }
    Form &form() override { return Control::form(); }

private:
    PictureView &m_view;
    bool m_autoSize = false;
};

} // namespace orvane
