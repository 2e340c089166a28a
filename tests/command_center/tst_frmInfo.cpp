// The intro: its places, the ways that lead out of it, and what each of them brings up in which order.
#include "command_center/OrderLog.h"
#include "platform/controls/Palette.h"
#include "support/ReportedTags.h"
#include "support/RunningSystem.h"
#include "tour/DealerText.h"

#include <QImage>
#include <QTest>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
frmInfo &intro()
{
    return Default<frmInfo>();
}

bool introIsUp()
{
    return countWindows(u"frmInfo"_s) == 1 && intro().Visible();
}

bool shows(const QImage &drawing, const QRect &room, const QColor &colour)
{
    const auto near = [](int a, int b) { return std::abs(a - b) < 24; };
    for (int y = room.top(); y <= room.bottom(); ++y)
        for (int x = room.left(); x <= room.right(); ++x) {
            const QColor shown = drawing.pixelColor(x, y);
            if (near(shown.red(), colour.red()) && near(shown.green(), colour.green()) &&
                near(shown.blue(), colour.blue()))
                return true;
        }
    return false;
}

QRectF placeOf(const Control &control)
{
    return {control.Left(), control.Top(), control.Width(), control.Height()};
}
} // namespace

class tst_frmInfo : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theWindowAndItsControlsHaveTheirPlaces();
    void theWindowHasNoTitle();
    void thePictureFillsTheWindowAndShowsTheDotUnderTheButton();
    void theWordsStandInThePicture_data();
    void theWordsStandInThePicture();
    void loadHidesTheConsoleAndStartsTheTimer();

    void theUserLeavesItInThisOrder_data();
    void theUserLeavesItInThisOrder();
    void leftAloneItGoesInThisOrder();
    void theUserIsShownTheFirstStepOnce();
    void leftAloneNoStepIsShownAndNoDealerTextRead();
    void otherKeysDoNothing_data();
    void otherKeysDoNothing();
    void otherMouseButtonsDoNothing();
    void aMouseThatIsDrawnOffTheButtonDoesNothing();
    void theUserCannotCloseIt();

    void theConsoleStandsInThePanelsCorner_data();
    void theConsoleStandsInThePanelsCorner();
    void itsTimerTicksAfter45SecondsAndNotBefore();
    void unloadStopsTheTimer_data();
    void unloadStopsTheTimer();
    void itIsShownOnce_data();
    void itIsShownOnce();
    void aMissingDealerFileEndsTheProgram();

private:
    frmDemo &console() const { return m_system->console(); }
    frmCommandCentre &diagram() const { return m_system->diagram(); }
    static void addWaysOut();
    void leaveBy(const QString &way);
    void watchTheWayOut(OrderLog &log) const;

    std::optional<RunningSystem> m_system;
};

void tst_frmInfo::init()
{
    m_system.emplace();
}

void tst_frmInfo::cleanup()
{
    m_system.reset();
}

void tst_frmInfo::addWaysOut()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"Enter", "Enter of the number pad", "the picture", "the red dot"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_frmInfo::leaveBy(const QString &way)
{
    if (way == u"Enter") return QTest::keyClick(&intro().shell(), Qt::Key_Return);
    if (way == u"Enter of the number pad") return QTest::keyClick(&intro().shell(), Qt::Key_Enter, Qt::KeypadModifier);
    if (way == u"the picture") return m_system->clickAt(intro().Image1, 1500, 3000);
    if (way == u"the red dot") return m_system->clickAt(intro().lblBtn, 1050, 248);
    m_system->host.advance(45000);
}

void tst_frmInfo::watchTheWayOut(OrderLog &log) const
{
    const SSPanel &panel = diagram().pnlDiag(1);
    log.lookAt(console().txtInfo, &TextBox::Change);
    log.lookAt(console().rtf, &RichTextBox::Change);
    log.watch(u"frame"_s, [this] { return m_system->frame().Visible(); });
    log.watch(u"diagram"_s, [this] { return diagram().Visible(); });
    log.watch(u"console"_s, [this] { return console().Visible(); });
    log.watch(u"dealer text"_s, [this] { return console().txtInfo.Text().startsWith(u"Dealer"); });
    log.watch(u"step"_s, [this] { return console().Tag() == u"101"; });
    log.watch(u"top"_s, [&] { return console().Top() == panel.Top() + 900; });
    log.watch(u"left"_s, [&] { return console().Left() == panel.Width() - 300 - console().Width() + panel.Left(); });
    log.watch(u"intro gone"_s, [] { return countWindows(u"frmInfo"_s) == 0; });
}

void tst_frmInfo::theWindowAndItsControlsHaveTheirPlaces()
{
    QCOMPARE(intro().ScaleWidth(), 9315.0);
    QCOMPARE(intro().ScaleHeight(), 6990.0);
    QCOMPARE(placeOf(intro().Image1), QRectF(0, 0, 9315, 6990));
    QCOMPARE(placeOf(intro().lblBtn), QRectF(3600, 5760, 1815, 495));
    QCOMPARE(intro().lblBtn.Caption(), u""_s);
    QCOMPARE(intro().Timer1.Interval(), 45000);
}

