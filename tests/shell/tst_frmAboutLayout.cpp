// The looks of the About box: everything has its room, is drawn and can be spoken.
#include "shell/DialogLooks.h"
#include "shell/frmAbout.h"
#include "support/RunningSystem.h"

#include <QTest>
#include <set>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{
frmAbout &about()
{
    return Default<frmAbout>();
}

Control &control(const QString &name)
{
    return *about().control(name);
}

int coloursOf(Control &shown)
{
    const QImage picture = shown.widget().grab().toImage();
    std::set<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            colours.insert(picture.pixel(x, y));
    return static_cast<int>(colours.size());
}

QRect placeOf(const QString &name)
{
    return control(name).widget().geometry();
}
} // namespace

class tst_frmAboutLayout : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_system.emplace(); }
    void cleanup() { m_system.reset(); }
    void everyControlHasItsRoom_data();
    void everyControlHasItsRoom();
    void everyControlIsSpoken_data();
    void everyControlIsSpoken();
    void thePicturesAreDrawn_data();
    void thePicturesAreDrawn();
    void thereAreTwoLines();
    void theWindowStaysAboveTheConsole();
    void theUserCantResizeIt();
    void tabGoesFromButtonToButton();

private:
    void addControls(bool withLines);

    std::optional<test::RunningSystem> m_system;
};

void tst_frmAboutLayout::addControls(bool withLines)
{
    QTest::addColumn<QString>("name");
    QStringList names{u"Picture1"_s, u"cmdOK"_s,      u"cmdSysInfo"_s,    u"Label1"_s,  u"lblWWWAddress"_s,
                      u"imgLogo"_s,  u"lblVersion"_s, u"lblDisclaimer"_s, u"imgTitle"_s};
    if (withLines) names << u"Line1(0)"_s << u"Line1(1)"_s;
    for (const QString &name : names)
        QTest::addRow("%s", qPrintable(name)) << name;
}

void tst_frmAboutLayout::everyControlHasItsRoom_data()
{
    addControls(true);
}

void tst_frmAboutLayout::everyControlHasItsRoom()
{
    QFETCH(QString, name);
    about().Show();
    QVERIFY(test::isInside(control(name), about()));
    QVERIFY(test::textFits(control(name)));
    for (const QWidget *other : about().surface().findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        if (other->objectName() != name)
            QVERIFY2(!placeOf(name).intersects(other->geometry()), qPrintable(other->objectName()));
}

void tst_frmAboutLayout::everyControlIsSpoken_data()
{
    addControls(false);
}

void tst_frmAboutLayout::everyControlIsSpoken()
{
    QFETCH(QString, name);
    QVERIFY(!control(name).widget().accessibleName().isEmpty());
}

void tst_frmAboutLayout::thePicturesAreDrawn_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : {u"Picture1"_s, u"imgTitle"_s, u"imgLogo"_s})
        QTest::addRow("%s", qPrintable(name)) << name;
}

void tst_frmAboutLayout::thePicturesAreDrawn()
{
    QFETCH(QString, name);
    QVERIFY(coloursOf(control(name)) > 2);
}

void tst_frmAboutLayout::thereAreTwoLines()
{
    QCOMPARE(about().Line1.Count(), 2);
    QCOMPARE(about().Line1(0).Top() + about().Line1(0).Height(), about().Line1(1).Top());
    QCOMPARE(about().Line1(0).Width(), about().Line1(1).Width());
    QVERIFY(about().Line1(0).widget().grab().toImage().pixel(0, 0) !=
            about().Line1(1).widget().grab().toImage().pixel(0, 0));
}

void tst_frmAboutLayout::theWindowStaysAboveTheConsole()
{
    QVERIFY(about().shell().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

void tst_frmAboutLayout::theUserCantResizeIt()
{
    QCOMPARE(about().shell().minimumSize(), about().shell().maximumSize());
}

void tst_frmAboutLayout::tabGoesFromButtonToButton()
{
    about().Show();
    QVERIFY(QTest::qWaitForWindowActive(&about().shell()));
    QTRY_COMPARE(QApplication::focusWidget(), &about().cmdOK.widget());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), &about().cmdSysInfo.widget());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), &about().cmdOK.widget());
}

QTEST_MAIN(tst_frmAboutLayout)
#include "tst_frmAboutLayout.moc"
