// The pages of the Implementation Guide as RTF documents. The four views of the step give their body as well, from the
// first paragraph to the last sentence and without the frame: a printed step is made up of the same bodies.
#pragma once

#include <QString>

namespace orvane::pages
{

QString guideSection1();
QString guideSection2();
QString guideSection3();
QString guideSection4();

QString stepRequirementBody();
QString stepProcedureBody();
QString stepImplementationBody();
QString stepTipsBody();

QString stepRequirement();
QString stepProcedure();
QString stepImplementation();
QString stepTips();

// Short documents that stand in the text area while a view is being changed.
QString implementationHeading();
QString tipsHeading();

} // namespace orvane::pages
