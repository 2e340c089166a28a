// What a screen reader is told of each window: who is there, what it is called, in which state, in which order.
#include "access/Scenes.h"

#include "platform/controls/pictures/PictureView.h"
#include "platform/spoken/ReadingOrder.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QMdiSubWindow>
#include <QSignalSpy>
#include <QTextEdit>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

using Interfaces = QList<QAccessibleInterface *>;

void collect(QAccessibleInterface *spoken, Interfaces &found)
{
    if (!spoken || spoken->state().invisible) return;
    found << spoken;
    for (int i = 0; i < spoken->childCount(); ++i)
        collect(spoken->child(i), found);
}

Interfaces allIn(QWidget *window)
{
    Interfaces found;
    collect(QAccessible::queryAccessibleInterface(window), found);
    return found;
}

QString told(const QAccessibleInterface &spoken)
{
    const QString object = spoken.object() ? spoken.object()->objectName() : QString();
    return u"role %1, name \"%2\", object %3"_s.arg(spoken.role()).arg(spoken.text(QAccessible::Name), object);
}

bool canBeWorked(QAccessibleInterface &spoken)
{
    return spoken.state().focusable || (spoken.actionInterface() && !spoken.actionInterface()->actionNames().isEmpty());
}

QStringList stateFaults(const QAccessible::State &state, const QWidget &widget)
{
    QStringList faults;
    const bool isChild = qobject_cast<const QMdiSubWindow *>(&widget); // the toolkit calls the one in front focused
    if (state.disabled == widget.isEnabled()) faults << u"enabled"_s;
    if (!isChild && !widget.focusProxy() && state.focused != widget.hasFocus()) faults << u"focused"_s;
    if (widget.isEnabled() && state.focusable != (widget.focusPolicy() != Qt::NoFocus)) faults << u"focusable"_s;
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    if (button && state.checkable != button->isCheckable()) faults << u"checkable"_s;
    if (button && state.checked != button->isChecked()) faults << u"checked"_s;
    const auto *text = qobject_cast<const QTextEdit *>(&widget);
    if (text && state.readOnly != text->isReadOnly()) faults << u"read-only"_s;
    return faults;
}

QStringList faultsOf(QAccessibleInterface &spoken)
{
    QStringList faults;
    if (spoken.role() == QAccessible::NoRole) faults << u"no role"_s;
    if (canBeWorked(spoken) && spoken.text(QAccessible::Name).trimmed().isEmpty()) faults << u"no name"_s;
    const auto *widget = qobject_cast<const QWidget *>(spoken.object());
    if (widget) faults << stateFaults(spoken.state(), *widget);
    const bool takesFocus = widget && widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy();
    if (takesFocus && widget->objectName().isEmpty()) faults << u"not in the catalogue"_s;
    return faults.isEmpty() ? faults : QStringList{told(spoken) + u": "_s + faults.join(u", "_s)};
}

// Without a text it may only be a ground for other controls.
QStringList faultsOf(const PictureView &picture)
{
    const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(const_cast<PictureView *>(&picture));
    const bool hasText = spoken->role() == QAccessible::Graphic && !spoken->text(QAccessible::Name).isEmpty();
    if (hasText || spoken->childCount() > 0 || !picture.isVisible()) return {};
    return {picture.objectName() + u": no text"_s};
}

// The names in reading order, of what has one and is on show.
QStringList namesIn(QWidget *window)
{
    QStringList names;
    for (const QAccessibleInterface *spoken : allIn(window))
        if (const QString name = spoken->text(QAccessible::Name); !name.isEmpty()) names << name;
    names.removeDuplicates(); // a scrolling control and its inside
    return names;
}

} // namespace

