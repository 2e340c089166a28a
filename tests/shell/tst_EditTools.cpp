// Cut, Copy and Paste as the selection and the clipboard allow them, and the formats of a selection.
#include "shell/ShellProbes.h"
#include "shell/modFunctions.h"
#include "support/RunningSystem.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QMdiArea>
#include <QMimeData>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
bool enabled(const QString &tool)
{
    return Default<mdiMain>().mnuMain.Bands(u"mnuEdit"_s).Tools(tool).Enabled();
}

void setEnabled(const QString &tool, bool on)
{
    Default<mdiMain>().mnuMain.Bands(u"mnuEdit"_s).Tools(tool).setEnabled(on);
}

QString formatsOf(const RichTextBox &box)
{
    QStringList formats;
    if (box.SelBold()) formats << u"bold"_s;
    if (box.SelItalic()) formats << u"italic"_s;
    if (box.SelUnderline()) formats << u"underlined"_s;
    return (formats << u"alignment %1"_s.arg(box.SelAlignment())).join(u", "_s);
}

void fillClipboard(const QString &format)
{
    auto *data = new QMimeData;
    if (format == u"picture")
        data->setImageData(QImage(2, 2, QImage::Format_RGB32));
    else if (format == u"text/plain")
        data->setText(u"text"_s);
    else if (!format.isEmpty())
        data->setData(format, "{\\rtf1 text}");
    QApplication::clipboard()->setMimeData(data);
}
} // namespace

class tst_EditTools : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void withTheDiagramActiveCutAndCopyAreDisabled_data();
    void withTheDiagramActiveCutAndCopyAreDisabled();
    void pasteFollowsTheClipboard_data();
    void pasteFollowsTheClipboard();
    void cutAndCopyFollowTheSelection_data();
    void cutAndCopyFollowTheSelection();
    void aSelectionInAPlainTextBoxDoesNotCount();
    void aSelectionBesideTheFrameCountsToo();
    void withoutFocusCutAndCopyAreDisabled();
    void noOtherToolChanges();
    void aSelectionInTheGuideIsFollowedAsItIsMade();
    void anOpeningWindowFollowsTheClipboard_data();
    void anOpeningWindowFollowsTheClipboard();

    void aFormatToolActsOnTheSelection_data();
    void aFormatToolActsOnTheSelection();
    void formatToolsTurnOnAndOff_data();
    void formatToolsTurnOnAndOff();
    void alignmentsReplaceOneAnother();
    void anyOtherToolNeedsNoText();
    void aFormatToolWithoutTextIsRefused_data();
    void aFormatToolWithoutTextIsRefused();
    void theFontIsTheListsSelectedEntry();
    void theFontSizeIsTheListsSelectedEntry();
    void anyOtherToolSetsNoFont();
    void aFontToolWithoutTextIsRefused();

private:
    mdiMain &frame() const { return m_system->frame(); }
    void openGuide() const { m_system->click(m_system->diagram().cmdImp(1)); }
    RichTextBox &page() const { return *static_cast<RichTextBox *>(m_system->active()->control(u"rtfData"_s)); }
    TextWindow &openTexts() const;
    void format(const QString &name) const;
    void chooseFont(const QString &name, const QStringList &entries, int index) const;

    std::optional<RunningSystem> m_system;
};

void tst_EditTools::init()
{
    m_system.emplace();
    m_system->start();
}

void tst_EditTools::cleanup()
{
    m_system.reset();
}

TextWindow &tst_EditTools::openTexts() const
{
    auto &window = *new TextWindow;
    window.Show();
    giveFocus(window.rich);
    return window;
}

void tst_EditTools::format(const QString &name) const
{
    LooseTool loose(name);
    frame().FormatSelection(loose.tool);
}

void tst_EditTools::chooseFont(const QString &name, const QStringList &entries, int index) const
{
    LooseTool loose(name);
    loose.tool.setList(entries);
    loose.tool.setListIndex(index);
    frame().FontSelection(loose.tool);
}

void tst_EditTools::withTheDiagramActiveCutAndCopyAreDisabled_data()
{
    QTest::addColumn<QString>("way");
    for (const auto &way : {u"Window menu"_s, u"Close"_s, u"activated"_s})
        QTest::addRow("%s", qPrintable(way)) << way;
}

// The selection stays in the window that is left.
void tst_EditTools::withTheDiagramActiveCutAndCopyAreDisabled()
{
    QFETCH(QString, way);
    openGuide();
    giveFocus(page());
    page().setSelLength(5);
    QVERIFY(enabled(u"miCut"_s) && enabled(u"miCopy"_s));
    if (way == u"Window menu") m_system->clickTool(frame(), u"mnuMain"_s, u"mnuWindow"_s, u"Command Center"_s);
    if (way == u"Close") m_system->clickTool(*m_system->active(), u"mnuLinks"_s, u"mnuRelated"_s, u"Close"_s);
    if (way == u"activated") frame().area().setActiveSubWindow(&m_system->diagram().subWindow());
    QCOMPARE(m_system->active(), &m_system->diagram());
    QVERIFY(!enabled(u"miCut"_s));
    QVERIFY(!enabled(u"miCopy"_s));
}

