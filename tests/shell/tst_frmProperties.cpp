// The user's name and company: where they come from and where they go.
#include "platform/system/SettingsStore.h"
#include "printing/frmPrint.h"
#include "shell/RegistryHost.h"
#include "shell/frmProperties.h"
#include "shell/modFunctions.h"
#include "support/RunningSystem.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{
QString userInfo()
{
    return QStringLiteral(R"(.Default\Software\Microsoft\MS Setup (ACME)\User Info)");
}

QString fallback()
{
    return QStringLiteral("This machine has no record.");
}

const QChar Nul(u'\0');

QString stored(const QString &key)
{
    return GetSetting(u"orvane Quillmark CD"_s, u"UserDetails"_s, key, u"(not stored)"_s);
}

void store(const QString &name, const QString &company)
{
    SaveSetting(u"orvane Quillmark CD"_s, u"UserDetails"_s, u"Name"_s, name);
    SaveSetting(u"orvane Quillmark CD"_s, u"UserDetails"_s, u"Company"_s, company);
}

frmProperties &dialog()
{
    return Default<frmProperties>();
}

bool isLoaded()
{
    return test::countWindows(u"frmProperties"_s) == 1;
}

void type(const TextBox &box, const QString &text)
{
    static_cast<QLineEdit &>(box.widget()).clear();
    QTest::keyClicks(&box.widget(), text);
}

// Which windows are brought to the front, in order.
class Raised : public QObject
{
public:
    Raised(std::initializer_list<QWidget *> shells)
    {
        for (QWidget *shell : shells)
            shell->installEventFilter(this);
    }

    const QStringList &order() const { return m_order; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::ZOrderChange) m_order << watched->objectName();
        return false;
    }

private:
    QStringList m_order;
};

void show()
{
    dialog().Show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog().shell()));
}
} // namespace

class tst_frmProperties : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void storedDetailsAreShown();
    void withoutStoredDetailsTheMachinesRecordIsOffered();
    void withoutARecordTheFallbackIsOffered();
    void aRecordWithoutValuesOffersNothing();
    void aRecordOfFullLengthLosesAFinalNulAlone_data();
    void aRecordOfFullLengthLosesAFinalNulAlone();
    void theRecordIsReadAlthoughDetailsAreStored();
    void anEmptyStoredNameIsEmpty();
    void okStoresTheTextsAsTheyStand_data();
    void okStoresTheTextsAsTheyStand();
    void detailsOfAnyKindComeBackAsTheyWere_data();
    void detailsOfAnyKindComeBackAsTheyWere();
    void pastedDetailsAreStoredAsTheyStand_data();
    void pastedDetailsAreStoredAsTheyStand();
    void aStoreThatCanNotBeWrittenIsNotReported();
    void okTellsTheOtherWindows();
    void okUnloadsTheDialog();
    void okBringsUpAPreviewOfTheGuide();
    void okBringsUpNoPreviewOfTheDiagram();
    void withoutAnActiveWindowOkFailsAfterItHasSaved();
    void theNextOpeningShowsWhatWasSaved();
    void cancelHidesTheDialogAndStoresNothing();
    void cancelShowsTheStoredDetailsAgain();
    void cancelReadsTheRecordAgain();
    void closingUnloadsTheDialogAndStoresNothing();
    void theUserCanGoOnInOtherWindows();
    void itStandsAboveTheConsole();
    void itStaysInFrontWhenTheConsoleComesForward_data();
    void itStaysInFrontWhenTheConsoleComesForward();
    void aSavedNameDoesNotReachTheSplash();

private:
    void setRecord(const QString &name, const QString &company);

    std::optional<test::RunningSystem> m_system;
    std::optional<test::RegistryHost> m_registry;
};

void tst_frmProperties::init()
{
    m_system.emplace();
    m_registry.emplace();
}

void tst_frmProperties::cleanup()
{
    m_registry.reset();
    m_system.reset();
}

