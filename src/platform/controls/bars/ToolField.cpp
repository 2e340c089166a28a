#include "platform/controls/bars/ToolField.h"

#include "platform/controls/bars/ActiveBar.h"
#include "platform/controls/bars/BarLooks.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

namespace orvane
{

namespace
{
constexpr int Gap = 4;
constexpr int MostLines = 20;

// Only a new list is put into the box, since that would close it; the text of the field is not the box's to change.
void followList(QComboBox &box, const QStringList &entries)
{
    QStringList present;
    for (int i = 0; i < box.count(); ++i)
        present += box.itemText(i);
    if (present == entries) return;
    box.clear();
    box.addItems(entries);
    box.setCurrentIndex(-1);
    box.setMaxVisibleItems(qBound(1, static_cast<int>(entries.size()), MostLines));
}
} // namespace

ToolField::ToolField(ActiveBar &bar, const std::shared_ptr<Tool> &tool, QWidget *parent)
    : QWidget(parent), m_bar(&bar), m_tool(tool), m_label(new QLabel(this))
{
    setFont(barFont());
    makeField(*tool);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Gap, 0, Gap, 0);
    row->setSpacing(Gap);
    row->addWidget(m_label);
    row->addWidget(m_field);
    m_label->setBuddy(m_field);
    m_field->installEventFilter(this); // a combo box hands keys on to its line edit
    connect(m_edit, &QLineEdit::textEdited, this, [this](const QString &text) {
        if (const auto edited = m_tool.lock()) edited->setText(text);
    });
}

void ToolField::makeField(const Tool &tool)
{
    if (tool.Kind() == ToolKind::ComboBox) {
        m_combo = new QComboBox(this);
        m_combo->setEditable(true);
        m_combo->setCompleter(nullptr);
        m_combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        connect(m_combo, &QComboBox::activated, this, &ToolField::picked);
        m_edit = m_combo->lineEdit();
        m_field = m_combo;
    } else {
        m_edit = new QLineEdit(this);
        m_field = m_edit;
    }
    m_field->setObjectName(tool.Name());
    if (tool.Width() > 0) m_field->setFixedWidth(tool.Width());
}

void ToolField::follow(const Tool &tool, bool withAccessKey)
{
    const QString caption = shownCaption(tool);
    m_label->setText(withAccessKey ? caption : withoutAccessKey(caption));
    m_field->setAccessibleName(spokenName(tool));
    m_edit->setAccessibleName(spokenName(tool));
    m_field->setAccessibleDescription(tool.ToolTipText());
    setToolTip(tool.ToolTipText().isEmpty() ? spokenName(tool) : tool.ToolTipText());
    setEnabled(tool.Enabled());
    if (m_combo) {
        const QSignalBlocker quiet(m_combo);
        followList(*m_combo, tool.List());
        if (tool.ListIndex() >= 0) m_combo->setCurrentIndex(tool.ListIndex());
    }
    if (m_edit->text() != tool.Text()) m_edit->setText(tool.Text());
}

int ToolField::widthFor(bool compact) const
{
    const int fieldWidth = m_field->minimumWidth() > 0 ? m_field->minimumWidth() : m_field->sizeHint().width();
    const bool withLabel = !compact && !m_label->text().isEmpty();
    return 2 * Gap + fieldWidth + (withLabel ? m_label->sizeHint().width() + Gap : 0);
}

void ToolField::setCompact(bool compact)
{
    m_label->setVisible(!compact && !m_label->text().isEmpty());
}

bool ToolField::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_field || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    const QPointer<ToolField> self = this;
    if (enter)
        keyPressed('\r');
    else if (!key->text().isEmpty())
        keyPressed(key->text().at(0).unicode());
    return enter || !self; // Enter is the bar's
}

void ToolField::keyPressed(int keyAscii)
{
    const auto tool = m_tool.lock();
    if (!tool || !m_bar) return;
    const QPointer<ToolField> self = this;
    emit m_bar->KeyPress(tool.get(), keyAscii);
    if (self && keyAscii == '\r') emit chosen();
}

void ToolField::picked(int index)
{
    const auto tool = m_tool.lock();
    if (!tool || !m_bar) return;
    tool->setListIndex(index);
    const QPointer<ToolField> self = this;
    emit m_bar->ComboSelChange(tool.get());
    if (self) emit chosen();
}

} // namespace orvane
