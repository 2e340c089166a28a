// The print preview, the one window in which documents are looked at and printed.
//
// A module window hands over a job, and the module's whole document is laid out into vs; the tools zoom, turn the
// pages and print. The window stays loaded when it is closed by its tool, and shows the next job.
#pragma once

#include "platform/controls/bars/ActiveBar.h"
#include "platform/controls/pictures/PictureObject.h"
#include "platform/controls/text/RichTextBox.h"
#include "platform/forms/MDIChild.h"
#include "platform/print/VSPrinter.h"

#include <optional>

namespace orvane
{

class PictureBox;

class frmPrint : public MDIChild
{
public:
    frmPrint();

    VSPrinter vs;
    RichTextBox rtfPrint;
    ActiveBar mnuPrintPreview;

    // Module 1 to 5, the section, the scope, version 1 (Master) or 2 (Own), and the texts for the pages' head. Section
    // and scope are kept; a module prints its whole document whatever they say.
    void PrintPreview(int module, const QString &section, int scope, int version, const QString &number,
                      const QString &heading);
    void PrintRecord(const PictureBox &front, const PictureBox *back); // no back: a record of one page
    void PrintLinks(int module, int section);                          // there is nothing to print of links

    void Form_Resize() override;
    void mnuPrintPreview_Click(Tool &pressed);
    void mnuPrintPreview_ComboSelChange(Tool &picked);
    void mnuPrintPreview_KeyPress(Tool &tool, int keyAscii);
    void vs_HeaderBand();
    void vs_FooterBand();
    void vs_PageTurned();

    // A document built up piece by piece in rtfPrint.
    static QString HeadingRtf(const QString &heading);
    static QString BodyRtf(const QString &text);
    void AppendRtf(const QString &heading, const QString &body);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    void Form_Unload(bool &cancel) override;

private:
    enum Modules { Guide = 1, Manual = 2, Procedures = 3, Tools = 4, Records = 5 };
    enum Versions { Master = 1, Own = 2 };
    enum FooterStyles { PageNumberAlone = 1, IssueBlockToo = 2, IssueBlock = 3 };

    struct Job {
        int module = 0;
        int scope = 0;
        QString section;
        int version = 0;
    };

    Tool &tool(const QString &name) const; // of the one band
    void wireEvents();
    bool hasPrinters() const; // tells the user where there are none
    void enablePaging();
    void showZoom();
    void reportClosing() const;
    void print();
    void setUpPage();

    void compose();
    void composeModule();
    void composeGuide();
    void composeManual();
    void composeProcedure();
    void composeTool();
    void printPictures();
    void takeKeys(); // for the pages
    double usableWidth() const;

    Job m_job;
    QString m_number;
    QString m_heading;
    QString m_company;
    QString m_documentTitle;
    QString m_documentText;
    int m_footerStyle = 0;
    QString m_issue; // nothing fills the three
    QString m_date;
    QString m_authorized;
    PictureObject m_front;
    std::optional<PictureObject> m_back;
    int m_recordPages = 0;
    int m_width = 0; // of vs, twips; 0 until the first layout
    int m_height = 0;
};

} // namespace orvane
