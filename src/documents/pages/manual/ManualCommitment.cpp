#include "documents/pages/ManualPages.h"
#include "documents/pages/PageChunks.h"

namespace orvane::pages
{

QString manualCommitmentBody()
{
    return join(
        {PageTitle, u"Commitment", BodyEmptyParagraph,

         ParagraphBreak,
         (u"Global Inc is committed to preventing accidents and emergencies at its Millrace Road plant at Port "
          u"Ellery, and to being ready for those that prevention has not stopped. When one occurs, the safety of "
          u"people comes first, and next the protection of the Ellery River, the soil, the air and the neighbors. "
          u"Everybody on the site may raise the alarm and stop work that has become dangerous, and nobody is blamed "
          u"for an alarm given in good faith."),

         EmptyParagraph, ParagraphBreak,
         (u"The accidents and emergencies that are possible at the plant are found along with its environmental "
          u"aspects, under Management Procedure E1. An aspect that could do serious harm once control is lost is "
          u"passed on to emergency planning, even if it has little effect in normal running. The list is gone "
          u"through again each March, and before every change of plant, material or process."),

         EmptyParagraph, ParagraphBreak,
         (u"Emergency planning defines who leads the response and who takes part in it, what is done in what order, "
          u"with what equipment and within what time. It also defines how the alarm is raised, how authorities and "
          u"neighbors are told, and how the site is cleaned up and made safe to return to. The result is one plan "
          u"for each type of emergency, approved by the Vice President (VP)-Manufacturing and known on all three "
          u"shifts."),

         EmptyParagraph, ParagraphBreak,
         (u"The plans are tested in drills at set intervals, on every shift and once a year together with the fire "
          u"department. Each March the Environment Manager reviews all of them and reports the result to the "
          u"Executive Board. Besides, a plan is reviewed within 10 working days of each of the following:"),

         FirstNarrowBullet,
         (u"Every drill, whether it went well or not. Each weakness that came to light is given a person and a "
          u"date, and the next drill shows whether it was put right."),

         NextBullet,
         (u"Every emergency, whatever its extent. The cause, the course of the response and the effects on the "
          u"environment are recorded under Management Procedure C15, and what was learned goes into the plan."),
         uR"(\plain\f2\fs24\b)"});
}

QString manualCommitment()
{
    return page(manualCommitmentBody());
}

} // namespace orvane::pages
