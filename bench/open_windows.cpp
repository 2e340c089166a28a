// open_windows diagram|document|all [stay]: brings the system up as far as that, on the display that there is, says so,
// and ends, or stays to be looked at. "document" is the guide with the console, "all" every window that there is.
#include "command_center/frmInfo.h"
#include "platform/controls/Palette.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/forms/WindowList.h"
#include "platform/help/WinHelp.h"
#include "platform/system/Application.h"
#include "printing/frmPrint.h"
#include "shell/frmAbout.h"
#include "shell/frmProperties.h"
#include "shell/frmSplash.h"
#include "shell/mdiMain.h"
#include "shell/modFunctions.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPixmapCache>
#include <cstdio>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;
using namespace orvane;

namespace
{

void letPaint()
{
    constexpr int Milliseconds = 300; // the window system answers in its own time
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < Milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents, Milliseconds);
}

void startSystem()
{
    Default<frmSplash>().Show();
    letPaint();
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s);
    QApplication::sendEvent(&Default<frmInfo>().shell(), &enter);
    letPaint();
}

void openAll()
{
    for (const auto &[title, section] :
         {std::pair{u"What is ISO14001?"_s, u"104"_s}, std::pair{u"Using this Guide"_s, u"102"_s},
          std::pair{u"STEP 17 - Emergency Preparedness and Response"_s, u"127"_s}})
        OpenGuide(title, section);
    OpenManual(u"Emergency Preparedness and Response"_s, u"219"_s);
    OpenProcedures(u"Emergency Planning"_s, u"311"_s);
    OpenTools(u"Emergency Plan Ideas"_s, u"406"_s);
    OpenRecords(u"Emergency Plan"_s, u"511"_s);
    letPaint();
    Default<frmPrint>().PrintPreview(1, u"1"_s, 1, 1, u"C11"_s, u"Emergency Planning"_s);
    Default<frmProperties>().Show();
    Default<frmAbout>().Show();
    WinHelp(App().HelpFile(), HelpContents);
    letPaint();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"orvane"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    applyLooks(application);
    const QStringList words = QApplication::arguments();
    startSystem();
    if (words.value(1) == u"document"_s) OpenGuide(u"Using this Guide"_s, u"102"_s);
    if (words.value(1) == u"all"_s) openAll();
    letPaint();
    std::printf("%d windows\n", int(Forms().size()));
    std::fflush(stdout);
    if (words.value(2) == u"stay"_s) {
        // The toolkit looks now and then for pictures that nobody uses any more, as long as it holds any.
        QPixmapCache::clear();
        return QApplication::exec();
    }
    std::_Exit(0); // the frame refuses every close
}
