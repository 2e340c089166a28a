// Key strokes sent to the control that has the focus.
#include "platform/FormFixture.h"
#include "platform/controls/text/RichTextBox.h"
#include "platform/controls/text/TextBox.h"
#include "platform/system/SendKeys.h"

#include <QClipboard>
#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
// Notes the keys that reach it.
class KeyCatcher : public QWidget
{
public:
    explicit KeyCatcher(QWidget &parent) : QWidget(&parent) { setFocusPolicy(Qt::StrongFocus); }

    QStringList strokes;

protected:
    void keyPressEvent(QKeyEvent *event) override { strokes << u"down "_s + spelt(*event); }
    void keyReleaseEvent(QKeyEvent *event) override { strokes << u"up "_s + spelt(*event); }
    bool focusNextPrevChild(bool) override { return false; } // the Tab key is a key like another here

private:
    static QString spelt(const QKeyEvent &event)
    {
        return QKeySequence(event.keyCombination()).toString(QKeySequence::PortableText) +
               (event.text().isEmpty() ? QString() : u" \""_s + event.text() + u'"');
    }
};

class KeyWindow : public NotedWindow
{
public:
    KeyWindow() : catcher(new KeyCatcher(surface()))
    {
        box.Move(0, 0, 3000, 600);
        line.Move(0, 700, 3000, 300);
    }

    RichTextBox box{*this, u"rtf"_s};
    TextBox line{*this, u"txt"_s};
    KeyCatcher *catcher;
};
} // namespace

class tst_SendKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void keysByTheirNotation_data();
    void keysByTheirNotation();
    void keysThatMakeNoSense_data();
    void keysThatMakeNoSense();
    void refusedKeysSendNothing();
    void withoutAFocusTheyGoNowhere();
    void undoIsWorkedWhenTheCallReturns();
    void cutAndPasteAreWorkedWhenTheCallReturns();
    void aControlCharacterIsPutInNowhere();
    void deleteTakesTheCharacterBehindTheCaret();
    void aKeyGoesOnToTheControlThatTookTheFocus();
    void theyReachTheWindowWhereNoControlHasTheFocus();

private:
    std::unique_ptr<KeyWindow> m_window;
};

void tst_SendKeys::init()
{
    eventLog().clear();
    m_window = std::make_unique<KeyWindow>();
    showActive(*m_window);
}

void tst_SendKeys::cleanup()
{
    m_window.reset();
}

void tst_SendKeys::keysByTheirNotation_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QStringList>("pressed");
    QTest::newRow("nothing") << u""_s << QStringList{};
    QTest::newRow("letter") << u"a"_s << QStringList{u"A \"a\""_s};
    QTest::newRow("letters") << u"ab"_s << QStringList{u"A \"a\""_s, u"B \"b\""_s};
    QTest::newRow("undo") << u"^{z}"_s << QStringList{u"Ctrl+Z \"\x1A\""_s};
    QTest::newRow("cut") << u"^x"_s << QStringList{u"Ctrl+X \"\x18\""_s};
    QTest::newRow("Ctrl for one key alone") << u"^cd"_s << QStringList{u"Ctrl+C \"\x03\""_s, u"D \"d\""_s};
    QTest::newRow("Ctrl and Shift") << u"^+z"_s << QStringList{u"Ctrl+Shift+Z \"\x1A\""_s};
    QTest::newRow("Ctrl and no letter") << u"^1^{[}"_s << QStringList{u"Ctrl+1"_s, u"Ctrl+["_s};
    QTest::newRow("Alt") << u"%f"_s << QStringList{u"Alt+F"_s};
    QTest::newRow("Shift") << u"+a"_s << QStringList{u"Shift+A \"A\""_s};
    QTest::newRow("all three") << u"^%+a"_s << QStringList{u"Ctrl+Alt+Shift+A"_s};
    QTest::newRow("a sign that means something") << u"{^}"_s << QStringList{u"^ \"^\""_s};
    QTest::newRow("an opening brace") << u"{{}"_s << QStringList{u"{ \"{\""_s};
    QTest::newRow("a closing brace") << u"{}}"_s << QStringList{u"} \"}\""_s};
    QTest::newRow("two in braces") << u"{DEL}{del}"_s << QStringList{u"Del"_s, u"Del"_s};
    const QList<std::pair<QString, QString>> names{
        {u"DELETE"_s, u"Del"_s},   {u"ENTER"_s, u"Return"_s}, {u"ESC"_s, u"Esc"_s},   {u"TAB"_s, u"Tab"_s},
        {u"BS"_s, u"Backspace"_s}, {u"UP"_s, u"Up"_s},        {u"DOWN"_s, u"Down"_s}, {u"LEFT"_s, u"Left"_s},
        {u"RIGHT"_s, u"Right"_s},  {u"HOME"_s, u"Home"_s},    {u"END"_s, u"End"_s},   {u"PGUP"_s, u"PgUp"_s},
        {u"PGDN"_s, u"PgDown"_s}};
    for (const auto &[name, key] : names)
        QTest::newRow(qPrintable(name)) << u"{%1}"_s.arg(name) << QStringList{key};
}

