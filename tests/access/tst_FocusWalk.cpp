// Everything by keyboard: Tab goes through each window and comes round, the focus is never lost, and what can be
// clicked can be reached.
#include "access/Scenes.h"

#include "documents/frmIGSteps.h"
#include "platform/forms/FocusRest.h"
#include "platform/forms/FormSurface.h"

#include <QAbstractButton>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QSet>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

// Where Tab goes round: a window, or the child in front of the frame.
QWidget *roundOf(QWidget *window)
{
    if (!qobject_cast<QMainWindow *>(window) || window->objectName() == u"helpWindow") return window;
    return &Default<mdiMain>().ActiveForm()->subWindow();
}

bool inSight(const QWidget &widget)
{
    const QWidget *window = widget.window();
    const QRect place(widget.mapTo(window, QPoint()), widget.size());
    return widget.isVisible() && window->rect().intersects(place);
}

// What Tab has to stop at.
QSet<QWidget *> stopsIn(const QWidget &round)
{
    QSet<QWidget *> stops;
    for (QWidget *widget : round.findChildren<QWidget *>()) {
        const bool takesTab = (widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
        if (!takesTab || !widget->isEnabled() || !inSight(*widget) || widget->focusProxy()) continue;
        if (!qobject_cast<FocusRest *>(widget)) stops << widget;
    }
    return stops;
}

// For the message where a walk goes wrong.
QString namesOf(const QSet<QWidget *> &widgets)
{
    QStringList names;
    for (const QWidget *widget : widgets)
        names << widget->objectName() + u' ' + QString::fromLatin1(widget->metaObject()->className());
    names.sort();
    return names.join(u", "_s);
}

// The stops that the key comes to, until it has come to all of them and round to the first. In a page of the help it
// goes from link to link.
QSet<QWidget *> walk(QWidget *window, Qt::KeyboardModifiers modifiers, const QSet<QWidget *> &stops)
{
    constexpr int MostSteps = 200;
    QSet<QWidget *> passed;
    const QWidget *first = nullptr;
    for (int i = 0; i < MostSteps && !(passed.contains(stops) && QApplication::focusWidget() == first); ++i) {
        QWidget *focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : window, modifiers ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
        focus = QApplication::focusWidget();
        if (!focus || !inSight(*focus)) return {};
        passed << focus;
        if (i == 0) first = focus;
    }
    return QApplication::focusWidget() == first ? passed : QSet<QWidget *>();
}

// What one of the two has and the other hasn't.
QString difference(const QSet<QWidget *> &passed, const QSet<QWidget *> &stops)
{
    QString told;
    if (passed != stops) told = u"missed: "_s + namesOf(stops - passed) + u"; besides: "_s + namesOf(passed - stops);
    return told;
}

QString focusIs()
{
    const QWidget *focus = QApplication::focusWidget();
    return focus && focus->isVisible() ? QString() : u"nothing has the focus"_s;
}

} // namespace

class tst_FocusWalk : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_stage = std::make_unique<Stage>(); }
    void cleanup() { m_stage.reset(); }

    void tabGoesRoundFromSomewhere_data() { addScenes(); }
    void tabGoesRoundFromSomewhere();
    void theFocusIsSomewhereAfterEachTool_data();
    void theFocusIsSomewhereAfterEachTool();
    void theFocusComesBackFromADialog_data();
    void theFocusComesBackFromADialog();
    void theFocusStaysAsTheTourGoesOn();
    void everyButtonCanBeReachedByKeys_data() { addScenes(); }
    void everyButtonCanBeReachedByKeys();
    void everyMenuOpensByItsLetter_data();
    void everyMenuOpensByItsLetter();
    void adviceIsGivenByEnter();

private:
    void pressBySpace(QAbstractButton &button) const;

    std::unique_ptr<Stage> m_stage;
};

