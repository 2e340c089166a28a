// What the guide's window shows of a page is what the page's chunks say.
#include "documents/ChunkReading.h"
#include "documents/guide/GuideWindow.h"
#include "documents/pages/GuidePages.h"

#include <QTextDocument>
#include <QTextList>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;
using namespace pagetext;

namespace
{

constexpr double TwipsToPixels = 1 / 15.0;

struct Shown {
    QString section;
    QString tool; // empty: as the window opens
    QString (*page)();
};
using Views = QMap<QString, Shown>;

const Views &views()
{
    static const Views all{
        {u"Section 1"_s, {u"101"_s, {}, pages::guideSection1}},
        {u"Section 2"_s, {u"102"_s, {}, pages::guideSection2}},
        {u"Section 3"_s, {u"103"_s, {}, pages::guideSection3}},
        {u"Section 4"_s, {u"104"_s, {}, pages::guideSection4}},
        {u"Requirement"_s, {u"127"_s, {}, pages::stepRequirement}},
        {u"Procedure"_s, {u"127"_s, u"Procedure"_s, pages::stepProcedure}},
        {u"Implementation"_s, {u"127"_s, u"Implementation"_s, pages::stepImplementation}},
        {u"Tips"_s, {u"127"_s, u"Tips"_s, pages::stepTips}},
    };
    return all;
}

// The window with one of the pages, and what the page's chunks say.
struct OpenPage {
    explicit OpenPage(const QString &view)
        : shown(views()[view]), open(shown.section), said(ChunkReader().read(shown.page()))
    {
        if (!shown.tool.isEmpty()) open.press(shown.tool);
    }

    QTextBlock block(qsizetype number) const { return open.page().document()->findBlockByNumber(int(number)); }
    Shown shown;
    GuideWindow open;
    QList<Paragraph> said;
};

Look lookAt(const QTextBlock &block, int index)
{
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + index + 1);
    const QTextCharFormat format = cursor.charFormat();
    Look look;
    look.size = qRound(format.fontPointSize() * 2);
    look.bold = format.fontWeight() >= QFont::Bold;
    look.italic = format.fontItalic();
    look.underline = format.fontUnderline();
    look.raised = format.baselineOffset() > 0;
    look.red = format.foreground().color() == QColor(255, 0, 0);
    return look;
}

QString words(const Look &look)
{
    return u"%1 %2%3%4%5%6"_s.arg(look.size)
        .arg(look.bold ? u"b" : u"")
        .arg(look.italic ? u"i" : u"")
        .arg(look.underline ? u"u" : u"")
        .arg(look.raised ? u"r" : u"")
        .arg(look.red ? u"red" : u"");
}

double leftEdge(const GuideWindow &open)
{
    return open.page().document()->documentMargin();
}

// Where the character before which this position stands begins, in pixels from the left margin of the text.
double xOf(const GuideWindow &open, int position)
{
    QTextCursor cursor(open.page().document());
    cursor.setPosition(position);
    const QTextBlock block = cursor.block();
    const QTextLine line = block.layout()->lineForTextPosition(position - block.position());
    return line.cursorToX(position - block.position()) + block.layout()->position().x() - leftEdge(open);
}

} // namespace

class tst_GuidePageLooks : public QObject
{
    Q_OBJECT

private slots:
    void everyParagraphBearsItsText_data() { addViews(); }
    void everyParagraphBearsItsText();
    void everyCharacterHasItsLook_data() { addViews(); }
    void everyCharacterHasItsLook();
    void allTextIsInOneFont_data() { addViews(); }
    void allTextIsInOneFont();
    void everyParagraphHasItsPlace_data() { addViews(); }
    void everyParagraphHasItsPlace();
    void bulletsAreShownAndHang_data() { addViews(); }
    void bulletsAreShownAndHang();
    void aBulletIsNoPartOfTheText();
    void anActionHangsBesideItsNumber();
    void tabsStopAtTheirPlaces();
    void theProductWordOfTheTitleIsLarger();
    void theShortHeadingIsSmallWithARedWord();
    void theTextStandsOutFromItsGround();

private:
    static void addViews();
};

void tst_GuidePageLooks::addViews()
{
    QTest::addColumn<QString>("view");
    const QStringList all = views().keys();
    for (const QString &view : all)
        QTest::addRow("%s", qPrintable(view)) << view;
}

void tst_GuidePageLooks::everyParagraphBearsItsText()
{
    QFETCH(QString, view);
    const OpenPage page(view);
    QCOMPARE(page.open.page().document()->blockCount(), page.said.size());
    for (qsizetype i = 0; i < page.said.size(); ++i)
        QCOMPARE(page.block(i).text(), page.said.at(i).text);
}

void tst_GuidePageLooks::everyCharacterHasItsLook()
{
    QFETCH(QString, view);
    const OpenPage page(view);
    for (qsizetype i = 0; i < page.said.size(); ++i) {
        const Paragraph &said = page.said.at(i);
        for (qsizetype j = 0; j < said.text.size(); ++j) {
            const Look shown = lookAt(page.block(i), int(j));
            if (shown == said.looks.at(j)) continue;
            QFAIL(qPrintable(u"paragraph %1, \"%2\": %3 and not %4"_s.arg(i).arg(said.text.sliced(j), words(shown),
                                                                                 words(said.looks.at(j)))));
        }
    }
}

