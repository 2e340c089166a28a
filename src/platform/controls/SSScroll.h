// A container that shows a part of an area larger than itself, and scrolls over it.
//
// Positions are the distance of what is on show from the area's left and top, in twips. They stay as the container
// changes its size, as far as the area reaches. Arrow keys and the wheel go by a line, Page Up and Page Down by a page;
// Home and End lead to the left and right edges, with Ctrl to the upper left and lower right corners.
#pragma once

#include "platform/controls/Control.h"

namespace orvane
{

class ScrollView;

class SSScroll : public Control, public Container
{
    Q_OBJECT

public:
    SSScroll(Container &parent, const QString &name);

    // The area reaches at least to the edges of the controls on it that are on show. Negative: error 380.
    double ScrollWidth() const { return m_scrollWidth; }
    double ScrollHeight() const { return m_scrollHeight; }
    void setScrollWidth(double twips);
    void setScrollHeight(double twips);

    double HorizontalPosition() const;
    double VerticalPosition() const;
    void setHorizontalPosition(double twips); // as near as the area reaches
    void setVerticalPosition(double twips);

    void setSteps(double line, double page); // of both axes
    void setBackColor(int colour);           // blue, green, red

    QWidget &surface() override;
    Form &form() override { return Control::form(); }

protected:
    QWidget &voice() const override;

private:
    ScrollView &m_view;
    double m_scrollWidth = 0;
    double m_scrollHeight = 0;
};

} // namespace orvane
