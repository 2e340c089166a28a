#include "shell/frmSplash.h"

#include "command_center/frmCommandCentre.h"
#include "command_center/frmInfo.h"
#include "platform/controls/Colour.h"
#include "platform/controls/Palette.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Wiring.h"
#include "platform/system/Application.h"
#include "platform/system/Guard.h"
#include "platform/system/SendKeys.h"
#include "platform/system/SettingsStore.h"
#include "shell/SharedState.h"
#include "shell/mdiMain.h"
#include "tour/frmDemo.h"

namespace orvane
{

namespace
{
QString storedDetail(const QString &key)
{
    return GetSetting(QStringLiteral("orvane Quillmark CD"), QStringLiteral("UserDetails"), key,
                      QStringLiteral("None"));
}
} // namespace

frmSplash::frmSplash()
    : Window(QStringLiteral("frmSplash"), NoBorder),
      gradient(*this, QStringLiteral("zelGradient"), zelGradient::Ground), Picture1(*this, QStringLiteral("Picture1")),
      Frame1(*this, QStringLiteral("Frame1")), Label1(Frame1, QStringLiteral("Label1")),
      lblCompanyProduct(Frame1, QStringLiteral("lblCompanyProduct")),
      lblUserName(Frame1, QStringLiteral("lblUserName")), lblPlatform(Frame1, QStringLiteral("lblPlatform")),
      lblVersion(Frame1, QStringLiteral("lblVersion")), lblWarning(Frame1, QStringLiteral("lblWarning")),
      lblCopyright(Frame1, QStringLiteral("lblCopyright")), imgLogo(Frame1, QStringLiteral("imgLogo")),
      lblUserCompany(Frame1, QStringLiteral("lblUserCompany")), imgTitle(Frame1, QStringLiteral("imgTitle"))
{
    setCaption(QStringLiteral("orvane"));
    placeControls();
    dressLabels();
    wire(Frame1, &Frame::Click, *this, [](frmSplash &self) { self.Unload(); });
}

void frmSplash::placeControls()
{
    setFixedDesignSize(7500, 4950);
    gradient.Move(0, 0, 7500, 4950);
    Picture1.Move(300, 240, 6900, 1800);
    Frame1.Move(300, 2220, 6900, 2580);
    imgTitle.Move(0, 0, 1950, 570);
    Label1.Move(2160, 150, 1500, 420);
    lblUserName.Move(3900, 60, 3000, 270);
    lblUserCompany.Move(3900, 330, 3000, 270);
    lblCompanyProduct.Move(0, 840, 1000, 270);
    lblVersion.Move(1050, 840, 1300, 270);
    lblPlatform.Move(2400, 840, 1500, 270);
    lblCopyright.Move(0, 1320, 6900, 300);
    lblWarning.Move(0, 1680, 5250, 900);
    imgLogo.Move(6300, 1980, 600, 600);
}

void frmSplash::dressLabels()
{
    Picture1.setPicture(QStringLiteral("splash"));
    Picture1.setPurpose(QStringLiteral("orvane, a toolkit for environmental management"));
    imgTitle.setPicture(QStringLiteral("imgTitle"));
    imgTitle.setPurpose(QStringLiteral("orvane"));
    imgLogo.setPicture(QStringLiteral("mark"));
    imgLogo.setPurpose(QStringLiteral("orvane"));
    lblCompanyProduct.setCaption(QStringLiteral("orvane"));
    // Few fonts: each one that a start has to find takes its time.
    lblCompanyProduct.setFont(QStringLiteral("Arial"), 9.75, true);
    Label1.setCaption(QStringLiteral("DEMO"));
    Label1.setFont(QStringLiteral("Arial"), 15, true);
    Label1.setForeColor(fromColour(palette::RedDot));
    lblUserName.setFont(QStringLiteral("Arial"), 9.75, true);
    lblCopyright.setCaption(QStringLiteral("This program, its texts and its pictures are protected by copyright."));
    lblWarning.setCaption(
        QStringLiteral("Please don't pass on copies unless your license allows it. The sample documents "
                       "are for guidance: check them against the law and the standard that apply to "
                       "your organization before you rely on them."));
}

void frmSplash::Form_Load()
{
    Shared().TourStepsMuted = False;
    lblPlatform.setCaption(QStringLiteral("95/98/NT4"));
    lblVersion.setCaption(QStringLiteral("Version %1.%2").arg(App().Major()).arg(App().Minor()));
    // Not the key that the user details are saved under: a name typed there never gets here.
    lblUserName.setCaption(
        storedDetail(QStringLiteral("UserName")).replace(QStringLiteral("%20"), QStringLiteral(" ")));
    lblUserCompany.setCaption(storedDetail(QStringLiteral("Company")));
    App().setHelpFile(App().fileBeside(QStringLiteral("Orvane.hlp")));
}

void frmSplash::Form_Activate()
{
    Default<frmDemo>().setVisible(false);
    DoEvents();
    Default<mdiMain>();
    DoEvents();
    Default<frmCommandCentre>();
    DoEvents();
    Default<frmInfo>().Show();
    Unload();
}

void frmSplash::Form_KeyPress(int)
{
    Unload();
}

} // namespace orvane
