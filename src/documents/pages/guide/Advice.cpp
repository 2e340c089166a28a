// Each piece of advice is one numbered paragraph under the number of its action. It opens with a word of its own, not
// with the action's key word, which stands over the pane already.
#include "documents/pages/Advice.h"
#include "documents/pages/PageChunks.h"

#include <array>

namespace orvane::pages
{

namespace
{

constexpr QStringView Opening = uR"(\deflang1033\pard\li360\fi-360\tx360\plain\f2\fs24\b )";
constexpr QStringView KeyPointsTool = u" Action Tool for Key Points to Include in Emergency Plans (T1.C11)";
constexpr QStringView PlanningProcedure = u" Management Procedure for Emergency Planning (C11)";
constexpr QStringView PlanRecord = u" Record of an Emergency Plan (R1.C11)";

QString onAssigning()
{
    return join(
        {Opening, u"1.\\tab Nominate", BodyRun,
         (u" one manager to run emergency planning, as a rule the environment manager, and write the duty and the "
          u"hours set aside for it into the job description. Choose as Main Controller a senior manager who may "
          u"stop production, spend money and speak to the press without asking anybody first, and as Incident "
          u"Controller the supervisor on duty, so that there is always one on the site. Give both a deputy, and "
          u"train all of them together, since the Incident Controller acts for both until the Main Controller has "
          u"arrived. For the Incident Action Team pick a leader and about five others on every shift who know the "
          u"site and can leave their work at once, train newcomers within 30 days, and give everybody a refresher "
          u"once a year. The "),
         ProductWord, BodyRun, KeyPointsTool,
         (u" lists the duties of each role: go through them with each person, and get a clear yes to every one "
          u"before you publish the names.")});
}

QString onWriting()
{
    return join(
        {Opening, u"2.\\tab Include", BodyRun,
         (u" in the procedure its aim and scope, the meaning of the words incident, accident and emergency, the "
          u"responsibility of each role, the method in numbered paragraphs, and the records to be kept. Name roles "
          u"and not persons, and leave phone numbers and lists of equipment to the plan, so that a change of staff "
          u"does not call for a new issue. Say of each task how often or by when it is done, for instance that the "
          u"procedure and the plans are reviewed once a year, and again within 10 working days of every drill and "
          u"every emergency. The "),
         ProductWord, BodyRun, PlanningProcedure,
         (u" has these points ready to adapt: go through it with your department managers and supervisors, cross "
          u"out what does not fit your site, and add what they already do. Before the procedure is approved, let "
          u"somebody from the night shift read the draft; it is good enough when the reader can say without help "
          u"what his or her own part is.")});
}

QString onDesigning()
{
    return join(
        {Opening, u"3.\\tab Document", BodyRun,
         (u" every plan on the same form, one plan for each type of emergency, so that whoever knows one plan can "
          u"find everything in the others. Two pages and a drawing of the site are enough: people will read the "
          u"form in bad light and in a hurry, so use large type and short lines, one action to a line, with the "
          u"time allowed beside it. Put the first actions and the emergency phone numbers where the eye falls "
          u"first, and leave room for the issue, the date and the name of the manager who authorizes the plan. The "),
         ProductWord, BodyRun, PlanRecord,
         (u" shows such a form, both completed and blank. Print the blank form, ask a supervisor to fill it in "
          u"without help, and change whatever he or she stumbles over; the form is ready when a person who has "
          u"never seen it finds within one minute whom to call, what to shut off and where to assemble.")});
}

QString onIdentifying()
{
    return join(
        {Opening, u"4.\\tab Refer", BodyRun,
         (u" to the environmental aspects that you listed in Step 5 of the Guide, and mark each one that could get "
          u"out of hand in an accident or an emergency, even if it does no harm in normal running. Add what has "
          u"gone wrong before: read the reports on incidents, near misses and complaints of the last five years, "
          u"and ask sites like yours what they have learned. Then walk round the site with the department managers "
          u"and the drawing of the drains, by day and by night, and ask at every tank, store and pipe what could "
          u"fail, how much would escape and where it would go. Compare your list with the types of accident and "
          u"emergency in the "),
         ProductWord, BodyRun, KeyPointsTool,
         (u", so that causes from outside, such as a flood or a fire next door, are not forgotten. Judge each event "
          u"by its likelihood and by the reach of the harm, plan for the worst of them first, and go through the "
          u"list again once a year and before every change of plant, material or process.")});
}

QString onPreparing()
{
    return join(
        {Opening, u"5.\\tab Prepare", BodyRun,
         (u" the response to one event at a time, at a table with a supervisor, somebody from maintenance and the "
          u"leader of the Incident Action Team. Go through the event minute by minute: how it is noticed, who "
          u"raises the alarm, who shuts off the source, where the liquid or the vapor goes, and how everybody gets "
          u"out. Set a time for each action, for instance 5 minutes for shutting the storm drains, and try it on "
          u"the spot to see whether the night shift can keep it. The "),
         ProductWord, BodyRun, KeyPointsTool,
         (u" lists what belongs in the incident control center and what emergency equipment to think of: buy what "
          u"is missing, give every item an owner, and check all of it once a month. Show the fire department and "
          u"the wastewater plant where your drains lead, agree with them and with your neighbors who tells whom and "
          u"who does what, and put the agreement in writing.")});
}

QString onDocumenting()
{
    return join(
        {Opening, u"6.\\tab Describe", BodyRun,
         (u" in each plan what has to be done, in the order in which it will be done, one action to a line, with "
          u"the role that carries it out and the time allowed. Begin with what anybody can do in the first minute, "
          u"go on to the actions at the scene and in the incident control center, and end with the stand-down, the "
          u"clean-up and the report. Be exact: a plan that names the valve, says where it is and tells who shuts it "
          u"is a help, and one that asks for suitable measures is not. The "),
         ProductWord, BodyRun, PlanRecord,
         (u" is completed for a spill of solvent at an unloading bay, and shows how much detail is enough. Number "
          u"the copies, list who holds them, keep one where the fire department will arrive, and exchange all of "
          u"them on the day a new issue comes out; when you get every old copy back, your list is right.")});
}

QString onTesting()
{
    return join(
        {Opening, u"7.\\tab Include", BodyRun,
         (u" every shift in your drills, and the people from outside whom you would call on, and draw up the "
          u"program for a whole year ahead. Many sites do well with an alarm test every week, a spill drill on each "
          u"shift in turn and a call to every number on the phone list once a quarter, an evacuation drill twice a "
          u"year on every shift, and a full exercise with the fire department once a year. Give each drill a type "
          u"of emergency, a result that can be measured, such as a roll call complete within 8 minutes, and "
          u"observers with watches at the scene, the gate and the assembly point. Bring everybody who took part "
          u"together on the same day, write down what went well and what did not, and give each weakness a person "
          u"and a date. Finish the review of the plan within 10 working days of the drill, and train people in what "
          u"has changed; the program works when every drill teaches you something and no weakness turns up twice.")});
}

constexpr std::array Bodies = {onAssigning, onWriting,     onDesigning, onIdentifying,
                               onPreparing, onDocumenting, onTesting};

} // namespace

QString adviceBody(int number)
{
    if (number < 1 || number > static_cast<int>(Bodies.size())) return {};
    return Bodies[static_cast<std::size_t>(number) - 1]();
}

QString advice(int number)
{
    const QString body = adviceBody(number);
    return body.isEmpty() ? body : page(body);
}

} // namespace orvane::pages
