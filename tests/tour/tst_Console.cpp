// The console itself: its controls, its own buttons, and how it gets along with the frame.
#include "support/RunningSystem.h"
#include "tour/NamedWindow.h"
#include "tour/modDemo.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
constexpr double LowerEdge = 4890; // twips

QString spokenName(const Control &control)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&control.widget());
    return interface ? interface->text(QAccessible::Name) : QString();
}

void pressHidden(const CommandButton &button)
{
    static_cast<QAbstractButton &>(button.widget()).click();
}
} // namespace

class tst_Console : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theWindowIsOfItsSizeAndStaysSo();
    void theWindowFloatsAboveTheOthers();
    void theWindowStartsHiddenOnStepZero();
    void everyControlStandsInItsPlace_data();
    void everyControlStandsInItsPlace();
    void theAuthorsStripAloneLiesBelowTheEdge();
    void theHeadingIsBold();
    void aLongHeadingStaysOnOneLine();
    void theGroundsAreThoseOfToolTips();
    void thePictureBoxLiesBehindTheOthers();
    void theDealersLinesLieOverTheBody();
    void everyControlSpeaks_data();
    void everyControlSpeaks();
    void theFirstClickShowsItsStepOnce();
    void aClickBeforeAnyStepBeginsTheTour();
    void aMutedFirstClickIsSpentAllTheSame();
    void theRightButtonIsNoClick();
    void nextOfTheStripEndsTheTour();
    void closeShowsItsStep();
    void quitEndsTheProgramAtOnce();
    void quitIsReachedByTheEndOfTheTour();
    void theCloseBoxUnloadsTheConsole();
    void theConsoleComesBackWithTheDiagram();
    void theConsoleIsMinimisedWithTheFrame();
    void f6GoesToTheConsoleAndBack();
    void f6LeavesAHiddenConsoleAlone();
    void aStepDoesNotTakeTheFocusFromAPage();

private:
    frmDemo &console() const { return m_system->console(); }

    std::optional<RunningSystem> m_system;
};

void tst_Console::init()
{
    m_system.emplace();
}

void tst_Console::cleanup()
{
    m_system.reset();
}

void tst_Console::theWindowIsOfItsSizeAndStaysSo()
{
    QCOMPARE(console().Caption(), u"orvane Quillmark CD DEMO"_s);
    QCOMPARE(console().ScaleWidth(), 2955.0);
    QCOMPARE(console().ScaleHeight(), LowerEdge);
    QCOMPARE(console().shell().minimumSize(), QSize(197, 326));
    QCOMPARE(console().shell().maximumSize(), QSize(197, 326));
}

void tst_Console::theWindowFloatsAboveTheOthers()
{
    m_system->start();
    QVERIFY(console().shell().windowFlags() & Qt::WindowStaysOnTopHint);
    QVERIFY(console().shell().isWindow());
}

void tst_Console::theWindowStartsHiddenOnStepZero()
{
    QVERIFY(!console().Visible());
    QCOMPARE(console().Tag(), u"0"_s);
    QCOMPARE(console().Header.Text(), QString());
    QCOMPARE(console().rtf.Text(), QString());
    QCOMPARE(console().cmdGoNext.Tag(), QString());
    QCOMPARE(console().cmdGoBack.Tag(), QString());
}

