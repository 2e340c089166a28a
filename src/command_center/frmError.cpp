#include "command_center/frmError.h"

#include "platform/forms/Wiring.h"
#include "platform/system/Guard.h"

namespace orvane
{

namespace
{
constexpr int NoticeMilliseconds = 2000;
constexpr int BackColour = 0x808000;
constexpr int TextColour = 0xC0FFFF;
} // namespace

frmError::frmError()
    : Window(QStringLiteral("frmError"), NoBorder), Timer1(QStringLiteral("Timer1"), NoticeMilliseconds),
      Image1(*this, QStringLiteral("Image1")), Label1(*this, QStringLiteral("Label1"))
{
    setTopMost(true);
    setFixedDesignSize(9240, 495);
    setBackColor(BackColour);
    Image1.Move(90, 75, 345, 345);
    Image1.setPicture(QStringLiteral("notice"));
    Image1.setPurpose(QStringLiteral("Notice"));
    Label1.Move(480, 120, 7215, 375);
    Label1.setForeColor(TextColour);
    Label1.setFont(QStringLiteral("Arial"), 9.75, true);
    Label1.setCaption(QStringLiteral("This entry is not part of the guided edition: click red dot for live example"));
    wire(Timer1, &TimerControl::Timer, *this, [](frmError &self) { self.Unload(); });
}

void frmError::Form_Load()
{
    Timer1.setEnabled(true);
}

// The user can't close the notice: its time is short.
void frmError::Form_QueryUnload(bool &cancel, int mode)
{
    if (mode == ByUser) cancel = true;
}

void frmError::Form_Unload(bool &)
{
    Timer1.setEnabled(false);
}

} // namespace orvane
