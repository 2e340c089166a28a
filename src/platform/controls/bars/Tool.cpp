#include "platform/controls/bars/Tool.h"

#include "platform/controls/bars/ActiveBar.h"
#include "platform/system/RunTimeError.h"

namespace orvane
{

QString tableText(std::u16string_view text)
{
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

Tool::Tool(ActiveBar &bar, const ToolRow &row)
    : m_bar(&bar), m_id(row.id), m_name(tableText(row.name)), m_caption(tableText(row.caption)),
      m_toolTip(tableText(row.tooltip)), m_description(tableText(row.description)), m_category(tableText(row.category)),
      m_flyout(tableText(row.flyout)), m_image(tableText(row.image)), m_toolTag(row.toolTag), m_enabled(row.enabled),
      m_checked(row.checked), m_groupStart(row.groupStart), m_kind(row.kind), m_width(row.width)
{
}

Tool::Tool(ActiveBar &bar, int id, const QString &name) : m_bar(&bar), m_id(id), m_name(name) {}

template <class Value>
void Tool::put(Value &field, const Value &value)
{
    if (field == value) return;
    field = value;
    changed();
}

void Tool::changed()
{
    if (m_bar) emit m_bar->Changed();
}

void Tool::setCaption(const QString &caption)
{
    put(m_caption, caption);
}

void Tool::setToolTipText(const QString &text)
{
    put(m_toolTip, text);
}

void Tool::setDescription(const QString &text)
{
    put(m_description, text);
}

void Tool::setEnabled(bool enabled)
{
    put(m_enabled, enabled);
}

void Tool::setChecked(bool checked)
{
    put(m_checked, checked);
}

void Tool::setText(const QString &text)
{
    m_listIndex = static_cast<int>(m_list.indexOf(text));
    put(m_text, text);
}

void Tool::setList(const QStringList &entries)
{
    m_listIndex = static_cast<int>(entries.indexOf(m_text));
    put(m_list, entries);
}

void Tool::setListIndex(int index)
{
    if (index < -1 || index >= m_list.size())
        throw RunTimeError(InvalidPropertyValue,
                           QStringLiteral("The list of %1 has no entry %2.").arg(m_name).arg(index));
    setText(index < 0 ? QString() : m_list.at(index));
    m_listIndex = index; // of two equal entries, the one that was meant
}

} // namespace orvane