void tst_Console::everyControlStandsInItsPlace_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QList<double>>("place"); // left, top, width, height
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("enabled");
    const auto row = [](const char *name, const char *caption, const QList<double> &place, bool visible = true,
                        bool enabled = true) {
        QTest::newRow(name) << QString::fromLatin1(caption) << place << visible << enabled;
    };
    row("Header", "", {0, 0, 2895, 375});
    row("rtf", "", {120, 420, 2655, 3735});
    row("txtInfo", "", {120, 1380, 2655, 1695}, false);
    row("pic", "", {0, 0, 2955, 4275});
    row("cmdGoBack", "Back", {60, 4440, 855, 375});
    row("cmdPrint", "Print", {1080, 4440, 855, 375}, false);
    row("cmdGoNext", "Next", {2040, 4440, 855, 375});
    row("cmdNext", "Next", {1080, 3240, 855, 255}, false);
    row("cmdClose", "Close", {1080, 3480, 855, 255}, false);
    row("cmdQuit", "Quit", {1920, 3960, 855, 255}, false);
    row("Label1", "Previous", {120, 5040, 1095, 255});
    row("txtPrev", "", {1440, 4920, 1455, 375}, true, false);
    row("Label3", "Current", {120, 5520, 975, 255});
    row("txtTag", "", {1440, 5400, 495, 375}, true, false);
    row("Label2", "Next", {120, 6000, 975, 255});
    row("txtNext", "", {1440, 5880, 1455, 375}, true, false);
    row("cmdSave", "Save", {2040, 6360, 855, 375});
}

