// Every tab, frame and button of the live diagram against the tables in data/diagram, in twips.
#include "command_center/DiagramData.h"
#include "command_center/DiagramUser.h"

#include <QAccessible>
#include <QImage>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
// Where the drawing has a pixel of that kind; null where it has none.
QRect extent(Control &control, const std::function<bool(const QColor &)> &isOne)
{
    const QImage drawing = control.widget().grab().toImage();
    QRect found;
    for (int y = 0; y < drawing.height(); ++y)
        for (int x = 0; x < drawing.width(); ++x)
            if (isOne(drawing.pixelColor(x, y))) found |= QRect(x, y, 1, 1);
    return found;
}

bool isRed(const QColor &colour)
{
    return colour.red() > 170 && colour.green() < 90 && colour.blue() < 90;
}

bool isCaption(const QColor &colour)
{
    return colour.red() < 50 && colour.green() < 50 && colour.blue() < 50;
}

template <class Element>
QString indices(const ControlArray<Element> &array)
{
    QStringList all;
    for (const auto &[index, element] : array)
        all << QString::number(index);
    return all.join(u' ');
}

QRectF placeOf(const Control &control)
{
    return {control.Left(), control.Top(), control.Width(), control.Height()};
}
} // namespace

class tst_DiagramTables : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aTabIsAsTabled_data();
    void aTabIsAsTabled();
    void onlyTheFirstTabIsDown();
    void eachTabBearsAPictureOfItsOwn();
    void aFrameIsAsTabled_data();
    void aFrameIsAsTabled();
    void everyPanelTakesTheFirstOnesPlace();
    void aButtonIsAsTabled_data();
    void aButtonIsAsTabled();
    void theArraysHaveTheirIndices();
    void theHeaderLiesOnTopInBold();
    void theGroundFillsTheWindowBehindEverything();
    void theFocusSinkLiesOutsideTheFifthPanel();

    void everyButtonIsSpokenOfAsOne_data();
    void everyButtonIsSpokenOfAsOne();
    void theTabThatIsDownIsSpokenOfAsChecked();

    void fiveButtonsBearTheRedDot_data();
    void fiveButtonsBearTheRedDot();
    void noCaptionTouchesTheEdgeOfItsCard_data();
    void noCaptionTouchesTheEdgeOfItsCard();
    void aTabsCaptionFitsInBold_data();
    void aTabsCaptionFitsInBold();

    void theConnectorsHaveTheirIndices();
    void noConnectorTouchesAButton();
    void everyConnectorLiesInsideItsFrame();

private:
    frmCommandCentre &diagram() const { return m_system->diagram(); }
    SSCommand &button(const QString &name) const { return buttonOf(diagram(), name); }
    void addButtons() const;
    QList<Control *> inFrame(int panel, const std::function<bool(Control *)> &isOne) const;
    QList<Control *> connectors(int panel) const;

    std::optional<RunningSystem> m_system;
};

// Loaded and not shown: everything stands where it was designed.
void tst_DiagramTables::init()
{
    m_system.emplace();
}

void tst_DiagramTables::cleanup()
{
    m_system.reset();
}

void tst_DiagramTables::addButtons() const
{
    QTest::addColumn<TabledButton>("row");
    for (const TabledButton &row : tabledButtons())
        QTest::newRow(qPrintable(row.name)) << row;
}

QList<Control *> tst_DiagramTables::inFrame(int panel, const std::function<bool(Control *)> &isOne) const
{
    QList<Control *> found;
    for (QObject *child : diagram().fraButtons(panel).widget().children()) {
        auto *widget = qobject_cast<QWidget *>(child);
        Control *control = widget ? Control::of(widget) : nullptr;
        if (control && isOne(control)) found << control;
    }
    return found;
}

QList<Control *> tst_DiagramTables::connectors(int panel) const
{
    return inFrame(panel, [](Control *control) { return dynamic_cast<Image *>(control); });
}

void tst_DiagramTables::aTabIsAsTabled_data()
{
    QTest::addColumn<QStringList>("row");
    for (const QStringList &row : tabledRows(u"tabs"_s))
        QTest::newRow(qPrintable(row[3])) << row;
}

void tst_DiagramTables::aTabIsAsTabled()
{
    QFETCH(QStringList, row);
    const SSRibbon &tab = diagram().SSRibbon1(row[0].toInt());
    QCOMPARE(tab.Left(), row[1].toDouble());
    QCOMPARE(tab.Top(), 600.0);
    QCOMPARE(tab.Width(), row[2].toDouble());
    QCOMPARE(tab.Height(), 1140.0);
    QCOMPARE(tab.Caption(), row[3]);
    QCOMPARE(tab.Tag(), row[4]);
}

