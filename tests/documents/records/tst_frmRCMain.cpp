// The Records window: its two forms, its commands, and how it comes and goes.
#include "documents/records/RecordWindow.h"

#include <QPointer>
#include <QScrollBar>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

const uchar *pixelsOf(const PictureBox &box)
{
    return box.Picture().image().constBits();
}

bool blankIsShown(const frmRCMain &window)
{
    return window.picRCB.Visible() && !window.picRCF.Visible();
}

bool completedIsShown(const frmRCMain &window)
{
    return window.picRCF.Visible() && !window.picRCB.Visible();
}

const Tool &viewTool(const frmRCMain &window)
{
    return window.mnuLinks.Bands(0).Tools(u"vwOption"_s);
}

} // namespace

class tst_frmRCMain : public QObject
{
    Q_OBJECT

private slots:
    void theDesignHoldsEachPictureInItsBox_data();
    void theDesignHoldsEachPictureInItsBox();
    void thePartsAreInTheirContainers();
    void itBearsItsTitle();
    void thePanelsStayEmpty();
    void thePlanShowsItsTwoPages();
    void anyOtherRecordShowsTheSample_data();
    void anyOtherRecordShowsTheSample();
    void theAreaIsAsLargeAsTheRecord_data();
    void theAreaIsAsLargeAsTheRecord();
    void theLinksLieAtTheFoot();
    void itOpensCompleted();
    void theWayToBlankReportsAndTheWayBackDoesNot();
    void theButtonBearsTheOtherForm();
    void activationBringsTheTopAndKeepsTheForm();
    void activationSetsTheTopsToNothing();
    void itIsListedAndNamesItsModule();
    void openSendsItsStepAlone();
    void aToolWithoutCommandDoesNothing_data();
    void aToolWithoutCommandDoesNothing();
    void everyCommandTakesThePreviewAway_data();
    void everyCommandTakesThePreviewAway();
    void thePreviewGoesBeforeTheCommandReports_data();
    void thePreviewGoesBeforeTheCommandReports();
    void closeReportsAndLeadsToTheDiagram_data();
    void closeReportsAndLeadsToTheDiagram();
    void theSectionIsReadAtTheClick();
    void thePageToolsDoNothing();
    void itsCloseBoxUnloadsIt();
    void keysScrollFromTheStart();
    void everyToolIsReachedByTab();
    void windowsShareTheirPictures();
    void fiftyWindowsComeAndGo();
};

void tst_frmRCMain::theDesignHoldsEachPictureInItsBox_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<bool>("visible");
    QTest::newRow("picRCF") << u"picRCF"_s << QSize(760, 1177) << true;
    QTest::newRow("picRCB") << u"picRCB"_s << QSize(760, 1177) << false;
    QTest::newRow("picf1") << u"picf1"_s << QSize(760, 579) << false;
    QTest::newRow("picf2") << u"picf2"_s << QSize(760, 600) << false;
    QTest::newRow("picb1") << u"picb1"_s << QSize(760, 586) << false;
    QTest::newRow("picb2") << u"picb2"_s << QSize(760, 592) << false;
    QTest::newRow("picf1a") << u"picf1a"_s << QSize(760, 582) << false;
    QTest::newRow("picb1a") << u"picb1a"_s << QSize(760, 582) << false;
}

void tst_frmRCMain::theDesignHoldsEachPictureInItsBox()
{
    QFETCH(QString, name);
    RunningSystem system;
    system.start();
    const frmRCMain window;
    const auto *box = dynamic_cast<const PictureBox *>(window.control(name));
    QVERIFY(box);
    QTEST(box->Picture().image().size(), "pixels");
    QCOMPARE(pixelsOf(*box), PictureObject::stored(name).image().constBits());
    QTEST(box->Visible(), "visible");
}

void tst_frmRCMain::thePartsAreInTheirContainers()
{
    RunningSystem system;
    system.start();
    frmRCMain window;
    QCOMPARE(window.Caption(), u"Records"_s);
    for (const PictureBox *box : {&window.picb1a, &window.picf1a, &window.picb2, &window.picb1, &window.picf2,
                                  &window.picf1, &window.picRCF, &window.picRCB})
        QCOMPARE(box->widget().parentWidget(), &window.ssScroll.surface());
    for (const Control *control :
         std::initializer_list<const Control *>{&window.ssScroll, &window.pnlHeading, &window.pnlNumber,
                                                &window.mnuLinks, &window.imgLogo, &window.mnuNav})
        QCOMPARE(control->widget().parentWidget(), &window.surface());
    QCOMPARE(window.picRCF.Width(), 11400.0);
    QCOMPARE(window.picRCF.Height(), 17655.0);
    QCOMPARE(window.picRCB.Left(), 2520.0);
}

