// The advice pane finds an action by the number of dot-and-tab pairs up to the caret, and takes its title from the word
// between the tab and the next blank: no sentence here may hold such a pair, and a blank follows each key word.
#include "documents/pages/GuidePages.h"
#include "documents/pages/PageChunks.h"

namespace orvane::pages
{

namespace
{

constexpr QStringView FirstAction = uR"(\deflang1033\pard\li360\fi-360\tx360\tx10024\plain\f2\fs24\b )";
constexpr QStringView NextAction = BoldParagraph;

} // namespace

QString stepImplementationBody()
{
    QString body = join(
        {FirstAction, u"1.\\tab Assign", BodyRun,
         (u" one manager the responsibility for emergency planning, and with it the authority and the time that it "
          u"takes. Name a Main Controller to lead the response as a whole, an Incident Controller on every shift to "
          u"lead at the scene, and an Incident Action Team to do the work there, and give each controller a deputy."),

         NextAction, u"2.\\tab Write", BodyRun,
         (u" a Management Procedure that says how emergency plans are made, approved, tested and kept up to date. "
          u"Keep it short: the procedure tells people how to arrive at a plan, and the plan tells them what to do "
          u"when the alarm sounds."),

         NextAction, u"3.\\tab Design", BodyRun,
         (u" a form for the emergency plan that somebody under stress can read at a glance. Give it fixed places for "
          u"the type of emergency, the first actions, the names and phone numbers, the equipment and where it is "
          u"kept, and a drawing of the site with its drains and exits."),

         NextAction, u"4.\\tab Identify", BodyRun,
         (u" the accidents and emergencies that could happen at your site. Walk around it with the people who work "
          u"there, go through your environmental aspects and your past incidents and near misses, and judge each "
          u"event by how likely it is and how far the harm would reach.")});
    body += join(
        {NextAction, u"5.\\tab Prepare", BodyRun,
         (u" for each of these events. Decide what has to be done, in what order, by whom and with what equipment, "
          u"first to protect people and then to keep the effects on water, soil and air small. Talk it through with "
          u"the fire department, the water authority and your neighbors, and buy what is missing."),

         NextAction, u"6.\\tab Document", BodyRun,
         (u" the result as an emergency plan, and have it approved by a manager with the power to put it into action. "
          u"Give a copy to everybody who has a part in it, post the first actions where they will be needed, and "
          u"take back the old copies whenever a new issue comes out."),

         NextAction, u"7.\\tab Test", BodyRun,
         (u" the plan with drills, at least once a year and on every shift. Write down what happened and how long it "
          u"took, correct each weakness by a set date, and review the plan after every drill and every real "
          u"emergency.")});
    return body;
}

QString stepImplementation()
{
    return page(stepImplementationBody());
}

} // namespace orvane::pages
