// The frame and the windows inside it.
#include "platform/FormFixture.h"
#include "platform/controls/text/TextBox.h"
#include "platform/forms/MDIChild.h"
#include "platform/forms/MDIForm.h"
#include "platform/forms/WindowList.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
class PlainFrame : public MDIForm
{
public:
    PlainFrame() : MDIForm(u"mdiFrame"_s) { shell().resize(800, 600); }
};

class Child : public MDIChild
{
public:
    Child(MDIForm &frame, const QString &name) : MDIChild(frame, name)
    {
        setDesignSize(4500, 3000);
        box.Move(0, 0, 1500, 300);
    }

    TextBox box{*this, u"txt"_s};
    bool refuses = false;

protected:
    void note(const QString &event) const { eventLog() << Name() + u' ' + event; }
    void Form_Activate() override { note(u"Activate"_s); }
    void Form_Deactivate() override { note(u"Deactivate"_s); }
    void Form_Resize() override { note(u"Resize"_s); }
    void Form_Unload(bool &) override { note(u"Unload"_s); }
    void Form_QueryUnload(bool &cancel, int mode) override
    {
        note(mode == ByUser ? u"QueryUnload by user"_s : u"QueryUnload by code"_s);
        cancel = refuses;
    }
};

int objectsBelow(const QObject &root)
{
    return static_cast<int>(root.findChildren<QObject *>().size());
}
} // namespace

class tst_MDI : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aLoadedChildIsNotOnShow();
    void theChildShownLastIsTheActiveOne();
    void aChildShownOverAMaximisedOneTakesItsStateAndSendsItAResize();
    void theActiveChildStaysSoWhileAnotherWindowHasTheFocus();
    void closingTheActiveMaximisedChildMaximisesTheOneBefore();
    void aHiddenActiveChildHandsOverToTheOneBefore();
    void hidingAnInactiveChildChangesNothing();
    void aRestoredChildStaysNormal();
    void maximisingAnInactiveChildActivatesIt();
    void theFocusReturnsToWhereItWasInTheChild();
    void aClickIntoAChildActivatesIt();
    void aChildIsRefusedAsModal();
    void theCloseBoxOfAChildAsksAsTheUser();
    void aRefusedCloseLeavesTheChildActive();
    void theLastChildLeavesNoneActive();
    void sizingAMaximisedChildIsRefused();
    void unloadedChildrenLeaveNothingBehind();

private:
    Child &shown(const QString &name);

    std::unique_ptr<PlainFrame> m_frame;
};

void tst_MDI::init()
{
    eventLog().clear();
    m_frame = std::make_unique<PlainFrame>();
    showActive(*m_frame);
}

void tst_MDI::cleanup()
{
    auto forms = Forms();
    std::reverse(forms.begin(), forms.end());
    for (Form *form : forms)
        if (form != m_frame.get()) delete form;
    sweep();
    m_frame.reset();
}

Child &tst_MDI::shown(const QString &name)
{
    auto *child = new Child(*m_frame, name);
    child->Show();
    return *child;
}

void tst_MDI::aLoadedChildIsNotOnShow()
{
    auto *child = new Child(*m_frame, u"frmOne"_s);
    child->Load();
    QVERIFY(windowList().contains(child));
    QVERIFY(!child->Visible());
    QVERIFY(!m_frame->ActiveForm());
    QCOMPARE(eventsOf(u"Activate"_s), QStringList{});
}

void tst_MDI::theChildShownLastIsTheActiveOne()
{
    Child &one = shown(u"frmOne"_s);
    QCOMPARE(m_frame->ActiveForm(), &one);
    Child &two = shown(u"frmTwo"_s);
    QCOMPARE(m_frame->ActiveForm(), &two);
    one.SetFocus();
    QCOMPARE(m_frame->ActiveForm(), &one);
    QCOMPARE(logWithoutResize(), (QStringList{u"frmOne Activate"_s, u"frmOne Deactivate"_s, u"frmTwo Activate"_s,
                                              u"frmTwo Deactivate"_s, u"frmOne Activate"_s}));
}

