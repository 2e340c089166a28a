// What the controls of a window stand on. A window may be smaller than its controls reach: those beyond its edge are
// out of sight, and the Tab key passes over them.
#pragma once

#include <QWidget>

namespace orvane
{

class FormSurface : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    // Whether any of the widget lies inside the edge. The one on which the focus rests lies outside on purpose.
    bool shows(const QWidget &widget) const;

protected:
    bool focusNextPrevChild(bool next) override;
};

} // namespace orvane
