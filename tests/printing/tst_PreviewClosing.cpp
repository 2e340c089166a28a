// How the preview goes: what it reports, in which order, and what is kept.
// A connection's context goes before what its handler holds: clazy:excludeall=lambda-in-connect
#include "platform/controls/pictures/PictureBox.h"
#include "printing/PreviewFixture.h"

#include <QMdiSubWindow>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

class tst_PreviewClosing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void closeReportsByModule_data();
    void closeReportsByModule();
    void closingARecordReportsNothing();
    void unloadingReportsAndForgets();
    void thePreviewGoesAfterItsReport_data();
    void thePreviewGoesAfterItsReport();
    void closeHidesAndKeepsTheDocument();

private:
    const PreviewedSystem &open() const { return *m_open; }
    VSPrinter &vs() const { return m_open->vs(); }
    bool isInWindowMenu() const;

    std::unique_ptr<PreviewedSystem> m_open;
};

void tst_PreviewClosing::init()
{
    m_open = std::make_unique<PreviewedSystem>();
}

void tst_PreviewClosing::cleanup()
{
    m_open.reset();
}

bool tst_PreviewClosing::isInWindowMenu() const
{
    for (const auto &entry : open().system.frame().mnuMain.Bands(u"mnuWindow"_s).Tools())
        if (entry->Name() == u"Print Preview"_s) return true;
    return false;
}

void tst_PreviewClosing::closeReportsByModule_data()
{
    QTest::addColumn<int>("module");
    QTest::addColumn<QString>("step");
    QTest::newRow("guide") << 1 << u"127"_s;
    QTest::newRow("manual") << 2 << u"206"_s;
    QTest::newRow("procedure") << 3 << u"311"_s;
    QTest::newRow("tool") << 4 << u"406"_s;
}

void tst_PreviewClosing::closeReportsByModule()
{
    QFETCH(int, module);
    open().preview(module);
    open().press(u"close"_s);
    QTEST(open().system.console().Tag(), "step");
}

void tst_PreviewClosing::closingARecordReportsNothing()
{
    PictureBox front(open().window(), u"front"_s);
    open().window().PrintRecord(front, nullptr);
    open().press(u"close"_s);
    QCOMPARE(open().system.console().Tag(), u"101"_s);
    open().window().PrintRecord(front, nullptr);
    open().window().Unload();
    QCOMPARE(open().system.console().Tag(), u"101"_s);
}

void tst_PreviewClosing::unloadingReportsAndForgets()
{
    open().preview(ManualModule);
    open().window().subWindow().close();
    QCOMPARE(open().system.console().Tag(), u"206"_s);
    QCOMPARE(countWindows(u"frmPrint"_s), 0);
    QVERIFY(!isInWindowMenu());
}

void tst_PreviewClosing::thePreviewGoesAfterItsReport_data()
{
    QTest::addColumn<bool>("byTool");
    QTest::newRow("close tool: the entry, then the window") << true;
    QTest::newRow("close box: the window, then the entry") << false;
}

void tst_PreviewClosing::thePreviewGoesAfterItsReport()
{
    QFETCH(bool, byTool);
    open().preview(ManualModule);
    QList<bool> wholeAtReport;
    QList<bool> visibleAsEntryWent;
    const QObject context;
    connect(&open().system.console().txtTag, &TextBox::Change, &context,
            [&] { wholeAtReport << (open().window().Visible() && isInWindowMenu()); });
    connect(&open().system.frame().mnuMain, &ActiveBar::Changed, &context, [&] {
        if (visibleAsEntryWent.isEmpty() && !isInWindowMenu()) visibleAsEntryWent << open().window().Visible();
    });
    if (byTool)
        open().press(u"close"_s);
    else
        open().window().subWindow().close();
    QCOMPARE(open().system.console().Tag(), u"206"_s);
    QCOMPARE(wholeAtReport, QList<bool>{true});
    QCOMPARE(visibleAsEntryWent, QList<bool>{byTool});
}

void tst_PreviewClosing::closeHidesAndKeepsTheDocument()
{
    open().preview(ToolModule);
    const int pages = vs().PageCount();
    open().press(u"close"_s);
    QVERIFY(!open().window().Visible());
    QCOMPARE(countWindows(u"frmPrint"_s), 1);
    QCOMPARE(vs().PageCount(), pages);
    QVERIFY(!isInWindowMenu());
}

QTEST_MAIN(tst_PreviewClosing)
#include "tst_PreviewClosing.moc"