void tst_MDI::aChildShownOverAMaximisedOneTakesItsStateAndSendsItAResize()
{
    Child &one = shown(u"frmOne"_s);
    one.setWindowState(Maximized);
    eventLog().clear();
    Child &two = shown(u"frmTwo"_s);
    QVERIFY(eventsOf(u"Resize"_s).contains(u"frmOne Resize"_s));
    QCOMPARE(two.WindowState(), int(Maximized));
    QCOMPARE(one.WindowState(), int(Normal));
    QCOMPARE(m_frame->ActiveForm(), &two);
}

void tst_MDI::theActiveChildStaysSoWhileAnotherWindowHasTheFocus()
{
    Child &one = shown(u"frmOne"_s);
    shown(u"frmTwo"_s);
    one.SetFocus();
    NotedWindow console(u"frmConsole"_s);
    showActive(console);
    eventLog().clear();
    QCOMPARE(m_frame->ActiveForm(), &one);
    showActive(*m_frame);
    QCOMPARE(m_frame->ActiveForm(), &one);
    QCOMPARE(eventsOf(u"(Activate|Deactivate)"_s).filter(u"frmOne"_s), QStringList{});
}

void tst_MDI::closingTheActiveMaximisedChildMaximisesTheOneBefore()
{
    Child &one = shown(u"frmOne"_s);
    Child &two = shown(u"frmTwo"_s);
    Child &three = shown(u"frmThree"_s);
    one.SetFocus();
    three.SetFocus();
    three.setWindowState(Maximized);
    QVERIFY(three.Unload());
    QCOMPARE(m_frame->ActiveForm(), &one);
    QCOMPARE(one.WindowState(), int(Maximized));
    QCOMPARE(two.WindowState(), int(Normal));
    QCOMPARE(m_frame->area().activeSubWindow(), &one.subWindow());
}

void tst_MDI::aHiddenActiveChildHandsOverToTheOneBefore()
{
    Child &one = shown(u"frmOne"_s);
    Child &two = shown(u"frmTwo"_s);
    two.setWindowState(Maximized);
    two.Hide();
    QVERIFY(!two.Visible());
    QVERIFY(two.Loaded());
    QCOMPARE(m_frame->ActiveForm(), &one);
    QCOMPARE(one.WindowState(), int(Maximized));
    two.Show();
    QCOMPARE(m_frame->ActiveForm(), &two);
    QCOMPARE(two.WindowState(), int(Maximized));
}

void tst_MDI::hidingAnInactiveChildChangesNothing()
{
    Child &one = shown(u"frmOne"_s);
    Child &two = shown(u"frmTwo"_s);
    two.box.SetFocus();
    eventLog().clear();
    one.Hide();
    QCOMPARE(m_frame->ActiveForm(), &two);
    QCOMPARE(m_frame->area().activeSubWindow(), &two.subWindow());
    QCOMPARE(two.ActiveControl(), &two.box);
    QCOMPARE(eventsOf(u"(Activate|Deactivate)"_s), QStringList{});
}

void tst_MDI::aRestoredChildStaysNormal()
{
    Child &one = shown(u"frmOne"_s);
    Child &two = shown(u"frmTwo"_s);
    one.setWindowState(Minimized);
    QTRY_COMPARE(one.WindowState(), int(Minimized));
    two.setWindowState(Maximized);
    one.setWindowState(Normal);
    QCOMPARE(one.WindowState(), int(Normal));
    QCOMPARE(m_frame->ActiveForm(), &one);
    QCoreApplication::processEvents();
    QCOMPARE(one.WindowState(), int(Normal));
}

void tst_MDI::maximisingAnInactiveChildActivatesIt()
{
    Child &one = shown(u"frmOne"_s);
    shown(u"frmTwo"_s);
    one.setWindowState(Maximized);
    QCOMPARE(m_frame->ActiveForm(), &one);
    QCOMPARE(m_frame->area().activeSubWindow(), &one.subWindow());
    QCOMPARE(one.WindowState(), int(Maximized));
}

