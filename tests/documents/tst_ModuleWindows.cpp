// What the five document windows have in common: how they open, are listed, and go.
#include "platform/forms/Wiring.h"
#include "shell/modFunctions.h"
#include "support/RunningSystem.h"
#include "support/UserOnBars.h"

#include <QApplication>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

using Open = void (*)(const QString &title, const QString &section);

const ToolList &windowTools(const RunningSystem &system)
{
    return system.frame().mnuMain.Bands(u"mnuWindow"_s).Tools();
}

void pressClose(const RunningSystem &system)
{
    pressButton(barOf(*system.active(), u"mnuLinks"_s), u"Close"_s);
}

} // namespace

Q_DECLARE_METATYPE(Open)

class tst_ModuleWindows : public QObject
{
    Q_OBJECT

private slots:
    void itBearsItsModule_data();
    void itBearsItsModule();
    void itIsListedAndNamesItsModule_data() { itBearsItsModule_data(); }
    void itIsListedAndNamesItsModule();
    void itClosesToTheDiagram_data() { itBearsItsModule_data(); }
    void itClosesToTheDiagram();
    void itClosesByItsOwnCloseBox_data() { itBearsItsModule_data(); }
    void itClosesByItsOwnCloseBox();
    void theSameTitleOpensOneWindow_data() { itBearsItsModule_data(); }
    void theSameTitleOpensOneWindow();
    void theSameTitleInAllModulesIsFiveWindows();
    void onlyWindowsWithPagesAskForTheEditTools_data();
    void onlyWindowsWithPagesAskForTheEditTools();
    void itsHandlersAreCalledByName_data() { itBearsItsModule_data(); }
    void itsHandlersAreCalledByName();
    void everyPartSpeaks_data() { itBearsItsModule_data(); }
    void everyPartSpeaks();
    void manyWindowsComeAndGo_data() { itBearsItsModule_data(); }
    void manyWindowsComeAndGo();
};

void tst_ModuleWindows::itBearsItsModule_data()
{
    QTest::addColumn<Open>("open");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("frameTitle");
    const QString title = u"Some title"_s;
    QTest::newRow("guide") << Open(OpenGuide) << u"frmIGSteps"_s << u"[Implementation Guide] - "_s << title
                           << u"orvane (Implementation Guide)"_s;
    QTest::newRow("manual") << Open(OpenManual) << u"frmEMMain"_s << u"[Environmental Manual] - "_s << title
                            << u"orvane (Environment Manual)"_s;
    QTest::newRow("procedures") << Open(OpenProcedures) << u"frmMPMain"_s << u"[Management Procedures] - "_s << title
                                << u"orvane (Management Procedures)"_s;
    QTest::newRow("tools") << Open(OpenTools) << u"frmATMain"_s << u"[Action Tools] - "_s << u"Action Tools"_s
                           << u"orvane (Action Tools)"_s;
    QTest::newRow("records") << Open(OpenRecords) << u"frmRCMain"_s << u"[Records] - "_s << title
                             << u"orvane (Records)"_s;
}

void tst_ModuleWindows::itBearsItsModule()
{
    QFETCH(Open, open);
    QFETCH(QString, prefix);
    RunningSystem system;
    system.start();
    open(u"Some title"_s, u"219"_s);
    QTEST(system.active()->Name(), "name");
    QCOMPARE(system.active()->Tag(), prefix + u"Some title"_s);
    QTEST(system.active()->Caption(), "caption");
    QCOMPARE(system.active()->WindowState(), int(Maximized));
}

void tst_ModuleWindows::itIsListedAndNamesItsModule()
{
    QFETCH(Open, open);
    QFETCH(QString, name);
    QFETCH(QString, prefix);
    RunningSystem system;
    system.start();
    open(u"Some title"_s, u"219"_s);
    const Tool &tool = windowTools(system).Item(prefix + u"Some title"_s);
    QVERIFY(tool.Checked());
    QCOMPARE(tool.TagText(), name);
    QTEST(system.frame().Caption(), "frameTitle");
    system.diagram().SetFocus();
    QVERIFY(!tool.Checked());
}

void tst_ModuleWindows::itClosesToTheDiagram()
{
    QFETCH(Open, open);
    QFETCH(QString, name);
    RunningSystem system;
    system.start();
    open(u"First"_s, u"219"_s);
    open(u"Second"_s, u"219"_s);
    Shared().DiagramLayoutHeld = True;
    pressClose(system);
    QCOMPARE(countWindows(name), 1);
    QCOMPARE(windowTools(system).Count(), 2);
    QCOMPARE(Shared().DiagramLayoutHeld, False);
    QCOMPARE(system.active(), &system.diagram());
    QCOMPARE(system.diagram().WindowState(), int(Maximized));
}

