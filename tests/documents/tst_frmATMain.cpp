// The Action Tools window: its page, its layout, and the bar at its foot.
#include "documents/frmATMain.h"
#include "documents/pages/ToolPages.h"
#include "platform/forms/Wiring.h"
#include "printing/PreviewFixture.h"
#include "shell/SharedState.h"
#include "shell/modFunctions.h"
#include "support/ReportedTags.h"
#include "support/RunningSystem.h"
#include "support/UserOnBars.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
struct ToolWindow {
    explicit ToolWindow(const QString &title = u"Emergency Plan Ideas"_s)
    {
        system.start();
        system.frame().SetFocus();
        if (!QTest::qWaitForWindowActive(&system.frame().shell())) qFatal("the frame doesn't become active");
        OpenTools(title, u"406"_s);
        window = &dynamic_cast<frmATMain &>(*system.active());
        tags = std::make_unique<ReportedTags>(system.console());
    }

    void resizeInside(const QSize &size) const
    {
        window->setWindowState(Normal);
        QTRY_COMPARE(window->WindowState(), int(Normal));
        const QSize frame = window->shell().size() - window->surface().size();
        window->shell().setMinimumSize(1, 1);
        window->shell().resize(size + frame);
        QTRY_COMPARE(window->surface().size(), size);
    }

    RunningSystem system;
    frmATMain *window = nullptr;
    std::unique_ptr<ReportedTags> tags;
};
} // namespace

class tst_frmATMain : public QObject
{
    Q_OBJECT

private slots:
    void itShowsTheOneTool_data();
    void itShowsTheOneTool();
    void aSecondWindowDiffersInItsTagAlone();
    void thePageCannotBeChanged();
    void everyPartHasItsPlace_data();
    void everyPartHasItsPlace();
    void aWindowTooLowIsNotLaidOut();
    void aMinimizedWindowIsNotLaidOut();
    void theFirstLayoutTakesTheSizeOfTheFrame();
    void aLinkReportsItsThreeDigitsAndOpensItsModule_data();
    void aLinkReportsItsThreeDigitsAndOpensItsModule();
    void aWindowThatItsLinkClosesEndsQuietly();
    void printingReports402AndReplacesThePreview();
    void printingReportsBeforeTheOldPreviewGoes();
    void thePagesBearTheDocument();
    void theWholeModuleCannotBePrinted();
    void aToolWithoutNumberIsReportedAndDoesNothing();
    void aSectionOfThreeDigitsIsReportedAndOpensNothing();
    void closeReportsAndLeadsToTheDiagram();
    void theSelectionMovesTheEditTools();
};

void tst_frmATMain::itShowsTheOneTool_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("plan ideas") << u"Emergency Plan Ideas"_s;
    QTest::newRow("another title") << u"Something else"_s;
}

void tst_frmATMain::itShowsTheOneTool()
{
    QFETCH(QString, title);
    const ToolWindow open(title);
    QCOMPARE(open.window->pnlNumber.Caption(), u"T1.C11"_s);
    QCOMPARE(open.window->pnlHeading.Caption(), u"Key Points to Include in Emergency Plans"_s);
    QCOMPARE(open.window->Caption(), u"Action Tools"_s);
    QCOMPARE(open.window->Tag(), u"[Action Tools] - "_s + title);
    QVERIFY(open.window->rtfData.Text().startsWith(u"This Action Tool assists you to prepare and review emergency"_s));
}

void tst_frmATMain::aSecondWindowDiffersInItsTagAlone()
{
    const ToolWindow open;
    OpenTools(u"Something else"_s, u"499"_s);
    const auto &second = dynamic_cast<frmATMain &>(*open.system.active());
    QVERIFY(&second != open.window);
    QCOMPARE(second.Tag(), u"[Action Tools] - Something else"_s);
    QCOMPARE(second.rtfData.Text(), open.window->rtfData.Text());
    QCOMPARE(second.rtfData.TextRTF(), open.window->rtfData.TextRTF());
    QCOMPARE(second.Caption(), open.window->Caption());
    QCOMPARE(second.pnlNumber.Caption(), open.window->pnlNumber.Caption());
    QCOMPARE(second.pnlHeading.Caption(), open.window->pnlHeading.Caption());
}

void tst_frmATMain::thePageCannotBeChanged()
{
    const ToolWindow open;
    const QString text = open.window->rtfData.Text();
    open.window->rtfData.SetFocus();
    QTest::keyClicks(&open.window->rtfData.widget(), u"typed"_s);
    QCOMPARE(open.window->rtfData.Text(), text);
}

void tst_frmATMain::everyPartHasItsPlace_data()
{
    QTest::addColumn<QSize>("size"); // pixels inside
    for (const QSize size : {QSize(1000, 700), QSize(640, 480), QSize(420, 334), QSize(300, 500), QSize(1200, 333),
                             QSize(196, 333), QSize(99, 400), QSize(36, 350), QSize(14, 333)})
        QTest::addRow("%d x %d", size.width(), size.height()) << size;
}

