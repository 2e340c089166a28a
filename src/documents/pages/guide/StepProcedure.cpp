#include "documents/pages/GuidePages.h"
#include "documents/pages/PageChunks.h"

namespace orvane::pages
{

QString stepProcedureBody()
{
    return join(
        {LeadingBullet, BoldOn, u"Yes. ", BodyRun,
         (u"Section 4.4.7 asks you to have procedures for finding out which accidents and emergencies are possible, "
          u"for dealing with them, and for keeping their effects on the environment small. In an emergency nobody "
          u"has time to work out who decides, who closes the drains and who calls the fire department, so the "
          u"answers have to be written down, agreed and known beforehand. A written procedure also lets you train "
          u"newcomers, compare a drill with what should have happened, and show an auditor that the plan is kept up "
          u"to date. Management Procedure C11, Emergency Planning, is a worked example, and it leads to the "
          u"emergency plan itself, which is Record R1.C11. Open it through Related Topics at the foot of this "
          u"window, and replace the roles and times of the sample company with your own.")});
}

QString stepProcedure()
{
    return page(stepProcedureBody());
}

} // namespace orvane::pages
