// The pages of Management Procedure C11 as RTF documents, and the body of each, from its title to its last sentence and
// without the frame: the printed procedure is made up of the same bodies. The Master and the Own version of a page are
// the same text.
#pragma once

#include <QString>

namespace orvane::pages
{

QString procedureAimBody();
QString procedureResponsibilityBody();
QString procedureMethodBody();
QString procedureRecordsBody();
QString procedureReferencesBody();

QString procedureAim();
QString procedureResponsibility();
QString procedureMethod();
QString procedureRecords();
QString procedureReferences();

} // namespace orvane::pages