void tst_EditTools::pasteFollowsTheClipboard_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<bool>("pastes");
    QTest::newRow("nothing") << u""_s << false;
    QTest::newRow("plain text") << u"text/plain"_s << true;
    QTest::newRow("rich text") << u"text/rtf"_s << true;
    QTest::newRow("rich text of an application") << u"application/rtf"_s << true;
    QTest::newRow("picture") << u"picture"_s << false;
    QTest::newRow("other") << u"application/x-other"_s << false;
}

void tst_EditTools::pasteFollowsTheClipboard()
{
    QFETCH(QString, format);
    QFETCH(bool, pastes);
    setEnabled(u"miPaste"_s, !pastes);
    fillClipboard(format);
    UpdateEditTools();
    QCOMPARE(enabled(u"miPaste"_s), pastes);
    QVERIFY(!enabled(u"miCut"_s));
}

void tst_EditTools::cutAndCopyFollowTheSelection_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("length");
    for (const auto &control : {u"rich"_s, u"zel"_s})
        for (const int length : {0, 1, 7})
            QTest::addRow("%s, %d", qPrintable(control), length) << control << length;
}

void tst_EditTools::cutAndCopyFollowTheSelection()
{
    QFETCH(QString, control);
    QFETCH(int, length);
    TextWindow &window = openTexts();
    auto &box = *static_cast<RichTextBox *>(window.control(control));
    giveFocus(box);
    box.setSelLength(length);
    for (const auto &tool : {u"miCut"_s, u"miCopy"_s})
        setEnabled(tool, length == 0);
    UpdateEditTools();
    QCOMPARE(enabled(u"miCut"_s), length > 0);
    QCOMPARE(enabled(u"miCopy"_s), length > 0);
}

void tst_EditTools::aSelectionInAPlainTextBoxDoesNotCount()
{
    TextWindow &window = openTexts();
    window.rich.setSelLength(3);
    giveFocus(window.plain);
    QTest::keyClick(&window.plain.widget(), Qt::Key_A, Qt::ControlModifier);
    setEnabled(u"miCut"_s, true);
    setEnabled(u"miCopy"_s, true);
    UpdateEditTools();
    QVERIFY(!enabled(u"miCut"_s));
    QVERIFY(!enabled(u"miCopy"_s));
}

// What counts is the control that has the focus on the screen, in whichever window.
void tst_EditTools::aSelectionBesideTheFrameCountsToo()
{
    frmDemo &console = m_system->console();
    console.SetFocus();
    QTRY_VERIFY(console.shell().isActiveWindow());
    console.rtf.SetFocus();
    QTRY_COMPARE(screenActiveControl(), &console.rtf);
    console.rtf.setSelLength(3);
    UpdateEditTools();
    QVERIFY(enabled(u"miCut"_s) && enabled(u"miCopy"_s));
    console.rtf.setSelLength(0);
    UpdateEditTools();
    QVERIFY(!enabled(u"miCut"_s) && !enabled(u"miCopy"_s));
}

void tst_EditTools::withoutFocusCutAndCopyAreDisabled()
{
    openTexts().rich.setSelLength(3);
    QApplication::focusWidget()->clearFocus();
    setEnabled(u"miCut"_s, true);
    UpdateEditTools();
    QVERIFY(!enabled(u"miCut"_s));
}

void tst_EditTools::noOtherToolChanges()
{
    openTexts().rich.setSelLength(3);
    setEnabled(u"miUndo"_s, false);
    setEnabled(u"miAll"_s, false);
    UpdateEditTools();
    QVERIFY(!enabled(u"miUndo"_s));
    QVERIFY(!enabled(u"miAll"_s));
}

void tst_EditTools::aSelectionInTheGuideIsFollowedAsItIsMade()
{
    openGuide();
    giveFocus(page());
    QVERIFY(!enabled(u"miCopy"_s));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QVERIFY(enabled(u"miCopy"_s));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home, Qt::ControlModifier);
    QVERIFY(!enabled(u"miCopy"_s));
}

void tst_EditTools::anOpeningWindowFollowsTheClipboard_data()
{
    QTest::addColumn<int>("tag");
    for (const int tag : {127, 219, 311})
        QTest::addRow("%d", tag) << tag;
}

void tst_EditTools::anOpeningWindowFollowsTheClipboard()
{
    QFETCH(int, tag);
    QVERIFY(!enabled(u"miPaste"_s));
    QApplication::clipboard()->setText(u"text"_s);
    LooseTool loose(u"tool"_s, tag, u"title"_s);
    OpenFromTool(loose.tool);
    QVERIFY(enabled(u"miPaste"_s));
}

