// The parts of the Action Tool's page, each joined from its chunks.
#pragma once

#include <QString>

namespace orvane::pages::tool
{

// The headings of the seven lists, which the introduction lists as well. All but the first end in a blank.
inline constexpr QStringView TypesHeading = u"Types of accident and emergency";
inline constexpr QStringView MainControllerHeading = u"Responsibility of the Main Controller ";
inline constexpr QStringView IncidentControllerHeading = u"Responsibility of the Incident Controller ";
inline constexpr QStringView ActionTeamHeading = u"Responsibility of the Incident Action Team ";
inline constexpr QStringView SitePlanHeading = u"Content of the site plan ";
inline constexpr QStringView ControlCenterHeading = u"Items in the incident control center ";
inline constexpr QStringView EquipmentHeading = u"Items of emergency equipment ";

QString introduction();

// Heading and list, ready to stand behind an empty paragraph at the margin.
QString accidentTypes();
QString mainController();
QString incidentController();
QString actionTeam();
QString sitePlan();
QString controlCenter();
QString emergencyEquipment();

} // namespace orvane::pages::tool
