#include "platform/controls/pictures/PictureBox.h"

#include "platform/controls/pictures/PictureView.h"

namespace orvane
{

PictureBox::PictureBox(Container &parent, const QString &name)
    : Control(parent, name, new PictureView), m_view(static_cast<PictureView &>(widget()))
{
}

void PictureBox::setPicture(const QString &name)
{
    m_view.setPicture(name);
}

PictureObject PictureBox::Picture() const
{
    return m_view.pixels();
}

void PictureBox::setPicture(const PictureObject &picture)
{
    m_view.setPixels(picture);
    if (!m_autoSize) return;
    const QSize size = picture.image().size();
    Move(Left(), Top(), toTwips(size.width()), toTwips(size.height()));
}

void PictureBox::setAutoSize(bool autoSize)
{
    m_autoSize = autoSize;
}

void PictureBox::setBackColor(const QColor &colour)
{
    QPalette palette = m_view.palette();
    palette.setColor(QPalette::Window, colour);
    m_view.setPalette(palette);
    m_view.setAutoFillBackground(true);
}

} // namespace orvane
