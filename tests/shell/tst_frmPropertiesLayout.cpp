// The places of the dialog's controls, the way of the keyboard through them, and what they say.
#include "platform/system/RegistryStandIn.h"
#include "platform/system/SettingsStore.h"
#include "shell/DialogLooks.h"
#include "shell/ReadRegistryString.h"
#include "shell/frmProperties.h"
#include "support/RunningSystem.h"

#include <QLineEdit>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{
frmProperties &dialog()
{
    return Default<frmProperties>();
}

QString focus()
{
    const QWidget *widget = QApplication::focusWidget();
    return widget ? widget->objectName() : QString();
}

QString stored(const QString &key)
{
    return GetSetting(u"orvane Quillmark CD"_s, u"UserDetails"_s, key, u"(not stored)"_s);
}
} // namespace

class tst_frmPropertiesLayout : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_system.emplace(); }
    void cleanup() { m_system.reset(); }
    void theWindowHasItsSizeAndCaption();
    void theUserCantResizeIt();
    void aControlStandsInItsPlace_data();
    void aControlStandsInItsPlace();
    void itsTextHasRoom_data();
    void itsTextHasRoom();
    void theBoxesHaveRoomForALine();
    void theOfferedSentenceIsToBeSeenWhole();
    void aControlSaysWhatItIsFor_data();
    void aControlSaysWhatItIsFor();
    void tabGoesThroughTheControlsInTheirOrder();
    void enterInABoxPressesOk();
    void enterOnCancelPressesCancel();
    void escapePressesCancelFromAnywhere_data();
    void escapePressesCancelFromAnywhere();
    void anEnterHeldDownFromBeforePressesNothing();

private:
    void show();

    std::optional<test::RunningSystem> m_system;
};

void tst_frmPropertiesLayout::show()
{
    m_system->start();
    dialog().Show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog().shell()));
    QTRY_COMPARE(focus(), u"txtUserName"_s);
}

void tst_frmPropertiesLayout::theWindowHasItsSizeAndCaption()
{
    QCOMPARE(dialog().Caption(), u"orvane Properties"_s);
    QCOMPARE(dialog().ScaleWidth(), 4620.0);
    QCOMPARE(dialog().ScaleHeight(), 1485.0);
}

void tst_frmPropertiesLayout::theUserCantResizeIt()
{
    QCOMPARE(dialog().shell().minimumSize(), dialog().shell().size());
    QCOMPARE(dialog().shell().maximumSize(), dialog().shell().size());
}

void tst_frmPropertiesLayout::aControlStandsInItsPlace_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("top");
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<QString>("caption");
    QTest::newRow("lblName") << u"lblName"_s << 120.0 << 120.0 << 1455.0 << 255.0 << u"Name:"_s;
    QTest::newRow("txtUserName") << u"txtUserName"_s << 1680.0 << 120.0 << 2775.0 << 285.0 << u""_s;
    QTest::newRow("lblCompany") << u"lblCompany"_s << 120.0 << 480.0 << 1455.0 << 255.0 << u"Company:"_s;
    QTest::newRow("txtUserCompany") << u"txtUserCompany"_s << 1680.0 << 480.0 << 2775.0 << 285.0 << u""_s;
    QTest::newRow("cmdOK") << u"cmdOK"_s << 2400.0 << 960.0 << 975.0 << 375.0 << u"OK"_s;
    QTest::newRow("cmdCancel") << u"cmdCancel"_s << 3480.0 << 960.0 << 975.0 << 375.0 << u"Cancel"_s;
}

void tst_frmPropertiesLayout::aControlStandsInItsPlace()
{
    QFETCH(QString, name);
    const Control *control = dialog().control(name);
    QVERIFY(control);
    QTEST(control->Left(), "left");
    QTEST(control->Top(), "top");
    QTEST(control->Width(), "width");
    QTEST(control->Height(), "height");
    QTEST(control->Caption(), "caption");
}

