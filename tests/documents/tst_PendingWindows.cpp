// The document windows whose pages come later: they open, are listed, and close as the others do.
#include "documents/PendingWindow.h"
#include "platform/forms/Wiring.h"
#include "shell/modFunctions.h"
#include "support/ReportedTags.h"
#include "support/RunningSystem.h"

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

PendingWindow &opened(const RunningSystem &system)
{
    return dynamic_cast<PendingWindow &>(*system.active());
}

} // namespace

Q_DECLARE_METATYPE(Open)

class tst_PendingWindows : public QObject
{
    Q_OBJECT

private slots:
    void itBearsItsModule_data();
    void itBearsItsModule();
    void itSaysWhatIsToComeInOneSentence_data();
    void itSaysWhatIsToComeInOneSentence();
    void theSentenceHasItsRoom_data();
    void theSentenceHasItsRoom();
    void itIsListedAndNamesItsModule_data();
    void itIsListedAndNamesItsModule();
    void itClosesToTheDiagram_data();
    void itClosesToTheDiagram();
    void itClosesByItsOwnCloseBox_data();
    void itClosesByItsOwnCloseBox();
    void itsLayoutIsCalledByName_data();
    void itsLayoutIsCalledByName();
    void theSameTitleOpensOneWindow_data();
    void theSameTitleOpensOneWindow();
    void theSameTitleInTwoModulesIsTwoWindows();
    void onlyWindowsForEditingAskForTheEditTools_data();
    void onlyWindowsForEditingAskForTheEditTools();
    void fiftyWindowsComeAndGo_data();
    void fiftyWindowsComeAndGo();
};

void tst_PendingWindows::itBearsItsModule_data()
{
    QTest::addColumn<Open>("open");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("frameTitle");
    QTest::newRow("manual") << Open(OpenManual) << u"frmEMMain"_s << u"[Environmental Manual] - "_s
                            << u"orvane (Environment Manual)"_s;
    QTest::newRow("procedures") << Open(OpenProcedures) << u"frmMPMain"_s << u"[Management Procedures] - "_s
                                << u"orvane (Management Procedures)"_s;
    QTest::newRow("tools") << Open(OpenTools) << u"frmATMain"_s << u"[Action Tools] - "_s << u"orvane (Action Tools)"_s;
    QTest::newRow("records") << Open(OpenRecords) << u"frmRCMain"_s << u"[Records] - "_s << u"orvane (Records)"_s;
}

void tst_PendingWindows::itBearsItsModule()
{
    QFETCH(Open, open);
    QFETCH(QString, prefix);
    RunningSystem system;
    system.start();
    open(u"Some title"_s, u"219"_s);
    QTEST(system.active()->Name(), "name");
    QCOMPARE(system.active()->Tag(), prefix + u"Some title"_s);
    QCOMPARE(system.active()->Caption(), u"Some title"_s);
    QCOMPARE(system.active()->WindowState(), int(Maximized));
}

void tst_PendingWindows::itSaysWhatIsToComeInOneSentence_data()
{
    itBearsItsModule_data();
}

void tst_PendingWindows::itSaysWhatIsToComeInOneSentence()
{
    QFETCH(Open, open);
    RunningSystem system;
    system.start();
    open(u"100%1 title"_s, u"219"_s);
    QCOMPARE(opened(system).pnlHeading.Caption(), u"100%1 title"_s);
    QCOMPARE(opened(system).lblPending.Caption(), u"The pages of \"100%1 title\" come with a later edition."_s);
}

void tst_PendingWindows::theSentenceHasItsRoom_data()
{
    itBearsItsModule_data();
}

void tst_PendingWindows::theSentenceHasItsRoom()
{
    QFETCH(Open, open);
    RunningSystem system;
    system.start();
    open(u"Emergency Preparedness and Response"_s, u"219"_s);
    const PendingWindow &window = opened(system);
    QTRY_COMPARE(window.ScaleWidth(), system.frame().ScaleWidth());
    QCOMPARE(window.gradient.Width(), window.ScaleWidth());
    QCOMPARE(window.pnlHeading.Width(), window.ScaleWidth());
    QCOMPARE(window.lblPending.Left() + window.lblPending.Width(), window.ScaleWidth() - 240);
    QVERIFY(window.lblPending.Top() + window.lblPending.Height() <= window.cmdClose.Top());
}