void tst_frmProperties::setRecord(const QString &name, const QString &company)
{
    RegistryKey key;
    key.set(u"DefName"_s, {RegistryString, name});
    key.set(u"DefCompany"_s, {RegistryString, company});
    m_registry->setKey(HKEY_USERS, userInfo(), key);
}

void tst_frmProperties::storedDetailsAreShown()
{
    store(u"Ada, Lindqvist"_s, u" Global Inc "_s);
    QCOMPARE(dialog().txtUserName.Text(), u"Ada, Lindqvist"_s);
    QCOMPARE(dialog().txtUserCompany.Text(), u" Global Inc "_s);
}

void tst_frmProperties::withoutStoredDetailsTheMachinesRecordIsOffered()
{
    setRecord(u"Ada Lindqvist"_s + Nul, u"Global Inc"_s + Nul);
    QCOMPARE(dialog().txtUserName.Text(), u"Ada Lindqvist"_s);
    QCOMPARE(dialog().txtUserCompany.Text(), u"Global Inc"_s);
}

void tst_frmProperties::withoutARecordTheFallbackIsOffered()
{
    QCOMPARE(dialog().txtUserName.Text(), fallback());
    QCOMPARE(dialog().txtUserCompany.Text(), fallback());
}

void tst_frmProperties::aRecordWithoutValuesOffersNothing()
{
    m_registry->setKey(HKEY_USERS, userInfo(), RegistryKey());
    QCOMPARE(dialog().txtUserName.Text(), u""_s);
    QCOMPARE(dialog().txtUserCompany.Text(), u""_s);
}

void tst_frmProperties::aRecordOfFullLengthLosesAFinalNulAlone_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<qsizetype>("length");
    QTest::newRow("255 with NUL") << QString(254, u'x') + Nul << qsizetype(254);
    QTest::newRow("255 without NUL") << QString(255, u'x') << qsizetype(255);
    QTest::newRow("256") << QString(255, u'x') + Nul << qsizetype(0);
}

void tst_frmProperties::aRecordOfFullLengthLosesAFinalNulAlone()
{
    QFETCH(QString, value);
    setRecord(value, u"Global Inc"_s);
    QTEST(dialog().txtUserName.Text().size(), "length");
}

void tst_frmProperties::theRecordIsReadAlthoughDetailsAreStored()
{
    store(u"Ada"_s, u"Global Inc"_s);
    dialog();
    QCOMPARE(m_registry->timesOpened(), 2);
}

void tst_frmProperties::anEmptyStoredNameIsEmpty()
{
    setRecord(u"Ada"_s, u"Global Inc"_s);
    store(u""_s, u""_s);
    QCOMPARE(dialog().txtUserName.Text(), u""_s);
    QCOMPARE(dialog().txtUserCompany.Text(), u""_s);
}

void tst_frmProperties::okStoresTheTextsAsTheyStand_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("company");
    QTest::newRow("plain") << u"Ada Lindqvist"_s << u"Global Inc"_s;
    QTest::newRow("blanks") << u"  Ada "_s << u" "_s;
    QTest::newRow("empty") << u""_s << u""_s;
    QTest::newRow("signs") << u"a=b;c,d %20 \"e\""_s << u"[x]\\n"_s;
}

void tst_frmProperties::okStoresTheTextsAsTheyStand()
{
    QFETCH(QString, name);
    QFETCH(QString, company);
    m_system->start();
    show();
    type(dialog().txtUserName, name);
    type(dialog().txtUserCompany, company);
    m_system->click(dialog().cmdOK);
    QCOMPARE(stored(u"Name"_s), name);
    QCOMPARE(stored(u"Company"_s), company);
}

namespace
{
void addDetails()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("quotes") << u"\"Ada\" 'Lindqvist' \""_s;
    QTest::newRow("a blank as percent code") << u"Ada%20Lindqvist"_s;
    QTest::newRow("line breaks") << u"Ada\r\nLindqvist\n"_s;
    QTest::newRow("emoji") << u"Ada \U0001F600\U0001F3ED"_s;
    QTest::newRow("10,000 characters") << QString(9'999, u'x') + u'z';
}
} // namespace