void tst_MDI::theFocusReturnsToWhereItWasInTheChild()
{
    Child &one = shown(u"frmOne"_s);
    one.box.SetFocus();
    Child &two = shown(u"frmTwo"_s);
    two.box.SetFocus();
    QCOMPARE(two.ActiveControl(), &two.box);
    one.SetFocus();
    QTRY_COMPARE(QApplication::focusWidget(), &one.box.widget());
    QTest::keyClicks(QApplication::focusWidget(), u"a"_s);
    QCOMPARE(one.box.Text(), u"a"_s);
}

void tst_MDI::aClickIntoAChildActivatesIt()
{
    Child &one = shown(u"frmOne"_s);
    shown(u"frmTwo"_s);
    eventLog().clear();
    QTest::mouseClick(&one.box.widget(), Qt::LeftButton);
    QCOMPARE(m_frame->ActiveForm(), &one);
    QCOMPARE(eventsOf(u"(Activate|Deactivate)"_s), (QStringList{u"frmTwo Deactivate"_s, u"frmOne Activate"_s}));
}

void tst_MDI::aChildIsRefusedAsModal()
{
    auto *child = new Child(*m_frame, u"frmOne"_s);
    QCOMPARE(errorOf([&] { child->Show(Modal); }), int(InvalidProcedureCall));
    QVERIFY(!child->Loaded());
    QVERIFY(!child->Visible());
    delete child;
}

void tst_MDI::theCloseBoxOfAChildAsksAsTheUser()
{
    const QPointer<Child> child(&shown(u"frmOne"_s));
    eventLog().clear();
    child->subWindow().close();
    QCOMPARE(eventLog().mid(0, 2), (QStringList{u"frmOne QueryUnload by user"_s, u"frmOne Unload"_s}));
    QVERIFY(!m_frame->ActiveForm());
    sweep();
    QVERIFY(!child);
}

void tst_MDI::aRefusedCloseLeavesTheChildActive()
{
    shown(u"frmOne"_s);
    Child &two = shown(u"frmTwo"_s);
    two.setWindowState(Maximized);
    two.refuses = true;
    two.subWindow().close();
    QVERIFY(two.Visible());
    QVERIFY(two.Loaded());
    QCOMPARE(two.WindowState(), int(Maximized));
    QCOMPARE(m_frame->ActiveForm(), &two);
}

void tst_MDI::theLastChildLeavesNoneActive()
{
    Child &one = shown(u"frmOne"_s);
    one.setWindowState(Maximized);
    one.Unload();
    sweep();
    QVERIFY(!m_frame->ActiveForm());
    QVERIFY(m_frame->area().subWindowList().isEmpty());
    QCOMPARE(shown(u"frmTwo"_s).WindowState(), int(Normal));
}

void tst_MDI::sizingAMaximisedChildIsRefused()
{
    Child &one = shown(u"frmOne"_s);
    one.setWidth(3001);
    QCOMPARE(one.Width(), 3001.0);
    one.setWindowState(Maximized);
    QCOMPARE(errorOf([&] { one.setWidth(3000); }), int(CannotSizeInThisState));
    QCOMPARE(errorOf([&] { one.setLeft(0); }), int(CannotSizeInThisState));
}

void tst_MDI::unloadedChildrenLeaveNothingBehind()
{
    shown(u"frmStays"_s).setWindowState(Maximized);
    int before = 0;
    qsizetype widgets = 0;
    for (int round = 0; round < 200; ++round) {
        shown(u"frmComes"_s).Unload();
        sweep();
        if (round > 0) continue;
        before = objectsBelow(m_frame->shell());
        widgets = QApplication::allWidgets().size();
    }
    QCOMPARE(objectsBelow(m_frame->shell()), before);
    QCOMPARE(Forms().size(), size_t(2));
    QCOMPARE(QApplication::allWidgets().size(), widgets);
}

QTEST_MAIN(tst_MDI)
#include "tst_MDI.moc"
