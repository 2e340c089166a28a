// The menu as the user works it, by keys and by the mouse.
#include "command_center/DiagramUser.h"
#include "shell/ShellProbes.h"
#include "support/RunningSystem.h"
#include "support/UserOnBars.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
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

class tst_MenuByHand : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void exitByKeys();
    void aDocumentByKeysThroughThreeMenus();
    void aWindowByItsNumberKey();
    void selectAllByKeysReachesTheTextAtWork();
    void copyByTheMouseReachesTheTextAtWork();
    void toolsOfOneNameAreToldApart_data();
    void toolsOfOneNameAreToldApart();

private:
    frmDemo &console() const { return m_system->console(); }
    void openGuide() const { m_system->click(m_system->diagram().cmdImp(1)); }
    QMenu *openMenu(Qt::Key accessKey) const;

    std::optional<RunningSystem> m_system;
};

void tst_MenuByHand::init()
{
    m_system.emplace();
    m_system->start();
}

void tst_MenuByHand::cleanup()
{
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    m_system.reset();
}

QMenu *tst_MenuByHand::openMenu(Qt::Key accessKey) const
{
    QTest::keyClick(&m_system->frame().shell(), accessKey, Qt::AltModifier);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

void tst_MenuByHand::exitByKeys()
{
    giveFocus(m_system->diagram().cmdImp(1));
    QMenu *file = openMenu(Qt::Key_F);
    QVERIFY(file);
    QTest::keyClick(file, Qt::Key_X);
    QCOMPARE(console().Tag(), u"603"_s);
    QVERIFY(m_system->frame().Visible());
}

void tst_MenuByHand::aDocumentByKeysThroughThreeMenus()
{
    giveFocus(m_system->diagram().cmdImp(1));
    QVERIFY(openMenu(Qt::Key_C));
    const auto key = [](Qt::Key pressed) { QTest::keyClick(QApplication::activePopupWidget(), pressed); };
    for (int i = 0; i < 4; ++i)
        key(Qt::Key_Down); // to Records, from the first entry
    key(Qt::Key_Right);
    key(Qt::Key_Right); // Core Records
    for (int i = 0; i < 10; ++i)
        key(Qt::Key_Down);
    key(Qt::Key_Return);
    QTRY_COMPARE(m_system->active()->Tag(), u"[Records] - Emergency Plan"_s);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_MenuByHand::aWindowByItsNumberKey()
{
    openGuide();
    auto *page = m_system->active()->control(u"rtfData"_s);
    giveFocus(*page);
    QMenu *windows = openMenu(Qt::Key_W);
    QVERIFY(windows);
    QTest::keyClick(windows, Qt::Key_1);
    QCOMPARE(m_system->active(), &m_system->diagram());
}

void tst_MenuByHand::selectAllByKeysReachesTheTextAtWork()
{
    openGuide();
    auto *page = static_cast<RichTextBox *>(m_system->active()->control(u"rtfData"_s));
    giveFocus(*page);
    QMenu *edit = openMenu(Qt::Key_E);
    QVERIFY(edit);
    QTest::keyClick(edit, Qt::Key_A);
    QCOMPARE(page->SelLength(), page->Text().size());
}

void tst_MenuByHand::copyByTheMouseReachesTheTextAtWork()
{
    openGuide();
    auto *page = static_cast<RichTextBox *>(m_system->active()->control(u"rtfData"_s));
    giveFocus(*page);
    page->setSelLength(10);
    QMenu *edit = openMenu(Qt::Key_E);
    QVERIFY(edit);
    for (QAction *action : edit->actions())
        if (action->objectName() == u"miCopy")
            QTest::mouseClick(edit, Qt::LeftButton, {}, edit->actionGeometry(action).center());
    QCOMPARE(clipboard(), page->Text().left(10));
}

void tst_MenuByHand::toolsOfOneNameAreToldApart_data()
{
    QTest::addColumn<QStringList>("path");
    QTest::addColumn<QString>("caption");
    const QString name = u"mnuEnvironmentalAspects"_s;
    QTest::newRow("a step") << QStringList{u"ImpGuide"_s, u"cmd24StepPlan"_s, u"mnuPhase1"_s, name}
                            << u"STEP 5 - Environmental Aspects"_s;
    QTest::newRow("a section") << QStringList{u"EnvManual"_s, u"mnuRequirements"_s, u"mnuPlanning"_s, name}
                               << u"Environmental Aspects"_s;
    QTest::newRow("a tool") << QStringList{u"ActionTools"_s, name} << u"Environmental Aspects and Impacts"_s;
}

void tst_MenuByHand::toolsOfOneNameAreToldApart()
{
    QFETCH(QStringList, path);
    QFETCH(QString, caption);
    QStringList clicked;
    connect(&m_system->frame().mnuMain, &ActiveBar::Click, this,
            [&](const Tool *tool) { clicked << u"%1 %2"_s.arg(tool->ToolTag()).arg(tool->Caption()); });
    giveFocus(m_system->diagram().cmdImp(1));
    QMenu *command = openMenu(Qt::Key_C);
    QVERIFY(command);
    bool chosen = false;
    QCOMPARE(noticesDuring(*m_system, [&] { chosen = clickThrough(*command, path); }), 1);
    QVERIFY(chosen);
    QCOMPARE(clicked, QStringList{u"900 "_s + caption});
}

QTEST_MAIN(tst_MenuByHand)
#include "tst_MenuByHand.moc"
