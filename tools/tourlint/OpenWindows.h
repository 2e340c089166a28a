// The windows that are open at a point of the tour, as far as scripts change them.
#pragma once

#include "platform/controls/bars/ToolTable.h"

#include <QString>

#include <optional>
#include <vector>

namespace orvane::lint
{

struct OpenWindow {
    QString name;    // frmCommandCentre, frmPrint, or a module window's
    QString title;   // Caption, as the Window menu and links compare it
    QString tag;     // name of its tool in the Window menu
    int section = 0; // of a module window
    int page = 1;    // of the preview: the last that it may have come to

    bool operator==(const OpenWindow &) const = default;
};

class OpenWindows
{
public:
    OpenWindows(); // the diagram alone

    const OpenWindow &active() const { return m_windows.back(); }
    bool detailsOpen() const { return m_detailsOpen; }
    bool ended() const { return m_ended; }
    bool isOpen(const QString &tag) const;

    // A tool of the active window that a user couldn't press. The tool has to be one of that window's bars.
    bool isDisabled(const QString &bar, const ToolRow &tool) const;

    void open(int digit, const QString &title, const QString &section); // digit: 1 to 5, the module
    void pressMenu(const ToolRow &tool);
    void pressWindowMenu(const QString &tag);
    void pressLink(const QString &band, const ToolRow &tool);
    void pressPreview(const ToolRow &tool);
    void confirmDetails();

    bool operator==(const OpenWindows &) const = default;

private:
    bool bringForward(const QString &tag);
    void openFromTool(int number, const QString &name, const QString &caption);
    void showPreview();
    void hidePreview();
    void closeActive();

    std::vector<OpenWindow> m_windows; // by use: the active one is the last
    bool m_detailsOpen = false;
    bool m_ended = false;
};

} // namespace orvane::lint
