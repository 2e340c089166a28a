// Bars, windows and small helpers that the tests of menus and toolbars share.
#pragma once

#include "platform/controls/bars/ActiveBar.h"
#include "platform/forms/MDIChild.h"
#include "platform/forms/MDIForm.h"
#include "platform/forms/Window.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <functional>

namespace barfixture
{

using namespace orvane;

inline constexpr ToolRow LinkTools[] = {
    {.id = 1,
     .name = u"Related",
     .caption = u"Related Topics...",
     .tooltip = u"Related Topics",
     .description = u"Where else it stands",
     .flyout = u"subRelated",
     .groupStart = true,
     .image = u"related"},
    {.id = 2,
     .name = u"Mode",
     .caption = u"  Go to Own ",
     .tooltip = u"Mode",
     .description = u"Changes the version",
     .toolTag = 201,
     .groupStart = true,
     .image = u"mode"},
    {.id = 3, .name = u"Save", .caption = u"Save", .tooltip = u"Save", .enabled = false, .image = u"save"},
    {.id = 4, .name = u"Pairs", .caption = u"Suppliers && Contractors ", .description = u"Both"},
    {.id = 5,
     .name = u"Close",
     .caption = u"&Close",
     .tooltip = u"Close ",
     .toolTag = 207,
     .groupStart = true,
     .image = u"close"},
};
inline constexpr ToolRow RelatedTools[] = {
    {.id = 6, .name = u"mnuIG", .caption = u"Guide", .flyout = u"IGLink", .enabled = false},
    {.id = 7, .name = u"mnuEM", .caption = u"Manual", .description = u"The manual", .flyout = u"EMLink"},
    {.id = 8, .name = u"mnuMP", .caption = u"Procedures", .description = u"The procedures", .toolTag = 311},
};
inline constexpr ToolRow ManualTools[] = {
    {.id = 9, .name = u"btnEM", .caption = u"Emergency", .description = u"Section 4.4.7", .toolTag = 219},
    {.id = 10, .name = u"Close", .caption = u"Another Close", .toolTag = 5},
};
inline constexpr BandRow LinkBands[] = {
    {.name = u"mnuRelated", .caption = u"Related", .width = 191, .height = 80, .tools = LinkTools},
    {.name = u"subRelated", .caption = u"Sub Related Menu", .tools = RelatedTools},
    {.name = u"EMLink", .caption = u"EMLink", .tools = ManualTools},
    {.name = u"IGLink", .caption = u"IGLink"},
};

inline constexpr ToolRow MenuTools[] = {
    {.id = 20, .name = u"mnuFile", .caption = u"&File", .flyout = u"mnuFile"},
    {.id = 21, .name = u"mnuCommand", .caption = u"&Command", .flyout = u"mnuCommand"},
    {.id = 22, .name = u"mnuWindow", .caption = u"&Window", .description = u"What is open", .flyout = u"mnuWindow"},
};
inline constexpr ToolRow FileTools[] = {
    {.id = 23,
     .name = u"exit",
     .caption = u"E&xit",
     .tooltip = u"End",
     .description = u"Ends it all",
     .groupStart = true,
     .image = u"exit"},
    {.id = 24, .name = u"properties", .caption = u"Properties", .description = u"Who you are", .groupStart = true},
    {.id = 25, .name = u"off", .caption = u"Off", .enabled = false},
};
inline constexpr ToolRow CommandTools[] = {
    {.id = 26, .name = u"Procedures", .caption = u"Procedures", .toolTag = 6, .flyout = u"subProcedures"},
};
inline constexpr ToolRow ProcedureTools[] = {
    {.id = 27, .name = u"EmergencyPlanning", .caption = u"Emergency Planning", .description = u"C11", .toolTag = 311},
};
inline constexpr BandRow MenuBands[] = {
    {.name = u"mnuMain", .caption = u"Menu", .tools = MenuTools},
    {.name = u"mnuFile", .caption = u"File", .tools = FileTools},
    {.name = u"mnuCommand", .caption = u"Command", .tools = CommandTools},
    {.name = u"mnuWindow", .caption = u"Window"},
    {.name = u"subProcedures", .caption = u"Procedures", .tools = ProcedureTools},
};

inline constexpr ToolRow PreviewTools[] = {
    {.id = 30, .name = u"Prev", .caption = u"Previous", .description = u"One back", .image = u"previous"},
    {.id = 31,
     .name = u"PageNumber",
     .caption = u"Page Number",
     .tooltip = u"Page Number",
     .description = u"Changes the current page",
     .kind = ToolKind::TextBox,
     .width = 30},
    {.id = 32,
     .name = u"miZoom",
     .caption = u"&Zoom",
     .tooltip = u"Zoom",
     .description = u"Zoom level",
     .groupStart = true,
     .kind = ToolKind::ComboBox},
};
inline constexpr BandRow PreviewBands[] = {{.name = u"bndPreview", .caption = u"Preview", .tools = PreviewTools}};

// A bar with an edit field below it, which stands for what the user works in.
class BarWindow : public Window
{
public:
    explicit BarWindow(BarTable table = LinkBands, int width = 700)
        : Window(QStringLiteral("frmBar"), FixedBorder),
          bar(std::make_unique<ActiveBar>(*this, QStringLiteral("mnuLinks"), table)), edit(new QLineEdit(&surface()))
    {
        setDesignSize(toTwips(width), toTwips(300));
        bar->Move(0, 0, toTwips(width), 28 * TwipsPerPixel);
        edit->setGeometry(0, 100, 200, 24);
    }