void tst_frmRCMain::itBearsItsTitle()
{
    const RecordWindow open(u"511"_s, u"Some plan"_s);
    QCOMPARE(open.window->Tag(), u"[Records] - Some plan"_s);
    QCOMPARE(open.window->Caption(), u"Some plan"_s);
    QCOMPARE(open.window->Name(), u"frmRCMain"_s);
    QCOMPARE(open.window->WindowState(), int(Maximized));
}

void tst_frmRCMain::thePanelsStayEmpty()
{
    RunningSystem system;
    system.start();
    {
        const frmRCMain designed;
        QCOMPARE(designed.pnlNumber.DataField(), u"IGStepCode"_s);
        QCOMPARE(designed.pnlHeading.DataField(), u"StepDesc"_s);
    }
    OpenRecords(u"Plan"_s, u"511"_s);
    const auto &window = dynamic_cast<frmRCMain &>(*system.active());
    QCOMPARE(window.pnlNumber.DataField(), u"Section"_s);
    QCOMPARE(window.pnlHeading.DataField(), u"Title"_s);
    QCOMPARE(window.pnlNumber.Caption() + window.pnlHeading.Caption(), QString());
}

void tst_frmRCMain::thePlanShowsItsTwoPages()
{
    const RecordWindow open;
    QCOMPARE(pixelsOf(open.window->picRCF), PictureObject::stored(u"picRCF"_s).image().constBits());
    QCOMPARE(pixelsOf(open.window->picRCB), PictureObject::stored(u"picRCB"_s).image().constBits());
}

void tst_frmRCMain::anyOtherRecordShowsTheSample_data()
{
    QTest::addColumn<QString>("section");
    for (const char *section : {"519", "510", "5", "5110", "900"})
        QTest::newRow(section) << QString::fromLatin1(section);
}

void tst_frmRCMain::anyOtherRecordShowsTheSample()
{
    QFETCH(QString, section);
    const RecordWindow open(section);
    QCOMPARE(pixelsOf(open.window->picRCF), PictureObject::stored(u"picf1a"_s).image().constBits());
    QCOMPARE(pixelsOf(open.window->picRCB), PictureObject::stored(u"picb1a"_s).image().constBits());
}

void tst_frmRCMain::theAreaIsAsLargeAsTheRecord_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<double>("height");
    QTest::newRow("plan") << u"511"_s << 17655.0;
    QTest::newRow("plan, written otherwise") << u" 511.0 "_s << 17655.0;
    QTest::newRow("sample") << u"519"_s << 8730.0;
}

void tst_frmRCMain::theAreaIsAsLargeAsTheRecord()
{
    QFETCH(QString, section);
    const RecordWindow open(section);
    QTEST(open.window->ssScroll.ScrollHeight(), "height");
    QTEST(open.window->picRCF.Height(), "height");
    QTEST(open.window->picRCB.Height(), "height");
    QCOMPARE(open.window->ssScroll.ScrollWidth(), 11400.0);
}

void tst_frmRCMain::theLinksLieAtTheFoot()
{
    const RecordWindow open;
    const frmRCMain &window = *open.window;
    QVERIFY(window.mnuLinks.Bands(0).Visible());
    QCOMPARE(window.mnuLinks.Bands(0).DockingArea(), int(DockedBottom));
    QCOMPARE(window.mnuLinks.widget().geometry().bottom(), open.window->surface().rect().bottom());
    QCOMPARE(window.mnuNav.widget().y(), 0);
}

void tst_frmRCMain::itOpensCompleted()
{
    const RecordWindow open;
    QVERIFY(completedIsShown(*open.window));
    QCOMPARE(viewTool(*open.window).Caption(), u"View Blank"_s);
    QCOMPARE(viewTool(*open.window).ToolTipText(), u"View Blank Record"_s);
}

void tst_frmRCMain::theWayToBlankReportsAndTheWayBackDoesNot()
{
    const RecordWindow open;
    open.press(u"vwOption"_s);
    QVERIFY(blankIsShown(*open.window));
    QCOMPARE(open.tags->tags(), QStringList(u"502"_s));
    QCOMPARE(viewTool(*open.window).Caption(), u"View Completed"_s);
    QCOMPARE(viewTool(*open.window).ToolTipText(), u"View Completed Record"_s);
    open.press(u"vwOption"_s);
    QVERIFY(completedIsShown(*open.window));
    QCOMPARE(open.tags->tags(), QStringList(u"502"_s));
    QCOMPARE(viewTool(*open.window).Caption(), u"View Blank"_s);
    QCOMPARE(viewTool(*open.window).ToolTipText(), u"View Blank Record"_s);
}

