// The Edit menu: rich texts of the active window alone take part.
#include "shell/ShellProbes.h"
#include "support/RunningSystem.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
QString clipboard()
{
    return QApplication::clipboard()->text();
}
} // namespace

class tst_MenuEditCommands : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void editCommandsWorkInBothKindsOfRichText_data();
    void editCommandsWorkInBothKindsOfRichText();
    void undoTakesBackWhatWasTyped_data();
    void undoTakesBackWhatWasTyped();
    void editCommandsLeavePlainTextBoxesAlone_data();
    void editCommandsLeavePlainTextBoxesAlone();
    void editCommandsLeaveTheDiagramAlone_data();
    void editCommandsLeaveTheDiagramAlone();
    void copyWorksInThePageOfTheGuide();

private:
    void press(const QString &tool) const { m_system->clickTool(m_system->frame(), u"mnuMain"_s, u"mnuEdit"_s, tool); }
    void clickLoose(const QString &name) const;

    std::optional<RunningSystem> m_system;
};

void tst_MenuEditCommands::init()
{
    m_system.emplace();
    m_system->start();
}

void tst_MenuEditCommands::cleanup()
{
    m_system.reset();
}

// A tool that no band may show.
void tst_MenuEditCommands::clickLoose(const QString &name) const
{
    LooseTool loose(name);
    m_system->frame().mnuMain_Click(loose.tool);
}

void tst_MenuEditCommands::editCommandsWorkInBothKindsOfRichText_data()
{
    QTest::addColumn<bool>("editing");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("copied");
    QTest::addColumn<int>("selected");
    for (const bool editing : {false, true}) {
        const char *kind = editing ? "zelRich" : "RichTextBox";
        QTest::addRow("cut, %s", kind) << editing << u"miCut"_s << u" two"_s << u"one"_s << 0;
        QTest::addRow("copy, %s", kind) << editing << u"miCopy"_s << u"one two"_s << u"one"_s << 3;
        QTest::addRow("paste, %s", kind) << editing << u"miPaste"_s << u"new two"_s << u"new"_s << 0;
        QTest::addRow("all, %s", kind) << editing << u"miAll"_s << u"one two"_s << u"new"_s << 7;
        QTest::addRow("clear, %s", kind) << editing << u"clear"_s << u" two"_s << u"new"_s << 0;
    }
}

void tst_MenuEditCommands::editCommandsWorkInBothKindsOfRichText()
{
    QFETCH(bool, editing);
    QFETCH(QString, command);
    auto &window = *new TextWindow;
    window.Show();
    RichTextBox &box = editing ? window.zel : window.rich;
    giveFocus(box);
    box.setSelLength(3);
    QApplication::clipboard()->setText(u"new"_s);
    clickLoose(command);
    QTEST(box.Text(), "text");
    QTEST(clipboard(), "copied");
    QTEST(box.SelLength(), "selected");
}

void tst_MenuEditCommands::undoTakesBackWhatWasTyped_data()
{
    QTest::addColumn<QString>("control");
    for (const auto &control : {u"rich"_s, u"zel"_s, u"plain"_s})
        QTest::addRow("%s", qPrintable(control)) << control;
}

void tst_MenuEditCommands::undoTakesBackWhatWasTyped()
{
    QFETCH(QString, control);
    auto &window = *new TextWindow;
    window.Show();
    giveFocus(*window.control(control));
    const auto texts = [&] { return QStringList{window.rich.Text(), window.zel.Text(), window.plain.Text()}; };
    const QStringList before = texts();
    QTest::keyClicks(QApplication::focusWidget(), u"x"_s);
    QVERIFY(texts() != before);
    press(u"miUndo"_s);
    QCOMPARE(texts(), before);
}

void tst_MenuEditCommands::editCommandsLeavePlainTextBoxesAlone_data()
{
    QTest::addColumn<QString>("command");
    for (const auto &command : {u"miCut"_s, u"miCopy"_s, u"miPaste"_s, u"miAll"_s, u"clear"_s})
        QTest::addRow("%s", qPrintable(command)) << command;
}

void tst_MenuEditCommands::editCommandsLeavePlainTextBoxesAlone()
{
    QFETCH(QString, command);
    auto &window = *new TextWindow;
    window.Show();
    giveFocus(window.plain);
    QTest::keyClick(&window.plain.widget(), Qt::Key_Home);
    QTest::keyClick(&window.plain.widget(), Qt::Key_Right, Qt::ShiftModifier);
    QApplication::clipboard()->setText(u"new"_s);
    clickLoose(command);
    QCOMPARE(window.plain.Text(), u"one two"_s);
    QCOMPARE(clipboard(), u"new"_s);
    QTest::keyClicks(&window.plain.widget(), u"O"_s);
    QCOMPARE(window.plain.Text(), u"One two"_s);
}

void tst_MenuEditCommands::editCommandsLeaveTheDiagramAlone_data()
{
    editCommandsLeavePlainTextBoxesAlone_data();
}

// The text keeps its selection behind the diagram, which has no text of its own.
void tst_MenuEditCommands::editCommandsLeaveTheDiagramAlone()
{
    QFETCH(QString, command);
    auto &window = *new TextWindow;
    window.Show();
    giveFocus(window.rich);
    window.rich.setSelLength(3);
    m_system->diagram().SetFocus();
    QApplication::clipboard()->setText(u"new"_s);
    clickLoose(command);
    QCOMPARE(window.rich.Text(), u"one two"_s);
    QCOMPARE(window.rich.SelLength(), 3);
    QCOMPARE(clipboard(), u"new"_s);
}

void tst_MenuEditCommands::copyWorksInThePageOfTheGuide()
{
    m_system->click(m_system->diagram().cmdImp(1));
    auto *page = static_cast<RichTextBox *>(m_system->active()->control(u"rtfData"_s));
    giveFocus(*page);
    press(u"miAll"_s);
    QCOMPARE(page->SelLength(), page->Text().size());
    press(u"miCopy"_s);
    QCOMPARE(clipboard(), page->Text());
}

QTEST_MAIN(tst_MenuEditCommands)
#include "tst_MenuEditCommands.moc"
