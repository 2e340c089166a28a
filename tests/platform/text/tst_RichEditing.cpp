// What the user can do in a rich-text box, and what no user can do in a locked one.
// A connection's context goes before what its handler holds: clazy:excludeall=lambda-in-connect
#include "platform/text/RichBoxFixture.h"

#include <QContextMenuEvent>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
const QString Page = uR"({\rtf1{\fonttbl{\f0 Times New Roman;}}\f0\fs24 one {\b two} three\par four})"_s;
} // namespace

class tst_RichEditing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void keysMoveTheCaretAndSelect();
    void editsAreUndoneAndRedoneByKeys_data();
    void editsAreUndoneAndRedoneByKeys();
    void cutCopyAndPasteHaveTwoKeysEach_data();
    void cutCopyAndPasteHaveTwoKeysEach();
    void deleteRemovesTheSelection();
    void composedTextIsTaken();
    void aDroppedTextIsTakenWhereItFalls();
    void aTextThatIsPutLeavesNothingToUndo_data();
    void aTextThatIsPutLeavesNothingToUndo();
    void changeTellsOfEditsAndNotOfPutTexts();
    void nothingChangesALockedText_data();
    void nothingChangesALockedText();
    void editingNeedsBothStates_data();
    void editingNeedsBothStates();
    void aLockedTextIsSelectedAndCopied();
    void theMenuHasItsCommandsInTheirStates_data();
    void theMenuHasItsCommandsInTheirStates();
    void theMenusCommandsAct();
    void theMenuComesByKeyAtTheCaret();
    void theMenuGoesWhenItIsClosed();

private:
    zelRich &box() const { return m_window->box; }
    QTextEdit &edit() const { return m_window->edit(); }
    QMenu *openMenu() const;
    void choose(const QString &name) const;

    std::unique_ptr<RichBoxWindow> m_window;
};

void tst_RichEditing::init()
{
    m_window = std::make_unique<RichBoxWindow>();
    m_window->showForKeys();
    QGuiApplication::clipboard()->clear();
}

void tst_RichEditing::cleanup()
{
    m_window.reset();
}

QMenu *tst_RichEditing::openMenu() const
{
    QTest::mouseClick(edit().viewport(), Qt::RightButton, Qt::NoModifier, QPoint(5, 5));
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

void tst_RichEditing::choose(const QString &name) const
{
    QMenu *menu = openMenu();
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->findChild<QAction *>(name)).center());
}

void tst_RichEditing::keysMoveTheCaretAndSelect()
{
    box().setTextRTF(Page);
    m_window->press(Qt::Key_Right);
    m_window->press(Qt::SHIFT | Qt::CTRL | Qt::Key_Right);
    QCOMPARE(box().SelStart(), 1);
    QCOMPARE(box().SelLength(), 3);
    m_window->press(Qt::CTRL | Qt::Key_End);
    QCOMPARE(box().SelStart(), 18);
    m_window->press(Qt::CTRL | Qt::Key_A);
    QCOMPARE(box().SelLength(), 18);
}

void tst_RichEditing::editsAreUndoneAndRedoneByKeys_data()
{
    QTest::addColumn<int>("redo");
    QTest::newRow("Ctrl+Y") << (Qt::CTRL | Qt::Key_Y).toCombined();
    QTest::newRow("Ctrl+Shift+Z") << (Qt::CTRL | Qt::SHIFT | Qt::Key_Z).toCombined();
}

void tst_RichEditing::editsAreUndoneAndRedoneByKeys()
{
    QFETCH(int, redo);
    box().setTextRTF(Page);
    const QString before = box().TextRTF();
    QTest::keyClicks(&edit(), u"typed "_s);
    m_window->select(10, 3);
    m_window->press(Qt::Key_Delete);
    const QString after = box().TextRTF();
    m_window->press(Qt::CTRL | Qt::Key_Z);
    m_window->press(Qt::CTRL | Qt::Key_Z);
    QCOMPARE(box().TextRTF(), before);
    m_window->press(QKeyCombination::fromCombined(redo));
    m_window->press(QKeyCombination::fromCombined(redo));
    QCOMPARE(box().TextRTF(), after);
}

