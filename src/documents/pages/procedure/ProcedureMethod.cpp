// The numbers of the paragraphs are part of the text. A paragraph that follows a list is set back to the margin and to
// the tab stop behind its number.
#include "documents/pages/PageChunks.h"
#include "documents/pages/ProcedurePages.h"

namespace orvane::pages
{

namespace
{

QString terms()
{
    return join(
        {TabResettingParagraph, Blank,
         (u"1.\\tab Three words have a fixed meaning in this procedure and in all emergency plans. Everybody uses "
          u"them in this sense, above all when the alarm is raised:"),

         FirstBullet, BoldOn, u"Incident", BodyRun,
         (u": an event that nobody planned and that harmed, or could have harmed, people or the environment. A near "
          u"miss is an incident without harm."),
         NextBullet, BoldOn, u"Accident", BodyRun, u": an incident that did cause harm.", NextBullet, BoldOn,
         u"Emergency", BodyRun,
         (u": an accident or incident that normal running can\\'92t cope with, so that a plan has to be put into "
          u"action.")});
}

QString identifying()
{
    return join(
        {TabResettingParagraph,
         ParagraphBreak,
         (u"2.\\tab Each March the Environment Manager lists the accidents and emergencies that could happen at the "
          u"plant. The list starts from the environmental aspects that were found under Management Procedure E1, "
          u"and takes in the incidents and near misses of the last five years. Every change of plant, material or "
          u"process is checked against the list before it is made."),

         EmptyParagraph,
         ParagraphBreak,
         (u"3.\\tab The Environment Manager and the Department Managers walk round the plant with the list and the "
          u"drawing of the drains, once by day and once by night. At every tank, store, vessel and pipe they ask "
          u"what could fail, how much would escape, and where it would go. They talk with the people who work "
          u"there, and with the drivers of the tank trucks."),

         EmptyParagraph,
         ParagraphBreak,
         (u"4.\\tab The Environment Manager judges every event by its likelihood and by the reach of the harm, "
          u"inside the fence and beyond it. Events that could reach the river, a neighbor or the sewer come first, "
          u"even if they are unlikely. The Department Managers check the judgment, and the VP-Manufacturing "
          u"approves the list."),

         EmptyParagraph,
         ParagraphBreak,
         (u"5.\\tab A plan is made for each type of emergency on the list. Where one event leads to another, such "
          u"as a fire that follows a spill, each plan names the other. The types are:"),

         FirstBullet,
         u"Fire.",
         NextBullet,
         u"Explosion.",
         NextBullet,
         u"Spill or leak of a liquid to a drain, the soil or the river.",
         NextBullet,
         u"Release of vapor, smoke or dust to the air.",
         NextBullet,
         u"Failure of a service or a control: power, effluent plant, extraction, fire-water pump.",
         NextBullet,
         u"Causes from outside: flood, storm, a vehicle, sabotage, a fire next door."});
}

QString preparing()
{
    return join(
        {TabResettingParagraph,
         ParagraphBreak,
         (u"6.\\tab The Environment Manager draws up each plan together with the Maintenance Manager, a supervisor "
          u"and the leader of an Incident Action Team. They go through the event minute by minute, with the largest "
          u"amount that could escape, on the shift with the fewest people. Every time that the plan sets is tried "
          u"out on the spot before the plan is approved."),

         EmptyParagraph,
         ParagraphBreak,
         (u"7.\\tab The plan is written on the form of Record R1.C11, one action to a line. It names roles, and "
          u"gives the persons and their phone numbers in a list of its own, so that a change of staff changes that "
          u"list only. Each plan contains:"),

         FirstBullet,
         u"The type of emergency, the places where it can happen and the worst case that was assumed.",
         NextBullet,
         u"The actions in their order, with the role that takes each of them and the time allowed.",
         NextBullet,
         u"The phone list, inside and outside the plant.",
         NextBullet,
         u"The equipment, the places where it is kept and the role that sees to it.",
         NextBullet,
         u"A drawing of the site with exits, assembly points, drains, valves and tanks.",
         NextBullet,
         u"The stand-down, the clean-up and the records to be made.",

         TabResettingParagraph,
         ParagraphBreak,
         (u"8.\\tab The Environment Manager goes through the plans with the Port Ellery Fire Department, the Port "
          u"Ellery Water Board, the state environmental agency, Port Ellery General Hospital and Calder Bakery. "
          u"Each of them is shown where the drains lead and which materials are on the site. What was agreed is put "
          u"in writing, and is confirmed anew each March.")});
}

QString issuing()
{
    return join(
        {EmptyParagraph,
         ParagraphBreak,
         (u"9.\\tab The VP-Manufacturing approves each plan before it is issued. The Environment Manager numbers "
          u"the copies, and exchanges all of them on the day on which a new issue comes out. The copies are held by:"),

         FirstBullet,
         u"Copy 1: the Environment Manager, as the master from which all others are made.",
         NextBullet,
         u"Copy 2: the gatehouse, where the fire department arrives.",
         NextBullet,
         u"Copy 3: the incident control center.",
         NextBullet,
         u"Copy 4: the supervisors, in their office in the mixing hall.",
         NextBullet,
         u"Copy 5: the Maintenance Manager.",
         NextBullet,
         u"Copy 6: the Port Ellery Fire Department.",

         TabResettingParagraph,
         ParagraphBreak,
         (u"10.\\tab The Human Resources Manager has the controllers, their deputies and the Incident Action Team "
          u"trained once a year, and newcomers to these roles within 30 days. All other personnel, contractors "
          u"included, are told on their first day how the alarm is raised, what it sounds like and where the "
          u"assembly points are. Nobody may act in a role for which he or she has not been trained."),

         EmptyParagraph,
         ParagraphBreak,
         (u"11.\\tab The Environment Manager draws up the program of drills for the year, so that each plan and "
          u"each shift has its turn. Every drill has a result that can be measured and an observer who is not part "
          u"of it. The program consists of:"),

         FirstBullet,
         u"A test of the alarm every Monday at 10:00.",
         NextBullet,
         u"A check of the equipment and the spill kits every month.",
         NextBullet,
         u"A spill drill and a call to every phone number once a quarter, each shift in turn.",
         NextBullet,
         u"An evacuation drill twice a year on every shift.",
         NextBullet,
         u"A full exercise with the fire department once a year, in October."});
}

QString responding()
{
    return join(
        {TabResettingParagraph, ParagraphBreak,
         (u"12.\\tab Whoever notices an emergency makes the emergency call to the gatehouse, says what has "
          u"happened, where, and whether anybody is hurt, and shuts off the source if that is safe. The gatehouse "
          u"officer sounds the alarm, calls 911 and the supervisor on duty, and shuts the storm-drain valve within "
          u"5 minutes. The supervisor, who is now Incident Controller, is at the scene within 3 minutes of the "
          u"alarm and puts the plan into action."),

         EmptyParagraph, ParagraphBreak,
         (u"13.\\tab The Incident Action Team is at the scene with its equipment within 6 minutes, and works within "
          u"the limits of its training. Everybody else goes to the assembly point that the Incident Controller has "
          u"called, and the roll call is complete within 8 minutes. When the fire department has arrived, its "
          u"officer takes command of fire fighting and rescue, and the Incident Controller assists with knowledge "
          u"of the plant."),

         EmptyParagraph, ParagraphBreak,
         (u"14.\\tab The incident control center is staffed within 15 minutes, and from then on the Main Controller "
          u"directs the response as a whole. When effects may pass the fence, the Environment Manager tells the "
          u"authorities within 30 minutes, and the neighbors are warned at once. The Main Controller alone declares "
          u"the emergency over, after the Incident Controller and the fire department have found the scene safe.")});
}

QString learning()
{
    return join(
        {EmptyParagraph, ParagraphBreak,
         (u"15.\\tab The Environment Manager opens Record R1.C15 within 1 working day of an emergency, and has "
          u"spilled material, used absorbent and fire water collected, tested and taken away as waste. Cause and "
          u"correction are dealt with under Management Procedure C15. The plan is reviewed within 10 working days "
          u"of every emergency and every drill, and each weakness is given a person and a date."),

         EmptyParagraph, ParagraphBreak,
         (u"16.\\tab Each March the Environment Manager reviews this procedure and all plans, with the drill "
          u"reports, the incidents of the year and the changes that are planned. The VP-Manufacturing approves the "
          u"changes, and the result goes to the Executive Board. Plans that were replaced, drill reports and "
          u"incident records are kept for five years.")});
}

} // namespace

QString procedureMethodBody()
{
    return join({PageTitle, u"Method", BodyEmptyParagraph, terms(), identifying(), preparing(), issuing(), responding(),
                 learning()});
}

QString procedureMethod()
{
    return page(procedureMethodBody());
}

} // namespace orvane::pages
