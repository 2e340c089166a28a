// The two pages of the procedure that are no more than lists.
#include "documents/pages/PageChunks.h"
#include "documents/pages/ProcedurePages.h"
#include "documents/pages/References.h"

namespace orvane::pages
{

QString procedureRecordsBody()
{
    return join(
        {PageTitle, u"Records", BodyEmptyParagraph, FirstBullet, PlanReference, NextBullet, CorrectionReference});
}

QString procedureReferencesBody()
{
    return join({PageTitle, u"References", BoldEmptyParagraph,

                 FirstBullet, u"ISO14001 : 1996, requirement 4.4.7:  Emergency preparedness and response",

                 LeftEmptyParagraph, FirstBullet, ManualReference,

                 LeftEmptyParagraph, FirstBullet, AspectsReference, NextBullet, NonconformanceReference,

                 LeftEmptyParagraph, FirstBullet, KeyPointsReference});
}

QString procedureRecords()
{
    return page(procedureRecordsBody());
}

QString procedureReferences()
{
    return page(procedureReferencesBody());
}

} // namespace orvane::pages
