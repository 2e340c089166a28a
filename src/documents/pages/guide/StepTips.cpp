#include "documents/pages/GuidePages.h"
#include "documents/pages/PageChunks.h"

namespace orvane::pages
{

QString stepTipsBody()
{
    return join(
        {LeadingBullet, BoldOn, u"Include", BodyRun,
         (u" the people from outside whom you would call on in earnest: the fire department, the ambulance service, "
          u"the wastewater plant, the environmental agency and the firms next door. Show them around the site before "
          u"you settle the plan, and invite them to at least one drill a year. Phone numbers go out of date faster "
          u"than anything else in a plan, so call every number on the list once a quarter, and try some of them at "
          u"night or on a weekend."),

         NextBoldBullet, u"Record", BodyRun,
         (u" every drill, every emergency and every near miss: the date and time, what happened, how long each action "
          u"took, and what will be changed by whom and by when. An auditor will ask for the last drill and for proof "
          u"that its weaknesses were put right, and a near miss that led to a better plan is stronger evidence than "
          u"an empty file. Keep one copy of the plan at the gate, away from the offices, since a plan that is locked "
          u"in a burning building helps nobody.")});
}

QString stepTips()
{
    return page(stepTipsBody());
}

} // namespace orvane::pages
