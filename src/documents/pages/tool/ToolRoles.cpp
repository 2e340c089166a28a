// The three lists of what people have to do.
#include "documents/pages/PageChunks.h"
#include "documents/pages/tool/ToolBlocks.h"

namespace orvane::pages::tool
{

namespace
{

// Duties of both controllers.
constexpr QStringView KeepsLog =
    (u"Keep a log from the first minute: what was reported, what was decided, by whom and at what time. If you "
     u"can, have somebody with you who writes.");
constexpr QStringView HandsOver =
    (u"Wear the vest of the role so that everybody can see who leads, and when you leave your place, hand over "
     u"to your deputy in so many words.");

QString directing()
{
    return join(
        {ParagraphBreak, SubHeading, MainControllerHeading,

         FirstNarrowBullet,
         (u"Go to the incident control center as soon as the alarm is given, and tell the Incident Controller when "
          u"you have taken over."),
         NextBullet, u"Direct the response as a whole, and leave the work at the scene to the Incident Controller.",
         NextBullet,
         (u"Put the safety of people first. Decide which parts of the site are cleared, and stop production where "
          u"it adds to the danger."),
         NextBullet,
         (u"Make sure that the fire department and the ambulance have been called, and that somebody meets them at "
          u"the gate with the site plan."),
         NextBullet,
         u"Follow the roll call, and pass the names of missing persons to the officer of the fire department.",
         NextBullet,
         (u"Have the authorities told within the time that the law allows: the environmental agency, the wastewater "
          u"plant and any other that has to know.")});
}

QString lookingOutward()
{
    return join(
        {NextBullet,
         (u"Warn the neighbors who may be reached by smoke, vapor or a spill, and tell them what to do: close the "
          u"windows, stop the ventilation or leave."),
         NextBullet,
         (u"Speak to the press yourself, with facts only. Nobody else answers questions, and families hear of an "
          u"injury from the company before the press does."),
         NextBullet,
         (u"Think one hour ahead: more people, food, lighting, absorbent, tank trucks for liquids, and a relief for "
          u"those at the scene."),
         NextBullet, KeepsLog, NextBullet, HandsOver});
}

} // namespace

QString mainController()
{
    return join({directing(), lookingOutward()});
}

QString incidentController()
{
    return join(
        {ParagraphBreak, SubHeading, IncidentControllerHeading,

         FirstNarrowBullet,
         (u"Be at the scene within minutes, and judge from a safe place, with the wind at your back, what has "
          u"happened and what can come next."),
         NextBullet,
         (u"Put the plan for this type of emergency into action, and act for the Main Controller until he or she "
          u"has arrived."),
         NextBullet, u"Clear the area, close it off, and call the assembly point that is upwind.", NextBullet,
         (u"Send in the Incident Action Team only with the right protection, never one person alone, and only for "
          u"what it has been trained to do."),
         NextBullet,
         (u"Have the source shut off and the drains closed before anything reaches them, and check that it has been "
          u"done."),
         NextBullet,
         (u"Report to the Main Controller at fixed intervals, and brief the officer of the fire department on "
          u"arrival: what is burning or leaking, how much of it, who is missing and what has been shut off."),
         NextBullet, KeepsLog, NextBullet, HandsOver});
}

QString actionTeam()
{
    return join(
        {ParagraphBreak, SubHeading, ActionTeamHeading,

         FirstNarrowBullet,
         (u"Meet at a fixed point when the alarm sounds, put on the protective equipment, and report to the "
          u"Incident Controller as a complete team."),
         NextBullet,
         u"Work in pairs that stay in sight of each other, and leave at once when the signal to withdraw is given.",
         NextBullet,
         (u"Rescue people first where that is possible without breathing apparatus or with apparatus that the "
          u"rescuer is trained to use."),
         NextBullet, u"Shut off valves, pumps, power and ventilation as the plan says for the place.", NextBullet,
         (u"Hold back what is leaking with drain covers, booms and absorbent, and fight small fires with what is at "
          u"hand."),
         NextBullet,
         (u"Afterwards collect everything that was used or soiled, and report what has to be cleaned, refilled or "
          u"replaced before the site is ready again.")});
}

} // namespace orvane::pages::tool
