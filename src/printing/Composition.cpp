// How the documents of the modules come about.

#include "documents/pages/PrintedPages.h"
#include "platform/controls/pictures/PictureBox.h"
#include "platform/system/Application.h"
#include "platform/system/Guard.h"
#include "platform/system/SendKeys.h"
#include "platform/system/SettingsStore.h"
#include "printing/frmPrint.h"

namespace orvane
{

namespace
{
// The company of the sample documents.
QString sampleCompany()
{
    return QStringLiteral("Global Inc");
}
} // namespace

void frmPrint::PrintPreview(int module, const QString &section, int scope, int version, const QString &number,
                            const QString &heading)
{
    m_number = number;
    m_heading = heading;
    m_job = {module, scope, section, version};
    Show();
    compose();
    takeKeys();
}

void frmPrint::compose()
{
    if (!hasPrinters()) return;
    if (m_job.module == Records) vs.setOrientation(Landscape);
    Show();
    Refresh();
    if (m_job.module != Records)
        m_company = m_job.version == Own
                        ? GetSetting(App().Title(), QStringLiteral("UserDetails"), QStringLiteral("Company"))
                        : QStringLiteral("orvane");
    vs.setPreviewMode(true);
    vs.setHeader(QStringLiteral(" "));
    vs.setFooter(QStringLiteral(" "));
    setMousePointer(HourglassPointer);
    vs.setMousePointer(ArrowHourglassPointer);
    vs.StartDoc();
    composeModule();
    vs.EndDoc();
    tool(QStringLiteral("PageNumber")).setText(QStringLiteral("1"));
    setMousePointer(DefaultPointer);
    vs.setMousePointer(DefaultPointer);
    enablePaging();
}

void frmPrint::composeModule()
{
    switch (m_job.module) {
    case Guide:
        composeGuide();
        break;
    case Manual:
        if (m_job.version == Master) m_company = sampleCompany();
        composeManual();
        break;
    case Procedures:
        if (m_job.version == Master) m_company = sampleCompany();
        composeProcedure();
        break;
    case Tools:
        composeTool();
        break;
    case Records:
        printPictures();
        break;
    default:
        break;
    }
}

void frmPrint::composeGuide()
{
    vs.setOrientation(Portrait);
    m_footerStyle = PageNumberAlone;
    m_documentTitle = QStringLiteral("ISO14001 - Implementation Guide");
    vs.setDocName(m_documentTitle);
    m_documentText = pages::printedGuide();
    vs.setTextRTF(m_documentText);
}

void frmPrint::composeManual()
{
    vs.setOrientation(Portrait);
    m_footerStyle = IssueBlock;
    m_documentTitle = QStringLiteral("Environment Manual");
    vs.setDocName(m_documentTitle);
    m_documentText = pages::printedManual();
    vs.setTextRTF(m_documentText);
}

void frmPrint::composeProcedure()
{
    vs.setOrientation(Portrait);
    m_footerStyle = IssueBlock;
    m_documentTitle = QStringLiteral("Management Procedures");
    m_documentText = pages::printedProcedure();
    vs.setTextRTF(m_documentText);
    vs.setDocName(m_documentTitle);
}

void frmPrint::composeTool()
{
    vs.setOrientation(Portrait);
    m_footerStyle = PageNumberAlone;
    m_documentTitle = QStringLiteral("Action Tools");
    m_documentText = pages::printedTool();
    vs.setTextRTF(m_documentText);
    vs.setDocName(m_documentTitle);
}

void frmPrint::PrintRecord(const PictureBox &front, const PictureBox *back)
{
    m_front = front.Picture();
    m_back = back ? std::optional(back->Picture()) : std::nullopt;
    printPictures();
    takeKeys();
}

// A window that comes back may have the focus on a tool.
void frmPrint::takeKeys()
{
    vs.SetFocus();
}

void frmPrint::printPictures()
{
    m_recordPages = m_back ? 2 : 1;
    DoEvents();
    Show();
    m_job.module = Records;
    vs.setPreviewMode(true);
    vs.setDocName(QStringLiteral("Record"));
    vs.setOrientation(Landscape);
    vs.setHeader(QStringLiteral(" "));
    vs.setFooter(QStringLiteral(" "));
    vs.StartDoc();
    const auto drawOnPage = [this](const PictureObject &picture) {
        vs.DrawPicture(picture.image(), vs.MarginLeft(), vs.MarginTop(), usableWidth(),
                       vs.PageHeight() - vs.MarginTop() - vs.MarginBottom());
    };
    drawOnPage(m_front);
    if (m_recordPages > 1) {
        vs.NewPage();
        drawOnPage(*m_back);
    }
    vs.EndDoc();
    vs.setOrientation(Portrait);
    DoEvents();
    enablePaging();
}

void frmPrint::PrintLinks(int, int) {}

double frmPrint::usableWidth() const
{
    return vs.PageWidth() - vs.MarginLeft() - vs.MarginRight();
}

} // namespace orvane
