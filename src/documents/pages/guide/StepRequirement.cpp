#include "documents/pages/GuidePages.h"
#include "documents/pages/PageChunks.h"

namespace orvane::pages
{

QString stepRequirementBody()
{
    return join(
        {FirstParagraph, LargeBold, u"ISO 14001  Section 4.4.7", TabResettingParagraph,

         FirstBullet, BoldOn, u"Identify", BodyRun,
         (u" what could go wrong. Go through the whole site and everything that is done there, and look for accidents "
          u"and emergencies that could harm the environment, such as a fire, a spill, a leak to the drains or a "
          u"release to air. Think of nights and weekends, of start-up, cleaning and repair, and of causes from "
          u"outside like a flood or a power failure."),

         NextBoldBullet, u"Plan", BodyRun,
         (u" the response. Have procedures that say who does what when such an event happens, how harm is avoided, "
          u"and how the effects on water, soil and air are kept small and then cleaned up. Look at the plan again at "
          u"set dates and every time it has been needed in earnest, and change what fell short."),

         NextBoldBullet, u"Test", BodyRun,
         (u" the procedures at regular intervals, wherever a test can be made. A drill shows whether the alarm is "
          u"heard, whether the equipment works and whether people know their part, while there is still time to "
          u"learn. Write down the result, and correct what the drill has brought to light.")});
}

QString stepRequirement()
{
    return page(stepRequirementBody());
}

} // namespace orvane::pages