void tst_RichEditing::cutCopyAndPasteHaveTwoKeysEach_data()
{
    QTest::addColumn<int>("cut");
    QTest::addColumn<int>("copy");
    QTest::addColumn<int>("paste");
    QTest::newRow("letters") << (Qt::CTRL | Qt::Key_X).toCombined() << (Qt::CTRL | Qt::Key_C).toCombined()
                             << (Qt::CTRL | Qt::Key_V).toCombined();
    QTest::newRow("Insert and Delete") << (Qt::SHIFT | Qt::Key_Delete).toCombined()
                                       << (Qt::CTRL | Qt::Key_Insert).toCombined()
                                       << (Qt::SHIFT | Qt::Key_Insert).toCombined();
}

void tst_RichEditing::cutCopyAndPasteHaveTwoKeysEach()
{
    QFETCH(int, cut);
    QFETCH(int, copy);
    QFETCH(int, paste);
    box().setTextRTF(Page);
    m_window->select(0, 4);
    m_window->press(QKeyCombination::fromCombined(cut));
    QCOMPARE(box().Text(), u"two three\nfour"_s);
    m_window->press(Qt::CTRL | Qt::Key_End);
    m_window->press(QKeyCombination::fromCombined(paste));
    QCOMPARE(box().Text(), u"two three\nfourone "_s);
    m_window->select(0, 3);
    m_window->press(QKeyCombination::fromCombined(copy));
    QCOMPARE(QGuiApplication::clipboard()->text(), u"two"_s);
}

void tst_RichEditing::deleteRemovesTheSelection()
{
    box().setTextRTF(Page);
    m_window->select(4, 4);
    m_window->press(Qt::Key_Delete);
    QCOMPARE(box().Text(), u"one three\nfour"_s);
    QVERIFY(QGuiApplication::clipboard()->text().isEmpty());
}

void tst_RichEditing::composedTextIsTaken()
{
    compose(edit(), u"\u6F22\u5B57"_s);
    QCOMPARE(box().Text(), u"\u6F22\u5B57"_s);
    m_window->press(Qt::CTRL | Qt::Key_Z);
    QCOMPARE(box().Text(), QString());
}

void tst_RichEditing::aDroppedTextIsTakenWhereItFalls()
{
    box().setTextRTF(Page);
    m_window->select(4, 3);
    drop(edit(), u"dropped "_s);
    QCOMPARE(box().Text(), u"dropped one two three\nfour"_s);
    m_window->press(Qt::CTRL | Qt::Key_Z);
    QCOMPARE(box().Text(), u"one two three\nfour"_s);
}

void tst_RichEditing::aTextThatIsPutLeavesNothingToUndo_data()
{
    QTest::addColumn<QString>("way");
    for (const auto &way : {u"TextRTF"_s, u"Text"_s, u"SelRTF"_s})
        QTest::addRow("%s", qPrintable(way)) << way;
}

void tst_RichEditing::aTextThatIsPutLeavesNothingToUndo()
{
    QFETCH(QString, way);
    QTest::keyClicks(&edit(), u"typed"_s);
    m_window->press(Qt::CTRL | Qt::Key_Z);
    QTest::keyClicks(&edit(), u"again"_s);
    if (way == u"TextRTF") box().setTextRTF(Page);
    if (way == u"Text") box().setText(u"put"_s);
    if (way == u"SelRTF") box().setSelRTF(Page);
    const QString text = box().Text();
    m_window->press(Qt::CTRL | Qt::Key_Z);
    m_window->press(Qt::CTRL | Qt::Key_Y);
    QCOMPARE(box().Text(), text);
    QTest::keyClicks(&edit(), u"x"_s);
    m_window->press(Qt::CTRL | Qt::Key_Z);
    QCOMPARE(box().Text(), text);
}