void tst_SendKeys::keysByTheirNotation()
{
    QFETCH(QString, keys);
    QFETCH(QStringList, pressed);
    m_window->catcher->setFocus();
    SendKeys(keys);
    QStringList expected;
    for (const QString &key : pressed)
        expected << u"down "_s + key << u"up "_s + key;
    QCOMPARE(m_window->catcher->strokes, expected);
}

void tst_SendKeys::keysThatMakeNoSense_data()
{
    QTest::addColumn<QString>("keys");
    for (const auto &keys : {u"{"_s, u"{}"_s, u"{DEL"_s, u"{NOKEY}"_s, u"^{"_s, u"a{b c}"_s, u"^"_s, u"a%+"_s})
        QTest::newRow(qPrintable(keys)) << keys;
}

void tst_SendKeys::keysThatMakeNoSense()
{
    QFETCH(QString, keys);
    QCOMPARE(errorOf([&] { SendKeys(keys); }), int(InvalidProcedureCall));
}

void tst_SendKeys::refusedKeysSendNothing()
{
    m_window->catcher->setFocus();
    QCOMPARE(errorOf([] { SendKeys(u"ab{NOKEY}"_s); }), int(InvalidProcedureCall));
    QCOMPARE(m_window->catcher->strokes, QStringList{});
}

void tst_SendKeys::withoutAFocusTheyGoNowhere()
{
    m_window->line.setText(u"kept"_s);
    m_window->line.SetFocus();
    m_window->Hide();
    QTRY_VERIFY(!QApplication::focusWidget());
    SendKeys(u"abc{DEL}"_s);
    QCOMPARE(m_window->line.Text(), u"kept"_s);
}

void tst_SendKeys::undoIsWorkedWhenTheCallReturns()
{
    m_window->box.SetFocus();
    SendKeys(u"ab"_s);
    QCOMPARE(m_window->box.Text(), u"ab"_s);
    SendKeys(u"^{z}"_s);
    QCOMPARE(m_window->box.Text(), u""_s);
}

void tst_SendKeys::cutAndPasteAreWorkedWhenTheCallReturns()
{
    m_window->box.setText(u"one two"_s);
    m_window->box.SetFocus();
    m_window->box.setSelLength(4);
    SendKeys(u"^x"_s);
    QCOMPARE(QApplication::clipboard()->text(), u"one "_s);
    QCOMPARE(m_window->box.Text(), u"two"_s);
    SendKeys(u"{END}^v"_s);
    QCOMPARE(m_window->box.Text(), u"twoone "_s);
}

void tst_SendKeys::aControlCharacterIsPutInNowhere()
{
    for (Control *control : {static_cast<Control *>(&m_window->box), static_cast<Control *>(&m_window->line)}) {
        control->SetFocus();
        SendKeys(u"ab"_s);
        for (char16_t letter = u'a'; letter <= u'z'; ++letter)
            SendKeys(u'^' + QString(letter));
    }
    for (const QString &text : {m_window->box.Text(), m_window->line.Text()})
        QVERIFY2(!text.contains(QRegularExpression(u"[\\x00-\\x09\\x0B-\\x1F]"_s)), qPrintable(text));
}

void tst_SendKeys::deleteTakesTheCharacterBehindTheCaret()
{
    m_window->box.setText(u"abc"_s);
    m_window->box.SetFocus();
    m_window->box.setSelStart(1);
    SendKeys(u"{DEL}"_s);
    QCOMPARE(m_window->box.Text(), u"ac"_s);
    SendKeys(u"{BS}"_s);
    QCOMPARE(m_window->box.Text(), u"c"_s);
}

void tst_SendKeys::aKeyGoesOnToTheControlThatTookTheFocus()
{
    m_window->box.SetFocus();
    SendKeys(u"a{TAB}b"_s);
    QCOMPARE(m_window->box.Text(), u"a"_s);
    QCOMPARE(m_window->line.Text(), u"b"_s);
}

void tst_SendKeys::theyReachTheWindowWhereNoControlHasTheFocus()
{
    m_window->focusRest().setFocus();
    eventLog().clear();
    SendKeys(u"a"_s);
    QCOMPARE(eventLog(),
             (QStringList{u"frmPlain KeyDown 65 0"_s, u"frmPlain KeyPress 97"_s, u"frmPlain KeyUp 65 0"_s}));
}

QTEST_MAIN(tst_SendKeys)
#include "tst_SendKeys.moc"
