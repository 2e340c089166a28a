// What a dialog's looks are judged by.
#pragma once

#include "platform/controls/Control.h"
#include "platform/forms/Form.h"

#include <QLabel>
#include <QPushButton>

namespace orvane::test
{

// Whether a label's text or a button's caption has the room that its font needs; other controls have.
inline bool textFits(const Control &control)
{
    if (const auto *label = qobject_cast<QLabel *>(&control.widget()))
        return label->heightForWidth(label->width()) <= label->height();
    if (const auto *button = qobject_cast<QPushButton *>(&control.widget())) {
        const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
        return text.width() <= button->width() - 12 && text.height() <= button->height() - 6;
    }
    return true;
}

inline bool isInside(const Control &control, const Form &form)
{
    return control.Left() >= 0 && control.Top() >= 0 && control.Left() + control.Width() <= form.ScaleWidth() &&
           control.Top() + control.Height() <= form.ScaleHeight();
}

} // namespace orvane::test