void tst_Console::everyControlStandsInItsPlace()
{
    const Control *control = console().control(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(control);
    QTEST(control->Caption(), "caption");
    QTEST((QList<double>{control->Left(), control->Top(), control->Width(), control->Height()}), "place");
    QTEST(control->Visible(), "visible");
    QTEST(control->Enabled(), "enabled");
    const QRect pixels(toPixels(control->Left()), toPixels(control->Top()), toPixels(control->Width()),
                       toPixels(control->Height()));
    QCOMPARE(control->widget().geometry(), pixels);
}

void tst_Console::theAuthorsStripAloneLiesBelowTheEdge()
{
    QStringList below;
    for (const QObject *child : console().surface().children()) {
        const Control *control = console().control(child->objectName());
        if (control && control->Top() >= LowerEdge) below << control->Name();
        QVERIFY(!control || control->Top() >= LowerEdge || control->Top() + control->Height() <= LowerEdge);
    }
    below.sort();
    QCOMPARE(below.join(u' '), u"Label1 Label2 Label3 cmdSave txtNext txtPrev txtTag"_s);
}

void tst_Console::theHeadingIsBold()
{
    const QFont font = console().Header.widget().font();
    QVERIFY(font.bold());
    QCOMPARE(font.family(), u"MS Sans Serif"_s);
    QCOMPARE(font.pointSizeF(), 9.75);
    console().Header.setText(u"Heading"_s);
    const QTextDocument &text = *static_cast<QTextEdit &>(console().Header.widget()).document();
    QVERIFY(text.defaultFont().bold());
}

void tst_Console::aLongHeadingStaysOnOneLine()
{
    m_system->start();
    console().Header.setText(QString(40, u'a') + u' ' + QString(40, u'b'));
    const auto &edit = static_cast<QTextEdit &>(console().Header.widget());
    const QTextBlock line = edit.document()->firstBlock();
    QTRY_COMPARE(line.layout()->lineCount(), 1);
    QVERIFY(!edit.verticalScrollBar()->isVisible());
    QVERIFY(!edit.horizontalScrollBar()->isVisible());
}

void tst_Console::theGroundsAreThoseOfToolTips()
{
    const QPalette tips = QApplication::palette();
    const QColor ground = tips.color(QPalette::ToolTipBase);
    QCOMPARE(console().surface().palette().color(QPalette::Window), ground);
    QCOMPARE(console().pic.widget().palette().color(QPalette::Window), ground);
    QCOMPARE(console().txtInfo.widget().palette().color(QPalette::Base), ground);
    QCOMPARE(console().txtInfo.widget().palette().color(QPalette::Text), tips.color(QPalette::ToolTipText));
}

void tst_Console::thePictureBoxLiesBehindTheOthers()
{
    m_system->start();
    console().cmdQuit.setVisible(true);
    const std::array<const Control *, 5> others{&console().Header, &console().rtf, &console().cmdQuit,
                                                &console().cmdGoBack, &console().cmdGoNext};
    for (const Control *control : others) {
        QWidget *found = console().shell().childAt(control->widget().geometry().center());
        QCOMPARE(Control::of(found), control);
    }
    QCOMPARE(Control::of(console().shell().childAt(2, 200)), &console().pic);
}

void tst_Console::theDealersLinesLieOverTheBody()
{
    m_system->start();
    const QPoint middle = console().txtInfo.widget().geometry().center();
    QCOMPARE(Control::of(console().shell().childAt(middle)), &console().rtf);
    console().txtInfo.setVisible(true);
    QCOMPARE(Control::of(console().shell().childAt(middle)), &console().txtInfo);
}

void tst_Console::everyControlSpeaks_data()
{
    QTest::addColumn<QString>("spoken");
    const std::pair<const char *, const char *> names[] = {
        {"Header", "Heading of the step"},
        {"rtf", "Text of the step"},
        {"txtInfo", "Your dealer"},
        {"cmdGoBack", "Back"},
        {"cmdGoNext", "Next"},
        {"cmdQuit", "Quit"},
        {"cmdSave", "Save"},
        {"txtPrev", "Script of Back"},
        {"txtTag", "Tag of the step"},
        {"txtNext", "Script of Next"},
    };
    for (const auto &[name, spoken] : names)
        QTest::newRow(name) << QString::fromLatin1(spoken);
}

void tst_Console::everyControlSpeaks()
{
    const Control *control = console().control(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(control);
    QTEST(spokenName(*control), "spoken");
}

void tst_Console::theFirstClickShowsItsStepOnce()
{
    m_system->start();
    m_system->click(console().rtf);
    QCOMPARE(console().Tag(), u"102"_s);
    ShowTourStep(u"127"_s);
    m_system->click(console().rtf);
    QCOMPARE(console().Tag(), u"127"_s);
}

void tst_Console::aClickBeforeAnyStepBeginsTheTour()
{
    m_system->showSplash();
    m_system->host.advance(45000);
    QTRY_VERIFY(console().Visible());
    QCOMPARE(console().Tag(), u"0"_s);
    m_system->click(console().cmdGoNext);
    m_system->click(console().cmdGoBack);
    QCOMPARE(console().Tag(), u"0"_s);
    m_system->click(console().rtf);
    QCOMPARE(console().Tag(), u"102"_s);
    QCOMPARE(console().Header.Text(), u"Step 102"_s);
}

void tst_Console::aMutedFirstClickIsSpentAllTheSame()
{
    m_system->start();
    Shared().TourStepsMuted = True;
    m_system->click(console().rtf);
    Shared().TourStepsMuted = False;
    m_system->click(console().rtf);
    QCOMPARE(console().Tag(), u"101"_s);
}

void tst_Console::theRightButtonIsNoClick()
{
    m_system->start();
    QTest::mouseClick(&console().rtf.mouseTarget(), Qt::RightButton);
    QCOMPARE(console().Tag(), u"101"_s);
    m_system->click(console().rtf);
    QCOMPARE(console().Tag(), u"102"_s);
}

void tst_Console::nextOfTheStripEndsTheTour()
{
    m_system->start();
    pressHidden(console().cmdNext);
    QCOMPARE(console().Tag(), u"603"_s);
    QVERIFY(console().cmdQuit.Visible());
}

void tst_Console::closeShowsItsStep()
{
    m_system->start();
    pressHidden(console().cmdClose);
    QCOMPARE(console().Tag(), u"602"_s);
    QVERIFY(!console().cmdQuit.Visible());
}

void tst_Console::quitEndsTheProgramAtOnce()
{
    m_system->start();
    m_system->click(m_system->diagram().cmdImp(1));
    Form *guide = m_system->active();
    QCOMPARE(guide->Name(), u"frmIGSteps"_s);
    pressHidden(console().cmdNext);
    m_system->host.expectEnd(0);
    m_system->click(console().cmdQuit);
    QCOMPARE(m_system->host.exitCode(), std::optional(0));
    QCOMPARE(countWindows(u"frmDemo"_s), 0);
    for (const Form *other : std::array<const Form *, 3>{guide, &m_system->diagram(), &m_system->frame()})
        QVERIFY(other->Loaded() && other->Visible());
    QVERIFY(m_system->frame().mnuMain.Bands(u"mnuWindow"_s).Tools().contains(guide->Tag()));
}

void tst_Console::quitIsReachedByTheEndOfTheTour()
{
    m_system->start();
    QVERIFY(!m_system->frame().shell().close());
    QVERIFY(m_system->frame().Visible());
    QVERIFY(console().cmdQuit.Visible());
    m_system->host.expectEnd(0);
    m_system->click(console().cmdQuit);
    QVERIFY(m_system->host.messages().empty());
}

void tst_Console::theCloseBoxUnloadsTheConsole()
{
    m_system->start();
    console().shell().close();
    QCOMPARE(countWindows(u"frmDemo"_s), 0);
    QVERIFY(!m_system->host.exitCode());
    QVERIFY(m_system->frame().Visible());
}

void tst_Console::theConsoleComesBackWithTheDiagram()
{
    m_system->start();
    m_system->click(m_system->diagram().cmdImp(1));
    console().shell().close();
    m_system->clickTool(m_system->frame(), u"mnuMain"_s, u"mnuWindow"_s, u"Command Center"_s);
    QVERIFY(console().Visible());
    QCOMPARE(console().Tag(), u"0"_s);
    m_system->click(console().rtf);
    QCOMPARE(console().Tag(), u"102"_s);
}

void tst_Console::theConsoleIsMinimisedWithTheFrame()
{
    m_system->start();
    m_system->frame().setWindowState(Minimized);
    QTRY_COMPARE(console().WindowState(), int(Minimized));
    m_system->frame().setWindowState(Maximized);
    QTRY_COMPARE(console().WindowState(), int(Normal));
    m_system->frame().setWindowState(Normal);
    QCOMPARE(console().WindowState(), int(Normal));
}

void tst_Console::f6GoesToTheConsoleAndBack()
{
    m_system->start();
    m_system->frame().SetFocus();
    QTRY_VERIFY(m_system->frame().shell().isActiveWindow());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    QTRY_VERIFY(console().shell().isActiveWindow());
    m_system->click(console().rtf);
    QTRY_VERIFY(QApplication::focusWidget());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    QTRY_VERIFY(m_system->frame().shell().isActiveWindow());
    QCOMPARE(m_system->active(), &m_system->diagram());
}

void tst_Console::f6LeavesAHiddenConsoleAlone()
{
    m_system->start();
    console().setVisible(false);
    QTest::keyClick(&m_system->frame().shell(), Qt::Key_F6);
    QVERIFY(!console().Visible());
}

void tst_Console::aStepDoesNotTakeTheFocusFromAPage()
{
    m_system->start();
    const NamedWindow &page = NamedWindow::open(u"frmMPMain"_s);
    m_system->frame().SetFocus();
    QTRY_VERIFY(m_system->frame().shell().isActiveWindow());
    page.text.widget().setFocus();
    QTest::keyClicks(QApplication::focusWidget(), u"be"_s);
    ShowTourStep(u"127"_s);
    QCoreApplication::processEvents();
    QCOMPARE(console().Tag(), u"127"_s);
    QCOMPARE(QApplication::focusWidget(), &page.text.widget());
    QVERIFY(m_system->frame().shell().isActiveWindow());
    QTest::keyClicks(QApplication::focusWidget(), u"fore"_s);
    QCOMPARE(page.text.Text(), u"before"_s);
}

QTEST_MAIN(tst_Console)
#include "tst_Console.moc"