void tst_frmInfo::theWindowHasNoTitle()
{
    m_system->showSplash();
    QCOMPARE(intro().Caption(), u""_s);
    QVERIFY(intro().shell().windowFlags().testFlag(Qt::FramelessWindowHint));
}

void tst_frmInfo::thePictureFillsTheWindowAndShowsTheDotUnderTheButton()
{
    m_system->showSplash();
    const QImage drawing = intro().Image1.widget().grab().toImage();
    QVERIFY(drawing.pixelColor(2, 2) != drawing.pixelColor(2, drawing.height() - 3)); // sky and ground
    const QColor dot = drawing.pixelColor(intro().lblBtn.widget().geometry().center() + QPoint(8, 0));
    QVERIFY2(dot.red() > 150 && dot.green() < 100 && dot.blue() < 100, qPrintable(dot.name()));
    QCOMPARE(intro().shell().childAt(intro().lblBtn.widget().geometry().center()), &intro().lblBtn.widget());
}

void tst_frmInfo::theWordsStandInThePicture_data()
{
    QTest::addColumn<QRect>("room");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("what it is") << QRect(300, 29, 292, 12) << QColor(palette::GreyText);
    QTest::newRow("Command Center") << QRect(265, 221, 90, 36) << QColor(palette::Paper);
    QTest::newRow("Implementation Guide") << QRect(245, 128, 130, 13) << QColor(palette::Ink);
    QTest::newRow("Environment Manual") << QRect(450, 200, 120, 13) << QColor(palette::Ink);
    QTest::newRow("Management Procedures") << QRect(405, 344, 155, 13) << QColor(palette::Ink);
    QTest::newRow("Action Tools") << QRect(101, 344, 74, 10) << QColor(palette::Ink);
    QTest::newRow("Records") << QRect(86, 200, 48, 10) << QColor(palette::Ink);
    QTest::newRow("the way on") << QRect(235, 427, 150, 13) << QColor(palette::Ink);
}

// Outermost letters reach the room's ends, and nothing of that colour stands right beside it.
void tst_frmInfo::theWordsStandInThePicture()
{
    QFETCH(QRect, room);
    QFETCH(QColor, colour);
    m_system->showSplash();
    const QImage drawing = intro().Image1.widget().grab().toImage();
    const int slack = room.width() / 8;
    QVERIFY(shows(drawing, QRect(room.left(), room.top(), slack, room.height()), colour));
    QVERIFY(shows(drawing, QRect(room.right() - slack, room.top(), slack, room.height()), colour));
    QVERIFY(!shows(drawing, QRect(room.left() - 8, room.top(), 6, room.height()), colour));
    QVERIFY(!shows(drawing, QRect(room.right() + 4, room.top(), 6, room.height()), colour));
}

void tst_frmInfo::loadHidesTheConsoleAndStartsTheTimer()
{
    console().setVisible(true);
    QCOMPARE(m_system->host.runningTimers(), 0);
    intro();
    QVERIFY(!console().Visible());
    QVERIFY(intro().Timer1.Enabled());
    QCOMPARE(m_system->host.runningTimers(), 1);
}

void tst_frmInfo::theUserLeavesItInThisOrder_data()
{
    addWaysOut();
}

void tst_frmInfo::theUserLeavesItInThisOrder()
{
    QFETCH(QString, way);
    m_system->host.writeFile(u"DealerData.dat"_s, ScrambleDealerData(u"Dealer"_s));
    m_system->showSplash();
    OrderLog log;
    watchTheWayOut(log);
    QCOMPARE(log.order(), QStringList());
    leaveBy(way);
    QCOMPARE(log.order(), (QStringList{u"frame"_s, u"diagram"_s, u"console"_s, u"dealer text"_s, u"step"_s, u"top"_s,
                                       u"left"_s, u"intro gone"_s}));
    QVERIFY(Shared().DealerTextPresent == True);
}

void tst_frmInfo::leftAloneItGoesInThisOrder()
{
    m_system->showSplash();
    OrderLog log;
    watchTheWayOut(log);
    m_system->host.advance(45000);
    QCOMPARE(log.order(), (QStringList{u"frame"_s, u"diagram"_s, u"console"_s, u"top"_s, u"left"_s, u"intro gone"_s}));
}

void tst_frmInfo::theUserIsShownTheFirstStepOnce()
{
    m_system->showSplash();
    const ReportedTags reported(console());
    m_system->leaveIntro();
    QCOMPARE(reported.tags(), QStringList{u"101"_s});
}

void tst_frmInfo::leftAloneNoStepIsShownAndNoDealerTextRead()
{
    m_system->host.writeFile(u"DealerData.dat"_s, ScrambleDealerData(u"Dealer"_s));
    m_system->showSplash();
    const ReportedTags reported(console());
    m_system->host.advance(45000);
    QVERIFY(console().Visible());
    QCOMPARE(reported.tags(), QStringList());
    QCOMPARE(console().Tag(), u"0"_s);
    QCOMPARE(console().Header.Text() + console().rtf.Text() + console().txtInfo.Text(), u""_s);
    QVERIFY(Shared().DealerTextPresent == False);
}

