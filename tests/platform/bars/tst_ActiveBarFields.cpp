#include "platform/bars/BarFixture.h"

#include <QComboBox>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace barfixture;

class tst_ActiveBarFields : public QObject
{
    Q_OBJECT

private slots:
    void whatIsTypedStandsInTheTool();
    void enterInAFieldIsAKeyAndAClick();
    void aPickedEntryStandsInTheToolBeforeItsClick();
    void enterInAFieldIsNotForTheWindow();
    void whatIsTypedIsNotCompleted();
    void aFieldMayBeRemovedInItsOwnClick();
    void typingAnEntryIsNoPick();
    void theFieldFollowsTheTool();
    void aFieldSpeaksItsCaption();
    void aFieldThatFindsNoRoomStandsInTheMenuOfTheRest();
};

void tst_ActiveBarFields::whatIsTypedStandsInTheTool()
{
    BarWindow window(PreviewBands);
    window.open();
    auto *field = window.shell().findChild<QLineEdit *>(u"PageNumber"_s);
    QCOMPARE(field->width(), 30);
    field->setFocus();
    QTest::keyClicks(field, u"12"_s);
    QCOMPARE(window.bar->Tools(u"PageNumber"_s).Text(), u"12"_s);
}

void tst_ActiveBarFields::enterInAFieldIsAKeyAndAClick()
{
    BarWindow window(PreviewBands);
    window.open();
    QStringList events;
    connect(window.bar.get(), &ActiveBar::KeyPress, this, [&](const Tool *tool, int keyAscii) {
        events += u"%1 %2 %3"_s.arg(tool->Name()).arg(keyAscii).arg(tool->Text());
    });
    connect(window.bar.get(), &ActiveBar::Click, this, [&](const Tool *tool) { events += tool->Name(); });
    auto *field = window.shell().findChild<QLineEdit *>(u"PageNumber"_s);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_7);
    QTest::keyClick(field, Qt::Key_Return);
    auto *zoom = window.shell().findChild<QComboBox *>(u"miZoom"_s);
    zoom->setFocus();
    QTest::keyClick(zoom, Qt::Key_Enter);
    QCOMPARE(events,
             (QStringList{u"PageNumber 55 "_s, u"PageNumber 13 7"_s, u"PageNumber"_s, u"miZoom 13 "_s, u"miZoom"_s}));
}

void tst_ActiveBarFields::aPickedEntryStandsInTheToolBeforeItsClick()
{
    BarWindow window(PreviewBands);
    window.bar->Tools(u"miZoom"_s).setList({u"200%"_s, u"75%"_s, u"Whole Page"_s});
    window.open();
    QStringList events;
    connect(window.bar.get(), &ActiveBar::ComboSelChange, this,
            [&](const Tool *tool) { events += u"%1 %2"_s.arg(tool->Text()).arg(tool->ListIndex()); });
    connect(window.bar.get(), &ActiveBar::Click, this, [&](const Tool *tool) { events += tool->Name(); });
    auto *zoom = window.shell().findChild<QComboBox *>(u"miZoom"_s);
    zoom->setFocus();
    QTest::keyClick(zoom, Qt::Key_Down);
    QTest::keyClick(zoom, Qt::Key_Down);
    QCOMPARE(events, (QStringList{u"200% 0"_s, u"miZoom"_s, u"75% 1"_s, u"miZoom"_s}));
}

void tst_ActiveBarFields::enterInAFieldIsNotForTheWindow()
{
    BarWindow window(PreviewBands);
    window.open();
    auto *field = window.shell().findChild<QLineEdit *>(u"PageNumber"_s);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Return);
    QTest::keyClick(field, Qt::Key_Escape);
    QCOMPARE(window.keys, QList<int>{27});
}

void tst_ActiveBarFields::whatIsTypedIsNotCompleted()
{
    BarWindow window(PreviewBands);
    window.bar->Tools(u"miZoom"_s).setList({u"200%"_s, u"75%"_s});
    window.open();
    auto *zoom = window.shell().findChild<QComboBox *>(u"miZoom"_s);
    zoom->setFocus();
    QTest::keyClicks(zoom, u"7"_s);
    QCOMPARE(zoom->currentText(), u"7"_s);
    QCOMPARE(window.bar->Tools(u"miZoom"_s).Text(), u"7"_s);
}

