// The two pages of the section that are no more than a list.
#include "documents/pages/ManualPages.h"
#include "documents/pages/PageChunks.h"
#include "documents/pages/References.h"

namespace orvane::pages
{

QString manualProceduresBody()
{
    return join({PageTitle, u"Procedures", EmptyParagraph, FirstBullet, PlanningReference});
}

QString manualReferencesBody()
{
    return join({PageTitle, u"References", BodyEmptyParagraph, FirstBullet,
                 u"ISO 14001 : 1996, requirement 4.4.7:  Emergency preparedness and response"});
}

QString manualProcedures()
{
    return page(manualProceduresBody());
}

QString manualReferences()
{
    return page(manualReferencesBody());
}

} // namespace orvane::pages