void tst_frmPropertiesLayout::itsTextHasRoom_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : {u"lblName"_s, u"lblCompany"_s, u"cmdOK"_s, u"cmdCancel"_s})
        QTest::addRow("%s", qPrintable(name)) << name;
}

void tst_frmPropertiesLayout::itsTextHasRoom()
{
    QFETCH(QString, name);
    dialog().Show();
    QVERIFY(test::textFits(*dialog().control(name)));
}

void tst_frmPropertiesLayout::theBoxesHaveRoomForALine()
{
    dialog().Show();
    for (const TextBox *box : {&dialog().txtUserName, &dialog().txtUserCompany})
        QVERIFY(box->widget().fontMetrics().height() <= box->widget().height() - 4);
}

// What is offered where the machine has no record of its user.
void tst_frmPropertiesLayout::theOfferedSentenceIsToBeSeenWhole()
{
    const QString sentence = ReadRegistryString(u"Nothing"_s, HKEY_USERS, u"DefName"_s);
    QVERIFY(sentence.front().isUpper() && sentence.endsWith(u'.'));
    dialog().Show();
    for (const TextBox *box : {&dialog().txtUserName, &dialog().txtUserCompany})
        QVERIFY(box->widget().fontMetrics().horizontalAdvance(sentence) <= box->widget().width() - 12);
}

void tst_frmPropertiesLayout::aControlSaysWhatItIsFor_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("name") << u"txtUserName"_s << u"Name"_s;
    QTest::newRow("company") << u"txtUserCompany"_s << u"Company"_s;
    QTest::newRow("OK") << u"cmdOK"_s << u"OK"_s;
    QTest::newRow("Cancel") << u"cmdCancel"_s << u"Cancel"_s;
}

void tst_frmPropertiesLayout::aControlSaysWhatItIsFor()
{
    QFETCH(QString, name);
    QTEST(dialog().control(name)->widget().accessibleName(), "spoken");
}

void tst_frmPropertiesLayout::tabGoesThroughTheControlsInTheirOrder()
{
    show();
    for (const QString &next : {u"cmdOK"_s, u"cmdCancel"_s, u"txtUserCompany"_s, u"txtUserName"_s}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(focus(), next);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QCOMPARE(focus(), u"txtUserCompany"_s);
}

void tst_frmPropertiesLayout::enterInABoxPressesOk()
{
    show();
    QTest::keyClicks(QApplication::focusWidget(), u"x"_s);
    const QString name = dialog().txtUserName.Text();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(stored(u"Name"_s), name);
    QCOMPARE(test::countWindows(u"frmProperties"_s), 0);
}

void tst_frmPropertiesLayout::enterOnCancelPressesCancel()
{
    show();
    dialog().cmdCancel.SetFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
    QVERIFY(!dialog().Visible());
    QCOMPARE(stored(u"Name"_s), u"(not stored)"_s);
}

void tst_frmPropertiesLayout::escapePressesCancelFromAnywhere_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : {u"txtUserName"_s, u"txtUserCompany"_s, u"cmdOK"_s, u"cmdCancel"_s})
        QTest::addRow("%s", qPrintable(name)) << name;
}

void tst_frmPropertiesLayout::escapePressesCancelFromAnywhere()
{
    QFETCH(QString, name);
    show();
    dialog().control(name)->SetFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(!dialog().Visible());
    QCOMPARE(test::countWindows(u"frmProperties"_s), 1);
    QCOMPARE(stored(u"Name"_s), u"(not stored)"_s);
}

void tst_frmPropertiesLayout::anEnterHeldDownFromBeforePressesNothing()
{
    show();
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
    QApplication::sendEvent(QApplication::focusWidget(), &again);
    QVERIFY(dialog().Visible());
    QCOMPARE(stored(u"Name"_s), u"(not stored)"_s);
}

QTEST_MAIN(tst_frmPropertiesLayout)
#include "tst_frmPropertiesLayout.moc"
