// The pages of the Environment Manual's section 4.4.7 as RTF documents, and the body of each, from its title to its
// last sentence and without the frame: the printed section is made up of the same bodies. The Master and the Own
// version of a page are the same text.
#pragma once

#include <QString>

namespace orvane::pages
{

QString manualCommitmentBody();
QString manualProceduresBody();
QString manualReferencesBody();

QString manualCommitment();
QString manualProcedures();
QString manualReferences();

} // namespace orvane::pages