void tst_frmInfo::otherKeysDoNothing_data()
{
    QTest::addColumn<Qt::Key>("key");
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Space, Qt::Key_Tab, Qt::Key_A, Qt::Key_M, Qt::Key_1, Qt::Key_F1,
                              Qt::Key_Down, Qt::Key_Backspace})
        QTest::newRow(qPrintable(QKeySequence(key).toString())) << key;
}

void tst_frmInfo::otherKeysDoNothing()
{
    QFETCH(Qt::Key, key);
    m_system->showSplash();
    QTest::keyClick(&intro().shell(), key);
    QVERIFY(introIsUp());
    QVERIFY(!m_system->frame().Visible());
    QVERIFY(!console().Visible());
    QVERIFY(intro().Timer1.Enabled());
}

void tst_frmInfo::otherMouseButtonsDoNothing()
{
    m_system->showSplash();
    for (QWidget *target : {&intro().Image1.widget(), &intro().lblBtn.widget()})
        QTest::mouseClick(target, Qt::RightButton);
    QVERIFY(introIsUp());
}

// On the picture it would be released on the picture, so the button's foot is drawn off the window.
void tst_frmInfo::aMouseThatIsDrawnOffTheButtonDoesNothing()
{
    m_system->showSplash();
    QWidget &button = intro().lblBtn.widget();
    QTest::mousePress(&button, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(5, button.height() + 40));
    QVERIFY(introIsUp());
}

// As by Alt+F4 or from a list of windows. It would take the way into the system with it.
void tst_frmInfo::theUserCannotCloseIt()
{
    m_system->showSplash();
    QVERIFY(!intro().shell().close());
    QVERIFY(introIsUp());
    QVERIFY(intro().Timer1.Enabled());
    QVERIFY(!m_system->frame().Visible());
    m_system->host.advance(45000);
    QCOMPARE(countWindows(u"frmInfo"_s), 0);
    QVERIFY(m_system->frame().Visible());
    QVERIFY(console().Visible());
}

void tst_frmInfo::theConsoleStandsInThePanelsCorner_data()
{
    addWaysOut();
    QTest::newRow("by itself") << u"by itself"_s;
}

void tst_frmInfo::theConsoleStandsInThePanelsCorner()
{
    QFETCH(QString, way);
    m_system->showSplash();
    leaveBy(way);
    const double panelWidth = diagram().ScaleWidth() - 480;
    QCOMPARE(diagram().pnlDiag(1).Width(), panelWidth);
    QCOMPARE(console().Top(), 2940.0);
    QCOMPARE(console().Left(), panelWidth - 300 - console().Width() + 240);
    QCOMPARE(console().shell().y(), 196);
}

void tst_frmInfo::itsTimerTicksAfter45SecondsAndNotBefore()
{
    m_system->showSplash();
    m_system->host.advance(44999);
    QVERIFY(introIsUp());
    QVERIFY(!m_system->frame().Visible());
    m_system->host.advance(1);
    QCOMPARE(countWindows(u"frmInfo"_s), 0);
    QVERIFY(m_system->frame().Visible());
}

void tst_frmInfo::unloadStopsTheTimer_data()
{
    theConsoleStandsInThePanelsCorner_data();
}

void tst_frmInfo::unloadStopsTheTimer()
{
    QFETCH(QString, way);
    m_system->showSplash();
    QCOMPARE(m_system->host.runningTimers(), 1);
    leaveBy(way);
    QCOMPARE(m_system->host.runningTimers(), 0);
    console().setTop(1500);
    m_system->host.advance(45000);
    QCOMPARE(console().Top(), 1500.0); // nothing places it again
}

void tst_frmInfo::itIsShownOnce_data()
{
    theConsoleStandsInThePanelsCorner_data();
}

void tst_frmInfo::itIsShownOnce()
{
    QFETCH(QString, way);
    m_system->showSplash();
    leaveBy(way);
    QTest::keyClick(&m_system->frame().shell(), Qt::Key_Return);
    diagram().Hide();
    diagram().Show();
    QCOMPARE(countWindows(u"frmInfo"_s), 0);
    QCOMPARE(m_system->active(), &diagram());
}

void tst_frmInfo::aMissingDealerFileEndsTheProgram()
{
    m_system->host.removeFile(u"DealerData.dat"_s);
    m_system->showSplash();
    m_system->host.expectAnyMessage();
    m_system->host.expectEnd(1);
    m_system->leaveIntro();
    QVERIFY(m_system->host.messages().at(0).text.startsWith(u"Error 53"));
    QCOMPARE(m_system->host.exitCode(), 1);
}

QTEST_MAIN(tst_frmInfo)
#include "tst_frmInfo.moc"
