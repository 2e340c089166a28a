// What the rich-text control tells of the mouse: the button, the keys that are held, the place, and a click.
// A connection's context goes before what its handler holds: clazy:excludeall=lambda-in-connect
#include "platform/text/BoxWindow.h"

#include <QMouseEvent>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;
using namespace orvane::test;

namespace
{
struct Mouse {
    int button = 0;
    int shift = 0;
    float x = 0;
    float y = 0;
    bool operator==(const Mouse &) const = default;
};
} // namespace

class tst_RichTextMouse : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_window = std::make_unique<BoxWindow>(); }
    void cleanup() { m_window.reset(); }
    void mouseUpTellsButtonShiftAndPlace_data();
    void mouseUpTellsButtonShiftAndPlace();
    void mouseMoveTellsWhatIsHeld();
    void clickComesBeforeMouseUpAndForTheLeftButtonOnly();

private:
    RichTextBox &box() const { return m_window->box; }
    void show() { showActive(*m_window); }

    std::unique_ptr<BoxWindow> m_window;
};

void tst_RichTextMouse::mouseUpTellsButtonShiftAndPlace_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("shift");
    using M = Qt::KeyboardModifiers;
    QTest::newRow("left") << Qt::LeftButton << M() << 1 << 0;
    QTest::newRow("right") << Qt::RightButton << M() << 2 << 0;
    QTest::newRow("middle") << Qt::MiddleButton << M() << 4 << 0;
    QTest::newRow("one beside the three") << Qt::BackButton << M() << 0 << 0;
    QTest::newRow("Shift") << Qt::LeftButton << M(Qt::ShiftModifier) << 1 << 1;
    QTest::newRow("Ctrl") << Qt::LeftButton << M(Qt::ControlModifier) << 1 << 2;
    QTest::newRow("Alt") << Qt::LeftButton << M(Qt::AltModifier) << 1 << 4;
    QTest::newRow("all") << Qt::RightButton << M(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier) << 2 << 7;
}

void tst_RichTextMouse::mouseUpTellsButtonShiftAndPlace()
{
    QFETCH(Qt::MouseButton, button);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(int, number);
    QFETCH(int, shift);
    QList<Mouse> told;
    const QObject context;
    connect(&box(), &RichTextBox::MouseUp, &context, [&](int theButton, int theShift, float x, float y) {
        told.push_back({theButton, theShift, x, y});
    });
    show();
    QTest::mouseClick(&box().mouseTarget(), button, modifiers, QPoint(20, 30));
    QCOMPARE(told.size(), 1);
    QVERIFY((told.front() == Mouse{number, shift, 300.0F, 450.0F}));
}

void tst_RichTextMouse::mouseMoveTellsWhatIsHeld()
{
    QList<Mouse> told;
    const QObject context;
    connect(&box(), &RichTextBox::MouseMove, &context, [&](int button, int shift, float x, float y) {
        told.push_back({button, shift, x, y});
    });
    show();
    QMouseEvent free(QEvent::MouseMove, {10, 12}, {10, 12}, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&box().mouseTarget(), &free);
    QCOMPARE(told.size(), 1);
    QVERIFY((told.back() == Mouse{0, 0, 150.0F, 180.0F}));
    QMouseEvent held(QEvent::MouseMove, {40, 50}, {40, 50}, Qt::NoButton, Qt::LeftButton | Qt::MiddleButton,
                     Qt::ControlModifier);
    QCoreApplication::sendEvent(&box().mouseTarget(), &held);
    QVERIFY((told.back() == Mouse{5, 2, 600.0F, 750.0F}));
}

void tst_RichTextMouse::clickComesBeforeMouseUpAndForTheLeftButtonOnly()
{
    QStringList told;
    const QObject context;
    connect(&box(), &RichTextBox::Click, &context, [&] { told << u"Click"_s; });
    connect(&box(), &RichTextBox::MouseUp, &context, [&] { told << u"MouseUp"_s; });
    show();
    QTest::mouseClick(&box().mouseTarget(), Qt::LeftButton, {}, QPoint(20, 30));
    QCOMPARE(told, (QStringList{u"Click"_s, u"MouseUp"_s}));
    QTest::mouseClick(&box().mouseTarget(), Qt::RightButton, {}, QPoint(20, 30));
    QCOMPARE(told.count(u"Click"_s), 1);
}

QTEST_MAIN(tst_RichTextMouse)
#include "tst_RichTextMouse.moc"
