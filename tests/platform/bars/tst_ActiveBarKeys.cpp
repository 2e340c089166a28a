#include "platform/bars/BarFixture.h"

#include "platform/controls/Palette.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace barfixture;

class tst_ActiveBarKeys : public QObject
{
    Q_OBJECT

private slots:
    void altAndTheAccessKeyPressOnce();
    void ofTwoEqualAccessKeysTheFirstCounts();
    void theMenuOfTheFrameKeepsItsAccessKeys();
    void tabReachesEveryButton();
    void aWindowOpensWithTheFocusBehindItsBars();
    void arrowsMoveFromButtonToButton();
    void spaceAndEnterPress_data();
    void spaceAndEnterPress();
    void theFocusCanBeSeen();
};

void tst_ActiveBarKeys::altAndTheAccessKeyPressOnce()
{
    BarWindow window;
    window.open();
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    QTest::keyClick(window.edit, Qt::Key_C, Qt::AltModifier);
    QCOMPARE(clicks.count(), 1);
    QVERIFY(window.edit->hasFocus());
}

void tst_ActiveBarKeys::ofTwoEqualAccessKeysTheFirstCounts()
{
    BarWindow window;
    window.open();
    window.bar->Tools(u"Mode"_s).setCaption(u"&Change"_s);
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(window.edit, Qt::Key_C, Qt::AltModifier);
    QCOMPARE(clicks.count(), 2);
    for (const auto &click : clicks)
        QCOMPARE(click.first().value<Tool *>()->Name(), u"Mode"_s);
    QCOMPARE(window.button(u"Close"_s)->text(), u"Close"_s);
}

void tst_ActiveBarKeys::theMenuOfTheFrameKeepsItsAccessKeys()
{
    BarFrame frame;
    BarChild child(frame);
    frame.Show();
    child.Show();
    QVERIFY(QTest::qWaitForWindowActive(&frame.shell()));
    child.edit->setFocus();
    QTRY_VERIFY(child.edit->hasFocus());
    QSignalSpy clicks(&child.bar, &ActiveBar::Click);
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(child.edit, Qt::Key_C, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QCOMPARE(QApplication::activePopupWidget()->objectName(), u"mnuCommand"_s);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTest::keyClick(&frame.shell(), Qt::Key_Escape);
        child.edit->setFocus();
    }
    QCOMPARE(clicks.count(), 0);
}

void tst_ActiveBarKeys::tabReachesEveryButton()
{
    BarWindow window;
    window.open();
    QStringList reached;
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached += QApplication::focusWidget()->objectName();
    }
    QCOMPARE(reached, (QStringList{u"Related"_s, u"Mode"_s, u"Pairs"_s, u"Close"_s, QString()}));
}

void tst_ActiveBarKeys::aWindowOpensWithTheFocusBehindItsBars()
{
    BarFrame frame;
    BarChild child(frame);
    frame.Show();
    child.Show();
    QVERIFY(QTest::qWaitForWindowActive(&frame.shell()));
    QTRY_VERIFY(child.edit->hasFocus());
}

void tst_ActiveBarKeys::arrowsMoveFromButtonToButton()
{
    BarWindow window;
    window.open();
    window.button(u"Mode"_s)->setFocus();
    QTest::keyClick(window.button(u"Mode"_s), Qt::Key_Right);
    QVERIFY(window.button(u"Pairs"_s)->hasFocus()); // past the one that is disabled
    QTest::keyClick(window.button(u"Pairs"_s), Qt::Key_Left);
    QVERIFY(window.button(u"Mode"_s)->hasFocus());
    QTest::keyClick(window.button(u"Mode"_s), Qt::Key_Left);
    QTest::keyClick(window.button(u"Related"_s), Qt::Key_Left);
    QVERIFY(window.button(u"Related"_s)->hasFocus());
}

void tst_ActiveBarKeys::spaceAndEnterPress_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Space") << Qt::Key_Space;
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

void tst_ActiveBarKeys::spaceAndEnterPress()
{
    QFETCH(Qt::Key, key);
    BarWindow window;
    window.open();
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    window.button(u"Mode"_s)->setFocus();
    QTest::keyClick(window.button(u"Mode"_s), key);
    QCOMPARE(clicks.count(), 1);
}

void tst_ActiveBarKeys::theFocusCanBeSeen()
{
    BarWindow window;
    window.open();
    QToolButton *mode = window.button(u"Mode"_s);
    const QPoint rim(mode->width() / 2, 1);
    QVERIFY(colourAt(*mode, rim) != palette::Teal);
    mode->setFocus();
    QCOMPARE(colourAt(*mode, rim), palette::Teal);
}

QTEST_MAIN(tst_ActiveBarKeys)
#include "tst_ActiveBarKeys.moc"
