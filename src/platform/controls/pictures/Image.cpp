#include "platform/controls/pictures/Image.h"

#include "platform/controls/pictures/PictureView.h"

namespace orvane
{

Image::Image(Container &parent, const QString &name)
    : Control(parent, name, new PictureView), m_view(static_cast<PictureView &>(widget()))
{
    connect(&m_view, &PictureView::clicked, this, &Image::Click);
}

void Image::setPicture(const QString &name)
{
    m_view.setPicture(name);
}

void Image::setWords(const QSizeF &ground, const std::vector<PictureWords> &words)
{
    m_view.setWords(ground, words);
}

} // namespace orvane
