// How one document names another where it leads to it: the kind, the number and the title.
#pragma once

#include <QString>

namespace orvane::pages
{

inline constexpr QStringView ManualReference =
    u"Environment Manual, section 4.4.7:  Emergency Preparedness and Response";
inline constexpr QStringView PlanningReference = u"Management Procedure, C11:  Emergency Planning";
inline constexpr QStringView AspectsReference = u"Management Procedure, E1:  Environmental Aspects";
inline constexpr QStringView NonconformanceReference = u"Management Procedure, C15:  Nonconformance Control";
inline constexpr QStringView KeyPointsReference = u"Action Tool, T1.C11:  Key Points to Include in Emergency Plans";
inline constexpr QStringView PlanReference = u"Record, R1.C11:  Emergency Plan";
inline constexpr QStringView CorrectionReference = u"Record, R1.C15:  Nonconformance and Corrective Action Record";

} // namespace orvane::pages
