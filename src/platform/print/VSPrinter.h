// Records a document page by page, shows it in a preview, and prints it. Lengths are twips from the paper's corner.
//
// Between StartDoc and EndDoc each page comes up with the first thing that is put on it, in the orientation, on the
// paper and within the margins of that moment. HeaderBand is raised as a page comes up and FooterBand as it ends: their
// handlers put tables on the page. Where no printer is installed a document has no pages.
#pragma once

#include "platform/controls/Control.h"
#include "platform/print/pages/Recording.h"
#include "platform/print/pages/TableFormat.h"

#include <optional>

class QImage;

namespace orvane
{

class PreviewView;

enum PrintOrientations { Portrait = 0, Landscape = 1 };
enum PrinterDialogs { PrinterSetup = 0, PageSetupOfPrinter = 1 };

class VSPrinter : public Control
{
    Q_OBJECT

public:
    VSPrinter(Container &parent, const QString &name);

    // The page. Of a page in the works PageWidth and PageHeight are its own, before and after those of the next one.
    // What isn't one of the values below is refused with error 380.
    int Orientation() const;
    void setOrientation(int orientation); // one of PrintOrientations
    int PaperSize() const;                // 1 Letter, 5 Legal, 9 A4...; first the printer's own
    void setPaperSize(int paperSize);
    double MarginLeft() const { return setup().left; }
    double MarginTop() const { return setup().top; }
    double MarginRight() const { return setup().right; }
    double MarginBottom() const { return setup().bottom; }
    void setMarginLeft(double twips); // none is negative
    void setMarginTop(double twips);
    void setMarginRight(double twips);
    void setMarginBottom(double twips);
    double PageWidth() const { return setup().page().width(); }
    double PageHeight() const { return setup().page().height(); }

    // The document. A picture or text outside of one is left out.
    void StartDoc(); // the document before is gone
    void EndDoc();   // shows the document from its first page, or prints it where PreviewMode is off
    void NewPage();
    void setTextRTF(const QString &rtf); // from CurrentY down, over as many pages as it takes
    void DrawPicture(const QImage &picture, double x, double y, double width, double height);
    // Columns and rows as in TableFormat.h, from the current place down. A shade is blue, green, red. A joined table
    // shares its upper edge with the one above.
    void AddTable(const QString &format, const QString &header, const QString &body,
                  std::optional<int> headerShade = {}, std::optional<int> bodyShade = {}, bool joined = false);
    bool PreviewMode() const { return m_previewMode; }
    void setPreviewMode(bool preview) { m_previewMode = preview; }
    int CurrentPage() const { return m_recording.count(); } // the one in the works, or the last

    // Of what is put on the page next.
    double CurrentX() const { return m_recording.place.x(); }
    double CurrentY() const { return m_recording.place.y(); }
    void setCurrentX(double x) { m_recording.place.setX(x); }
    void setCurrentY(double y) { m_recording.place.setY(y); }
    int TextAlign() const { return m_textAlign; } // SelAlignments: of columns that say none
    void setTextAlign(int alignment);
    QString FontName() const { return m_fontName; } // of all but rich text
    double FontSize() const { return m_fontSize; }  // points, above 0
    void setFontSize(double points);
    int TableBorder() const { return m_tableBorder; } // TableBorders
    void setTableBorder(int border);
    QString TableSep() const; // the column separator and the row separator
    void setTableSep(const QString &separators);
    QString Header() const { return m_header; } // a line in the middle of the upper margin of each page
    void setHeader(const QString &text) { m_header = text; }
    QString Footer() const { return m_footer; }
    void setFooter(const QString &text) { m_footer = text; }

    // The preview.
    int PreviewPage() const;       // the page on show, from 1; 0 without pages
    void setPreviewPage(int page); // held within the document
    int PageCount() const { return m_recording.count(); }
    double Zoom() const;          // percent, whatever the zoom mode
    void setZoom(double percent); // held within 10 and 500; ends any zoom mode
    int ZoomMode() const;         // ZoomModes of PreviewLayout.h
    void setZoomMode(int mode);

    // The printer.
    int NDevices() const;                       // installed printers
    QString Device() const { return m_device; } // by its device name; empty: the default printer
    void setDevice(const QString &deviceName) { m_device = deviceName; }
    int Copies() const { return m_copies; }
    void setCopies(int copies); // from 1
    int Duplex() const { return m_duplex; }
    void setDuplex(int duplex); // 0 the printer's own, 1 one side, 2 turned over the long edge, 3 over the short one
    QString DocName() const { return m_docName; } // of the job at the printer, and of the PDF file
    void setDocName(const QString &name) { m_docName = name; }

    // These pages, as far as there are such. Error 5 where there is none, 482 where the printer fails, which the
    // control tells the user itself. A job that a paused printer keeps is printed, and the user is told.
    void PrintDoc(int from, int to);
    // One of PrinterDialogs; true on OK. What the user chose holds from the next page that comes up.
    bool PrintDialog(int dialog);

signals:
    void HeaderBand();
    void FooterBand();
    // The user has changed the view, by mouse or keys: its zoom, or what of the document it shows. ViewZoomed tells
    // besides that a zoom mode has fitted a new document.
    void ViewZoomed();
    void ViewScrolled();
    void PageTurned(); // by the user: another page is on show

protected:
    QWidget &voice() const override;
    QWidget &focusTarget() const override { return widget(); }

private:
    const PageSetup &setup() const;
    void setMargin(double PageSetup::*margin, double twips);
    void raiseHeader();
    void raiseFooter();
    void putLine(const QString &text, double y);
    QString printerName() const;

    PreviewView &m_view;
    mutable Recording m_recording; // takes the printer's paper when it is first asked for
    bool m_previewMode = true;
    int m_textAlign = 0;
    QString m_fontName = QStringLiteral("Arial");
    double m_fontSize = 11.25;
    int m_tableBorder = 7;
    TableSeparators m_separators;
    QString m_header;
    QString m_footer;
    QString m_device;
    QString m_docName;
    int m_copies = 1;
    int m_duplex = 0;
};

} // namespace orvane
