#include "shell/frmAbout.h"

#include "platform/controls/Colour.h"
#include "platform/controls/Palette.h"
#include "platform/forms/Wiring.h"
#include "platform/system/Application.h"
#include "platform/system/Host.h"
#include "platform/system/StartProgram.h"
#include "shell/HelpKey.h"

namespace orvane
{

namespace
{
constexpr qsizetype BufferLength = 1024;
constexpr int ShiftCtrlAlt = 7;

QString hexadecimalFromLast(const QString &data)
{
    QString digits;
    for (qsizetype place = data.size() - 1; place >= 0; --place)
        digits += QString::number(data[place].unicode(), 16).toUpper();
    return digits;
}
} // namespace

frmAbout::frmAbout()
    : Window(QStringLiteral("frmAbout"), FixedBorder), Picture1(*this, QStringLiteral("Picture1")),
      cmdOK(*this, QStringLiteral("cmdOK"), QStringLiteral("OK")),
      cmdSysInfo(*this, QStringLiteral("cmdSysInfo"), QStringLiteral("&System Info...")),
      Label1(*this, QStringLiteral("Label1")), lblWWWAddress(*this, QStringLiteral("lblWWWAddress")),
      imgLogo(*this, QStringLiteral("imgLogo")), Line1(QStringLiteral("Line1")),
      lblVersion(*this, QStringLiteral("lblVersion")), lblDisclaimer(*this, QStringLiteral("lblDisclaimer")),
      imgTitle(*this, QStringLiteral("imgTitle"))
{
    setTopMost(true);
    setBackColor(fromColour(palette::Paper));
    placeControls();
    addLines();
    dressPictures();
    dressLabels();
    dressButtons();
    setDefaultButton(cmdOK);
    setCancelButton(cmdOK);
    wire(cmdOK, &CommandButton::Click, *this, &frmAbout::cmdOK_Click);
    wire(cmdSysInfo, &CommandButton::Click, *this, &frmAbout::cmdSysInfo_Click);
}

void frmAbout::placeControls()
{
    setFixedDesignSize(6600, 4410);
    Picture1.Move(240, 240, 1800, 2400);
    imgTitle.Move(2190, 240, 3300, 960);
    Label1.Move(2280, 1260, 4020, 660);
    lblVersion.Move(2280, 1980, 4020, 270);
    lblWWWAddress.Move(2280, 2310, 4020, 270);
    lblDisclaimer.Move(240, 2985, 6120, 660);
    imgLogo.Move(135, 3780, 1500, 420);
    cmdOK.Move(3255, 3795, 1125, 390);
    cmdSysInfo.Move(4485, 3795, 1875, 390);
}

// A groove: a dark line with a light one below it.
void frmAbout::addLines()
{
    Line1.add(0, *this).Move(240, 2835, 6120, 15);
    Line1.add(1, *this).Move(240, 2850, 6120, 15);
    Line1(0).setBorderColor(fromColour(palette::Line));
    Line1(1).setBorderColor(fromColour(palette::White));
}

void frmAbout::dressPictures()
{
    Picture1.setPicture(QStringLiteral("about"));
    Picture1.setPurpose(QStringLiteral("A seedling in the yearly round of planning, doing and checking"));
    imgTitle.setPicture(QStringLiteral("imgTitle"));
    imgTitle.setPurpose(QStringLiteral("orvane"));
    imgLogo.setPicture(QStringLiteral("logo"));
    imgLogo.setPurpose(QStringLiteral("The sign of orvane"));
}

void frmAbout::dressLabels()
{
    const QString family = QStringLiteral("Arial");
    Label1.setFont(family, 9.75, true);
    Label1.setCaption(QStringLiteral("Quillmark CD, guided edition\nStep by step to ISO 14001"));
    lblVersion.setFont(family, 9.75, false);
    lblWWWAddress.setFont(family, 9.75, false);
    lblWWWAddress.setForeColor(fromColour(palette::DeepTeal));
    lblWWWAddress.setCaption(QStringLiteral("www.orvane.example"));
    lblDisclaimer.setFont(family, 8.25, false);
    lblDisclaimer.setForeColor(fromColour(palette::GreyText));
    lblDisclaimer.setCaption(QStringLiteral(
        "Warning: this program, its texts and its pictures are protected by copyright. Making or passing on copies "
        "that your license does not allow is against the law."));
}

void frmAbout::dressButtons()
{
    cmdOK.setFont(QStringLiteral("Arial"), 9, false);
    cmdSysInfo.setFont(QStringLiteral("Arial"), 9, false);
    cmdSysInfo.setToolTipText(QStringLiteral("Shows what this computer consists of"));
}

void frmAbout::Form_Load()
{
    setCaption(QStringLiteral("About ") + App().Title());
    lblVersion.setCaption(QStringLiteral("Version %1.%2").arg(App().Major()).arg(App().Minor()));
}

void frmAbout::Form_KeyDown(int keyCode, int)
{
    answerHelpKey(keyCode);
}

void frmAbout::Form_KeyUp(int keyCode, int shift)
{
    if (keyCode == KeyA && shift == ShiftCtrlAlt)
        MsgBox(QStringLiteral("orvane was made by everyone who wrote, drew, tested and used it. Thank you."));
}

void frmAbout::cmdOK_Click()
{
    Unload();
}

void frmAbout::cmdSysInfo_Click()
{
    StartSysInfo();
}

void frmAbout::StartSysInfo()
{
    try {
        QString path;
        if (GetKeyValue(HKEY_LOCAL_MACHINE, QStringLiteral(R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)"),
                        QStringLiteral("PATH"), path) == True) {
            StartProgram(path);
            return;
        }
        if (GetKeyValue(HKEY_LOCAL_MACHINE, QStringLiteral(R"(SOFTWARE\Microsoft\Shared Tools Location)"),
                        QStringLiteral("MSINFO"), path) == True) {
            path += QStringLiteral(R"(\MSINFO32.EXE)");
            if (FileExists(path)) {
                StartProgram(path);
                return;
            }
        }
    } catch (const RunTimeError &) {
        // A tool that can't be started is as good as none.
    }
    MsgBox(QStringLiteral("System Information Is Unavailable At This Time"));
}

Boolean16 frmAbout::GetKeyValue(quint32 rootKey, const QString &keyName, const QString &valueName, QString &result)
{
    const std::optional<RegistryKey> key = host().openRegistryKey(rootKey, keyName);
    const std::optional<RegistryValue> value = key ? key->query(valueName, BufferLength) : std::nullopt;
    if (!value) {
        result = QStringLiteral("");
        return False;
    }
    const QString text = value->data.endsWith(QChar(u'\0')) ? value->data.chopped(1) : value->data;
    if (value->type == RegistryString) result = text;
    if (value->type == RegistryNumber) result = QStringLiteral("&h") + result + hexadecimalFromLast(text);
    return True;
}

} // namespace orvane
