// The windows of the program as a user has them before him, one scene each, for what is to hold in all of them.
#pragma once

#include "platform/controls/SSScroll.h"
#include "platform/forms/Wiring.h"
#include "printing/frmPrint.h"
#include "shell/frmAbout.h"
#include "shell/frmProperties.h"
#include "shell/modFunctions.h"
#include "support/HelpUser.h"
#include "support/RunningSystem.h"
#include "support/ShippedTour.h"
#include "tour/modDemo.h"

#include <QTest>
#include <memory>

namespace orvane::test
{

// The running system with the shipped tour and the help beside it.
struct Stage {
    Stage() : help(system.host)
    {
        system.host.writeFile(QStringLiteral("DemoData.ini"), ShippedTour::bytes());
        system.host.writeFile(QStringLiteral("DealerData.dat"), "Rnjmk"); // of a dealer, and short
    }

    void press(const QString &bar, const QString &tool) const
    {
        ActiveBar &pressed = barOf(*system.active(), bar);
        pressed.press(pressed.Bands(0).Tools(tool));
    }

    RunningSystem system;
    HelpUser help;
};

struct Scene {
    const char *name;
    std::function<QWidget *(Stage &)> open; // the window in front
};

namespace scenes
{
inline QWidget *frame(Stage &stage)
{
    return &stage.system.frame().shell();
}

inline QWidget *shown(Window &window)
{
    window.Show();
    return &window.shell();
}

inline QWidget *tab(Stage &stage, int index)
{
    stage.system.click(stage.system.diagram().SSRibbon1(index));
    return frame(stage);
}

inline QWidget *step(Stage &stage, const QString &view)
{
    OpenGuide(QStringLiteral("STEP 17 - Emergency Preparedness and Response"), QStringLiteral("127"));
    stage.press(QStringLiteral("mnuNav"), view);
    return frame(stage);
}

inline QWidget *manual(Stage &stage)
{
    OpenManual(QStringLiteral("Emergency Preparedness and Response"), QStringLiteral("219"));
    return frame(stage);
}

inline QWidget *procedure(Stage &stage, const QString &page)
{
    OpenProcedures(QStringLiteral("Emergency Planning"), QStringLiteral("311"));
    stage.press(QStringLiteral("mnuNav"), page);
    return frame(stage);
}

inline QWidget *own(Stage &stage)
{
    stage.press(QStringLiteral("mnuLinks"), QStringLiteral("Mode"));
    return frame(stage);
}

inline QWidget *tool(Stage &stage)
{
    OpenTools(QStringLiteral("Emergency Plan Ideas"), QStringLiteral("406"));
    return frame(stage);
}

inline QWidget *preview(Stage &stage)
{
    tool(stage);
    stage.system.clickTool(*stage.system.active(), QStringLiteral("mnuLinks"), QStringLiteral("subPrint"),
                           QStringLiteral("prtPartial"));
    return frame(stage);
}

inline QWidget *record(Stage &stage)
{
    OpenRecords(QStringLiteral("Emergency Plan"), QStringLiteral("511"));
    return frame(stage);
}

inline QWidget *helpWindow(Stage &stage, bool search)
{
    if (search)
        stage.help.openSearch();
    else
        stage.help.openContents();
    return HelpUser::window();
}

inline QWidget *endOfTour(Stage &stage)
{
    ReadDealerData();
    ShowTourStep(QStringLiteral("603"));
    return &stage.system.console().shell();
}
} // namespace scenes

// All windows but the intro, which is left to come to them.
inline const std::vector<Scene> &windowScenes()
{
    using namespace scenes;
    static const std::vector<Scene> all{
        {"guide tab", [](Stage &stage) { return frame(stage); }},
        {"manual tab", [](Stage &stage) { return tab(stage, 2); }},
        {"procedures tab", [](Stage &stage) { return tab(stage, 3); }},
        {"tools tab", [](Stage &stage) { return tab(stage, 4); }},
        {"records tab", [](Stage &stage) { return tab(stage, 5); }},
        {"console", [](Stage &stage) { return &stage.system.console().shell(); }},
        {"end of the tour", endOfTour},
        {"guide section",
         [](Stage &stage) {
             OpenGuide(QStringLiteral("Using this Guide"), QStringLiteral("102"));
             return frame(stage);
         }},
        {"requirement", [](Stage &stage) { return step(stage, QStringLiteral("Requirement")); }},
        {"implementation", [](Stage &stage) { return step(stage, QStringLiteral("Implementation")); }},
        {"tips", [](Stage &stage) { return step(stage, QStringLiteral("Tips")); }},
        {"manual", manual},
        {"own manual", [](Stage &stage) { return manual(stage), own(stage); }},
        {"procedure", [](Stage &stage) { return procedure(stage, QStringLiteral("Method")); }},
        {"own procedure", [](Stage &stage) { return procedure(stage, QStringLiteral("Aim")), own(stage); }},
        {"action tool", tool},
        {"record", record},
        {"print preview", preview},
        {"properties", [](Stage &) { return shown(Default<frmProperties>()); }},
        {"about", [](Stage &) { return shown(Default<frmAbout>()); }},
        {"notice", [](Stage &) { return shown(Default<frmError>()); }},
        {"help contents", [](Stage &stage) { return helpWindow(stage, false); }},
        {"help search", [](Stage &stage) { return helpWindow(stage, true); }},
    };
    return all;
}

inline void addScenes()
{
    QTest::addColumn<int>("scene");
    for (int i = 0; i < std::ssize(windowScenes()); ++i)
        QTest::newRow(windowScenes()[static_cast<size_t>(i)].name) << i;
}

// The scene of the row, on a system that has come up to it.
inline QWidget *openScene(Stage &stage)
{
    QFETCH(int, scene);
    stage.system.start();
    QWidget *window = windowScenes()[static_cast<size_t>(scene)].open(stage);
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window)) qFatal("the window doesn't become active");
    return window;
}

} // namespace orvane::test