void tst_frmProperties::detailsOfAnyKindComeBackAsTheyWere_data()
{
    addDetails();
}

void tst_frmProperties::detailsOfAnyKindComeBackAsTheyWere()
{
    QFETCH(QString, text);
    store(text, text);
    m_system->start();
    show();
    QCOMPARE(dialog().txtUserName.Text(), text);
    QCOMPARE(dialog().txtUserCompany.Text(), text);
    m_system->click(dialog().cmdOK);
    QCOMPARE(stored(u"Name"_s), text);
    QCOMPARE(stored(u"Company"_s), text);
    QCOMPARE(dialog().txtUserName.Text(), text);
}

void tst_frmProperties::pastedDetailsAreStoredAsTheyStand_data()
{
    addDetails();
}

void tst_frmProperties::pastedDetailsAreStoredAsTheyStand()
{
    QFETCH(QString, text);
    m_system->start();
    show();
    QApplication::clipboard()->setText(text);
    for (const TextBox *box : {&dialog().txtUserName, &dialog().txtUserCompany}) {
        QTest::keyClick(&box->widget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&box->widget(), Qt::Key_V, Qt::ControlModifier);
    }
    m_system->click(dialog().cmdOK);
    QCOMPARE(stored(u"Name"_s), text);
    QCOMPARE(stored(u"Company"_s), text);
}

void tst_frmProperties::aStoreThatCanNotBeWrittenIsNotReported()
{
    m_system->start();
    show();
    m_system->host.writeFile(u"settings"_s, "a file, and no folder");
    setSettingsFolder(m_system->host.folder() + u"/settings"_s);
    type(dialog().txtUserName, u"Ada"_s);
    m_system->click(dialog().cmdOK);
    QVERIFY(m_system->host.messages().empty());
    QVERIFY(Shared().UserDetailsSaved == True);
    QVERIFY(!isLoaded());
    QCOMPARE(stored(u"Name"_s), u"(not stored)"_s);
}

void tst_frmProperties::okTellsTheOtherWindows()
{
    m_system->start();
    show();
    QVERIFY(Shared().UserDetailsSaved == False);
    m_system->click(dialog().cmdOK);
    QVERIFY(Shared().UserDetailsSaved == True);
}

void tst_frmProperties::okUnloadsTheDialog()
{
    m_system->start();
    show();
    m_system->click(dialog().cmdOK);
    QVERIFY(!isLoaded());
}

void tst_frmProperties::okBringsUpAPreviewOfTheGuide()
{
    m_system->start();
    OpenGuide(u"STEP 17"_s, u"127"_s);
    QTRY_COMPARE(m_system->active()->Name(), u"frmIGSteps"_s);
    show();
    m_system->click(dialog().cmdOK);
    QTRY_COMPARE(m_system->active()->Name(), u"frmPrint"_s);
    QVERIFY(Default<frmPrint>().Visible());
    QVERIFY(!isLoaded());
}

void tst_frmProperties::okBringsUpNoPreviewOfTheDiagram()
{
    m_system->start();
    QTRY_COMPARE(m_system->active()->Name(), u"frmCommandCentre"_s);
    show();
    const QString step = m_system->console().Tag();
    m_system->click(dialog().cmdOK);
    QCOMPARE(test::countWindows(u"frmPrint"_s), 0);
    QCOMPARE(m_system->console().Tag(), step);
}

// The tour's driver takes an active window for granted.
void tst_frmProperties::withoutAnActiveWindowOkFailsAfterItHasSaved()
{
    show();
    type(dialog().txtUserName, u"Ada"_s);
    m_system->host.expectAnyMessage();
    m_system->host.expectEnd(1);
    m_system->click(dialog().cmdOK);
    QCOMPARE(m_system->host.messages().size(), 1U);
    QVERIFY(m_system->host.messages()[0].text.contains(u"91"));
    QCOMPARE(stored(u"Name"_s), u"Ada"_s);
    QVERIFY(Shared().UserDetailsSaved == True);
    QVERIFY(isLoaded());
}