void tst_frmRCMain::theButtonBearsTheOtherForm()
{
    const RecordWindow open;
    open.press(u"vwOption"_s);
    const QAbstractButton *button = buttonOf(open.window->mnuLinks, u"vwOption"_s);
    QCOMPARE(button->text(), u"View Completed"_s);
    QVERIFY(button->width() >= button->sizeHint().width());
    const QAbstractButton *next = buttonOf(open.window->mnuLinks, u"Open"_s);
    QVERIFY(next->geometry().left() > button->geometry().right());
}

void tst_frmRCMain::activationBringsTheTopAndKeepsTheForm()
{
    const RecordWindow open;
    open.resizeInside({600, 400});
    open.press(u"vwOption"_s);
    open.window->ssScroll.setVerticalPosition(3000);
    QCOMPARE(open.window->ssScroll.VerticalPosition(), 3000.0);
    open.system.diagram().SetFocus();
    QCOMPARE(open.window->ssScroll.VerticalPosition(), 3000.0);
    open.window->SetFocus();
    QVERIFY(blankIsShown(*open.window));
    QCOMPARE(open.window->ssScroll.VerticalPosition(), 0.0);
}

void tst_frmRCMain::activationSetsTheTopsToNothing()
{
    const RecordWindow open;
    open.system.diagram().SetFocus();
    open.window->picRCF.setTop(77);
    open.window->picRCB.setTop(99);
    open.window->SetFocus();
    QCOMPARE(open.window->picRCF.Top(), 0.0);
    QCOMPARE(open.window->picRCB.Top(), 0.0);
}

void tst_frmRCMain::itIsListedAndNamesItsModule()
{
    const RecordWindow open;
    const Tool &tool = open.system.frame().mnuMain.Bands(u"mnuWindow"_s).Tools(u"[Records] - Emergency Plan"_s);
    QVERIFY(tool.Checked());
    QCOMPARE(tool.TagText(), u"frmRCMain"_s);
    QCOMPARE(open.system.frame().Caption(), u"orvane (Records)"_s);
    open.system.diagram().SetFocus();
    QVERIFY(!tool.Checked());
}

void tst_frmRCMain::openSendsItsStepAlone()
{
    const RecordWindow open;
    const int windows = int(Forms().size());
    open.press(u"Open"_s);
    QCOMPARE(open.tags->tags(), QStringList(u"503"_s));
    QCOMPARE(int(Forms().size()), windows);
    QCOMPARE(countWindows(u"frmError"_s), 0);
    QVERIFY(completedIsShown(*open.window));
}

void tst_frmRCMain::aToolWithoutCommandDoesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("print") << u"Print"_s;
    QTest::newRow("close in lower case") << u"close"_s;
    QTest::newRow("another") << u"prtPartial"_s;
}

void tst_frmRCMain::aToolWithoutCommandDoesNothing()
{
    QFETCH(QString, name);
    const RecordWindow open;
    ActiveBar &bar = open.window->mnuLinks;
    Tool &tool = name == u"Print" ? bar.Tools(name) : bar.Bands(0).Tools().Add(99, name);
    open.window->mnuLinks_Click(tool);
    QCOMPARE(open.tags->tags(), QStringList());
    QCOMPARE(open.system.active(), open.window);
    QVERIFY(completedIsShown(*open.window));
}

void tst_frmRCMain::everyCommandTakesThePreviewAway_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"Print", "vwOption", "Open", "Close"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_frmRCMain::everyCommandTakesThePreviewAway()
{
    QFETCH(QString, name);
    const RecordWindow open;
    Default<frmPrint>().Show();
    QCOMPARE(countWindows(u"frmPrint"_s), 1);
    open.window->mnuLinks_Click(open.window->mnuLinks.Bands(0).Tools(name));
    QCOMPARE(countWindows(u"frmPrint"_s), 0);
}

void tst_frmRCMain::thePreviewGoesBeforeTheCommandReports_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("tags");
    QTest::newRow("vwOption") << u"vwOption"_s << QStringList{u"127"_s, u"502"_s};
    QTest::newRow("Open") << u"Open"_s << QStringList{u"127"_s, u"503"_s};
    QTest::newRow("Close") << u"Close"_s << QStringList{u"127"_s, u"504"_s};
}

// The preview of a guide's print reports 127 as it goes.
void tst_frmRCMain::thePreviewGoesBeforeTheCommandReports()
{
    QFETCH(QString, name);
    const RecordWindow open(u"511"_s);
    Default<frmPrint>().PrintPreview(1, u"1"_s, 1, 1, u"STEP 17"_s, u"Emergency Preparedness and Response"_s);
    open.window->SetFocus();
    open.tags->clear();
    open.press(name);
    QTEST(open.tags->tags(), "tags");
}