// In the last four the heading, then the strip, the margin and the page would be narrower than nothing.
void tst_frmATMain::everyPartHasItsPlace()
{
    QFETCH(QSize, size);
    const ToolWindow open;
    open.resizeInside({800, 500});
    const auto orBefore = [](double width, double before) { return width < 0 ? before : width; };
    const frmATMain &window = *open.window;
    open.resizeInside(size);
    const double w = toTwips(size.width());
    const double h = toTwips(size.height());
    QCOMPARE(window.ssMnu.Width(), w);
    QCOMPARE(window.rtfData.Width(), orBefore(w - 220, 12000 - 220));
    QCOMPARE(window.rtfData.RightMargin(), orBefore(w - 550, 12000 - 550));
    QCOMPARE(window.imgLogo.Left(), w - 1500);
    QCOMPARE(window.pnlHeading.Width(), orBefore(w - 1500 - 1455, 12000 - 1500 - 1455));
    QCOMPARE(window.rtfData.Height(), h - 780 - 375);
    QCOMPARE(window.gradient.Width(), orBefore(w - 1500, 12000 - 1500));
    QCOMPARE(window.ssMnuLinks.Top(), h - 375);
}

void tst_frmATMain::aWindowTooLowIsNotLaidOut()
{
    const ToolWindow open;
    open.resizeInside({800, 500});
    const frmATMain &window = *open.window;
    const auto parts = [&window] {
        return QList<double>{window.ssMnu.Width(),         window.rtfData.Width(), window.rtfData.Height(),
                             window.rtfData.RightMargin(), window.imgLogo.Left(),  window.pnlHeading.Width(),
                             window.gradient.Width()};
    };
    const QList<double> before = parts();
    open.resizeInside({700, 332});
    QCOMPARE(parts(), before);
    open.resizeInside({20, 10});
    QCOMPARE(parts(), before);
    open.resizeInside({700, 333});
    QVERIFY(parts() != before);
}

void tst_frmATMain::aMinimizedWindowIsNotLaidOut()
{
    const ToolWindow open;
    open.window->imgLogo.setLeft(77);
    open.window->setWindowState(Minimized);
    QTRY_COMPARE(open.window->WindowState(), int(Minimized));
    open.window->Form_Resize();
    QCOMPARE(open.window->imgLogo.Left(), 77.0);
}

void tst_frmATMain::theFirstLayoutTakesTheSizeOfTheFrame()
{
    RunningSystem system;
    system.start();
    Shared().FrameScaleWidth = 9001;
    Shared().FrameScaleHeight = 6002;
    auto *window = new frmATMain;
    OpenWindowCore(*window, u"Title"_s, u"406"_s);
    QCOMPARE(window->ssMnu.Width(), 9001.0);
    QCOMPARE(window->rtfData.Height(), 6002.0 - 780 - 375);
    window->Form_Resize();
    QCOMPARE(window->ssMnu.Width(), window->ScaleWidth());
}

void tst_frmATMain::aLinkReportsItsThreeDigitsAndOpensItsModule_data()
{
    QTest::addColumn<QStringList>("path");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("key");
    const auto row = [](const char *module, const char *link, const char *tag, const char *key) {
        QTest::newRow(link) << QStringList{QString::fromLatin1(module), QString::fromLatin1(link)}
                            << QString::fromLatin1(tag) << QString::fromLatin1(key);
    };
    row("mnuIG", "btnIG", "127", "[Implementation Guide] - STEP 17 - Emergency Preparedness and Response");
    row("mnuEM", "btnEM", "219", "[Environmental Manual] - Emergency Preparedness and Response");
    row("mnuMP", "btnmp", "311", "[Management Procedures] - Emergency Planning");
    row("mnuRC", "btnRC", "511", "[Records] - Emergency Plan");
}

// The second use reports the same: the number has its fourth digit again.
void tst_frmATMain::aLinkReportsItsThreeDigitsAndOpensItsModule()
{
    QFETCH(QStringList, path);
    QFETCH(QString, tag);
    const ToolWindow open;
    for (int use = 0; use < 2; ++use) {
        open.window->SetFocus();
        open.tags->clear();
        QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"RelatedTopics"_s, path));
        QCOMPARE(open.tags->tags(), QStringList(tag));
        QTEST(open.system.active()->Tag(), "key");
        QCOMPARE(Shared().SectionText, tag);
        QCOMPARE(open.window->mnuLinks.Tools(path.last()).ToolTag(), 1000 + tag.toInt());
    }
}

