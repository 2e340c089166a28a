// The contrast of texts with what they stand on, as it is drawn. What is disabled is exempt.
#include "access/ContrastOf.h"
#include "access/Scenes.h"

#include "platform/controls/CaptionButton.h"
#include "platform/controls/Palette.h"
#include "platform/controls/PanelWidget.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextTable>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

// Whether the widget draws a text itself, and not only in a picture beside it.
bool drawsText(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) return !label->text().trimmed().isEmpty();
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) return !button->text().isEmpty();
    if (const auto *line = qobject_cast<const QLineEdit *>(&widget)) return !line->text().isEmpty();
    if (const auto *panel = qobject_cast<const PanelWidget *>(&widget)) return !panel->caption().isEmpty();
    return false;
}

// What the widget draws inside its border, on what lies behind it, without its picture.
QImage drawn(QWidget &widget)
{
    constexpr int Border = 3;
    auto *tool = qobject_cast<QToolButton *>(&widget);
    const QIcon icon = tool ? tool->icon() : QIcon();
    if (tool) tool->setIcon({});
    QWidget *window = widget.window();
    const QRect place = QRect(widget.mapTo(window, QPoint()), widget.size()).adjusted(Border, Border, -Border, -Border);
    const QImage image = window->grab(place & window->rect()).toImage();
    if (tool) tool->setIcon(icon);
    const bool isTab = qobject_cast<CaptionButton *>(&widget) && widget.height() > 60;
    return isTab ? image.copy(image.rect().adjusted(0, image.height() / 2, 0, 0)) : image;
}

QString weakTexts(QWidget *window)
{
    QStringList weak;
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        const bool seen = widget->isVisible() && !widget->visibleRegion().isEmpty();
        if (!seen || !widget->isEnabled() || !drawsText(*widget)) continue;
        const double found = contrastIn(drawn(*widget));
        if (found < LeastContrast) weak << u"%1 %2"_s.arg(widget->objectName()).arg(found);
    }
    return weak.join(u", "_s);
}

QColor groundOfRun(const QTextBlock &block, const QTextFragment &run, const QTextEdit &edit)
{
    if (run.charFormat().background().style() != Qt::NoBrush) return run.charFormat().background().color();
    if (block.blockFormat().background().style() != Qt::NoBrush) return block.blockFormat().background().color();
    const QTextTable *table = QTextCursor(block).currentTable();
    const QTextTableCell cell = table ? table->cellAt(block.position()) : QTextTableCell();
    if (cell.isValid() && cell.format().background().style() != Qt::NoBrush) return cell.format().background().color();
    return edit.palette().color(QPalette::Base);
}

QColor inkOfRun(const QTextFragment &run, const QTextEdit &edit)
{
    const QBrush foreground = run.charFormat().foreground();
    return foreground.style() == Qt::NoBrush ? edit.palette().color(QPalette::Text) : foreground.color();
}

QString weakRuns(const QTextEdit &edit)
{
    QStringList weak;
    for (QTextBlock block = edit.document()->begin(); block.isValid(); block = block.next())
        for (auto run = block.begin(); !run.atEnd(); ++run) {
            const double found = contrast(inkOfRun(run.fragment(), edit), groundOfRun(block, run.fragment(), edit));
            if (found < LeastContrast) weak << u"\"%1\" %2"_s.arg(run.fragment().text()).arg(found);
        }
    return weak.join(u", "_s);
}

} // namespace

class tst_Contrast : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_stage = std::make_unique<Stage>(); }
    void cleanup() { m_stage.reset(); }

    void theRatioIsThatOfTheGuidelines_data();
    void theRatioIsThatOfTheGuidelines();
    void aWeakCaptionIsFound();
    void aWeakRunIsFound();
    void captionsStandOut_data() { addScenes(); }
    void captionsStandOut();
    void captionsUnderTheMouseStandOut_data() { addScenes(); }
    void captionsUnderTheMouseStandOut();
    void textsStandOutSelectedOrNot_data() { addScenes(); }
    void textsStandOutSelectedOrNot();
    void menusStandOut_data();
    void menusStandOut();
    void theSplashStandsOut();
    void theWordsOfTheIntroStandOut();
    void toolTipsStandOut();