void tst_PendingWindows::itIsListedAndNamesItsModule_data()
{
    itBearsItsModule_data();
}

void tst_PendingWindows::itIsListedAndNamesItsModule()
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

void tst_PendingWindows::itClosesToTheDiagram_data()
{
    itBearsItsModule_data();
}

void tst_PendingWindows::itClosesToTheDiagram()
{
    QFETCH(Open, open);
    QFETCH(QString, name);
    RunningSystem system;
    system.start();
    open(u"First"_s, u"219"_s);
    open(u"Second"_s, u"219"_s);
    Shared().DiagramLayoutHeld = True;
    system.click(opened(system).cmdClose);
    QCOMPARE(countWindows(name), 1);
    QCOMPARE(windowTools(system).Count(), 2);
    QCOMPARE(Shared().DiagramLayoutHeld, False);
    QCOMPARE(system.active(), &system.diagram());
    QCOMPARE(system.diagram().WindowState(), int(Maximized));
}

void tst_PendingWindows::itClosesByItsOwnCloseBox_data()
{
    itBearsItsModule_data();
}

void tst_PendingWindows::itClosesByItsOwnCloseBox()
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

void tst_PendingWindows::itsLayoutIsCalledByName_data()
{
    itBearsItsModule_data();
}

void tst_PendingWindows::itsLayoutIsCalledByName()
{
    QFETCH(Open, open);
    RunningSystem system;
    system.start();
    open(u"Some title"_s, u"219"_s);
    PendingWindow &window = opened(system);
    window.pnlHeading.setWidth(7);
    window.names().call(u"Form_Resize"_s);
    QCOMPARE(window.pnlHeading.Width(), window.ScaleWidth());
}

void tst_PendingWindows::theSameTitleOpensOneWindow_data()
{
    itBearsItsModule_data();
}

void tst_PendingWindows::theSameTitleOpensOneWindow()
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

void tst_PendingWindows::theSameTitleInTwoModulesIsTwoWindows()
{
    RunningSystem system;
    system.start();
    for (const Open open : {Open(OpenManual), Open(OpenProcedures), Open(OpenTools), Open(OpenRecords)})
        open(u"Some title"_s, u"219"_s);
    QCOMPARE(windowTools(system).Count(), 5);
    QCOMPARE(windowTools(system).Item(4).Caption(), u"&5 [Records] - Some title"_s);
}

void tst_PendingWindows::onlyWindowsForEditingAskForTheEditTools_data()
{
    QTest::addColumn<Open>("open");
    QTest::addColumn<bool>("asks");
    QTest::newRow("manual") << Open(OpenManual) << true;
    QTest::newRow("procedures") << Open(OpenProcedures) << true;
    QTest::newRow("tools") << Open(OpenTools) << false;
    QTest::newRow("records") << Open(OpenRecords) << false;
}

// The tools are as the diagram left them until they are asked for; with nothing selected, Copy then goes.
void tst_PendingWindows::onlyWindowsForEditingAskForTheEditTools()
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

void tst_PendingWindows::fiftyWindowsComeAndGo_data()
{
    itBearsItsModule_data();
}

void tst_PendingWindows::fiftyWindowsComeAndGo()
{
    QFETCH(Open, open);
    RunningSystem system;
    system.start();
    const auto comeAndGo = [&](int number) {
        open(u"Title %1"_s.arg(number), u"219"_s);
        system.click(opened(system).cmdClose);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    comeAndGo(0);
    const auto windows = Forms();
    const auto widgets = QApplication::allWidgets().size();
    const auto objects = system.frame().shell().findChildren<QObject *>().size();
    for (int i = 1; i <= 50; ++i)
        comeAndGo(i);
    QCOMPARE(Forms(), windows);
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    QCOMPARE(system.frame().shell().findChildren<QObject *>().size(), objects);
}

QTEST_MAIN(tst_PendingWindows)
#include "tst_PendingWindows.moc"