void tst_DiagramTables::onlyTheFirstTabIsDown()
{
    QString down;
    for (const auto &[index, tab] : diagram().SSRibbon1)
        if (tab->Value()) down += QString::number(index);
    QCOMPARE(down, u"1"_s);
    QCOMPARE(indices(diagram().SSRibbon1), u"1 2 3 4 5"_s);
}

void tst_DiagramTables::eachTabBearsAPictureOfItsOwn()
{
    std::vector<QImage> pictures;
    for (const auto &[index, tab] : diagram().SSRibbon1) {
        tab->setCaption({});
        tab->Move(0, 0, 1455, 1140);
        tab->setFontBold(false);
        static_cast<QAbstractButton &>(tab->widget()).setChecked(false);
        pictures.push_back(tab->widget().grab().toImage());
    }
    for (size_t i = 0; i < pictures.size(); ++i)
        for (size_t j = 0; j < i; ++j)
            QVERIFY2(pictures[i] != pictures[j], qPrintable(u"tabs %1 and %2"_s.arg(j + 1).arg(i + 1)));
}

void tst_DiagramTables::aFrameIsAsTabled_data()
{
    QTest::addColumn<QStringList>("row");
    for (const QStringList &row : tabledRows(u"frames"_s))
        QTest::newRow(qPrintable(row[0])) << row;
}

void tst_DiagramTables::aFrameIsAsTabled()
{
    QFETCH(QStringList, row);
    const int index = row[0].toInt();
    const Frame &frame = diagram().fraButtons(index);
    QCOMPARE(placeOf(frame), QRectF(row[1].toDouble(), row[2].toDouble(), row[3].toDouble(), row[4].toDouble()));
    QCOMPARE(frame.widget().parentWidget(), &diagram().pnlDiag(index).widget());
}

void tst_DiagramTables::everyPanelTakesTheFirstOnesPlace()
{
    QCOMPARE(indices(diagram().pnlDiag), u"1 2 3 4 5"_s);
    for (const auto &[index, panel] : diagram().pnlDiag) {
        QCOMPARE(placeOf(*panel), QRectF(240, 2040, 6975, 2775));
        QCOMPARE(panel->Visible(), index == 1);
    }
}

void tst_DiagramTables::aButtonIsAsTabled_data()
{
    addButtons();
}

void tst_DiagramTables::aButtonIsAsTabled()
{
    QFETCH(TabledButton, row);
    const SSCommand &live = button(row.name);
    QCOMPARE(placeOf(live), QRectF(row.left, row.top, 1395, 615));
    QCOMPARE(live.Tag(), row.tag);
    QCOMPARE(live.Caption(), row.caption);
    QCOMPARE(live.ToolTipText(), row.tip);
    QCOMPARE(live.widget().parentWidget(), &diagram().fraButtons(row.panel).widget());
    QCOMPARE(live.widget().accessibleName(), row.caption.trimmed());
}

void tst_DiagramTables::theArraysHaveTheirIndices()
{
    QCOMPARE(indices(diagram().cmdImp), u"0 1 2"_s);
    QCOMPARE(indices(diagram().cmdImpMnu), u"3"_s);
    QCOMPARE(indices(diagram().cmdEnv), u"2 3 6"_s);
    QCOMPARE(indices(diagram().cmdEnvMnu), u"1"_s);
    QCOMPARE(indices(diagram().cmdEnvMnuAn), u"4"_s);
    QCOMPARE(indices(diagram().cmdEnvMnuMSR), u"5"_s);
    QCOMPARE(indices(diagram().cmdPrc), u"0 1"_s);
    QCOMPARE(indices(diagram().cmdRec), u"0 1"_s);
    QCOMPARE(indices(diagram().cmdAct), u"0 1 2 3 4 5 6 7 8 9 10"_s);
    QCOMPARE(indices(diagram().cmdCommand), u"0"_s);
    QCOMPARE(indices(diagram().fraButtons), u"1 2 3 4 5"_s);
}

void tst_DiagramTables::theHeaderLiesOnTopInBold()
{
    const SSPanel &header = diagram().pnlHeader;
    QCOMPARE(placeOf(header), QRectF(0, 0, 10050, 375));
    QCOMPARE(header.Caption(), u"Command Center"_s);
    QVERIFY(header.widget().font().bold());
    QCOMPARE(diagram().Caption(), u"Command Center"_s);
}

void tst_DiagramTables::theGroundFillsTheWindowBehindEverything()
{
    const zelGradient &ground = diagram().gradient;
    QCOMPARE(ground.Name(), u"zelGradient"_s);
    QCOMPARE(placeOf(ground), QRectF(0, 0, 10050, 6000));
    const QObjectList &children = diagram().surface().children(); // the lowest comes first
    QCOMPARE(children.first(), &ground.widget());
}

