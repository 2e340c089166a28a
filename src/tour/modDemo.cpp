#include "tour/modDemo.h"

#include "command_center/frmError.h"
#include "platform/forms/DefaultInstance.h"
#include "platform/system/Application.h"
#include "platform/system/CodePage1252.h"
#include "platform/system/File.h"
#include "platform/system/Number.h"
#include "platform/system/ProfileFile.h"
#include "shell/SharedState.h"
#include "tour/DealerText.h"
#include "tour/frmDemo.h"

namespace orvane
{

namespace
{
// The sizes handed to the reads; one character less is kept.
constexpr int LineSize = 1023;
constexpr int BodySize = 8191;

struct Step {
    QString heading;
    QString body;
    QString next;
    QString back;
};

QString scriptFile()
{
    return App().fileBeside(QStringLiteral("DemoData.ini"));
}

QString readKey(const QString &section, const QString &key, int size, const QString &fileName)
{
    return readProfileString(section, key, QStringLiteral("(none)"), size, fileName);
}

Step readStep(const QString &tag)
{
    const QString fileName = scriptFile();
    Step step;
    step.heading = readKey(tag, QStringLiteral("Header"), LineSize, fileName);
    step.body = readKey(tag, QStringLiteral("RTF"), BodySize, fileName);
    step.next = readKey(tag, QStringLiteral("NextRTF"), LineSize, fileName);
    step.back = readKey(tag, QStringLiteral("PrevRTF"), LineSize, fileName);
    return step;
}

void fill(frmDemo &console, const QString &tag, const Step &step)
{
    console.setTag(tag);
    console.Header.setText(step.heading);
    console.rtf.setTextRTF(step.body);
    console.cmdGoNext.setTag(step.next);
    console.cmdGoBack.setTag(step.back);
    console.txtNext.setText(console.cmdGoNext.Tag());
    console.txtPrev.setText(console.cmdGoBack.Tag());
    console.txtTag.setText(tag);
}

bool hasEnded(const frmDemo &console)
{
    const double current = toNumber(console.Tag());
    return current == EndTag || current == EndWithDealerTag;
}

// The tag to go on with: the end has a step of its own where the dealer has something to say.
void showEnd(frmDemo &console, QString &tag)
{
    console.cmdQuit.setVisible(true);
    console.cmdGoNext.setVisible(false);
    console.cmdGoBack.setVisible(false);
    const bool dealer = Shared().DealerTextPresent == True;
    console.txtInfo.setVisible(dealer);
    if (dealer) tag = QString::number(EndWithDealerTag);
}
} // namespace

void ShowTourStep(QString &&tag)
{
    ShowTourStep(tag);
}

void ShowTourStep(QString &tag)
{
    if (Shared().TourStepsMuted == True) return;
    if (toNumber(tag) == NoticeTag) {
        Default<frmError>().Show(Modal);
        return;
    }
    auto &console = Default<frmDemo>();
    if (!console.Visible()) return;
    console.Show();
    if (hasEnded(console)) {
        // The buttons are hidden by now; the second lock is deliberate.
        console.cmdGoBack.setEnabled(false);
        console.cmdGoNext.setEnabled(false);
        return;
    }
    if (toNumber(tag) == EndTag) {
        showEnd(console, tag);
    } else {
        console.cmdQuit.setVisible(false);
        console.txtInfo.setVisible(false);
    }
    const Step step = readStep(tag);
    if (toNumber(tag) == 0) return;
    fill(console, tag, step);
}

QString withoutLineEnds(const QString &body)
{
    QString kept;
    kept.reserve(body.size());
    for (const QChar character : body)
        if (character != u'\r' && character != u'\n' && character != u'\f') kept += character;
    return kept;
}

void SaveTourStep(const QString &tag)
{
    const QString fileName = scriptFile();
    const frmDemo &console = Default<frmDemo>();
    const QString heading = console.Header.Text();
    const QString body = withoutLineEnds(console.rtf.TextRTF());
    writeProfileString(tag, QStringLiteral("RTF"), body, fileName);
    writeProfileString(tag, QStringLiteral("Header"), heading, fileName);
}

void ReadDealerData()
{
    const QByteArray bytes = readWholeFile(App().fileBeside(QStringLiteral("DealerData.dat")));
    if (bytes.isEmpty()) {
        Shared().DealerTextPresent = False;
        return;
    }
    TextBox &info = Default<frmDemo>().txtInfo;
    const QString clear = UnscrambleDealerData(CodePage1252::decode(bytes));
    info.setText(info.Text() + clear + QStringLiteral("\r\n"));
    Shared().DealerTextPresent = True;
}

} // namespace orvane
