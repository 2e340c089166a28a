// The advice pane of the guide's Implementation view: which action a click means, and what is said to it.

#include "documents/frmIGSteps.h"
#include "documents/pages/Advice.h"
#include "documents/pages/GuidePages.h"
#include "platform/system/Guard.h"
#include "platform/system/Number.h"
#include "tour/modDemo.h"

namespace orvane
{

namespace
{
constexpr int FirstStepSection = 105;
constexpr int LeftButton = 1;
constexpr int FirstMarker = 2; // the caret right behind it
constexpr int Actions = 7;
constexpr float KeyWordStrip = 2000; // twips from the left in which the key words stand

QString noActionYet()
{
    return QStringLiteral("orvane Advice");
}

struct Action {
    int number = 0;
    QString word;
};

// The key word behind the marker, a dot and a tab, whose dot is character i, counted from 1.
QString wordBehind(const QString &text, qsizetype i)
{
    const qsizetype tab = text.indexOf(u'\t', i) + 1;
    const qsizetype blank = text.indexOf(u' ', i + 2) + 1;
    if (tab == 0 || blank == 0) throw RunTimeError(InvalidProcedureCall, QStringLiteral("No word stands there."));
    return text.mid(tab, blank - i - 2);
}

// The number of markers up to the caret says which action is meant, whether or not the word under it is bold.
Action actionAt(const QString &text, qsizetype caret)
{
    Action action;
    for (qsizetype i = 1; i <= caret && i < text.size(); ++i) {
        if (text.at(i - 1) != u'.' || text.at(i) != u'\t') continue;
        ++action.number;
        resumeNext([&] { action.word = wordBehind(text, i); });
    }
    return action;
}
} // namespace

void frmIGSteps::showImplementation()
{
    rtfData.setTextRTF(pages::implementationHeading());
    showPane(true);
    Form_Resize();
    if (rtfTips.Text().isEmpty()) {
        rtfTips.setText(QStringLiteral("Click on the Bold Text above to get detailed advice"));
        ssPanel.setCaption(noActionYet());
    }
    PageRtf = pages::stepImplementation();
    rtfData.setTextRTF(PageRtf);
    // Coming back starts from the first action again: the caret stands at the start.
    if (ssPanel.Caption() != noActionYet()) rtfData_MouseUp(LeftButton, 5, 600, 225);
}

void frmIGSteps::rtfData_MouseUp(int button, int, float, float)
{
    if (toNumber(Section) < FirstStepSection) return;
    ShowTourStep(QStringLiteral("106"));
    if (button != LeftButton || !mnuNav.Tools(QStringLiteral("Implementation")).Checked()) return;
    resumeNext([this] { showPane(true); });
    resumeNext([this] { Form_Resize(); });
    resumeNext([this] {
        if (rtfData.SelStart() < FirstMarker) rtfData.setSelStart(FirstMarker);
    });
    Action action = actionAt(rtfData.Text(), rtfData.SelStart());
    resumeNext([&] {
        if (action.number >= 1 && action.number <= Actions) rtfTips.setTextRTF(pages::advice(action.number));
    });
    resumeNext([&] { ssPanel.setCaption(action.word); });
    resumeNext([&] { ssPanel.setCaption(action.word.remove(u',')); });
}

void frmIGSteps::rtfData_MouseMove(int, int, float x, float)
{
    QString checked;
    for (const auto &tool : mnuNav.Bands(0).Tools())
        if (tool->Checked()) checked = tool->Name();
    const bool overKeyWords = checked == QStringLiteral("Implementation") && x < KeyWordStrip;
    rtfData.setMousePointer(overKeyWords ? ArrowQuestionPointer : ArrowPointer);
}

} // namespace orvane
