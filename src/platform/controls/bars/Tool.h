// One element of a band. Everything but the id and the category can be written at run time, and the bar follows.
#pragma once

#include "platform/controls/bars/ToolTable.h"

#include <QPointer>
#include <QString>
#include <QStringList>
#include <memory>

namespace orvane
{

class ActiveBar;

QString tableText(std::u16string_view text); // a text of a layout table

class Tool : public std::enable_shared_from_this<Tool>
{
public:
    Tool(ActiveBar &bar, const ToolRow &row);
    Tool(ActiveBar &bar, int id, const QString &name);

    int Id() const { return m_id; }
    const QString &Category() const { return m_category; }

    const QString &Name() const { return m_name; }
    const QString &Caption() const { return m_caption; } // with its outer blanks and the "&" of the access key
    void setCaption(const QString &caption);
    const QString &ToolTipText() const { return m_toolTip; }
    void setToolTipText(const QString &text);
    const QString &Description() const { return m_description; }
    void setDescription(const QString &text);
    int ToolTag() const { return m_toolTag; } // the number that the tour hears; its first digit names a module
    void setToolTag(int tag) { m_toolTag = tag; }
    const QString &Flyout() const { return m_flyout; }
    const QString &TagText() const { return m_tagText; } // a free text of the window that made the tool
    void setTagText(const QString &text) { m_tagText = text; }
    bool Enabled() const { return m_enabled; }
    void setEnabled(bool enabled);
    bool Checked() const { return m_checked; }
    void setChecked(bool checked);
    bool GroupStart() const { return m_groupStart; }
    ToolKind Kind() const { return m_kind; }
    int Width() const { return m_width; } // pixels, -1 for automatic
    const QString &Image() const { return m_image; }
    bool isField() const { return m_kind == ToolKind::ComboBox || m_kind == ToolKind::TextBox; }

    // What stands in the field of a text or combo tool; of a combo tool, ListIndex follows it.
    const QString &Text() const { return m_text; }
    void setText(const QString &text);
    // Of a combo tool: its entries, and the one that stands in the field, or -1.
    const QStringList &List() const { return m_list; }
    void setList(const QStringList &entries);
    int ListIndex() const { return m_listIndex; }
    void setListIndex(int index); // an index of no entry, and not -1, is refused with error 380

private:
    template <class Value>
    void put(Value &field, const Value &value);
    void changed();

    QPointer<ActiveBar> m_bar; // a handler may hold a tool when the bar is gone
    int m_id = 0;
    QString m_name, m_caption, m_toolTip, m_description, m_category, m_flyout, m_image, m_tagText, m_text;
    int m_toolTag = 0;
    bool m_enabled = true;
    bool m_checked = false;
    bool m_groupStart = false;
    ToolKind m_kind = ToolKind::Button;
    int m_width = -1;
    QStringList m_list;
    int m_listIndex = -1;
};

} // namespace orvane
