// Bands dropped as menus by a call, at a place, at the mouse or at the focus.
#include "platform/bars/BarFixture.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace barfixture;

class tst_ActiveBarPopups : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void aPopupReturnsWhenItHasClosed();
    void aPopupClicksBeforeItReturns();
    void aPopupDropsAtItsPlace();
    void aPopupOpenedByAKeyDropsBelowTheFocus();
    void aPopupOpenedByTheMouseDropsAtTheMouse();
    void keysWalkThroughAPopup();
    void anEmptyBandPopsNothingUp();
    void aPopupSurvivesTheEndOfItsBar();
    void afterAPopupNothingIsDescribed();
    void anEntryIsDescribedWhileTheMouseIsOnIt();
};

void tst_ActiveBarPopups::cleanup()
{
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
}

void tst_ActiveBarPopups::aPopupReturnsWhenItHasClosed()
{
    BarWindow window;
    window.open();
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    bool wasOpen = false;
    onceAMenuIsOpen(window, [&](QMenu &menu) {
        wasOpen = menu.objectName() == u"subRelated"_s;
        QTest::keyClick(&menu, Qt::Key_Escape);
    });
    window.bar->Bands(u"subRelated"_s).PopupMenu(-1, -1);
    QVERIFY(wasOpen);
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(clicks.count(), 0);
}

void tst_ActiveBarPopups::aPopupClicksBeforeItReturns()
{
    BarWindow window;
    window.open();
    QStringList events;
    connect(window.bar.get(), &ActiveBar::Click, this, [&](const Tool *tool) {
        events += tool->Name();
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(window.edit->hasFocus());
    });
    onceAMenuIsOpen(window, [](QMenu &menu) { clickEntry(menu, u"mnuMP"_s); });
    window.bar->Bands(u"subRelated"_s).PopupMenu(-1, -1);
    events += u"returned"_s;
    QCOMPARE(events, (QStringList{u"mnuMP"_s, u"returned"_s}));
}

void tst_ActiveBarPopups::aPopupDropsAtItsPlace()
{
    BarWindow window;
    window.open();
    QPoint corner;
    onceAMenuIsOpen(window, [&](QMenu &menu) {
        corner = menu.pos();
        menu.close();
    });
    window.bar->Bands(u"subRelated"_s).PopupMenu(100 * TwipsPerPixel, 120 * TwipsPerPixel);
    QCOMPARE(corner, QPoint(100, 120));
}

void tst_ActiveBarPopups::aPopupOpenedByAKeyDropsBelowTheFocus()
{
    BarWindow window;
    window.open();
    QPoint corner;
    QString highlighted;
    onceAMenuIsOpen(window, [&](QMenu &menu) {
        corner = menu.pos();
        highlighted = menu.activeAction() ? menu.activeAction()->objectName() : QString();
        menu.close();
    });
    QTest::keyClick(window.edit, Qt::Key_A);
    window.bar->Bands(u"EMLink"_s).PopupMenu(-1, -1);
    QCOMPARE(corner, window.edit->mapToGlobal(QPoint(0, window.edit->height())));
    QCOMPARE(highlighted, u"btnEM"_s);
}

void tst_ActiveBarPopups::aPopupOpenedByTheMouseDropsAtTheMouse()
{
    BarWindow window;
    window.open();
    const QPoint mouse = window.shell().mapToGlobal(QPoint(300, 200));
    QCursor::setPos(mouse);
    QTest::mouseClick(window.edit, Qt::LeftButton);
    QPoint corner;
    bool anyHighlighted = true;
    onceAMenuIsOpen(window, [&](QMenu &menu) {
        corner = menu.pos();
        anyHighlighted = menu.activeAction();
        menu.close();
    });
    window.bar->Bands(u"EMLink"_s).PopupMenu(-1, -1);
    QCOMPARE(corner, QCursor::pos());
    QCOMPARE(corner, mouse);
    QVERIFY(!anyHighlighted);
}

void tst_ActiveBarPopups::keysWalkThroughAPopup()
{
    BarWindow window;
    window.open();
    QSignalSpy clicks(window.bar.get(), &ActiveBar::Click);
    onceAMenuIsOpen(window, [](QMenu &menu) {
        QTest::keyClick(&menu, Qt::Key_Right); // opens the sub-menu of the first entry that is enabled
        QWidget *subMenu = QApplication::activePopupWidget();
        QTest::keyClick(subMenu, Qt::Key_Down);
        QTest::keyClick(subMenu, Qt::Key_Return);
    });
    QTest::keyClick(window.edit, Qt::Key_A);
    window.bar->Bands(u"subRelated"_s).PopupMenu(-1, -1);
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks.first().first().value<Tool *>()->Caption(), u"Another Close"_s);
}

void tst_ActiveBarPopups::anEmptyBandPopsNothingUp()
{
    BarWindow window;
    window.open();
    window.bar->Bands(u"IGLink"_s).PopupMenu(-1, -1);
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(!window.shell().findChild<QMenu *>(u"IGLink"_s));
}

void tst_ActiveBarPopups::aPopupSurvivesTheEndOfItsBar()
{
    BarWindow window;
    window.open();
    onceAMenuIsOpen(window, [&](QMenu &) { window.bar.reset(); });
    window.bar->Bands(u"subRelated"_s).PopupMenu(-1, -1);
    QVERIFY(!window.bar);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_ActiveBarPopups::afterAPopupNothingIsDescribed()
{
    BarWindow window;
    window.open();
    QStringList told;
    connect(window.bar.get(), &ActiveBar::Hover, this, [&](const QString &text) { told += text; });
    onceAMenuIsOpen(window, [](QMenu &menu) {
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Escape);
    });
    QCursor::setPos(0, 0); // the mouse has no part in it
    window.bar->Bands(u"EMLink"_s).PopupMenu(300 * TwipsPerPixel, 300 * TwipsPerPixel);
    QCOMPARE(told, (QStringList{u"Section 4.4.7"_s, QString()}));
}

void tst_ActiveBarPopups::anEntryIsDescribedWhileTheMouseIsOnIt()
{
    BarWindow window;
    window.open();
    QStringList told;
    connect(window.bar.get(), &ActiveBar::Hover, this, [&](const QString &text) { told += text; });
    onceAMenuIsOpen(window, [&](QMenu &menu) {
        const QPoint onEntry = menu.actionGeometry(entry(menu, u"mnuMP"_s)).center();
        QTest::mouseMove(&menu, onEntry - QPoint(0, 1));
        QTest::mouseMove(&menu, onEntry);
        QTRY_COMPARE(told, QStringList{u"The procedures"_s});
        QTest::mouseMove(window.edit);
        QTRY_COMPARE(told.last(), QString());
        menu.close();
    });
    window.bar->Bands(u"subRelated"_s).PopupMenu(400 * TwipsPerPixel, 500 * TwipsPerPixel);
    QCOMPARE(told.size(), 2);
}

QTEST_MAIN(tst_ActiveBarPopups)
#include "tst_ActiveBarPopups.moc"
