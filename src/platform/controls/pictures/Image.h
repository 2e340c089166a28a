// A picture on a window. It holds no other controls.
#pragma once

#include "platform/controls/Control.h"
#include "platform/controls/pictures/PictureWords.h"

#include <vector>

namespace orvane
{

class PictureView;

class Image : public Control
{
    Q_OBJECT

public:
    Image(Container &parent, const QString &name);

    void setPicture(const QString &name); // a file under pictures/, without its ending
    void setWords(const QSizeF &ground, const std::vector<PictureWords> &words);

signals:
    void Click();

private:
    PictureView &m_view;
};

} // namespace orvane
