#include "shell/frmProperties.h"

#include "platform/forms/DefaultInstance.h"
#include "platform/forms/Wiring.h"
#include "platform/system/Application.h"
#include "platform/system/RegistryStandIn.h"
#include "platform/system/SettingsStore.h"
#include "shell/HelpKey.h"
#include "shell/ReadRegistryString.h"
#include "shell/SharedState.h"
#include "tour/frmDemo.h"

namespace orvane
{

namespace
{
QString section()
{
    return QStringLiteral("UserDetails");
}

QString detail(const QString &key, const QString &valueName)
{
    const QString setupRecord = QStringLiteral(R"(.Default\Software\Microsoft\MS Setup (ACME)\User Info)");
    return GetSetting(App().Title(), section(), key, ReadRegistryString(setupRecord, HKEY_USERS, valueName));
}
} // namespace

frmProperties::frmProperties()
    : Window(QStringLiteral("frmProperties"), FixedBorder), lblName(*this, QStringLiteral("lblName")),
      txtUserName(*this, QStringLiteral("txtUserName")), cmdOK(*this, QStringLiteral("cmdOK"), QStringLiteral("OK")),
      cmdCancel(*this, QStringLiteral("cmdCancel"), QStringLiteral("Cancel")),
      txtUserCompany(*this, QStringLiteral("txtUserCompany")), lblCompany(*this, QStringLiteral("lblCompany"))
{
    setTopMost(true); // the tour's console stays on top too
    setCaption(QStringLiteral("orvane Properties"));
    placeControls();
    dressControls();
    setDefaultButton(cmdOK);
    setCancelButton(cmdCancel);
    wire(cmdOK, &CommandButton::Click, *this, &frmProperties::cmdOK_Click);
    wire(cmdCancel, &CommandButton::Click, *this, &frmProperties::cmdCancel_Click);
}

void frmProperties::placeControls()
{
    setFixedDesignSize(4620, 1485);
    lblName.Move(120, 120, 1455, 255);
    txtUserName.Move(1680, 120, 2775, 285);
    lblCompany.Move(120, 480, 1455, 255);
    txtUserCompany.Move(1680, 480, 2775, 285);
    cmdOK.Move(2400, 960, 975, 375);
    cmdCancel.Move(3480, 960, 975, 375);
}

void frmProperties::dressControls()
{
    lblName.setCaption(QStringLiteral("Name:"));
    lblCompany.setCaption(QStringLiteral("Company:"));
    txtUserName.setPurpose(QStringLiteral("Name"));
    txtUserCompany.setPurpose(QStringLiteral("Company"));
    // The places are of a fixed size, so a font that the desktop prefers might not fit.
    const auto dress = [](auto &...controls) { (controls.setFont(QStringLiteral("Arial"), 9, false), ...); };
    dress(lblName, txtUserName, cmdOK, cmdCancel, txtUserCompany, lblCompany);
}

void frmProperties::readDetails()
{
    txtUserName.setText(detail(QStringLiteral("Name"), QStringLiteral("DefName")));
    txtUserCompany.setText(detail(QStringLiteral("Company"), QStringLiteral("DefCompany")));
}

void frmProperties::Form_Load()
{
    readDetails();
}

void frmProperties::Form_KeyDown(int keyCode, int)
{
    answerHelpKey(keyCode);
}

void frmProperties::cmdOK_Click()
{
    SaveSetting(App().Title(), section(), QStringLiteral("Name"), txtUserName.Text());
    SaveSetting(App().Title(), section(), QStringLiteral("Company"), txtUserCompany.Text());
    Shared().UserDetailsSaved = True;
    Default<frmDemo>().NextClick(QStringLiteral("ml/subPrint/prtPartial"));
    Unload();
}

void frmProperties::cmdCancel_Click()
{
    readDetails(); // so that the next opening shows what is stored
    Hide();
}

} // namespace orvane
