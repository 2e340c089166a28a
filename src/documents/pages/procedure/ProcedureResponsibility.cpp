#include "documents/pages/PageChunks.h"
#include "documents/pages/ProcedurePages.h"

namespace orvane::pages
{

namespace
{

QString topManagement()
{
    return join(
        {BoldParagraph, u"Executive Board", FirstNarrowBullet,
         u"Provides the people, the money and the time for emergency planning, equipment and training.", NextBullet,
         u"Sees the result of the yearly review, and decides on measures that go beyond the budget of the plant.",

         LeftBoldEmptyParagraph, ParagraphBreak, u"Vice President (VP)-Manufacturing", FirstNarrowBullet,
         u"Approves the emergency plans and every change to them.", NextBullet,
         (u"Is Main Controller in an emergency: directs the whole response from the incident control center, "
          u"decides on stopping production and on the stand-down, and alone answers the press."),
         NextBullet, u"Sees to it that either the Main Controller or the deputy can be reached at all hours."});
}

QString departments()
{
    return join(
        {LeftBoldEmptyParagraph, ParagraphBreak, u"Department Managers", FirstNarrowBullet,
         (u"Report the hazards of their department to the Environment Manager, and announce every change of plant, "
          u"material or process before it is made."),
         NextBullet, u"Choose people for the Incident Action Team, and release them for training and drills.",
         NextBullet, u"Carry out the actions that are agreed after a drill or an emergency, each by its date.",

         LeftBoldEmptyParagraph, ParagraphBreak, u"Human Resources Manager", FirstNarrowBullet,
         u"Runs the training in emergency response and keeps the list of those who have had it.", NextBullet,
         (u"Names a person on every shift who holds the roll call at the assembly point, and who reports to the "
          u"Incident Controller who is missing and where that person was last seen."),
         NextBullet, u"Tells the families of anybody who is hurt, before a name is given to anybody else."});
}

QString planning()
{
    return join(
        {LeftBoldEmptyParagraph,
         ParagraphBreak,
         u"Environment Manager",
         FirstNarrowBullet,
         (u"Keeps this procedure and the emergency plans, issues them, and takes back the copies that are out of "
          u"date."),
         NextBullet,
         u"Draws up the yearly program of drills, and leads the reviews of the procedure and the plans.",
         NextBullet,
         (u"Agrees the plans with the fire department, the water board, the environmental agency, the hospital and "
          u"the neighbors."),
         NextBullet,
         u"Advises the Main Controller in an emergency, and reports to the authorities.",

         LeftBoldEmptyParagraph,
         ParagraphBreak,
         u"Maintenance Manager",
         FirstNarrowBullet,
         (u"Has the emergency equipment, the alarms and the valves checked every month, and replaces on the same "
          u"day what has been used or has failed."),
         NextBullet,
         u"Keeps the drawings of tanks, pipes, drains and shut-offs up to date.",
         NextBullet,
         u"Is deputy to the Main Controller."});
}

QString everybody()
{
    return join(
        {LeftBoldEmptyParagraph, ParagraphBreak, u"Supervisors", FirstNarrowBullet,
         (u"Are Incident Controller while they are on duty: direct the work at the scene, call the assembly point "
          u"that is upwind, and act for the Main Controller until he or she has arrived."),
         NextBullet,
         (u"Make sure at the start of each shift that the Incident Action Team is complete, and name its leader as "
          u"their deputy."),
         NextBullet,
         u"Hold the drills of their shift, and talk each one through with all who took part before the shift ends.",

         LeftBoldEmptyParagraph, ParagraphBreak, u"All Personnel", FirstNarrowBullet,
         (u"Raise the alarm at once when they notice a fire, a spill or a release, however small it looks, and shut "
          u"off the source if that is safe."),
         NextBullet,
         (u"Make their work safe when the alarm sounds, go to the assembly point, and stay there until they have "
          u"been counted and told what to do."),
         NextBullet,
         u"Take part in training and drills, and report near misses and missing equipment to their supervisor."});
}

} // namespace

QString procedureResponsibilityBody()
{
    return join(
        {PageTitle, u"Responsibility", BodyEmptyParagraph, topManagement(), departments(), planning(), everybody()});
}

QString procedureResponsibility()
{
    return page(procedureResponsibilityBody());
}

} // namespace orvane::pages
