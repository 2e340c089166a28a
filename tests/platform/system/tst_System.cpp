// The door between the event loop and the handlers, the end of the program, numbers, and the machine's message box.
#include "platform/system/Application.h"
#include "platform/system/File.h"
#include "platform/system/Guard.h"
#include "platform/system/Number.h"
#include "support/ErrorOf.h"
#include "support/TestHost.h"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryFile>
#include <QTest>
#include <QTimer>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
constexpr int NoError = 0;
} // namespace

class tst_System : public QObject
{
    Q_OBJECT

private slots:
    void aRunTimeErrorIsShownAndEndsTheProgram();
    void anyOtherFailureIsShownByItsText();
    void aHandlerThatSucceedsShowsNothing();
    void theEndOfTheProgramLeavesTheHandlerQuietly();
    void endStopsTheRoutineAndHandsOverItsCode();
    void aFailureAfterAFailureIsShownToo();
    void resumeNextGoesOnPastARunTimeError();
    void resumeNextHidesNoOtherFailure();
    void textsThatAreNumbers_data();
    void textsThatAreNumbers();
    void textsThatAreNoNumbers_data();
    void textsThatAreNoNumbers();
    void integersAreRounded_data();
    void integersAreRounded();
    void aNumberIsReadUpToWhatIsNone_data();
    void aNumberIsReadUpToWhatIsNone();
    void aMessageWithoutTitleBearsTheProgramsOwn();
    void theMachinesMessageBox_data();
    void theMachinesMessageBox();
    void aMessageGoesByTheKeys_data();
    void aMessageGoesByTheKeys();
    void aMessageIsNeverTakenForMarkup();
    void theHostBeforeIsHandedBack();
    void theProgramsFolderIsWhereItsFileLies();
    void aFileIsReadWhole();
    void aFileThatIsNotThereOrFailsIsAnError_data();
    void aFileThatIsNotThereOrFailsIsAnError();
};

void tst_System::aRunTimeErrorIsShownAndEndsTheProgram()
{
    TestHost host;
    host.expectMessage(u"Error 380: Not that one."_s);
    host.expectEnd(1);
    guarded([] { throw RunTimeError(InvalidPropertyValue, u"Not that one."_s); });
    QCOMPARE(host.exitCode(), std::optional(1));
    QCOMPARE(host.messages().front().style, int(CriticalIcon));
    QCOMPARE(host.messages().front().title, App().Title());
}

void tst_System::anyOtherFailureIsShownByItsText()
{
    TestHost host;
    host.expectMessage(u"the disk is f\u00fcll"_s);
    host.expectEnd(1);
    guarded([] { throw std::logic_error("the disk is f\xc3\xbcll"); });
    QCOMPARE(host.exitCode(), std::optional(1));
}

void tst_System::aHandlerThatSucceedsShowsNothing()
{
    TestHost host;
    int runs = 0;
    guarded([&] { ++runs; });
    QCOMPARE(runs, 1);
    QVERIFY(host.messages().empty());
    QVERIFY(!host.exitCode());
}

void tst_System::theEndOfTheProgramLeavesTheHandlerQuietly()
{
    TestHost host;
    host.expectEnd(0);
    bool wentOn = false;
    guarded([&] {
        guarded([] { End(); });
        wentOn = true;
    });
    QVERIFY(wentOn); // the inner door has caught it
    QVERIFY(host.messages().empty());
}

void tst_System::endStopsTheRoutineAndHandsOverItsCode()
{
    TestHost host;
    host.expectEnd(3);
    bool wentOn = false;
    guarded([&] {
        End(3);
        wentOn = true;
    });
    QVERIFY(!wentOn);
    QCOMPARE(host.exitCode(), std::optional(3));
}

void tst_System::aFailureAfterAFailureIsShownToo()
{
    TestHost host;
    for (const auto &text : {u"first"_s, u"second"_s}) {
        host.expectMessage(u"Error 5: "_s + text);
        host.expectEnd(1);
        guarded([&] { throw RunTimeError(InvalidProcedureCall, text); });
    }
    QCOMPARE(host.messages().size(), size_t(2));
}