class tst_SpokenControls : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_stage = std::make_unique<Stage>(); }
    void cleanup() { m_stage.reset(); }

    void everythingHasRoleNameAndState_data() { addScenes(); }
    void everythingHasRoleNameAndState();
    void windowsAreDialogsWithANameOfTheirOwn();
    void theIntroSaysWhatItShowsAndHowToGoOn();
    void theDetailsAreReadFieldByField();
    void theAboutBoxIsReadFromTopToBottom();
    void placesAreReadAsTheEyeGoes_data();
    void placesAreReadAsTheEyeGoes();
    void whatLiesBeyondTheEdgeIsNotSpokenOf();
    void aTabIsOneOfARow();
    void pressingATabSwitchesThePanel();
    void pressingTheToolOfThePageOnShowLeavesItChecked();

private:
    std::unique_ptr<Stage> m_stage;
};

void tst_SpokenControls::everythingHasRoleNameAndState()
{
    QWidget *window = openScene(*m_stage);
    QStringList faults;
    for (QAccessibleInterface *spoken : allIn(window))
        faults << faultsOf(*spoken);
    for (const auto *picture : window->findChildren<const PictureView *>())
        faults << faultsOf(*picture);
    QCOMPARE(faults.join(u"; "_s), QString());
}

void tst_SpokenControls::windowsAreDialogsWithANameOfTheirOwn()
{
    m_stage->system.start();
    for (Window *window : std::initializer_list<Window *>{&Default<frmProperties>(), &Default<frmAbout>(),
                                                          &Default<frmError>(), &m_stage->system.console()}) {
        window->Show();
        const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(&window->shell());
        QCOMPARE(spoken->role(), QAccessible::Dialog);
        QVERIFY2(!spoken->text(QAccessible::Name).isEmpty(), qPrintable(window->Name()));
    }
    QVERIFY(QAccessible::queryAccessibleInterface(&Default<frmError>().shell())
                ->text(QAccessible::Name)
                .contains(u"not part of the guided edition"));
}

void tst_SpokenControls::theIntroSaysWhatItShowsAndHowToGoOn()
{
    m_stage->system.showSplash();
    QWidget &intro = Default<frmInfo>().shell();
    QTRY_VERIFY(intro.isVisible());
    const QString name = QAccessible::queryAccessibleInterface(&intro)->text(QAccessible::Name);
    QVERIFY2(name.contains(u"Press Enter to go on"_s), qPrintable(name));
    QVERIFY(intro.focusWidget());
    QCOMPARE(QAccessible::queryAccessibleInterface(intro.focusWidget())->text(QAccessible::Name), name);
    QAccessibleInterface *spot = QAccessible::queryAccessibleInterface(&Default<frmInfo>().lblBtn.widget());
    QCOMPARE(spot->role(), QAccessible::Button);
    QCOMPARE(spot->actionInterface()->actionNames(), QStringList{QAccessibleActionInterface::pressAction()});
    spot->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(m_stage->system.console().Tag(), u"101"_s);
}

void tst_SpokenControls::theDetailsAreReadFieldByField()
{
    m_stage->system.start();
    const QStringList names = namesIn(scenes::shown(Default<frmProperties>()));
    QCOMPARE(names.join(u'|'), u"orvane Properties|Name:|Name|Company:|Company|OK|Cancel"_s);
}

void tst_SpokenControls::theAboutBoxIsReadFromTopToBottom()
{
    m_stage->system.start();
    QStringList names = namesIn(scenes::shown(Default<frmAbout>()));
    for (QString &name : names)
        name = name.section(u' ', 0, 0);
    QCOMPARE(names.join(u'|'), u"About|A|orvane|Quillmark|Version|www.orvane.example|Warning:|The|OK|System"_s);
}

