#include "documents/pages/ManualPages.h"
#include "documents/pages/PageChunks.h"
#include "documents/pages/PrintedPages.h"

namespace orvane::pages
{

QString printedManual()
{
    return page(
        join({manualCommitmentBody(), SectionBreak, manualProceduresBody(), SectionBreak, manualReferencesBody()}));
}

} // namespace orvane::pages