void tst_System::resumeNextGoesOnPastARunTimeError()
{
    TestHost host;
    int steps = 0;
    resumeNext([&] {
        ++steps;
        throw RunTimeError(CannotSizeInThisState, u"Not now."_s);
    });
    resumeNext([&] { ++steps; });
    QCOMPARE(steps, 2);
    QVERIFY(host.messages().empty());
}

void tst_System::resumeNextHidesNoOtherFailure()
{
    TestHost host;
    host.expectEnd(0);
    QVERIFY_THROWS_EXCEPTION(ProgramEnded, resumeNext([] { End(); }));
    QVERIFY_THROWS_EXCEPTION(std::logic_error, resumeNext([] { throw std::logic_error("broken"); }));
}

void tst_System::textsThatAreNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("whole") << u"101"_s << 101.0;
    QTest::newRow("blanks around it") << u"  12\t"_s << 12.0;
    QTest::newRow("decimals") << u"9.5"_s << 9.5;
    QTest::newRow("negative") << u"-3"_s << -3.0;
    QTest::newRow("signed") << u"+3"_s << 3.0;
    QTest::newRow("leading noughts") << u"007"_s << 7.0;
    QTest::newRow("exponent") << u"1e3"_s << 1000.0;
}

void tst_System::textsThatAreNumbers()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    QCOMPARE(toNumber(text), value);
}

void tst_System::textsThatAreNoNumbers_data()
{
    QTest::addColumn<QString>("text");
    const QStringList texts{u""_s,    u"   "_s, u"abc"_s, u"12a"_s,   u"1 2"_s,   u"9,5"_s,
                            u"nan"_s, u"inf"_s, u"-"_s,   u"1.2.3"_s, u"1e999"_s, u"0x10"_s};
    for (const QString &text : texts)
        QTest::addRow("\"%s\"", qPrintable(text)) << text;
}

void tst_System::textsThatAreNoNumbers()
{
    QFETCH(QString, text);
    QCOMPARE(errorOf([&] { toNumber(text); }), int(TypeMismatch));
    QCOMPARE(errorOf([&] { toInteger(text); }), int(TypeMismatch));
}

void tst_System::integersAreRounded_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("error");
    QTest::newRow("whole") << u"42"_s << 42 << NoError;
    QTest::newRow("up") << u"1.6"_s << 2 << NoError;
    QTest::newRow("down") << u"1.4"_s << 1 << NoError;
    QTest::newRow("below nought") << u"-1.6"_s << -2 << NoError;
    QTest::newRow("largest") << u"2147483647"_s << 2147483647 << NoError;
    QTest::newRow("too large") << u"2147483648"_s << 0 << int(Overflow);
    QTest::newRow("too small") << u"-2147483649"_s << 0 << int(Overflow);
    QTest::newRow("far too large") << u"1e300"_s << 0 << int(Overflow);
}

void tst_System::integersAreRounded()
{
    QFETCH(QString, text);
    QFETCH(int, value);
    QFETCH(int, error);
    int read = 0;
    QCOMPARE(errorOf([&] { read = toInteger(text); }), error);
    QCOMPARE(read, value);
}

void tst_System::aNumberIsReadUpToWhatIsNone_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");
    QTest::newRow("percent") << u"75%"_s << 75.0;
    QTest::newRow("fraction") << u" 75.6 %"_s << 75.6;
    QTest::newRow("point first") << u".5"_s << 0.5;
    QTest::newRow("point last") << u"12."_s << 12.0;
    QTest::newRow("negative") << u"-1"_s << -1.0;
    QTest::newRow("sign alone") << u"-"_s << 0.0;
    QTest::newRow("letters first") << u"p3"_s << 0.0;
    QTest::newRow("letters behind") << u"3rd"_s << 3.0;
    QTest::newRow("two points") << u"1.2.3"_s << 1.2;
    QTest::newRow("comma") << u"1,5"_s << 1.0;
    QTest::newRow("nothing") << u""_s << 0.0;
    QTest::newRow("other digits") << u"\u0663"_s << 0.0;
}