void tst_RichEditing::changeTellsOfEditsAndNotOfPutTexts()
{
    int changes = 0;
    const QObject context;
    connect(&box(), &RichTextBox::Change, &context, [&] { ++changes; });
    box().setTextRTF(Page);
    box().setText(u"put"_s);
    box().setSelRTF(Page);
    box().setLocked(true);
    box().setLocked(false);
    box().setEditingEnabled(false);
    box().setEditingEnabled(true);
    QCOMPARE(changes, 0);
    QTest::keyClicks(&edit(), u"x"_s);
    QCOMPARE(changes, 1);
    m_window->press(Qt::CTRL | Qt::Key_Z);
    QCOMPARE(changes, 2);
    box().setSelLength(2);
    box().setSelBold(true);
    QCOMPARE(changes, 3);
}

void tst_RichEditing::nothingChangesALockedText_data()
{
    QTest::addColumn<std::function<void()>>("road");
    const auto row = [](const char *name, const std::function<void()> &road) { QTest::newRow(name) << road; };
    const auto keyRow = [&](QKeyCombination keys) {
        row(qPrintable(QKeySequence(keys).toString()), [this, keys] { m_window->press(keys); });
    };
    for (const Qt::Key key :
         {Qt::Key_X, Qt::Key_Return, Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Space, Qt::Key_Direction_R})
        keyRow(key);
    for (const Qt::Key key : {Qt::Key_V, Qt::Key_X, Qt::Key_Z, Qt::Key_Y, Qt::Key_K, Qt::Key_Backspace, Qt::Key_Delete})
        keyRow(Qt::CTRL | key);
    for (const Qt::Key key : {Qt::Key_Insert, Qt::Key_Delete, Qt::Key_Return})
        keyRow(Qt::SHIFT | key);
    keyRow(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    keyRow(Qt::ALT | Qt::Key_Backspace);
    row("paste command", [this] { edit().paste(); });
    row("cut command", [this] { edit().cut(); });
    row("drop", [this] { drop(edit(), u"dropped"_s); });
    row("input method", [this] { compose(edit(), u"composed"_s); });
    row("middle click", [this] { QTest::mouseClick(edit().viewport(), Qt::MiddleButton, {}, QPoint(9, 9)); });
    row("wheel with Ctrl", [this] {
        QWheelEvent turn({9, 9}, {9, 9}, {}, {0, 240}, {}, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(edit().viewport(), &turn);
    });
    for (const auto &name : {u"miUndo"_s, u"miRedo"_s, u"miCut"_s, u"miPaste"_s})
        row(qPrintable(u"menu's "_s + name), [this, name] { choose(name); });
}

// Both with something to undo and with something to redo.
void tst_RichEditing::nothingChangesALockedText()
{
    QFETCH(std::function<void()>, road);
    box().setTextRTF(Page);
    QTest::keyClicks(&edit(), u"ab"_s);
    m_window->press(Qt::Key_Delete);
    m_window->press(Qt::CTRL | Qt::Key_Z);
    QVERIFY(edit().document()->isUndoAvailable() && edit().document()->isRedoAvailable());
    fillClipboard({{u"text/plain"_s, "pasted"}, {u"text/rtf"_s, "{\\rtf1 pasted}"}});
    m_window->select(4, 3);
    const QString before = box().TextRTF();
    int changes = 0;
    const QObject context;
    connect(&box(), &RichTextBox::Change, &context, [&] { ++changes; });
    box().setLocked(true);
    road();
    QCOMPARE(box().TextRTF(), before);
    QCOMPARE(changes, 0);
}

void tst_RichEditing::editingNeedsBothStates_data()
{
    QTest::addColumn<bool>("locked");
    QTest::addColumn<bool>("enabled");
    for (const bool locked : {false, true})
        for (const bool enabled : {false, true})
            QTest::addRow("Locked %d, EditingEnabled %d", locked, enabled) << locked << enabled;
}

void tst_RichEditing::editingNeedsBothStates()
{
    QFETCH(bool, locked);
    QFETCH(bool, enabled);
    box().setEditingEnabled(enabled);
    box().setLocked(locked);
    QCOMPARE(box().Locked(), locked);
    QCOMPARE(box().EditingEnabled(), enabled);
    QTest::keyClicks(&edit(), u"x"_s);
    QCOMPARE(!box().Text().isEmpty(), enabled && !locked);
}

void tst_RichEditing::aLockedTextIsSelectedAndCopied()
{
    box().setTextRTF(Page);
    box().setLocked(true);
    m_window->press(Qt::SHIFT | Qt::Key_End);
    QCOMPARE(box().SelLength(), 13);
    m_window->press(Qt::CTRL | Qt::Key_C);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"one two three"_s);
    QVERIFY(onClipboard(u"text/rtf"_s).contains("\\b"));
}

void tst_RichEditing::theMenuHasItsCommandsInTheirStates_data()
{
    QTest::addColumn<std::function<void()>>("before");
    QTest::addColumn<QString>("enabled");
    const auto row = [](const char *name, const char *enabled, const std::function<void()> &before) {
        QTest::newRow(name) << before << QString::fromLatin1(enabled);
    };
    row("empty", "", [] {});
    row("text", "miAll", [this] { box().setText(u"abc"_s); });
    row("typed", "miUndo miAll", [this] { QTest::keyClicks(&edit(), u"abc"_s); });
    row("undone", "miRedo", [this] {
        QTest::keyClicks(&edit(), u"abc"_s);
        edit().undo();
    });
    row("selected", "miCut miCopy miAll", [this] {
        box().setText(u"abc"_s);
        edit().selectAll();
    });
    row("plain text to paste", "miPaste", [] { fillClipboard({{u"text/plain"_s, "x"}}); });
    row("rich text to paste", "miPaste", [] { fillClipboard({{u"application/rtf"_s, "{\\rtf1 x}"}}); });
    row("hypertext to paste", "miPaste", [] { fillClipboard({{u"text/html"_s, "<b>x</b>"}}); });
    row("something else to paste", "", [] { fillClipboard({{u"image/png"_s, "x"}}); });
    row("locked", "miCopy miAll", [this] {
        QTest::keyClicks(&edit(), u"abc"_s);
        edit().selectAll();
        fillClipboard({{u"text/plain"_s, "x"}});
        box().setLocked(true);
    });
}

void tst_RichEditing::theMenuHasItsCommandsInTheirStates()
{
    QFETCH(std::function<void()>, before);
    before();
    const QMenu *menu = openMenu();
    QVERIFY(menu);
    QStringList all;
    QStringList enabled;
    for (const QAction *action : menu->actions()) {
        if (action->isSeparator()) continue;
        all << action->text().section(u'\t', 0, 0);
        if (action->isEnabled()) enabled << action->objectName();
    }
    QCOMPARE(all.join(u' '), u"&Undo &Redo C&ut C&opy &Paste Select &All"_s);
    QTEST(enabled.join(u' '), "enabled");
}

void tst_RichEditing::theMenusCommandsAct()
{
    box().setTextRTF(Page);
    choose(u"miAll"_s);
    QCOMPARE(box().SelLength(), 18);
    m_window->select(0, 4);
    choose(u"miCopy"_s);
    choose(u"miCut"_s);
    QCOMPARE(box().Text(), u"two three\nfour"_s);
    choose(u"miUndo"_s);
    QCOMPARE(box().Text(), u"one two three\nfour"_s);
    choose(u"miRedo"_s);
    choose(u"miPaste"_s);
    QCOMPARE(box().Text(), u"one two three\nfour"_s);
}

void tst_RichEditing::theMenuComesByKeyAtTheCaret()
{
    box().setText(u"one\ntwo"_s);
    box().setSelStart(5);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(0, 0), QPoint(0, 0));
    QCoreApplication::sendEvent(edit().viewport(), &event);
    const QWidget *menu = QApplication::activePopupWidget();
    QVERIFY(menu);
    QCOMPARE(menu->pos(), edit().viewport()->mapToGlobal(edit().cursorRect().bottomLeft()));
    QVERIFY(!menu->accessibleName().isEmpty());
}

void tst_RichEditing::theMenuGoesWhenItIsClosed()
{
    const QPointer<QMenu> menu = openMenu();
    QTest::keyClick(menu, Qt::Key_Escape);
    sweep();
    QVERIFY(!menu);
}

QTEST_MAIN(tst_RichEditing)
#include "tst_RichEditing.moc"