void tst_SpokenControls::placesAreReadAsTheEyeGoes_data()
{
    QTest::addColumn<QList<QRect>>("places");
    QTest::addColumn<QString>("order");
    QTest::newRow("rows") << QList<QRect>{{0, 20, 10, 10}, {20, 0, 10, 10}, {0, 0, 10, 10}} << u"2 1 0"_s;
    QTest::newRow("a label beside a higher field")
        << QList<QRect>{{20, 0, 40, 19}, {0, 4, 18, 11}, {0, 20, 18, 11}} << u"1 0 2"_s;
    QTest::newRow("a picture beside a column")
        << QList<QRect>{{30, 20, 10, 10}, {0, 0, 20, 40}, {30, 0, 10, 10}, {0, 50, 40, 5}} << u"1 2 0 3"_s;
    QTest::newRow("a ground behind all") << QList<QRect>{{10, 10, 5, 5}, {0, 0, 90, 90}} << u"1 0"_s;
    QTest::newRow("places that overlap") << QList<QRect>{{5, 5, 20, 20}, {0, 0, 20, 20}} << u"1 0"_s;
    QTest::newRow("the same place twice") << QList<QRect>{{0, 0, 9, 9}, {0, 0, 9, 9}} << u"0 1"_s;
    QTest::newRow("nothing") << QList<QRect>() << QString();
}

void tst_SpokenControls::placesAreReadAsTheEyeGoes()
{
    QFETCH(QList<QRect>, places);
    QStringList order;
    for (const size_t index : readingOrder({places.begin(), places.end()}))
        order << QString::number(index);
    QTEST(order.join(u' '), "order");
}

void tst_SpokenControls::whatLiesBeyondTheEdgeIsNotSpokenOf()
{
    m_stage->system.start();
    frmDemo &console = m_stage->system.console();
    const QStringList names = namesIn(&console.shell());
    QVERIFY(names.contains(u"Back"_s));
    QVERIFY(!names.contains(u"Save"_s));
    console.shell().setFixedSize(console.shell().width(), 600); // as an author does
    QVERIFY(namesIn(&console.shell()).contains(u"Save"_s));
}

void tst_SpokenControls::aTabIsOneOfARow()
{
    m_stage->system.start();
    for (const auto &[index, tab] : m_stage->system.diagram().SSRibbon1) {
        const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(&tab->widget());
        QCOMPARE(spoken->role(), QAccessible::RadioButton);
        QVERIFY(spoken->state().checkable);
        QCOMPARE(bool(spoken->state().checked), index == 1);
    }
}

void tst_SpokenControls::pressingATabSwitchesThePanel()
{
    m_stage->system.start();
    frmCommandCentre &diagram = m_stage->system.diagram();
    QAccessibleInterface *tab = QAccessible::queryAccessibleInterface(&diagram.SSRibbon1(4).widget());
    tab->actionInterface()->doAction(tab->actionInterface()->actionNames().constFirst());
    QTRY_VERIFY(diagram.pnlDiag(4).Visible());
    QVERIFY(!diagram.pnlDiag(1).Visible());
    QVERIFY(!QAccessible::queryAccessibleInterface(&diagram.SSRibbon1(1).widget())->state().checked);
    tab->actionInterface()->doAction(QAccessibleActionInterface::toggleAction()); // it is down already
    QTest::qWait(0);
    QTRY_VERIFY(!diagram.SSRibbon1(4).widget().property("down").toBool());
    QVERIFY(tab->state().checked && diagram.pnlDiag(4).Visible());
}

void tst_SpokenControls::pressingTheToolOfThePageOnShowLeavesItChecked()
{
    m_stage->system.start();
    scenes::manual(*m_stage);
    const ActiveBar &bar = barOf(*m_stage->system.active(), u"mnuNav"_s);
    auto *button = bar.widget().findChild<QAbstractButton *>(u"Commitment"_s);
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(button);
    QVERIFY(spoken->state().checked);
    QSignalSpy pressed(button, &QAbstractButton::clicked);
    spoken->actionInterface()->doAction(spoken->actionInterface()->actionNames().constFirst());
    QTRY_COMPARE(pressed.count(), 1);
    QVERIFY(spoken->state().checked);
}

QTEST_MAIN(tst_SpokenControls)
#include "tst_SpokenControls.moc"