void tst_ActiveBarFields::aFieldMayBeRemovedInItsOwnClick()
{
    BarWindow window(PreviewBands);
    window.open();
    connect(window.bar.get(), &ActiveBar::Click, this, [&] { window.bar->Bands(0).Tools().Remove(1); });
    auto *field = window.shell().findChild<QLineEdit *>(u"PageNumber"_s);
    field->setFocus();
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(!window.shell().findChild<QLineEdit *>(u"PageNumber"_s));
}

void tst_ActiveBarFields::typingAnEntryIsNoPick()
{
    BarWindow window(PreviewBands);
    window.bar->Tools(u"miZoom"_s).setList({u"200%"_s, u"75%"_s});
    window.open();
    QSignalSpy picks(window.bar.get(), &ActiveBar::ComboSelChange);
    auto *zoom = window.shell().findChild<QComboBox *>(u"miZoom"_s);
    zoom->setFocus();
    QTest::keyClicks(zoom, u"75%"_s);
    QCOMPARE(window.bar->Tools(u"miZoom"_s).ListIndex(), 1);
    QTest::keyClick(zoom, Qt::Key_Return);
    window.edit->setFocus();
    QCOMPARE(picks.count(), 0);
}

void tst_ActiveBarFields::theFieldFollowsTheTool()
{
    BarWindow window(PreviewBands);
    window.open();
    Tool &zoom = window.bar->Tools(u"miZoom"_s);
    zoom.setList({u"200%"_s, u"75%"_s, u"Page Width"_s});
    auto *box = window.shell().findChild<QComboBox *>(u"miZoom"_s);
    zoom.setListIndex(2);
    QCOMPARE(box->currentText(), u"Page Width"_s);
    zoom.setText(u"68%"_s);
    QCOMPARE(box->currentText(), u"68%"_s);
    QCOMPARE(box->count(), 3);
    QCOMPARE(box->maxVisibleItems(), 3);
    window.bar->Tools(u"PageNumber"_s).setText(u"4"_s);
    QCOMPARE(window.shell().findChild<QLineEdit *>(u"PageNumber"_s)->text(), u"4"_s);
}

void tst_ActiveBarFields::aFieldSpeaksItsCaption()
{
    BarWindow window(PreviewBands);
    window.open();
    auto *zoom = window.shell().findChild<QComboBox *>(u"miZoom"_s);
    QCOMPARE(zoom->accessibleName(), u"Zoom"_s);
    QCOMPARE(window.shell().findChild<QLineEdit *>(u"PageNumber"_s)->accessibleName(), u"Page Number"_s);
    QTest::keyClick(window.edit, Qt::Key_Z, Qt::AltModifier);
    QTRY_VERIFY(zoom->hasFocus());
}

void tst_ActiveBarFields::aFieldThatFindsNoRoomStandsInTheMenuOfTheRest()
{
    BarWindow window(PreviewBands);
    window.open();
    window.bar->Tools(u"PageNumber"_s).setText(u"3"_s);
    window.bar->setWidth(toTwips(60));
    QSignalSpy keys(window.bar.get(), &ActiveBar::KeyPress);
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    QString shown;
    onceAMenuIsOpen(window, [&](QMenu &menu) {
        auto *field = menu.findChild<QLineEdit *>(u"PageNumber"_s);
        shown = field->text();
        field->selectAll();
        QTest::keyClicks(field, u"7"_s);
        window.bar->Tools(u"PageNumber"_s).setToolTipText(u"Goes there"_s);
        QTest::keyClick(field, Qt::Key_Return);
    });
    QTest::mousePress(window.button(u"more"_s), Qt::LeftButton);
    QCOMPARE(shown, u"3"_s);
    QCOMPARE(window.bar->Tools(u"PageNumber"_s).Text(), u"7"_s);
    QCOMPARE(keys.count(), 2);
    QCOMPARE(clicks.count(), 1);
}

QTEST_MAIN(tst_ActiveBarFields)
#include "tst_ActiveBarFields.moc"
