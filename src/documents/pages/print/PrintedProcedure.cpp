#include "documents/pages/PageChunks.h"
#include "documents/pages/PrintedPages.h"
#include "documents/pages/ProcedurePages.h"

namespace orvane::pages
{

QString printedProcedure()
{
    return page(
        join({procedureAimBody(), SectionBreak, procedureResponsibilityBody(), SectionBreak, procedureMethodBody(),
              SectionBreak, procedureRecordsBody(), SectionBreak, procedureReferencesBody()}));
}

} // namespace orvane::pages