void tst_DiagramTables::theFocusSinkLiesOutsideTheFifthPanel()
{
    const SSCommand &sink = diagram().cmdCommand(0);
    QCOMPARE(placeOf(sink), QRectF(-500, 720, 30, 60));
    QCOMPARE(sink.Caption(), u""_s);
    QCOMPARE(sink.widget().parentWidget(), &diagram().pnlDiag(5).widget());
    QVERIFY(!sink.widget().geometry().intersects(diagram().pnlDiag(5).widget().rect()));
}

void tst_DiagramTables::everyButtonIsSpokenOfAsOne_data()
{
    addButtons();
}

void tst_DiagramTables::everyButtonIsSpokenOfAsOne()
{
    QFETCH(TabledButton, row);
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(&button(row.name).widget());
    QVERIFY(spoken);
    QCOMPARE(spoken->role(), row.dropsMenu() ? QAccessible::ButtonMenu : QAccessible::Button);
    QCOMPARE(spoken->text(QAccessible::Name), row.caption.trimmed());
    QCOMPARE(spoken->actionInterface()->actionNames().value(0), row.dropsMenu()
                                                                    ? QAccessibleActionInterface::showMenuAction()
                                                                    : QAccessibleActionInterface::pressAction());
}

void tst_DiagramTables::theTabThatIsDownIsSpokenOfAsChecked()
{
    for (const auto &[index, tab] : diagram().SSRibbon1) {
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(&tab->widget());
        QVERIFY(spoken);
        QCOMPARE(spoken->text(QAccessible::Name), tab->Caption());
        QCOMPARE(bool(spoken->state().checked), index == 1);
    }
}

void tst_DiagramTables::fiveButtonsBearTheRedDot_data()
{
    addButtons();
}

void tst_DiagramTables::fiveButtonsBearTheRedDot()
{
    QFETCH(TabledButton, row);
    const QRect dot = extent(button(row.name), isRed);
    QCOMPARE(!dot.isNull(), row.redDot);
    QVERIFY(dot.isNull() || (dot.width() >= 6 && dot.width() <= 12)); // small, and a dot
}

void tst_DiagramTables::noCaptionTouchesTheEdgeOfItsCard_data()
{
    addButtons();
}

void tst_DiagramTables::noCaptionTouchesTheEdgeOfItsCard()
{
    QFETCH(TabledButton, row);
    SSCommand &live = button(row.name);
    const QRect words = extent(live, isCaption);
    QVERIFY(words.width() > 20 && words.height() > 5);
    QVERIFY(live.widget().rect().adjusted(3, 3, -3, -3).contains(words));
}

void tst_DiagramTables::aTabsCaptionFitsInBold_data()
{
    aTabIsAsTabled_data();
}

void tst_DiagramTables::aTabsCaptionFitsInBold()
{
    QFETCH(QStringList, row);
    SSRibbon &tab = diagram().SSRibbon1(row[0].toInt());
    tab.setFontBold(true);
    const QRect words = extent(tab, isCaption);
    QVERIFY(words.width() > 20);
    QVERIFY(tab.widget().rect().adjusted(3, 3, -3, -5).contains(words)); // at the foot lies the mark of the one down
}

void tst_DiagramTables::theConnectorsHaveTheirIndices()
{
    QCOMPARE(indices(diagram().Image1), u"0 1 2 3 4"_s);
    QCOMPARE(indices(diagram().Image2), u"0 1 2 3"_s);
    QCOMPARE(indices(diagram().Image3), u"0 1 2 3 4 5"_s);
    QCOMPARE(indices(diagram().Image4), u"1"_s);
    QVERIFY(diagram().Image5);
    QVERIFY(diagram().Image6);
    qsizetype all = 0;
    for (int panel = 1; panel <= 5; ++panel)
        all += connectors(panel).size();
    QCOMPARE(all, 18);
}

void tst_DiagramTables::noConnectorTouchesAButton()
{
    for (int panel = 1; panel <= 5; ++panel) {
        const auto buttons = inFrame(panel, [](Control *control) { return dynamic_cast<SSCommand *>(control); });
        QVERIFY(!buttons.isEmpty());
        for (const Control *connector : connectors(panel))
            for (const Control *neighbour : buttons)
                QVERIFY2(!placeOf(*connector).intersects(placeOf(*neighbour)),
                         qPrintable(connector->Name() + u" and "_s + neighbour->Name()));
    }
}

void tst_DiagramTables::everyConnectorLiesInsideItsFrame()
{
    for (int panel = 1; panel <= 5; ++panel) {
        const QRect room = diagram().fraButtons(panel).widget().rect();
        for (const Control *connector : connectors(panel))
            QVERIFY2(room.contains(connector->widget().geometry()), qPrintable(connector->Name()));
    }
}

QTEST_MAIN(tst_DiagramTables)
#include "tst_DiagramTables.moc"