private:
    std::unique_ptr<Stage> m_stage;
};

void tst_Contrast::theRatioIsThatOfTheGuidelines_data()
{
    QTest::addColumn<QColor>("one");
    QTest::addColumn<QColor>("other");
    QTest::addColumn<double>("ratio");
    QTest::newRow("black on white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
    QTest::newRow("the same") << QColor(Qt::red) << QColor(Qt::red) << 1.0;
    QTest::newRow("red on white") << QColor(Qt::red) << QColor(Qt::white) << 3.998;
    QTest::newRow("a grey just too weak") << QColor(0x77, 0x77, 0x77) << QColor(Qt::white) << 4.478;
}

void tst_Contrast::theRatioIsThatOfTheGuidelines()
{
    QFETCH(QColor, one);
    QFETCH(QColor, other);
    QFETCH(double, ratio);
    QVERIFY(std::abs(contrast(one, other) - ratio) < 0.001);
    QVERIFY(std::abs(contrast(other, one) - ratio) < 0.001);
}

// The measure itself, by something that it has to find.
void tst_Contrast::aWeakCaptionIsFound()
{
    QWidget window;
    window.setPalette(Qt::white);
    QLabel label(u"Weak"_s, &window);
    label.setObjectName(u"weak"_s);
    label.setStyleSheet(u"font-size: 20px; color: #7A7A7A; background: white"_s);
    label.setGeometry(0, 0, 120, 40);
    window.show();
    QVERIFY(weakTexts(&window).startsWith(u"weak 4."_s));
    label.setStyleSheet(u"font-size: 20px; color: #707070; background: white"_s);
    QCOMPARE(weakTexts(&window), QString());
}

void tst_Contrast::aWeakRunIsFound()
{
    QTextEdit edit;
    edit.setHtml(
        u"<p>Fine <span style='color: #7A7A7A'>weak</span> <span style='background: #1F3A3D'>dark</span></p>"_s);
    QVERIFY(weakRuns(edit).contains(u"\"weak\" 4."_s));
    QVERIFY(weakRuns(edit).contains(u"\"dark\" 1"_s));
    QVERIFY(!weakRuns(edit).contains(u"Fine"_s));
}

void tst_Contrast::captionsStandOut()
{
    QCOMPARE(weakTexts(openScene(*m_stage)), QString());
}

void tst_Contrast::captionsUnderTheMouseStandOut()
{
    QWidget *window = openScene(*m_stage);
    QStringList weak;
    for (auto *button : window->findChildren<QAbstractButton *>()) {
        if (button->visibleRegion().isEmpty() || !button->isEnabled() || button->text().isEmpty()) continue;
        QEnterEvent enter(button->rect().center(), button->rect().center(), button->rect().center());
        button->setAttribute(Qt::WA_UnderMouse);
        QCoreApplication::sendEvent(button, &enter);
        const double pointed = contrastIn(drawn(*button));
        button->setDown(true);
        const double held = contrastIn(drawn(*button));
        button->setDown(false);
        if (std::min(pointed, held) < LeastContrast) weak << button->objectName();
    }
    QCOMPARE(weak.join(u' '), QString());
}

void tst_Contrast::textsStandOutSelectedOrNot()
{
    QStringList weak;
    for (const QWidget *widget : openScene(*m_stage)->findChildren<const QWidget *>()) {
        const QPalette &looks = widget->palette();
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            if (contrast(looks.color(group, QPalette::HighlightedText), looks.color(group, QPalette::Highlight)) <
                LeastContrast)
                weak << widget->objectName() + u", selected"_s;
        if (const auto *edit = qobject_cast<const QTextEdit *>(widget)) weak << weakRuns(*edit);
    }
    weak.removeAll(QString());
    QCOMPARE(weak.join(u"; "_s), QString());
}

void tst_Contrast::menusStandOut_data()
{
    QTest::addColumn<QString>("menu");
    for (const char *name : {"mnuFile", "mnuEdit", "mnuCommand", "mnuTools", "mnuWindow", "mnuHelp"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

// Each entry as it is and as it is pointed at.
void tst_Contrast::menusStandOut()
{
    QFETCH(QString, menu);
    m_stage->system.start();
    auto &frame = static_cast<QMainWindow &>(m_stage->system.frame().shell());
    auto *shown = frame.menuBar()->findChild<QMenu *>(menu);
    QVERIFY(shown);
    shown->popup(QPoint(0, 0));
    QTRY_VERIFY(shown->isVisible());
    for (QAction *entry : shown->actions()) {
        if (entry->isSeparator() || !entry->isEnabled()) continue;
        for (QAction *active : {static_cast<QAction *>(nullptr), entry}) {
            shown->setActiveAction(active);
            const QImage look = shown->grab(shown->actionGeometry(entry).adjusted(20, 3, -3, -3)).toImage();
            QVERIFY2(contrastIn(look) >= LeastContrast, qPrintable(entry->text()));
        }
        if (entry->menu()) entry->menu()->close();
    }
    shown->close();
}

void tst_Contrast::theSplashStandsOut()
{
    frmSplash &splash = Default<frmSplash>();
    splash.shell().show();
    QCOMPARE(weakTexts(&splash.shell()), QString());
}

// Each word's pixels are those that change when the words go; the ground is what is left in their place.
void tst_Contrast::theWordsOfTheIntroStandOut()
{
    m_stage->system.showSplash();
    frmInfo &intro = Default<frmInfo>();
    QTRY_VERIFY(intro.shell().isVisible());
    const QImage with = intro.Image1.widget().grab().toImage();
    intro.Image1.setWords({}, {});
    const QImage without = intro.Image1.widget().grab().toImage();
    constexpr int Cell = 16;         // pixels: about a letter
    constexpr double Rounding = 1.1; // two drawings of the same differ by that
    int lettered = 0;
    for (int top = 0; top < with.height(); top += Cell)
        for (int left = 0; left < with.width(); left += Cell) {
            const QRect cell(left, top, Cell, Cell);
            const QImage letters = with.copy(cell & with.rect());
            const QImage ground = without.copy(cell & with.rect());
            int changed = 0;
            double most = 1;
            for (int y = 0; y < letters.height(); ++y)
                for (int x = 0; x < letters.width(); ++x) {
                    const double found = contrast(letters.pixelColor(x, y), ground.pixelColor(x, y));
                    if (found > Rounding) ++changed;
                    most = std::max(most, found);
                }
            if (changed < Cell) continue; // the edge of a letter
            ++lettered;
            QVERIFY2(most >= LeastContrast, qPrintable(u"at %1, %2: %3"_s.arg(left).arg(top).arg(most)));
        }
    QVERIFY(lettered > 50);
}

void tst_Contrast::toolTipsStandOut()
{
    const QPalette looks = applicationPalette();
    for (const auto &[ink, ground] :
         {std::pair(QPalette::ToolTipText, QPalette::ToolTipBase), std::pair(QPalette::WindowText, QPalette::Window),
          std::pair(QPalette::ButtonText, QPalette::Button), std::pair(QPalette::Text, QPalette::AlternateBase),
          std::pair(QPalette::PlaceholderText, QPalette::Base), std::pair(QPalette::Link, QPalette::Base),
          std::pair(QPalette::LinkVisited, QPalette::Base)})
        QVERIFY(contrast(looks.color(ink), looks.color(ground)) >= LeastContrast);
}

QTEST_MAIN(tst_Contrast)
#include "tst_Contrast.moc"