void tst_ModuleWindows::itClosesByItsOwnCloseBox()
{
    QFETCH(Open, open);
    QFETCH(QString, name);
    RunningSystem system;
    system.start();
    open(u"Some title"_s, u"219"_s);
    system.active()->shell().close();
    QCOMPARE(countWindows(name), 0);
    QCOMPARE(windowTools(system).Count(), 1);
    QCOMPARE(system.active(), &system.diagram());
}

void tst_ModuleWindows::theSameTitleOpensOneWindow()
{
    QFETCH(Open, open);
    QFETCH(QString, name);
    RunningSystem system;
    system.start();
    open(u"Some title"_s, u"219"_s);
    const MDIChild *first = system.active();
    system.diagram().SetFocus();
    open(u"Some title"_s, u"219"_s);
    QCOMPARE(system.active(), first);
    QCOMPARE(countWindows(name), 1);
}

void tst_ModuleWindows::theSameTitleInAllModulesIsFiveWindows()
{
    RunningSystem system;
    system.start();
    for (const Open open :
         {Open(OpenGuide), Open(OpenManual), Open(OpenProcedures), Open(OpenTools), Open(OpenRecords)})
        open(u"Some title"_s, u"219"_s);
    QCOMPARE(windowTools(system).Count(), 6);
    QCOMPARE(windowTools(system).Item(5).Caption(), u"&6 [Records] - Some title"_s);
}

void tst_ModuleWindows::onlyWindowsWithPagesAskForTheEditTools_data()
{
    QTest::addColumn<Open>("open");
    QTest::addColumn<bool>("asks");
    QTest::newRow("guide") << Open(OpenGuide) << true;
    QTest::newRow("manual") << Open(OpenManual) << true;
    QTest::newRow("procedures") << Open(OpenProcedures) << true;
    QTest::newRow("records") << Open(OpenRecords) << false;
}

// The tools are as the diagram left them until they are asked for; with nothing selected, Copy then goes.
void tst_ModuleWindows::onlyWindowsWithPagesAskForTheEditTools()
{
    QFETCH(Open, open);
    QFETCH(bool, asks);
    RunningSystem system;
    system.start();
    Tool &copy = system.frame().mnuMain.Bands(u"mnuEdit"_s).Tools(u"miCopy"_s);
    copy.setEnabled(true);
    open(u"Some title"_s, u"219"_s);
    QCOMPARE(copy.Enabled(), !asks);
}

void tst_ModuleWindows::itsHandlersAreCalledByName()
{
    QFETCH(Open, open);
    RunningSystem system;
    system.start();
    open(u"Some title"_s, u"219"_s);
    MDIChild &window = *system.active();
    window.names().call(u"Form_Resize"_s);
    Tool &close = barOf(window, u"mnuLinks"_s).Bands(0).Tools(u"Close"_s);
    window.names().call(u"mnuLinks_Click"_s, {&close});
    QCOMPARE(system.active(), &system.diagram());
}

void tst_ModuleWindows::everyPartSpeaks()
{
    QFETCH(Open, open);
    RunningSystem system;
    system.start();
    open(u"Some title"_s, u"219"_s);
    int parts = 0;
    for (const QWidget *part : system.active()->surface().findChildren<QWidget *>()) {
        if (!part->isVisible() || part->focusPolicy() == Qt::NoFocus) continue;
        QVERIFY2(!part->accessibleName().isEmpty(), qPrintable(part->objectName()));
        ++parts;
    }
    QVERIFY(parts > 0);
}

void tst_ModuleWindows::manyWindowsComeAndGo()
{
    QFETCH(Open, open);
    RunningSystem system;
    system.start();
    const auto comeAndGo = [&](int number) {
        open(u"Title %1"_s.arg(number), u"219"_s);
        pressClose(system);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    comeAndGo(0);
    const auto windows = Forms();
    const auto widgets = QApplication::allWidgets().size();
    const auto objects = system.frame().shell().findChildren<QObject *>().size();
    for (int i = 1; i <= 200; ++i)
        comeAndGo(i);
    QCOMPARE(Forms(), windows);
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    QCOMPARE(system.frame().shell().findChildren<QObject *>().size(), objects);
}

QTEST_MAIN(tst_ModuleWindows)
#include "tst_ModuleWindows.moc"
