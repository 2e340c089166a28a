// The lists of what to reckon with, and of what to have ready.
#include "documents/pages/PageChunks.h"
#include "documents/pages/tool/ToolBlocks.h"

namespace orvane::pages::tool
{

QString accidentTypes()
{
    return join(
        {ParagraphBreak, SubHeading, TypesHeading,

         FirstNarrowBullet,
         (u"Fire: in a building, a store, a tank, a vehicle or waste, with the smoke and the fire water that come "
          u"of it."),
         NextBullet, u"Explosion: of vapor, gas, dust, a pressure vessel or a reaction that runs away.", NextBullet,
         (u"Spill or leak of a liquid, to a drain, the soil or open water, while it is stored, pumped, unloaded or "
          u"moved."),
         NextBullet, u"Release of vapor, smoke or dust to the air, also from a safety valve or a failed filter.",
         NextBullet,
         (u"Failure of a service or a control: power, cooling, compressed air, ventilation, effluent treatment, the "
          u"alarm itself."),
         NextBullet,
         (u"Causes from outside: flood, storm, frost, lightning, a vehicle off the road, sabotage, a fire or a "
          u"release next door.")});
}

namespace
{

QString wayIn()
{
    return join(
        {ParagraphBreak, SubHeading, SitePlanHeading,

         FirstNarrowBullet, u"Scale, north, the usual direction of the wind, and the date of the drawing.", NextBullet,
         u"Buildings with their use, the number of floors, and how many people are in them by day and by night.",
         NextBullet, u"Gates, roads wide enough for a fire engine, and the place where outside services are met.",
         NextBullet,
         u"Exits, escape routes and assembly points, with a second assembly point for when the first lies downwind.",
         NextBullet,
         (u"Tanks, stores and process vessels, with the name, the greatest amount and the main danger of what is in "
          u"them.")});
}

QString flows()
{
    return join(
        {NextBullet,
         (u"Drains in two colors, one for storm water and one for the sewer, with manholes, direction of flow and "
          u"the point where each leaves the site."),
         NextBullet,
         u"Valves and covers that close the drains, and dikes, sumps and basins with the volume that each can hold.",
         NextBullet, u"Main shut-offs for power, gas, water, fuel and ventilation.", NextBullet,
         u"Hydrants, hoses, extinguishers, alarm points, spill kits, first aid and eyewashes.", NextBullet,
         (u"What lies beyond the fence: rivers and wells, homes, schools, other firms, and the way in which water "
          u"and wind would carry a release to them.")});
}

} // namespace

QString sitePlan()
{
    return join({wayIn(), flows()});
}

QString controlCenter()
{
    return join(
        {ParagraphBreak, SubHeading, ControlCenterHeading,

         FirstNarrowBullet,
         (u"The current emergency plans and a site plan large enough to draw on, with safety data sheets for "
          u"everything on the site."),
         NextBullet,
         (u"Two telephones that don\\'92t go through the switchboard, a radio on the channel of the scene, and the "
          u"phone list beside each of them."),
         NextBullet,
         (u"A log book, a clock, pens, vests for the roles, flashlights, and power for some hours when the supply "
          u"fails."),
         NextBullet,
         (u"The list of those present on the site, visitors and contractors included, and the names of the trained "
          u"team and first-aiders of each shift.")});
}

QString emergencyEquipment()
{
    return join(
        {ParagraphBreak, SubHeading, EquipmentHeading,

         FirstNarrowBullet,
         (u"For spills: absorbent, drain covers, booms, shovels, empty drums and a pump that may be used with what "
          u"you store, kept where a spill can happen."),
         NextBullet,
         (u"For fire: extinguishers of the right kind for each place, hoses, hydrants, foam, and a fire-water "
          u"supply that lasts."),
         NextBullet,
         (u"For protection: suits, gloves, boots and goggles that resist your materials, and breathing apparatus "
          u"for those who are trained to wear it."),
         NextBullet,
         (u"For alarm and contact: call points, a siren that is heard in every corner, hand radios, a bullhorn and "
          u"a list of numbers."),
         NextBullet,
         (u"For first aid: boxes, eyewashes, showers, stretchers and blankets, each with a sign and an owner who "
          u"checks it once a month.")});
}

} // namespace orvane::pages::tool
