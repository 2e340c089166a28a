// Opening a guide window against opening a bare sub-window with the same text.

#include "command_center/frmInfo.h"
#include "documents/pages/GuidePages.h"
#include "platform/controls/Palette.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/MDIChild.h"
#include "platform/forms/WindowList.h"
#include "platform/richtext/Rtf.h"
#include "shell/frmSplash.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTextEdit>
#include <benchmark/benchmark.h>

using namespace orvane;

namespace
{
void letPaint()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void openGuideWindow(benchmark::State &state)
{
    const QString title = QStringLiteral("What is ISO14001?");
    for ([[maybe_unused]] auto _ : state) {
        OpenGuide(title, QStringLiteral("104"));
        letPaint();
        state.PauseTiming();
        Default<mdiMain>().ActiveForm()->Unload();
        letPaint();
        state.ResumeTiming();
    }
}

void openBareSubWindow(benchmark::State &state)
{
    QMainWindow window;
    auto *area = new QMdiArea;
    window.setCentralWidget(area);
    window.resize(Default<mdiMain>().shell().size());
    window.show();
    letPaint();
    const QString page = pages::guideSection4();
    for ([[maybe_unused]] auto _ : state) {
        auto *edit = new QTextEdit;
        readRtf(page, *edit->document());
        QMdiSubWindow *sub = area->addSubWindow(edit);
        sub->showMaximized();
        letPaint();
        state.PauseTiming();
        delete sub;
        letPaint();
        state.ResumeTiming();
    }
}

void startSystem()
{
    Default<frmSplash>().Show();
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QApplication::sendEvent(&Default<frmInfo>().shell(), &enter);
    letPaint();
}

// The registrations are the library's own objects: clazy:excludeall=non-pod-global-static
BENCHMARK(openGuideWindow)->Unit(benchmark::kMillisecond);
BENCHMARK(openBareSubWindow)->Unit(benchmark::kMillisecond);
} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    applyLooks(application);
    startSystem();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    std::_Exit(0); // the frame refuses every close
}