void tst_System::aNumberIsReadUpToWhatIsNone()
{
    QFETCH(QString, text);
    QTEST(leadingNumber(text), "number");
}

void tst_System::aMessageWithoutTitleBearsTheProgramsOwn()
{
    TestHost host;
    host.expectAnyMessage();
    host.expectAnyMessage();
    MsgBox(u"one"_s);
    MsgBox(u"two"_s, InformationIcon, u"Notice"_s);
    QCOMPARE(host.messages().at(0).title, App().Title());
    QCOMPARE(host.messages().at(0).style, int(NoIcon));
    QCOMPARE(host.messages().at(1).title, u"Notice"_s);
    QCOMPARE(host.messages().at(1).style, int(InformationIcon));
}

void tst_System::theMachinesMessageBox_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::newRow("plain") << int(NoIcon) << QMessageBox::NoIcon;
    QTest::newRow("critical") << int(CriticalIcon) << QMessageBox::Critical;
    QTest::newRow("information") << int(InformationIcon) << QMessageBox::Information;
}

void tst_System::theMachinesMessageBox()
{
    QFETCH(int, style);
    QFETCH(QMessageBox::Icon, icon);
    bool seen = false;
    QTimer::singleShot(0, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box) return;
        seen = box->icon() == icon && box->text() == u"Mind <b>this</b>"_s && box->windowTitle() == u"Title"_s &&
               box->windowModality() == Qt::ApplicationModal && box->buttons().size() == 1;
        box->button(QMessageBox::Ok)->click();
    });
    MsgBox(u"Mind <b>this</b>"_s, style, u"Title"_s);
    QVERIFY(seen);
}

void tst_System::aMessageGoesByTheKeys_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("Escape") << Qt::Key_Escape;
    QTest::newRow("Space") << Qt::Key_Space;
}

void tst_System::aMessageGoesByTheKeys()
{
    QFETCH(Qt::Key, key);
    bool gone = false;
    QTimer::singleShot(0, this, [&] {
        QWidget *box = QApplication::activeModalWidget();
        if (!box || !QTest::qWaitForWindowActive(box)) return;
        QTest::keyClick(QApplication::focusWidget(), key);
        gone = !box->isVisible();
        box->close();
    });
    MsgBox(u"Mind this"_s);
    QVERIFY(gone);
}

void tst_System::aMessageIsNeverTakenForMarkup()
{
    Qt::TextFormat format = Qt::AutoText;
    QTimer::singleShot(0, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box) return;
        format = box->textFormat();
        box->close();
    });
    MsgBox(u"<img src=\"file:///etc/hostname\">"_s);
    QCOMPARE(format, Qt::PlainText);
}

void tst_System::theHostBeforeIsHandedBack()
{
    Host *machine = &host();
    {
        TestHost other;
        QCOMPARE(&host(), static_cast<Host *>(&other));
    }
    QCOMPARE(&host(), machine);
}

void tst_System::theProgramsFolderIsWhereItsFileLies()
{
    QCOMPARE(Host().programFolder(), QFileInfo(QFile::symLinkTarget(u"/proc/self/exe"_s)).path());
}

void tst_System::aFileIsReadWhole()
{
    const QByteArray bytes("Step\0 17\r\n", 10);
    QTemporaryFile file;
    QVERIFY(file.open() && file.write(bytes) == bytes.size() && file.flush());
    QCOMPARE(readWholeFile(file.fileName()), bytes);
}

void tst_System::aFileThatIsNotThereOrFailsIsAnError_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("number");
    QTest::newRow("not there") << u"/proc/none"_s << int(FileNotFound);
    QTest::newRow("a folder") << u"/proc"_s << int(PathAccessError);
    // Whose first page nobody can read.
    QTest::newRow("opened, and then fails") << u"/proc/self/mem"_s << int(PathAccessError);
}

void tst_System::aFileThatIsNotThereOrFailsIsAnError()
{
    QFETCH(QString, name);
    QTEST(errorOf([&] { readWholeFile(name); }), "number");
}

QTEST_MAIN(tst_System)
#include "tst_System.moc"