void tst_EditTools::aFormatToolActsOnTheSelection_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QString>("expected");
    QTest::newRow("miBold") << u"miBold"_s << u"bold, alignment 0"_s;
    QTest::newRow("miItalic") << u"miItalic"_s << u"italic, alignment 0"_s;
    QTest::newRow("miUnderline") << u"miUnderline"_s << u"underlined, alignment 0"_s;
    QTest::newRow("miLeft") << u"miLeft"_s << u"alignment 0"_s;
    QTest::newRow("miRight") << u"miRight"_s << u"alignment 1"_s;
    QTest::newRow("miCenter") << u"miCenter"_s << u"alignment 2"_s;
    QTest::newRow("another name") << u"MIBOLD"_s << u"alignment 0"_s;
}

void tst_EditTools::aFormatToolActsOnTheSelection()
{
    QFETCH(QString, tool);
    RichTextBox &box = openTexts().rich;
    box.setSelLength(3);
    format(tool);
    QTEST(formatsOf(box), "expected");
}

void tst_EditTools::alignmentsReplaceOneAnother()
{
    RichTextBox &box = openTexts().rich;
    for (const auto &[tool, alignment] : {std::pair(u"miCenter"_s, 2), {u"miRight"_s, 1}, {u"miLeft"_s, 0}}) {
        format(tool);
        QCOMPARE(box.SelAlignment(), alignment);
        format(tool);
        QCOMPARE(box.SelAlignment(), alignment);
    }
}

void tst_EditTools::formatToolsTurnOnAndOff_data()
{
    QTest::addColumn<QString>("tool");
    for (const auto &tool : {u"miBold"_s, u"miItalic"_s, u"miUnderline"_s})
        QTest::addRow("%s", qPrintable(tool)) << tool;
}

void tst_EditTools::formatToolsTurnOnAndOff()
{
    QFETCH(QString, tool);
    RichTextBox &box = openTexts().zel;
    giveFocus(box);
    box.setSelLength(3);
    const QString before = formatsOf(box);
    format(tool);
    QVERIFY(formatsOf(box) != before);
    format(tool);
    QCOMPARE(formatsOf(box), before);
}

void tst_EditTools::anyOtherToolNeedsNoText()
{
    giveFocus(openTexts().plain);
    format(u"exit"_s);
    chooseFont(u"miZoom"_s, {u"75%"_s}, 0);
    QVERIFY(m_system->host.messages().empty());
}

void tst_EditTools::aFormatToolWithoutTextIsRefused_data()
{
    QTest::addColumn<QString>("tool");
    for (const auto &tool : {u"miBold"_s, u"miItalic"_s, u"miUnderline"_s, u"miLeft"_s, u"miRight"_s, u"miCenter"_s})
        QTest::addRow("%s", qPrintable(tool)) << tool;
}

void tst_EditTools::aFormatToolWithoutTextIsRefused()
{
    QFETCH(QString, tool);
    giveFocus(openTexts().plain);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, format(tool));
}

void tst_EditTools::theFontIsTheListsSelectedEntry()
{
    RichTextBox &box = openTexts().rich;
    box.setSelLength(3);
    const double size = box.SelFontSize();
    chooseFont(u"miFont"_s, {u"Arial"_s, u"Verdana"_s, u"12"_s}, 1);
    QCOMPARE(box.SelFontName(), u"Verdana"_s);
    QCOMPARE(box.SelFontSize(), size);
}

void tst_EditTools::theFontSizeIsTheListsSelectedEntry()
{
    RichTextBox &box = openTexts().rich;
    box.setSelLength(3);
    const QString font = box.SelFontName();
    chooseFont(u"miFontSize"_s, {u"8"_s, u"9.75"_s, u"12"_s}, 1);
    QCOMPARE(box.SelFontSize(), 9.75);
    QCOMPARE(box.SelFontName(), font);
}

void tst_EditTools::anyOtherToolSetsNoFont()
{
    RichTextBox &box = openTexts().rich;
    box.setSelLength(3);
    const QString font = box.SelFontName();
    const double size = box.SelFontSize();
    chooseFont(u"mifont"_s, {u"Verdana"_s, u"12"_s}, 0);
    chooseFont(u"miZoom"_s, {u"Verdana"_s, u"12"_s}, 1);
    QCOMPARE(box.SelFontName(), font);
    QCOMPARE(box.SelFontSize(), size);
}

void tst_EditTools::aFontToolWithoutTextIsRefused()
{
    giveFocus(openTexts().plain);
    QVERIFY_THROWS_EXCEPTION(RunTimeError, chooseFont(u"miFont"_s, {u"Arial"_s}, 0));
    QVERIFY_THROWS_EXCEPTION(RunTimeError, chooseFont(u"miFontSize"_s, {u"12"_s}, 0));
}

QTEST_MAIN(tst_EditTools)
#include "tst_EditTools.moc"
