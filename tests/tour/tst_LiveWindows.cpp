// The tour over the program's own windows: each takes part under its names, and a long script holds both ways.
#include "platform/forms/Wiring.h"
#include "platform/system/Application.h"
#include "platform/system/SettingsStore.h"
#include "printing/frmPrint.h"
#include "shell/frmAbout.h"
#include "shell/frmProperties.h"
#include "tour/Moves.h"
#include "tour/TourScriptFile.h"

#include <QTest>
#include <QTextEdit>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
struct Move {
    QString forward;
    QString back; // from the step that it leads to
};

// A round through the windows.
QList<Move> aRound()
{
    const QString guide = u"cf/IG/STEP 17/127"_s;
    return {{u"cc/3"_s, u"cc/1"_s},
            {guide, guide},
            {u"mn/Nav/Implementation"_s, u"mn/Nav/Requirement"_s},
            {u"rc"_s, u"rc"_s},
            {u"cb"_s, u"cb"_s},
            {u"ml/subPrint/prtPartial"_s, u"pp/bndPreview/close"_s},
            {u"pp/bndPreview/close"_s, u"ml/subPrint/prtPartial"_s},
            {u"cf/EM/Title/219"_s, guide},
            {u"mn/Nav/References"_s, u"mn/Nav/Commitment"_s},
            {u"mm/mnuWindow/Command Center"_s, u"cf/EM/Title/219"_s}};
}
} // namespace

class tst_LiveWindows : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aPageToolTurnsTheModulesPage_data();
    void aPageToolTurnsTheModulesPage();
    void thePrintToolOfAModuleBringsUpAPreview_data();
    void thePrintToolOfAModuleBringsUpAPreview();
    void theClosingTagOfThePreviewIsOverruled_data();
    void theClosingTagOfThePreviewIsOverruled();
    void theActionToolsHaveNoPagesToTurn_data();
    void theActionToolsHaveNoPagesToTurn();
    void aReleaseCountsFromTheCaretOfTheKeyboard();
    void confirmingTheDetailsArrivesAtThePreviewOfThePage();
    void detailsThatWereNeverShownAreConfirmedToo();
    void aScriptThatArrivesAtTheEndEndsTheTour_data();
    void aScriptThatArrivesAtTheEndEndsTheTour();
    void theStepComesWhenAModalWindowHasGone();
    void aScriptOfFiftyStepsLeadsForwardAndBack();

private:
    frmDemo &console() const { return m_system->console(); }
    void move(const QString &script) const; // by the button of the row
    void writeChain(const QList<Move> &moves) const;

    std::optional<RunningSystem> m_system;
};

void tst_LiveWindows::init()
{
    m_system.emplace();
    m_system->start();
}

void tst_LiveWindows::cleanup()
{
    m_system.reset();
}

void tst_LiveWindows::move(const QString &script) const
{
    QFETCH(bool, forward);
    clickWay(*m_system, forward, script);
}

namespace
{
void addBothWays(const char *name, const QString &open, const QString &tool)
{
    QTest::addRow("Next %s", name) << true << open << tool;
    QTest::addRow("Back %s", name) << false << open << tool;
}

void addColumns()
{
    QTest::addColumn<bool>("forward");
    QTest::addColumn<QString>("open");
    QTest::addColumn<QString>("tool");
}
} // namespace

void tst_LiveWindows::aPageToolTurnsTheModulesPage_data()
{
    addColumns();
    addBothWays("frmIGSteps", u"110/cf/IG/STEP 17/127"_s, u"Procedure"_s);
    addBothWays("frmEMMain", u"110/cf/EM/Emergency Preparedness and Response/219"_s, u"References"_s);
    addBothWays("frmMPMain", u"110/cf/MP/Emergency Planning/311"_s, u"Method"_s);
}

