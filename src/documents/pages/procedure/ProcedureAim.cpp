#include "documents/pages/PageChunks.h"
#include "documents/pages/ProcedurePages.h"

namespace orvane::pages
{

namespace
{

QString purposeToPolicy()
{
    return join(
        {PageTitle, u"Aim", BodyEmptyParagraph,

         ParagraphBreak,
         (u"This procedure tells how Global Inc finds out which accidents and emergencies are possible at its "
          u"Millrace Road plant, and how it prepares for them. It says who makes the emergency plans, who approves "
          u"them, and how they are tested and kept up to date."),

         EmptyParagraph, ParagraphBreak,
         (u"The aim is a plant where everybody knows what to do in the first minutes of an emergency, on every "
          u"shift. Nobody is to come to harm, and the effects on the Ellery River, the soil, the air and the "
          u"neighbors are to be as small as they can be kept."),

         EmptyParagraph, ParagraphBreak,
         (u"The procedure covers all buildings, tanks, stores, pipes and drains of the plant, the unloading bay "
          u"with the tank trucks that stand in it, and the work of contractors. It applies at all hours, Sundays "
          u"and shutdowns included, and to everybody on the site: employees, visitors and drivers."),

         EmptyParagraph, ParagraphBreak,
         (u"The policy of the company is to prevent emergencies in the first place, and to be prepared for those "
          u"that remain possible. In an emergency the safety of people comes before the environment, and both come "
          u"before production and property. The means for equipment, training and drills are part of each yearly "
          u"budget.")});
}

QString cycleAndPlans()
{
    return join(
        {EmptyParagraph,
         ParagraphBreak,
         u"Emergency planning is a cycle that is gone through at least once a year. It comprises:",

         FirstNarrowBullet,
         (u"Identifying the accidents and emergencies that could happen, and judging how likely each of them is and "
          u"how far the harm would reach."),
         NextBullet,
         (u"Preparing a plan for each type of emergency, with its actions, roles, times and equipment, and agreeing "
          u"it with the outside services that would be called."),
         NextBullet,
         (u"Training the controllers, the Incident Action Team and all other personnel in what the plans ask of "
          u"them."),
         NextBullet,
         u"Testing alarms, equipment and plans at set intervals and on every shift.",
         NextBullet,
         (u"Reviewing the plans each March, after every drill and after every emergency, and mending what fell "
          u"short."),

         LeftEmptyParagraph,
         ParagraphBreak,
         BoldOn,
         u"Each",
         BodyRun,
         u" type of emergency that the plant has to reckon with is covered by its own ",
         BoldOn,
         u"Emergency Plan",
         BodyRun,
         u". It is kept on the form of Record R1.C11, and it is a document for use at the scene that aims to:",

         FirstBullet,
         u"Bring everybody on the site to safety, and account for all of them within 8 minutes.",
         NextBullet,
         u"Stop the release or the fire at its source, wherever that can be done without danger.",
         NextBullet,
         (u"Keep liquids and fire water out of the river, the soil and the sewer, and keep vapor and smoke away "
          u"from the neighbors."),
         NextBullet,
         u"Bring the plant back to normal running, clean, safe and with the lessons learned."});
}

} // namespace

QString procedureAimBody()
{
    return join({purposeToPolicy(), cycleAndPlans()});
}

QString procedureAim()
{
    return page(procedureAimBody());
}

} // namespace orvane::pages