// Both ways, with whatever is enabled by then: going through the fields of an own version counts as work on them.
void tst_FocusWalk::tabGoesRoundFromSomewhere()
{
    QWidget *window = openScene(*m_stage);
    QTRY_COMPARE(focusIs(), QString());
    QCOMPARE(QApplication::focusWidget()->window(), window);
    const QWidget &round = *roundOf(window);
    if (stopsIn(round).isEmpty()) return; // a window that only tells
    for (const auto modifiers : {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ShiftModifier)}) {
        const QSet<QWidget *> passed = walk(window, modifiers, stopsIn(round));
        const QString faults = difference(passed, stopsIn(round));
        QVERIFY2(faults.isEmpty(), qPrintable(faults));
    }
}

void tst_FocusWalk::theFocusIsSomewhereAfterEachTool_data()
{
    QTest::addColumn<int>("scene");
    QTest::addColumn<QString>("bar");
    for (int i = 0; i < std::ssize(windowScenes()); ++i) {
        const QByteArray name = windowScenes()[static_cast<size_t>(i)].name;
        for (const char *scene : {"implementation", "manual", "own manual", "procedure", "own procedure"})
            if (name == scene) {
                QTest::addRow("%s, above", name.constData()) << i << u"mnuNav"_s;
                QTest::addRow("%s, below", name.constData()) << i << u"mnuLinks"_s;
            }
        if (name == "action tool" || name == "record")
            QTest::addRow("%s, below", name.constData()) << i << u"mnuLinks"_s;
        if (name == "print preview") QTest::addRow("preview") << i << u"mnuPrintPreview"_s;
    }
}

// The notice comes up inside the press of a tool that has no live example, and goes when its time is over.
void tst_FocusWalk::pressBySpace(QAbstractButton &button) const
{
    QTimer clock;
    connect(&clock, &QTimer::timeout, &clock, [this] {
        if (countWindows(u"frmError"_s) > 0) m_stage->system.host.advance(2000);
    });
    clock.start(1);
    QTest::keyClick(&button, Qt::Key_Space);
}

// By Space on the button, as without a mouse. Dialogs and flyouts are looked at elsewhere.
void tst_FocusWalk::theFocusIsSomewhereAfterEachTool()
{
    QFETCH(QString, bar);
    openScene(*m_stage);
    const QStringList apart{u"RelatedTopics"_s, u"Print"_s, u"print"_s, u"pagesetup"_s};
    const int count = barOf(*m_stage->system.active(), bar).Bands(0).Tools().Count();
    for (int i = 0; i < count; ++i) {
        const ActiveBar &live = barOf(*m_stage->system.active(), bar);
        const QString name = live.Bands(0).Tools(i).Name();
        auto *button = live.widget().findChild<QAbstractButton *>(name);
        if (apart.contains(name) || !button || !button->isEnabled() || !button->isVisible()) continue;
        button->setFocus();
        pressBySpace(*button);
        scenes::frame(*m_stage)->activateWindow(); // as the window manager does when the notice goes
        QTRY_COMPARE(focusIs(), QString());
        if (name.toLower() == u"close") break;
    }
}

void tst_FocusWalk::theFocusComesBackFromADialog_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("dialog");
    QTest::newRow("properties") << u"mnuTools"_s << u"properties"_s << u"frmProperties"_s;
    QTest::newRow("about") << u"mnuHelp"_s << u"miHAbout"_s << u"frmAbout"_s;
}

void tst_FocusWalk::theFocusComesBackFromADialog()
{
    QFETCH(QString, menu);
    QFETCH(QString, tool);
    QFETCH(QString, dialog);
    m_stage->system.start();
    QWidget *frame = scenes::manual(*m_stage);
    frame->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(frame));
    QWidget *before = QApplication::focusWidget();
    QTimer watch; // a modal dialog runs its loop inside the step
    connect(&watch, &QTimer::timeout, &watch, [&] {
        QWidget *active = QApplication::activeWindow();
        if (!active || active->objectName() != dialog) return;
        watch.stop();
        QTest::keyClick(active, Qt::Key_Escape);
    });
    watch.start(1);
    ActiveBar &bar = m_stage->system.frame().mnuMain;
    bar.press(bar.Bands(menu).Tools(tool));
    QTRY_VERIFY(!watch.isActive());
    frame->activateWindow(); // as the window manager does
    QTRY_COMPARE(QApplication::focusWidget(), before);
}

