// What assistive technologies are told of a window of controls: the controls in the order in which the eye reads them,
// without those beyond the edge, which nobody sees. A window without a title is called by what stands in it.
#pragma once

#include <QAccessibleWidget>
#include <vector>

namespace orvane
{

class FormSurface;

class SpokenSurface : public QAccessibleWidget
{
public:
    explicit SpokenSurface(FormSurface &surface);

    QString text(QAccessible::Text text) const override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

private:
    std::vector<QAccessibleInterface *> children() const;

    FormSurface &m_surface;
};

} // namespace orvane