void tst_frmRCMain::closeReportsAndLeadsToTheDiagram_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("tag");
    QTest::newRow("plan") << u"511"_s << u"504"_s;
    QTest::newRow("aspects") << u"519"_s << u"600"_s;
    QTest::newRow("another") << u"520"_s << u"504"_s;
}

void tst_frmRCMain::closeReportsAndLeadsToTheDiagram()
{
    QFETCH(QString, section);
    const RecordWindow open(section);
    Shared().DiagramLayoutHeld = True;
    open.press(u"Close"_s);
    QTEST(open.tags->tags().join(u' '), "tag");
    QCOMPARE(Shared().DiagramLayoutHeld, False);
    QCOMPARE(open.system.active(), &open.system.diagram());
    QCOMPARE(open.system.diagram().WindowState(), int(Maximized));
    QCOMPARE(countWindows(u"frmRCMain"_s), 0);
    QCOMPARE(open.system.frame().mnuMain.Bands(u"mnuWindow"_s).Tools().Count(), 1);
}

void tst_frmRCMain::theSectionIsReadAtTheClick()
{
    const RecordWindow open(u"511"_s);
    OpenRecords(u"Another"_s, u"519"_s);
    open.window->SetFocus();
    open.tags->clear();
    open.press(u"Close"_s);
    QCOMPARE(open.tags->tags(), QStringList(u"600"_s));
}

void tst_frmRCMain::thePageToolsDoNothing()
{
    const RecordWindow open;
    open.resizeInside({800, 400});
    open.window->ssScroll.setVerticalPosition(1500);
    for (const char *name : {"First", "Prev", "Next", "Last"})
        pressButton(open.window->mnuNav, QString::fromLatin1(name));
    QCOMPARE(open.tags->tags(), QStringList());
    QCOMPARE(open.system.active(), open.window);
    QCOMPARE(open.window->ssScroll.VerticalPosition(), 1500.0);
}

void tst_frmRCMain::itsCloseBoxUnloadsIt()
{
    const RecordWindow open;
    open.window->shell().close();
    QCOMPARE(countWindows(u"frmRCMain"_s), 0);
    QCOMPARE(open.tags->tags(), QStringList());
    QCOMPARE(open.system.active(), &open.system.diagram());
    QVERIFY(!open.window->mnuLinks.Bands(0).Visible());
}

void tst_frmRCMain::keysScrollFromTheStart()
{
    const RecordWindow open;
    QCOMPARE(open.window->ActiveControl(), &open.window->ssScroll);
    QTest::keyClick(open.system.frame().shell().windowHandle(), Qt::Key_PageDown);
    QCOMPARE(open.window->ssScroll.VerticalPosition(), 750.0);
    QTest::keyClick(open.system.frame().shell().windowHandle(), Qt::Key_Down);
    QCOMPARE(open.window->ssScroll.VerticalPosition(), 900.0);
}

void tst_frmRCMain::everyToolIsReachedByTab()
{
    const RecordWindow open;
    QStringList reached;
    for (int i = 0; i < 20; ++i) {
        reached << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (const char *name : {"ssScroll", "Print", "vwOption", "Open", "Close", "First", "Prev", "Next", "Last"})
        QVERIFY2(reached.contains(QString::fromLatin1(name)), qPrintable(reached.join(u' ')));
}

void tst_frmRCMain::windowsShareTheirPictures()
{
    const RecordWindow open;
    OpenRecords(u"Another"_s, u"511"_s);
    const auto &other = dynamic_cast<frmRCMain &>(*open.system.active());
    QVERIFY(&other != open.window);
    QCOMPARE(pixelsOf(other.picRCF), pixelsOf(open.window->picRCF));
    QCOMPARE(pixelsOf(other.picb2), pixelsOf(open.window->picb2));
}

void tst_frmRCMain::fiftyWindowsComeAndGo()
{
    RunningSystem system;
    system.start();
    const auto comeAndGo = [&](int number) {
        OpenRecords(u"Title %1"_s.arg(number), u"511"_s);
        pressButton(dynamic_cast<frmRCMain &>(*system.active()).mnuLinks, u"Close"_s);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    comeAndGo(0);
    const auto windows = Forms();
    const auto widgets = QApplication::allWidgets().size();
    for (int i = 1; i <= 50; ++i)
        comeAndGo(i);
    QCOMPARE(Forms(), windows);
    QCOMPARE(QApplication::allWidgets().size(), widgets);
}

QTEST_MAIN(tst_frmRCMain)
#include "tst_frmRCMain.moc"