void tst_frmProperties::theNextOpeningShowsWhatWasSaved()
{
    m_system->start();
    show();
    type(dialog().txtUserName, u"Ada"_s);
    type(dialog().txtUserCompany, u""_s);
    m_system->click(dialog().cmdOK);
    QCOMPARE(dialog().txtUserName.Text(), u"Ada"_s);
    QCOMPARE(dialog().txtUserCompany.Text(), u""_s);
}

void tst_frmProperties::cancelHidesTheDialogAndStoresNothing()
{
    show();
    const frmProperties *shown = &dialog();
    type(dialog().txtUserName, u"Ada"_s);
    m_system->click(dialog().cmdCancel);
    QVERIFY(isLoaded());
    QVERIFY(!dialog().Visible());
    QCOMPARE(&dialog(), shown);
    QCOMPARE(stored(u"Name"_s), u"(not stored)"_s);
    QVERIFY(Shared().UserDetailsSaved == False);
}

void tst_frmProperties::cancelShowsTheStoredDetailsAgain()
{
    store(u"Ada"_s, u"Global Inc"_s);
    show();
    type(dialog().txtUserName, u"Jo"_s);
    type(dialog().txtUserCompany, u"Other"_s);
    m_system->click(dialog().cmdCancel);
    show();
    QCOMPARE(dialog().txtUserName.Text(), u"Ada"_s);
    QCOMPARE(dialog().txtUserCompany.Text(), u"Global Inc"_s);
}

void tst_frmProperties::cancelReadsTheRecordAgain()
{
    show();
    setRecord(u"Ada"_s, u"Global Inc"_s);
    m_system->click(dialog().cmdCancel);
    QCOMPARE(dialog().txtUserName.Text(), u"Ada"_s);
    QCOMPARE(dialog().txtUserCompany.Text(), u"Global Inc"_s);
}

void tst_frmProperties::closingUnloadsTheDialogAndStoresNothing()
{
    show();
    type(dialog().txtUserName, u"Ada"_s);
    dialog().shell().close();
    QVERIFY(!isLoaded());
    QCOMPARE(stored(u"Name"_s), u"(not stored)"_s);
}

void tst_frmProperties::theUserCanGoOnInOtherWindows()
{
    m_system->start();
    show();
    m_system->click(m_system->diagram().SSRibbon1(3));
    QVERIFY(m_system->diagram().pnlDiag(3).Visible());
    QVERIFY(dialog().Visible());
}

void tst_frmProperties::itStandsAboveTheConsole()
{
    m_system->start();
    show();
    QVERIFY(m_system->console().shell().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(dialog().shell().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

void tst_frmProperties::itStaysInFrontWhenTheConsoleComesForward_data()
{
    QTest::addColumn<bool>("byUser");
    QTest::newRow("with a step") << false;
    QTest::newRow("by the user's hand") << true;
}

void tst_frmProperties::itStaysInFrontWhenTheConsoleComesForward()
{
    QFETCH(bool, byUser);
    m_system->start();
    show();
    const Raised raised{&dialog().shell(), &m_system->console().shell()};
    if (byUser)
        m_system->console().SetFocus();
    else
        m_system->click(m_system->diagram().SSRibbon1(3));
    QTRY_COMPARE(m_system->console().shell().isActiveWindow(), byUser);
    QVERIFY(raised.order().contains(u"frmDemo"_s));
    QCOMPARE(raised.order().last(), u"frmProperties"_s);
}

void tst_frmProperties::aSavedNameDoesNotReachTheSplash()
{
    m_system->start();
    show();
    type(dialog().txtUserName, u"Ada"_s);
    type(dialog().txtUserCompany, u"Global Inc"_s);
    m_system->click(dialog().cmdOK);
    QCOMPARE(Default<frmSplash>().lblUserName.Caption(), u"None"_s);
    QCOMPARE(Default<frmSplash>().lblUserCompany.Caption(), u"Global Inc"_s);
}

QTEST_MAIN(tst_frmProperties)
#include "tst_frmProperties.moc"
