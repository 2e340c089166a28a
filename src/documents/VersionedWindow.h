// What the Environment Manual and the Management Procedures have in common: a document in two versions.
//
// Master is for reading; in Own the text and the three fields can be edited. Nothing is kept of what is typed: a page
// change, a switch of version or the end of the window drops it. The page on show is the checked tool of mnuNav.
//
// On purpose the two windows differ in this, beside their design and their pages:
//
//                         frmEMMain                            frmMPMain
//   a page tool in Own    Dirty stays; the fields go back to   Dirty is cleared; the fields keep
//                         their constants                      what was typed
//   ... in Master         the same for the fields              the fields stay
//   Save                  does nothing                         repairs the date, then all is clean
//   printing              reports the tool's number            reports 310 behind it
//   the page's print tool 205                                  1, as in the other modules
//   to Master             draws page and fields anew           draws the page alone anew
//   the end               hides the window, then the bar       hides the bar, then the window
//   Tag                   says "Environmental"                 bears the module's name
//   QuitSaveData          none                                 as Save
//   Tab in the fields     issue, date, authority               authority, date, issue
//   mnuNav                has a second band, never shown       has one band
//   pnlTools              none                                 lies behind the page
#pragma once

#include "platform/controls/Label.h"
#include "platform/controls/SSPanel.h"
#include "platform/controls/bars/ActiveBar.h"
#include "platform/controls/pictures/Image.h"
#include "platform/controls/pictures/PictureBox.h"
#include "platform/controls/text/TextBox.h"
#include "platform/controls/text/zelRich.h"
#include "platform/controls/zelGradient.h"
#include "platform/forms/MDIChild.h"

namespace orvane
{

// What a window is made from.
struct VersionedDesign {
    QString name;
    BarTable nav;
    BarTable links;
    int printModule;
    QString switchDate; // what a switch of version puts into txtDate
};

class VersionedWindow : public MDIChild
{
public:
    zelGradient gradient; // named "zelGradient"
    SSPanel pnlNumber;
    SSPanel pnlHeading;
    Image imgLogo;
    SSPanel ssMnu;
    ActiveBar mnuNav;
    zelRich rtfData;
    SSPanel pnlBottom;
    Label lblIssue;
    TextBox txtIssue;
    Label lblDate;
    TextBox txtDate;
    Label lblAuthorized;
    TextBox txtAuthorized;
    PictureBox ssMnuLinks;
    ActiveBar mnuLinks;

    Boolean16 Dirty; // what was typed is not saved; nothing reads it
    int OwnMode = 0; // -1 while the Own version is on show

    void Form_Resize() override;
    virtual void mnuNav_Click(Tool &tool) = 0;
    virtual void mnuLinks_Click(Tool &tool) = 0;

protected:
    explicit VersionedWindow(const VersionedDesign &design);

    void Form_Deactivate() override;

    virtual Tool &saveTool() const = 0;
    virtual bool showPage(const QString &name) = 0; // false where no page has this name
    virtual void save() = 0;                        // what the Save tool does
    virtual void fieldsReset() {}                   // the switch to Master has put the constants into the fields

    bool isOwn() const { return OwnMode == -1; }
    Tool &modeTool() const;
    void nameModeTool();
    void setFields(const QString &date);
    void showLongDate();
    void repairDate();
    void markSaved();
    void check(Tool &tool);
    void handleLinkTool(Tool &tool);
    void print();

    int FormWidth = 0; // twips, 0 before the first layout
    int FormHeight = 0;

private:
    void placeControls();
    void placeFields();
    void wireControls();
    void layOutStrips();
    void layOutFields();
    void fieldTyped();
    void enableFields(bool enabled);
    void switchVersion();
    void switchToOwn();
    void switchToMaster();
    QString checkedPage() const;

    VersionedDesign m_design;
};

} // namespace orvane
