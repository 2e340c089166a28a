// Whether the user's last press was a key: what opens by a key opens at the focus, with its first entry selected.
#pragma once

#include <QObject>

namespace orvane
{

class LastInput : public QObject
{
    Q_OBJECT

public:
    static void watch(); // from now on; more than once does no harm
    static bool wasKey();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using QObject::QObject;
};

} // namespace orvane
