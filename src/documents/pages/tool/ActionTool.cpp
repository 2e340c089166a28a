#include "documents/pages/PageChunks.h"
#include "documents/pages/ToolPages.h"
#include "documents/pages/tool/ToolBlocks.h"

namespace orvane::pages
{

namespace tool
{

QString introduction()
{
    QString text = join(
        {FirstParagraph, BodyRun, u"This ", BoldOn, u"Action Tool", BodyRun,
         (u" assists you to prepare and review emergency plans. It is a collection of key points in seven lists, "
          u"and it goes with Management Procedure C11, Emergency Planning. When you make a plan, the lists keep you "
          u"from forgetting something; when you review one, they are the questions to ask."),

         EmptyParagraph, ParagraphBreak,
         (u"Go through the lists with the people who will have to carry out the plan: a supervisor from each shift, "
          u"somebody from maintenance and the leader of the team. Mark every point as done, as not needed at your "
          u"site or as still to be settled. Give each open point a person and a date."),

         EmptyParagraph, ParagraphBreak,
         (u"Then write the answers into the plan, for which Record R1.C11 shows a form. Be exact: a point is "
          u"settled when the plan names the role, the place and the time allowed. A small site may give two roles "
          u"to one person, as long as that person can do both at the same moment."),

         EmptyParagraph, ParagraphBreak,
         (u"Come back to the lists after every drill and every emergency, and once a year in any case. The seven "
          u"key elements of an emergency plan are:")});
    text += join({FirstNarrowBullet, TypesHeading, NextBullet, MainControllerHeading, NextBullet,
                  IncidentControllerHeading, NextBullet, ActionTeamHeading, NextBullet, SitePlanHeading, NextBullet,
                  ControlCenterHeading, NextBullet, EquipmentHeading});
    return text;
}

} // namespace tool

QString actionToolBody()
{
    using namespace tool;
    return join({introduction(), LeftEmptyParagraph, accidentTypes(), LeftEmptyParagraph, mainController(),
                 LeftEmptyParagraph, incidentController(), LeftEmptyParagraph, actionTeam(), LeftEmptyParagraph,
                 sitePlan(), LeftEmptyParagraph, controlCenter(), LeftEmptyParagraph, emergencyEquipment()});
}

QString actionTool()
{
    return page(actionToolBody());
}

} // namespace orvane::pages
