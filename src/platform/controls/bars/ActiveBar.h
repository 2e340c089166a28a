// A menu or toolbar: bands of tools from a layout table, on show as a menu bar or as a toolbar.
//
// The first band is the bar itself; every other band is a flyout, on show while a tool that names it is open, or
// dropped by PopupMenu. One Click serves every tool of every band, and hands over the very tool that was pressed.
// What is written to a tool is seen at once, also in a menu that is open.
#pragma once

#include "platform/controls/Control.h"
#include "platform/controls/bars/Tool.h"
#include "platform/controls/bars/ToolTable.h"

#include <QRectF>
#include <memory>
#include <vector>

namespace orvane
{

class ActiveBar;
class BarStrip;

// The tools of one band, in order. Item and Remove refuse an index or a name that isn't there with error 9.
class ToolList
{
public:
    ToolList(ActiveBar &bar, const QString &bandName) : m_bar(bar), m_bandName(bandName) {}

    int Count() const { return static_cast<int>(m_tools.size()); }
    Tool &Item(int index) const; // from 0
    Tool &Item(const QString &name) const;
    bool contains(const QString &name) const;
    Tool &Add(int id, const QString &name); // at the end, a plain button without caption
    void Remove(int index);

    auto begin() const { return m_tools.begin(); } // std::shared_ptr<Tool>
    auto end() const { return m_tools.end(); }

private:
    size_t place(int index) const;
    Tool *find(const QString &name) const;

    ActiveBar &m_bar;
    QString m_bandName;
    std::vector<std::shared_ptr<Tool>> m_tools; // shared: a handler may hold a tool that is removed while it runs
    friend class Band;
};

// At which edge of its container a bar lies that was given no place of its own.
enum DockingAreas { DockedTop = 0, DockedBottom = 2 };

class Band
{
public:
    Band(ActiveBar &bar, const BandRow &row);

    const QString &Name() const { return m_name; }
    const QString &Caption() const { return m_caption; }
    int designWidth() const { return m_designWidth; } // pixels
    int designHeight() const { return m_designHeight; }
    ToolList &Tools() { return m_tools; }
    const ToolList &Tools() const { return m_tools; }
    Tool &Tools(int index) const { return m_tools.Item(index); }
    Tool &Tools(const QString &name) const { return m_tools.Item(name); }

    bool Visible() const { return m_visible; }
    void setVisible(bool visible); // of the first band: hides or shows the bar
    int DockingArea() const { return m_dockingArea; }
    void setDockingArea(int area); // one of DockingAreas; of the first band: docks the bar

    // Drops the band as a menu and returns when it has closed and its Click is done. X and Y are twips on the screen;
    // -1 and -1 mean the place of the mouse, or of the focus where the user works with the keyboard.
    void PopupMenu(double x, double y);

private:
    bool isFirst() const;

    ActiveBar &m_bar;
    QString m_name;
    QString m_caption;
    int m_designWidth = 0;
    int m_designHeight = 0;
    bool m_visible = true;
    int m_dockingArea = DockedTop;
    ToolList m_tools;
};

class ActiveBar : public Control
{
    Q_OBJECT

public:
    enum Look { MenuBar, ToolBar };

    // A bar with the menu-bar look becomes the menu of the frame that is its parent. A toolbar fills its container, or
    // lies at one of its edges, until it is given a place; at the edge of a window it takes its room from the inside. A
    // flyout that names no band is refused with error 9.
    ActiveBar(Container &parent, const QString &name, BarTable table, Look look = ToolBar);
    ~ActiveBar() override;

    int BandCount() const { return static_cast<int>(m_bands.size()); }
    Band &Bands(int index) const; // error 9 where there is none
    Band &Bands(const QString &name) const;
    int ToolCount() const; // all tools of all bands, in stored order
    Tool &Tools(int index) const;
    Tool &Tools(const QString &name) const; // the first of that name

    void RecalcLayout();    // builds the bar anew from its tools
    void press(Tool &tool); // what a user's press on the tool does: Click, unless it is disabled

    void hover(const QString &description); // what a view shows under the mouse or the focus; tells of a change

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void Click(orvane::Tool *tool);
    void Hover(const QString &description); // the status text of the tool under the mouse or the focus, or nothing
    // In the field of a combo or text tool, before its Click: an entry was picked; a key was pressed (13 is Enter).
    void ComboSelChange(orvane::Tool *tool);
    void KeyPress(orvane::Tool *tool, int keyAscii);
    void Changed(); // of tools or bands; for the views

protected:
    void moved() override;

private:
    void requireFlyouts() const;
    void dock();
    bool isOnWindow() const;
    bool hasOwnPlace() const;
    QRect placeOnWindow();
    QRect placeInContainer() const;

    std::vector<std::unique_ptr<Band>> m_bands;
    QPointer<BarStrip> m_strip; // of a toolbar
    QWidget &m_container;
    QRectF m_docked; // the place that dock gave, in twips; a bar that lies elsewhere was given a place
    QString m_hovered;
    friend class Band;
};

} // namespace orvane
