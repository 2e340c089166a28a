#include "documents/pages/GuidePages.h"
#include "documents/pages/PageChunks.h"

namespace orvane::pages
{

namespace
{

constexpr QStringView ToolHeading = uR"(\par \plain\f2\fs26\b\i )";
constexpr QStringView ItalicRun = uR"(\plain\f2\fs26\b\i )";
constexpr QStringView RaisedSign = uR"(\plain\f2\fs19\b\up14 )";

QString threePhases()
{
    return join(
        {FirstParagraph,
         TitleRun,
         u"Using this Guide ",

         BodyParagraph,
         ParagraphBreak,
         SubHeading,
         u"Three Phase Plan ",

         FirstBullet,
         u"PHASE I\\tab \\tab ",
         BoldOn,
         u"Policy and Planning",
         BodyRun,
         (u". Steps 1 to 8 bring the action team together, find out how your organization affects the environment and "
          u"which laws apply to it, and turn the findings into a policy, targets and programs."),

         NextBullet,
         u"PHASE II\\tab \\tab ",
         BoldOn,
         u"Implementation and Operation",
         BodyRun,
         (u". Steps 9 to 17 put the plan to work. People learn what is expected of them, documents are kept under "
          u"control, work that could harm the environment follows written rules, and the site is ready for an "
          u"emergency."),

         NextBullet,
         u"PHASE III\\tab \\tab ",
         BoldOn,
         u"Evaluation and Review",
         BodyRun,
         (u". Steps 18 to 24 find out whether the system does what it is meant to do. Results are measured, failures "
          u"are corrected, the system is audited, and top management decides what has to change.")});
}

QString readingTools()
{
    return join(
        {LeftParagraph, ToolHeading, u"The Requirement in brief\\'85 ",

         FirstBullet,
         (u"What the standard asks for in this step, in everyday words. The bold words sum it up, and an auditor will "
          u"look for something behind each of them."),

         NextBullet,
         (u"Read this page first, and then the section in your own copy of the standard. The guide explains ISO 14001 "
          u"and can\\'92t replace it."),

         LeftParagraph, ToolHeading, u"Do I need a Procedure?\\'85 ",

         FirstBullet,
         (u"A plain answer with the reason for it. Only some parts of the standard call for a procedure, and paper "
          u"that nobody needs is a burden."),

         NextBullet,
         (u"Where the answer is yes, the page names the Management Procedure to start from. Open it through Related "
          u"Topics, and fit its roles, names and times to your organization.")});
}

QString actionTool()
{
    return join(
        {LeftParagraph, ToolHeading, u"Implementation action\\'85 ",

         FirstBullet,
         (u"The work of the step as a numbered list, in an order that has proved itself. Give every action a person "
          u"and a date before you go on to the next step."),

         NextBullet,
         (u"Each action begins with a bold key word, such as Assign or Write. The key words in a row make a short "
          u"list of tasks for your project plan.")});
}

QString adviceTool()
{
    return join(
        {LeftParagraph, ParagraphBreak, SubHeading, u"orvane", RaisedSign, u"TM", ItalicRun, u" advice\\'85",

         FirstBullet,
         (u"Click anywhere in an action, and a pane under the text gives detailed advice on it. The key word of the "
          u"action is the title of the pane."),

         NextBullet,
         (u"The advice names the documents that help you with the action, by a number such as T1.C11 or R1.C11. The "
          u"pane stays open while you go from action to action, and the X at its right end closes it.")});
}

QString tipsTool()
{
    return join({LeftParagraph, ToolHeading, u"HOT TIPS!!\\'85 ",

                 FirstBullet, u"Hints from practice: what is easily forgotten, and what an auditor asks for first.",

                 NextBullet,
                 u"Read them before you begin the step, and once more as a last check before you call it done."});
}

QString contentsOfTheCd()
{
    return join(
        {LeftParagraph,
         ParagraphBreak,
         SubHeading,
         u"What the CD contains ",

         FirstBullet,
         BoldOn,
         u"Implementation Guide",
         BodyRun,
         u" with 24 steps in three phases. A summary on one page lists them all.",

         NextBoldBullet,
         u"Environment Manual",
         BodyRun,
         u" with a section for each requirement of ISO 14001, written for the sample company, Global Inc.",

         NextBullet,
         LargeBold,
         u"19 Management Procedures. ",
         BodyRun,
         u"There are 18 core procedures, C1 to C18, and one environment procedure, E1, on environmental aspects.",

         NextBoldBullet,
         u"21",
         BodyRun,
         u" example ",
         LargeBold,
         u"Records",
         BodyRun,
         (u", each completed by the sample company and blank for your own use. A record bears the number of its "
          u"procedure: R1.C11 is Record 1 of procedure C11."),

         NextBoldBullet,
         u"11 Action Tools",
         BodyRun,
         (u" full of suggestions to choose from. They are numbered in the same way: T1.C11 is Action Tool 1 of "
          u"procedure C11.")});
}

} // namespace

QString guideSection2()
{
    return join({Header, Blank, ColourTable, Blank, threePhases(), readingTools(), actionTool(), adviceTool(),
                 tipsTool(), contentsOfTheCd(), Closing, Blank});
}

} // namespace orvane::pages