void tst_FocusWalk::theFocusStaysAsTheTourGoesOn()
{
    m_stage->system.start();
    QWidget &console = m_stage->system.console().shell();
    console.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&console));
    QWidget &next = m_stage->system.console().cmdGoNext.widget();
    next.setFocus();
    for (int i = 0; i < 12; ++i) {
        QTest::keyClick(&next, Qt::Key_Space);
        QTRY_COMPARE(focusIs(), QString());
        console.activateWindow();
        QTRY_COMPARE(QApplication::focusWidget(), &next);
    }
}

void tst_FocusWalk::everyButtonCanBeReachedByKeys()
{
    for (const auto *button : openScene(*m_stage)->findChildren<const QAbstractButton *>()) {
        if (!inSight(*button) || !button->isEnabled() || button->focusProxy()) continue;
        const bool byTab = (button->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
        QVERIFY2(byTab || !button->shortcut().isEmpty(), qPrintable(button->objectName()));
    }
}

void tst_FocusWalk::everyMenuOpensByItsLetter_data()
{
    QTest::addColumn<Qt::Key>("letter");
    QTest::addColumn<QString>("menu");
    QTest::newRow("File") << Qt::Key_F << u"mnuFile"_s;
    QTest::newRow("Edit") << Qt::Key_E << u"mnuEdit"_s;
    QTest::newRow("Command") << Qt::Key_C << u"mnuCommand"_s;
    QTest::newRow("Tools") << Qt::Key_T << u"mnuTools"_s;
    QTest::newRow("Window") << Qt::Key_W << u"mnuWindow"_s;
    QTest::newRow("Help") << Qt::Key_H << u"mnuHelp"_s;
}

void tst_FocusWalk::everyMenuOpensByItsLetter()
{
    QFETCH(Qt::Key, letter);
    QFETCH(QString, menu);
    m_stage->system.start();
    QWidget *frame = scenes::frame(*m_stage);
    frame->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(frame));
    QWidget *before = QApplication::focusWidget();
    QTest::keyClick(QApplication::focusWidget(), letter, Qt::AltModifier);
    QTRY_VERIFY(QApplication::activePopupWidget());
    QCOMPARE(QApplication::activePopupWidget()->objectName(), menu);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QTest::keyClick(static_cast<QMainWindow *>(frame)->menuBar(), Qt::Key_Escape);
    QTRY_COMPARE(QApplication::focusWidget(), before);
}

void tst_FocusWalk::adviceIsGivenByEnter()
{
    m_stage->system.start();
    QWidget *frame = scenes::step(*m_stage, u"Implementation"_s);
    frame->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(frame));
    auto &guide = static_cast<frmIGSteps &>(*m_stage->system.active());
    guide.rtfData.setSelStart(static_cast<int>(guide.rtfData.Text().indexOf(u"3.\t"_s)));
    guide.rtfData.SetFocus();
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(&guide.rtfData.widget(), Qt::Key_Right);
    QTest::keyClick(&guide.rtfData.widget(), Qt::Key_Return);
    QCOMPARE(guide.ssPanel.Caption(), u"Design"_s);
    QVERIFY(guide.rtfTips.Text().startsWith(u"3.\tDocument"_s));
    QCOMPARE(QApplication::focusWidget(), &guide.rtfData.widget());
}

QTEST_MAIN(tst_FocusWalk)
#include "tst_FocusWalk.moc"