void tst_LiveWindows::aPageToolTurnsTheModulesPage()
{
    QFETCH(QString, open);
    QFETCH(QString, tool);
    clickNext(*m_system, open);
    MDIChild &window = *m_system->active();
    QVERIFY(QByteArray(QTest::currentDataTag()).endsWith(window.Name().toLatin1()));
    ActiveBar &bar = barOf(window, u"mnuNav"_s);
    QVERIFY(!bar.Tools(tool).Checked());
    move(u"129/mn/Nav/"_s + tool);
    QVERIFY(bar.Tools(tool).Checked());
    QCOMPARE(m_system->active(), &window);
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_LiveWindows::thePrintToolOfAModuleBringsUpAPreview_data()
{
    addColumns();
    addBothWays("frmIGSteps", u"110/cf/IG/STEP 17/127"_s, u"prtPartial"_s);
    addBothWays("frmEMMain", u"110/cf/EM/Emergency Preparedness and Response/219"_s, u"prtPartial"_s);
    addBothWays("frmMPMain", u"110/cf/MP/Emergency Planning/311"_s, u"prtPartial"_s);
    addBothWays("frmATMain", u"110/cf/AT/Key Points/406"_s, u"prtPartial"_s);
}

void tst_LiveWindows::thePrintToolOfAModuleBringsUpAPreview()
{
    QFETCH(QString, open);
    QFETCH(QString, tool);
    clickNext(*m_system, open);
    move(u"129/ml/subPrint/"_s + tool);
    QCOMPARE(m_system->active()->Name(), u"frmPrint"_s);
    QCOMPARE(console().Tag(), u"129"_s);
    move(u"128/pp/bndPreview/close"_s);
    QVERIFY(!Default<frmPrint>().Visible());
    QVERIFY(m_system->active()->Name() != u"frmPrint"_s);
    QCOMPARE(console().Tag(), u"128"_s);
}

void tst_LiveWindows::theClosingTagOfThePreviewIsOverruled_data()
{
    QTest::addColumn<bool>("forward");
    QTest::newRow("Next") << true;
    QTest::newRow("Back") << false;
}

void tst_LiveWindows::theClosingTagOfThePreviewIsOverruled()
{
    openStep(*m_system);
    clickNext(*m_system, u"103/ml/subPrint/prtPartial"_s);
    const ShownTags shown(console());
    move(u"129/pp/bndPreview/close"_s);
    QCOMPARE(shown.tags.first(), u"127"_s);
    QCOMPARE(shown.tags.last(), u"129"_s);
}

void tst_LiveWindows::theActionToolsHaveNoPagesToTurn_data()
{
    theClosingTagOfThePreviewIsOverruled_data();
}

void tst_LiveWindows::theActionToolsHaveNoPagesToTurn()
{
    clickNext(*m_system, u"110/cf/AT/Key Points/406"_s);
    m_system->host.expectAnyMessage();
    m_system->host.expectEnd(1);
    move(u"129/mn/Nav/Next"_s);
    QVERIFY(m_system->host.messages().back().text.startsWith(u"Error 438: "_s));
    QCOMPARE(console().Tag(), u"110"_s);
}

void tst_LiveWindows::aReleaseCountsFromTheCaretOfTheKeyboard()
{
    const frmIGSteps &guide = openStep(*m_system);
    clickNext(*m_system, u"105/mn/Nav/Implementation"_s);
    auto &page = static_cast<QTextEdit &>(guide.rtfData.widget());
    QTest::keyClick(&page, Qt::Key_End, Qt::ControlModifier);
    clickNext(*m_system, u"106/rc"_s);
    QCOMPARE(guide.ssPanel.Caption(), u"Test"_s);
    for (int presses = 0; presses < 100 && page.textCursor().blockNumber() > 3; ++presses)
        QTest::keyClick(&page, Qt::Key_Up);
    QTest::keyClick(&page, Qt::Key_End);
    clickNext(*m_system, u"106/rc"_s);
    QCOMPARE(guide.ssPanel.Caption(), u"Identify"_s);
    QTest::keyClick(&page, Qt::Key_Home, Qt::ControlModifier);
    clickNext(*m_system, u"106/rc"_s);
    QCOMPARE(guide.ssPanel.Caption(), u"Assign"_s);
    QCOMPARE(guide.rtfData.SelStart(), 2);
}

void tst_LiveWindows::confirmingTheDetailsArrivesAtThePreviewOfThePage()
{
    openStep(*m_system);
    clickNext(*m_system, u"204/mm/mnuTools/properties"_s);
    Default<frmProperties>().txtUserName.setText(u"Ada"_s);
    clickNext(*m_system, u"129/po"_s);
    QCOMPARE(GetSetting(App().Title(), u"UserDetails"_s, u"Name"_s), u"Ada"_s);
    QCOMPARE(countWindows(u"frmProperties"_s), 0);
    QCOMPARE(m_system->active()->Name(), u"frmPrint"_s);
    QCOMPARE(console().Tag(), u"129"_s);
}

// The first word of the dialog loads it, with what is on record.
void tst_LiveWindows::detailsThatWereNeverShownAreConfirmedToo()
{
    SaveSetting(App().Title(), u"UserDetails"_s, u"Name"_s, u"Ada"_s);
    clickNext(*m_system, u"129/po"_s);
    QVERIFY(Shared().UserDetailsSaved == True);
    QCOMPARE(GetSetting(App().Title(), u"UserDetails"_s, u"Name"_s), u"Ada"_s);
    QCOMPARE(countWindows(u"frmProperties"_s), 0);
    QCOMPARE(console().Tag(), u"129"_s);
}

void tst_LiveWindows::aScriptThatArrivesAtTheEndEndsTheTour_data()
{
    theClosingTagOfThePreviewIsOverruled_data();
}

void tst_LiveWindows::aScriptThatArrivesAtTheEndEndsTheTour()
{
    move(u"603/cc/1"_s);
    QCOMPARE(console().Tag(), u"603"_s);
    QVERIFY(console().cmdQuit.Visible());
    QVERIFY(!console().cmdGoNext.Visible());
    QVERIFY(!console().cmdGoBack.Visible());
    m_system->host.expectEnd(0);
    m_system->click(console().cmdQuit);
}

void tst_LiveWindows::theStepComesWhenAModalWindowHasGone()
{
    QString whileUp;
    m_system->whileModal([this] { clickNext(*m_system, u"129/mm/mnuHelp/miHAbout"_s); },
                         [&] {
                             whileUp = console().Tag();
                             m_system->click(Default<frmAbout>().cmdOK);
                         });
    QVERIFY(!whileUp.isEmpty());
    QVERIFY(whileUp != u"129"_s);
    QCOMPARE(console().Tag(), u"129"_s);
}

// Sections 1000 and up, each with its way on and its way back.
void tst_LiveWindows::writeChain(const QList<Move> &moves) const
{
    QByteArray script;
    const auto to = [](qsizetype i, const QString &move) {
        return QByteArray::number(1000 + i) + '/' + move.toLatin1();
    };
    for (qsizetype i = 0; i <= moves.size(); ++i)
        script += step(QByteArray::number(1000 + i), i < moves.size() ? to(i + 1, moves[i].forward) : "(none)",
                       i > 0 ? to(i - 1, moves[i - 1].back) : "(none)");
    m_system->host.writeFile(u"DemoData.ini"_s, script);
}

void tst_LiveWindows::aScriptOfFiftyStepsLeadsForwardAndBack()
{
    QList<Move> moves;
    while (moves.size() < 50)
        moves += aRound();
    writeChain(moves);
    m_system->frame().ShowTourStepNumber(1000);
    QList<QString> fronts{m_system->active()->Tag()}; // the window in front of each step
    for (int i = 1; i <= 50; ++i) {
        m_system->click(console().cmdGoNext);
        QCOMPARE(console().Tag(), QString::number(1000 + i));
        fronts << m_system->active()->Tag();
    }
    QCOMPARE(m_system->active(), &m_system->diagram());
    for (int i = 49; i >= 0; --i) {
        m_system->click(console().cmdGoBack);
        QCOMPARE(console().Tag(), QString::number(1000 + i));
        if (i % 10 > 1) QCOMPARE(m_system->active()->Tag(), fronts[i]); // no verb leads back to the diagram
    }
    QVERIFY(m_system->host.messages().empty());
}

QTEST_MAIN(tst_LiveWindows)
#include "tst_LiveWindows.moc"