    void open()
    {
        Show();
        QVERIFY(QTest::qWaitForWindowActive(&shell()));
        edit->setFocus();
        QTRY_VERIFY(edit->hasFocus());
    }

    QToolButton *button(const QString &name) const { return shell().findChild<QToolButton *>(name); }

    std::unique_ptr<ActiveBar> bar;
    QLineEdit *edit;
    QList<int> keys; // that reached the window itself

protected:
    void Form_KeyPress(int keyAscii) override { keys += keyAscii; }
};

// A frame with a menu, and a document window inside it.
class BarFrame : public MDIForm
{
public:
    BarFrame()
        : MDIForm(QStringLiteral("mdiMain")), bar(*this, QStringLiteral("mnuMain"), MenuBands, ActiveBar::MenuBar)
    {
        setDesignSize(750 * TwipsPerPixel, 500 * TwipsPerPixel);
    }

    ActiveBar bar;
};

class BarChild : public MDIChild
{
public:
    explicit BarChild(MDIForm &frame)
        : MDIChild(frame, QStringLiteral("frmChild")), bar(*this, QStringLiteral("mnuLinks"), LinkBands),
          edit(new QLineEdit(&surface()))
    {
        bar.Move(0, 0, 700 * TwipsPerPixel, 28 * TwipsPerPixel);
        edit->setGeometry(0, 100, 200, 24);
    }

    ActiveBar bar;
    QLineEdit *edit;
};

// Calls the step as soon as a menu is on show; the event loop of the menu itself runs it.
inline void onceAMenuIsOpen(QObject &context, const std::function<void(QMenu &)> &step)
{
    auto *watch = new QTimer(&context);
    QObject::connect(watch, &QTimer::timeout, &context, [watch, step] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu) return;
        watch->stop();
        watch->deleteLater();
        QCoreApplication::processEvents(); // the offscreen platform's activation of the menu may still be under way
        step(*menu);
    });
    watch->start(1);
}

inline QAction *entry(const QMenu &menu, const QString &name)
{
    for (QAction *action : menu.actions())
        if (action->objectName() == name) return action;
    return nullptr;
}

inline void clickEntry(QMenu &menu, const QString &name)
{
    QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, menu.actionGeometry(entry(menu, name)).center());
}

inline QColor colourAt(QWidget &widget, const QPoint &point)
{
    const QImage shown = widget.grab().toImage();
    return shown.pixelColor(point * shown.devicePixelRatio());
}

} // namespace barfixture
