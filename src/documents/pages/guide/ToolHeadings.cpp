#include "documents/pages/GuidePages.h"
#include "documents/pages/PageChunks.h"

namespace orvane::pages
{

namespace
{

constexpr QStringView SmallParagraph = uR"(\par \plain\f2\fs18 )";
constexpr QStringView SmallEmptyParagraph = uR"(\par \plain\f2\fs18\b)";
constexpr QStringView RedClick = uR"(\par \plain\f2\fs18\cf1\b Click)";
constexpr QStringView RedRun = uR"(\plain\f2\fs18\cf1 )";

QString toolHeading(QStringView title, QStringView sentence, QStringView whatToClick)
{
    return join({RedHeader, RedColourTable, RedFirstParagraph, title, SmallParagraph, sentence, SmallEmptyParagraph,
                 RedClick, RedRun, whatToClick, RedTail, Closing});
}

} // namespace

QString implementationHeading()
{
    return toolHeading(u"Implementation action",
                       u"Key Action Points to implement each ISO 14001 requirement is provided.",
                       u" - Any of the bolded words");
}

QString tipsHeading()
{
    return toolHeading(u"Hot Tips", u"Use orvane's experience for effective implementation.", u" - Close");
}

} // namespace orvane::pages
