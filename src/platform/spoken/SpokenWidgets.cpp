#include "platform/spoken/SpokenWidgets.h"

#include "platform/controls/CaptionButton.h"
#include "platform/controls/Label.h"
#include "platform/controls/PanelWidget.h"
#include "platform/controls/ScrollView.h"
#include "platform/controls/bars/ToolButton.h"
#include "platform/controls/pictures/PictureView.h"
#include "platform/forms/FocusRest.h"
#include "platform/forms/FormSurface.h"
#include "platform/print/preview/PreviewView.h"
#include "platform/spoken/SpokenButton.h"
#include "platform/spoken/SpokenSurface.h"

#include <QAccessible>
#include <QMenu>

namespace orvane
{

namespace
{
// A tab of the diagram, or a button that opens something.
class SpokenCard : public SpokenButton
{
public:
    explicit SpokenCard(CaptionButton &button) : SpokenButton(button), m_button(button) {}

protected:
    bool dropsMenu() const override { return m_button.dropsMenu(); }
    QAccessible::Role checkableRole() const override { return QAccessible::RadioButton; }

private:
    CaptionButton &m_button;
};

// A tool; its flyout is in it, open or not.
class SpokenTool : public SpokenButton
{
public:
    explicit SpokenTool(ToolButton &button) : SpokenButton(button), m_button(button) {}

    int childCount() const override { return m_button.menu() ? 1 : 0; }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(m_button.menu()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && child->object() == m_button.menu() ? 0 : -1;
    }

protected:
    bool dropsMenu() const override { return m_button.menu(); }
    QAccessible::Role checkableRole() const override { return QAccessible::CheckBox; }

private:
    ToolButton &m_button;
};

// A picture box without a text is a ground for other controls.
class SpokenPicture : public QAccessibleWidget
{
public:
    explicit SpokenPicture(QWidget &picture) : QAccessibleWidget(&picture) {}

    QAccessible::Role role() const override
    {
        return text(QAccessible::Name).isEmpty() ? QAccessible::Client : QAccessible::Graphic;
    }
};

// A heading, or a group of controls, or just a place.
class SpokenPanel : public QAccessibleWidget
{
public:
    explicit SpokenPanel(QWidget &panel) : QAccessibleWidget(&panel) {}

    QAccessible::Role role() const override
    {
        if (text(QAccessible::Name).isEmpty()) return QAccessible::Client;
        return childCount() > 0 ? QAccessible::Grouping : QAccessible::StaticText;
    }
};

// Who comes to where the focus rests is told which window that is.
class SpokenRest : public QAccessibleWidget
{
public:
    explicit SpokenRest(QWidget &rest) : QAccessibleWidget(&rest, QAccessible::Pane) {}

    QString text(QAccessible::Text text) const override
    {
        const QString given = QAccessibleWidget::text(text);
        return text == QAccessible::Name && given.isEmpty() ? parent()->text(text) : given;
    }
};

// A label without a text can only be there to be clicked at.
class SpokenSpot : public QAccessibleWidget
{
public:
    explicit SpokenSpot(Label &label) : QAccessibleWidget(&label.widget(), QAccessible::Button), m_label(label) {}

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString &actionName) override
    {
        if (actionName == pressAction()) QMetaObject::invokeMethod(&m_label, &Label::Click, Qt::QueuedConnection);
    }

private:
    Label &m_label;
};

QAccessibleInterface *speakLabel(QWidget &widget)
{
    auto *label = qobject_cast<Label *>(Control::of(&widget));
    const bool isSpot = label && label->Caption().isEmpty() && !widget.accessibleName().isEmpty();
    return isSpot ? new SpokenSpot(*label) : nullptr;
}

QAccessibleInterface *speakWidget(const QString &className, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (!widget) return nullptr;
    const auto is = [&](const QMetaObject &type) { return className == QLatin1String(type.className()); };
    if (is(CaptionButton::staticMetaObject)) return new SpokenCard(static_cast<CaptionButton &>(*widget));
    if (is(ToolButton::staticMetaObject)) return new SpokenTool(static_cast<ToolButton &>(*widget));
    if (is(FormSurface::staticMetaObject)) return new SpokenSurface(static_cast<FormSurface &>(*widget));
    if (is(FocusRest::staticMetaObject)) return new SpokenRest(*widget);
    if (is(PictureView::staticMetaObject)) return new SpokenPicture(*widget);
    if (is(PreviewView::staticMetaObject)) return new QAccessibleWidget(widget, QAccessible::Document);
    if (is(ScrollView::staticMetaObject)) return new QAccessibleWidget(widget, QAccessible::Pane);
    if (is(PanelWidget::staticMetaObject)) return new SpokenPanel(*widget);
    return className == u"QLabel" ? speakLabel(*widget) : nullptr;
}
} // namespace

void speakOwnWidgets()
{
    QAccessible::installFactory(speakWidget);
}

} // namespace orvane