// The number has no tool any more to be put back into.
void tst_frmATMain::aWindowThatItsLinkClosesEndsQuietly()
{
    const ToolWindow open;
    connect(&open.system.frame().area(), &QMdiArea::subWindowActivated, this,
            [window = QPointer<frmATMain>(open.window)](const QMdiSubWindow *active) {
                if (window && !window->Unloaded() && active && active->objectName() == u"frmEMMain") window->Unload();
            });
    QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"RelatedTopics"_s, {u"mnuEM"_s, u"btnEM"_s}));
    QCOMPARE(countWindows(u"frmATMain"_s), 0);
    QCOMPARE(open.tags->tags(), QStringList(u"219"_s));
    QCOMPARE(open.system.active()->Name(), u"frmEMMain"_s);
}

void tst_frmATMain::printingReports402AndReplacesThePreview()
{
    const ToolWindow open;
    const frmPrint &before = Default<frmPrint>();
    QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"Print"_s, {u"prtPartial"_s}));
    QCOMPARE(open.tags->tags(), QStringList(u"402"_s));
    QVERIFY(&Default<frmPrint>() != &before);
    QCOMPARE(countWindows(u"frmPrint"_s), 1);
    QCOMPARE(Default<frmPrint>().vs.DocName(), u"Action Tools"_s);
    QCOMPARE(open.system.active()->Name(), u"frmPrint"_s);
}

// The first print's preview reports 406 as it goes.
void tst_frmATMain::printingReportsBeforeTheOldPreviewGoes()
{
    const ToolWindow open;
    QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"Print"_s, {u"prtPartial"_s}));
    open.window->SetFocus();
    open.tags->clear();
    QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"Print"_s, {u"prtPartial"_s}));
    QCOMPARE(open.tags->tags(), QStringList({u"402"_s, u"406"_s}));
}

void tst_frmATMain::thePagesBearTheDocument()
{
    ToolWindow open;
    open.system.host.setPrintQueues({{u"LASER"_s, u"Fast"_s, {}, true, LetterPaper}});
    QVERIFY(chooseFromFlyout(open.window->mnuLinks, u"Print"_s, {u"prtPartial"_s}));
    VSPrinter &vs = Default<frmPrint>().vs;
    vs.setDevice(u"LASER"_s);
    vs.PrintDoc(1, vs.PageCount());
    const QString words = wordsOf(readPdf(open.system.host.printedFile(u"LASER"_s)).front());
    QVERIFY2(words.startsWith(u"orvane Action Tools T1.C11 Key Points to Include in Emergency Plans "_s),
             qPrintable(words.left(120)));
}

void tst_frmATMain::theWholeModuleCannotBePrinted()
{
    const ToolWindow open;
    QVERIFY(!chooseFromFlyout(open.window->mnuLinks, u"Print"_s, {u"prtComplete"_s}));
    open.window->mnuLinks_Click(open.window->mnuLinks.Tools(u"prtComplete"_s));
    QCOMPARE(open.tags->tags(), QStringList(u"402"_s));
    QCOMPARE(Default<frmPrint>().vs.DocName(), u"Action Tools"_s);
}

// A tool of 0 is heard too: all that it does in the console is to take Quit away.
void tst_frmATMain::aToolWithoutNumberIsReportedAndDoesNothing()
{
    const ToolWindow open;
    open.system.console().cmdQuit.setVisible(true);
    open.window->mnuLinks_Click(open.window->mnuLinks.Tools(u"RelatedTopics"_s));
    QVERIFY(!open.system.console().cmdQuit.Visible());
    QCOMPARE(open.system.active(), open.window);
}

// A link of this window has four digits.
void tst_frmATMain::aSectionOfThreeDigitsIsReportedAndOpensNothing()
{
    const ToolWindow open;
    Tool &tool = open.window->mnuLinks.Bands(0).Tools().Add(99, u"loose"_s);
    tool.setCaption(u"STEP 17 - Emergency Preparedness and Response"_s);
    tool.setToolTag(127);
    open.window->mnuLinks_Click(tool);
    QCOMPARE(open.tags->tags(), QStringList(u"127"_s));
    QCOMPARE(tool.ToolTag(), 127);
    QCOMPARE(countWindows(u"frmIGSteps"_s), 0);
    QCOMPARE(open.system.active(), open.window);
}

void tst_frmATMain::closeReportsAndLeadsToTheDiagram()
{
    const ToolWindow open;
    pressButton(open.window->mnuLinks, u"Close"_s);
    QCOMPARE(open.tags->tags(), QStringList(u"401"_s));
    QCOMPARE(open.system.active(), &open.system.diagram());
    QCOMPARE(countWindows(u"frmATMain"_s), 0);
}

void tst_frmATMain::theSelectionMovesTheEditTools()
{
    const ToolWindow open;
    const Tool &copy = open.system.frame().mnuMain.Bands(u"mnuEdit"_s).Tools(u"miCopy"_s);
    open.window->rtfData.SetFocus();
    open.window->rtfData.setSelLength(5);
    QVERIFY(copy.Enabled());
    open.window->rtfData.setSelLength(0);
    QVERIFY(!copy.Enabled());
}

QTEST_MAIN(tst_frmATMain)
#include "tst_frmATMain.moc"
