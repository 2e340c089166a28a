// No caption is cut or clipped: in the usual font, in one half as large again, and, run a second time, at double scale.
#include "access/Scenes.h"

#include "platform/controls/CaptionButton.h"
#include "platform/controls/PanelWidget.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{

QSize textSize(const QWidget &widget, const QString &text)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text);
}

bool fits(const QSize &needed, const QSize &room)
{
    return needed.width() <= room.width() && needed.height() <= room.height();
}

bool labelFits(const QLabel &label)
{
    if (label.wordWrap()) return label.heightForWidth(label.width()) <= label.height();
    const QSize needed(label.fontMetrics().horizontalAdvance(label.text()), label.fontMetrics().ascent());
    return fits(needed, label.size());
}

// The card sets a long caption a little smaller, down to this.
bool cardFits(const CaptionButton &card)
{
    constexpr double LeastPoints = 6.5;
    constexpr int Picture = 36;
    QFont font = card.font();
    font.setPointSizeF(LeastPoints);
    const QRect room = card.rect().adjusted(3, card.isCheckable() ? Picture : 2, -3, -2);
    return fits(QFontMetrics(font).boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, card.text()).size(),
                room.size());
}

// A tool that has a picture may go without its caption.
bool toolFits(const QToolButton &tool)
{
    const bool fitsAcross = textSize(tool, tool.text()).width() <= tool.width();
    return (fitsAcross || !tool.icon().isNull()) && tool.fontMetrics().height() <= tool.height();
}

bool tabsFit(const QTabBar &tabs)
{
    for (int i = 0; i < tabs.count(); ++i)
        if (!fits(textSize(tabs, tabs.tabText(i)), tabs.tabRect(i).size()) || tabs.tabRect(i).right() > tabs.width())
            return false;
    return true;
}

bool captionFits(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) return labelFits(*label);
    if (const auto *card = qobject_cast<const CaptionButton *>(&widget)) return cardFits(*card);
    if (const auto *tool = qobject_cast<const QToolButton *>(&widget)) return toolFits(*tool);
    if (const auto *button = qobject_cast<const QPushButton *>(&widget))
        return fits(textSize(*button, button->text()), button->size());
    if (const auto *panel = qobject_cast<const PanelWidget *>(&widget))
        return panel->caption().isEmpty() || fits(textSize(*panel, panel->caption()), panel->size() - QSize(12, 0));
    if (const auto *line = qobject_cast<const QLineEdit *>(&widget))
        return line->fontMetrics().height() <= line->height();
    if (const auto *tabs = qobject_cast<const QTabBar *>(&widget)) return tabsFit(*tabs);
    return true;
}

QString cutCaptions(const QWidget &window)
{
    QStringList cut;
    for (const QWidget *widget : window.findChildren<const QWidget *>())
        if (!widget->visibleRegion().isEmpty() && !captionFits(*widget)) cut << widget->objectName();
    cut.sort();
    return cut.join(u' ');
}

// Wide enough for the headings: on a smaller screen they end in dots.
QWidget *openWide(Stage &stage)
{
    QWidget *window = openScene(stage);
    if (window != scenes::frame(stage)) return window;
    window->showNormal();
    window->resize(1024, 740);
    return window;
}

} // namespace

class tst_LargeFonts : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_stage = std::make_unique<Stage>(); }
    void cleanup() { m_stage.reset(); }

    void aCutCaptionIsFound();
    void captionsFitInTheUsualFont_data() { addScenes(); }
    void captionsFitInTheUsualFont();
    void captionsFitInALargeFont_data() { addScenes(); }
    void captionsFitInALargeFont();
    void theSplashFits();
    void theScaleIsTheOneAskedFor();

private:
    std::unique_ptr<Stage> m_stage;
};

// The measure itself, by something that it has to find.
void tst_LargeFonts::aCutCaptionIsFound()
{
    QWidget window;
    QLabel label(u"Authorized by somebody"_s, &window);
    QPushButton button(u"Go to the other version"_s, &window);
    label.setObjectName(u"label"_s);
    button.setObjectName(u"button"_s);
    label.setGeometry(0, 0, 60, 30);
    button.setGeometry(0, 40, 60, 30);
    window.show();
    QCOMPARE(cutCaptions(window), u"button label"_s);
    label.resize(400, 30);
    button.resize(400, 30);
    QCOMPARE(cutCaptions(window), QString());
}

void tst_LargeFonts::captionsFitInTheUsualFont()
{
    QCOMPARE(cutCaptions(*openWide(*m_stage)), QString());
}

void tst_LargeFonts::captionsFitInALargeFont()
{
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    QApplication::setFont(font);
    QCOMPARE(cutCaptions(*openWide(*m_stage)), QString());
}

void tst_LargeFonts::theSplashFits()
{
    frmSplash &splash = Default<frmSplash>();
    splash.shell().show();
    QCOMPARE(cutCaptions(splash.shell()), QString());
}

void tst_LargeFonts::theScaleIsTheOneAskedFor()
{
    const QByteArray asked = qgetenv("QT_SCALE_FACTOR");
    m_stage->system.start();
    QCOMPARE(scenes::frame(*m_stage)->devicePixelRatioF(), asked.isEmpty() ? 1.0 : asked.toDouble());
    const QImage tab = m_stage->system.diagram().SSRibbon1(1).widget().grab().toImage();
    QCOMPARE(tab.width(), qRound(97 * tab.devicePixelRatio()));
}

QTEST_MAIN(tst_LargeFonts)
#include "tst_LargeFonts.moc"
