#include "documents/pages/GuidePages.h"
#include "documents/pages/PageChunks.h"

namespace orvane::pages
{

namespace
{

constexpr QStringView LargerProductWord = uR"(\plain\f2\fs34\b orvane)";
constexpr QStringView LowBlankLine = uR"(\par \plain\f2\fs20 )";

QString introduction()
{
    return join(
        {FirstParagraph, TitleRun, u"Welcome to ", LargerProductWord, LowBlankLine,

         BodyParagraph, u"Thank you for choosing ", ProductWord, BodyRun,
         (u". It is a complete toolkit for building an environmental management system that meets ISO 14001, and it "
          u"leads you from the first meeting of your action team to the first review by top management. You need no "
          u"earlier experience of management systems: each requirement is explained in plain words, and the documents "
          u"that belong to it are there as worked examples."),

         ParagraphBreak, BodyParagraph,
         (u"The toolkit has five modules that belong together. The Implementation Guide tells you what to do and in "
          u"what order, the Environment Manual and the Management Procedures show how the result is written down, and "
          u"the Action Tools and the Records give you the working papers. Related Topics, at the foot of most "
          u"windows, takes you from a subject in one module to the same subject in the others."),

         ParagraphBreak, BodyParagraph,
         (u"This is the guided edition, in which one subject is complete in all five modules: Step 17, Emergency "
          u"Preparedness and Response. The other subjects stand in the menus so that you can see the extent of the "
          u"whole, and a red dot in the Command Center marks the way to each live example. The sample documents are "
          u"those of Global Inc, a maker of industrial coatings, and they can be adapted to an office, a workshop or "
          u"a large plant.")});
}

// A sub-heading, a blank line and one paragraph, set apart from what stands before.
QString block(QStringView heading, QStringView description)
{
    return join(
        {ParagraphBreak, ParagraphBreak, UnderlinedHeading, heading, BodyParagraph, BodyParagraph, description});
}

QString guidanceModules()
{
    const QString commandCenter = block(
        u"Command Center ",
        u"The Command Center is your starting point, and you return to it whenever you close a document. Its five "
        u"tabs stand for the five modules: press a tab, and a diagram shows how that module is built up. A button on "
        u"the diagram opens a document or drops a menu of documents. Whatever is open stands in the Window menu, so "
        u"you can also go straight from one document to another.");
    const QString guide = block(
        u"Implementation Guide ",
        u"The Implementation Guide is the route through the whole project. Its 24 steps are grouped in three phases: "
        u"planning, putting the plan to work, and checking the result. Each step tells you what the standard asks "
        u"for, whether you need a written procedure, what to do, and what experience has taught others. Follow the "
        u"steps in order the first time, and come back to a single step when that part of your system changes.");
    return join({commandCenter, guide});
}

QString writtenSystem()
{
    const QString manual = block(
        u"Environment Manual ",
        u"The Environment Manual is the top document of the system. For each requirement of ISO 14001 it states what "
        u"the organization is committed to, which procedures carry that out, and where the requirement comes from. "
        u"The Master version is the text of the sample company and is for reading only. Press Go to Own, and the "
        u"same text is open for editing, so that you can try wording for your own site while the page is on show.");
    const QString procedures = block(
        u"Management Procedures ",
        u"A Management Procedure says who does what, when and how, so that a task is done in the same way whoever is "
        u"on duty. There are 19 of them, and each has five pages: Aim, Responsibility, Method, Records and "
        u"References. They have a Master and an Own version as the manual does, and each carries its issue, its date "
        u"and the name of the person who authorized it.");
    return join({manual, procedures});
}

QString workingPapers()
{
    const QString records =
        block(u"Example Records ",
              u"Records are your proof that the system works from day to day. The 21 example Records are forms, each "
              u"in two states: completed by the sample company, to show how much detail is enough, and blank for "
              u"your own use. Auditors spend much of their time on records, so set yours up early and fill them in "
              u"as you go.");
    const QString tools = block(
        u"Action Tools ",
        u"The 11 Action Tools are collections of ideas: objectives to set, training needs to look for, questions to "
        u"ask at an audit. Take the tool when you prepare a document of your own, mark what applies to your site, "
        u"and add what only you can know. The tool for Step 17, T1.C11, lists 50 key points to include in emergency "
        u"plans.");
    return join({records, tools});
}

QString farewell()
{
    return join({ParagraphBreak, BodyParagraph, u"You will find news and further help at ", BoldOn,
                 u"www.orvane.example", BodyRun, u".",

                 ParagraphBreak, BodyParagraph,
                 u"Welcome aboard, and every success with your environmental management system!"});
}

} // namespace

QString guideSection1()
{
    return join({Header, ColourTable, introduction(), guidanceModules(), writtenSystem(), workingPapers(), farewell(),
                 Closing, Blank});
}

} // namespace orvane::pages
