// The whole step in one run: its four views under the names of their tools, with the advice on all actions behind the
// actions, and at the end the documents that belong to the step.
#include "documents/pages/Advice.h"
#include "documents/pages/GuidePages.h"
#include "documents/pages/PageChunks.h"
#include "documents/pages/PrintedPages.h"
#include "documents/pages/References.h"

namespace orvane::pages
{

namespace
{

constexpr QStringView StepTitle = uR"(\deflang1033\pard\plain\f2\fs30\b Step 17 Emergency Preparedness and Response)";
constexpr QStringView PrintedHeading = uR"(\plain\f2\fs28\b\i )";
constexpr QStringView Dots = u".......";

QString section(QStringView heading, QStringView body)
{
    return join({SectionBreak, PrintedHeading, heading, Dots, BodyParagraph, ParagraphBreak, body});
}

QString allAdvice()
{
    QString text = adviceBody(1);
    for (int number = 2; !adviceBody(number).isEmpty(); ++number)
        text += join({SectionBreak, adviceBody(number)});
    return text;
}

QString relatedTopics()
{
    return join({LeadingBullet, ManualReference, NextBullet, PlanningReference, NextBullet, KeyPointsReference,
                 NextBullet, PlanReference});
}

} // namespace

QString printedGuide()
{
    return page(
        join({StepTitle, section(u"The Requirement in brief", stepRequirementBody()),
              section(u"Do I need a Procedure?", stepProcedureBody()),
              section(u"Implementation action", stepImplementationBody()), section(u"orvane advice", allAdvice()),
              section(u"HOT TIPS!!", stepTipsBody()), section(u"Related topics", relatedTopics())}));
}

} // namespace orvane::pages