void tst_GuidePageLooks::allTextIsInOneFont()
{
    QFETCH(QString, view);
    const OpenPage page(view);
    for (QTextBlock block = page.block(0); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment run = part.fragment();
            QCOMPARE(run.charFormat().fontFamilies().toStringList(), QStringList(u"Times New Roman"_s));
        }
}

void tst_GuidePageLooks::everyParagraphHasItsPlace()
{
    QFETCH(QString, view);
    const OpenPage page(view);
    for (qsizetype i = 0; i < page.said.size(); ++i) {
        const Place &said = page.said.at(i).place;
        const QTextBlockFormat format = page.block(i).blockFormat();
        QCOMPARE(format.leftMargin(), said.left * TwipsToPixels);
        QCOMPARE(format.textIndent(), said.bullet ? 0 : said.first * TwipsToPixels);
        QCOMPARE(format.alignment().testFlag(Qt::AlignHCenter), said.centred);
        QCOMPARE(page.block(i).textList() != nullptr, said.bullet);
    }
}

void tst_GuidePageLooks::bulletsAreShownAndHang()
{
    QFETCH(QString, view);
    const OpenPage page(view);
    int bullets = 0;
    for (QTextBlock block = page.block(0); block.isValid(); block = block.next()) {
        if (!block.textList()) continue;
        ++bullets;
        QCOMPARE(block.textList()->format().style(), QTextListFormat::ListDisc);
        for (int line = 0; line < block.layout()->lineCount(); ++line)
            QCOMPARE(xOf(page.open, block.position() + block.layout()->lineAt(line).textStart()), 24.0);
    }
    QCOMPARE(bullets, pagetext::bullets(page.shown.page()).size());
}

void tst_GuidePageLooks::aBulletIsNoPartOfTheText()
{
    const OpenPage page(u"Tips"_s);
    QVERIFY(page.open.guide->rtfData.Text().startsWith(u"Include the"_s));
    QVERIFY(!page.open.guide->rtfData.Text().contains(u'\t'));
    QVERIFY(!page.open.guide->rtfData.Text().contains(QChar(0xB7)));
}

void tst_GuidePageLooks::anActionHangsBesideItsNumber()
{
    const OpenPage page(u"Implementation"_s);
    for (QTextBlock block = page.block(0); block.isValid(); block = block.next()) {
        QVERIFY(block.layout()->lineCount() > 1);
        QCOMPARE(xOf(page.open, block.position()), 0.0);
        QCOMPARE(xOf(page.open, block.position() + 3), 24.0);
        QCOMPARE(xOf(page.open, block.position() + block.layout()->lineAt(1).textStart()), 24.0);
    }
}

void tst_GuidePageLooks::tabsStopAtTheirPlaces()
{
    const OpenPage page(u"Implementation"_s);
    QCOMPARE(page.open.page().document()->defaultTextOption().tabStopDistance(), 48.0);
    const QList<QTextOption::Tab> tabs = page.block(0).blockFormat().tabPositions();
    QCOMPARE(tabs.size(), 2);
    QCOMPARE(tabs.at(0).position, 360 * TwipsToPixels);
    QCOMPARE(tabs.at(1).position, 10024 * TwipsToPixels);
}

void tst_GuidePageLooks::theProductWordOfTheTitleIsLarger()
{
    const OpenPage page(u"Section 1"_s);
    const QTextBlock title = page.block(0);
    QCOMPARE(lookAt(title, 0), (Look{.size = 32, .bold = true}));
    QCOMPARE(lookAt(title, int(title.text().indexOf(u"orvane"_s))), (Look{.size = 34, .bold = true}));
}

void tst_GuidePageLooks::theShortHeadingIsSmallWithARedWord()
{
    const RunningSystem system;
    frmIGSteps guide;
    guide.rtfData.setTextRTF(pages::implementationHeading());
    const QTextDocument &document = *static_cast<QTextEdit &>(guide.rtfData.widget()).document();
    QCOMPARE(document.blockCount(), 4);
    QCOMPARE(lookAt(document.findBlockByNumber(0), 0), (Look{.size = 18, .bold = true}));
    QCOMPARE(lookAt(document.findBlockByNumber(1), 0), (Look{.size = 18}));
    const QTextBlock click = document.findBlockByNumber(3);
    QCOMPARE(click.text(), u"Click - Any of the bolded words"_s);
    QCOMPARE(lookAt(click, 0), (Look{.size = 18, .bold = true, .red = true}));
    QCOMPARE(lookAt(click, 8), (Look{.size = 18, .red = true}));
}

void tst_GuidePageLooks::theTextStandsOutFromItsGround()
{
    const OpenPage page(u"Requirement"_s);
    const QColor text = page.open.page().palette().color(QPalette::Text);
    const QColor ground = page.open.page().palette().color(QPalette::Base);
    QVERIFY(ground.lightness() - text.lightness() > 150);
    QVERIFY(page.open.guide->rtfData.Locked());
}

QTEST_MAIN(tst_GuidePageLooks)
#include "tst_GuidePageLooks.moc"
