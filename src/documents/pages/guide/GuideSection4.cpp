#include "documents/pages/GuidePages.h"
#include "documents/pages/PageChunks.h"

namespace orvane::pages
{

namespace
{

QString facts()
{
    return join(
        {FirstParagraph, TitleRun, u"What is ISO14001? ",

         ParagraphBreak, IndentedParagraph, u"'The International ", BoldOn,
         u"Environmental Management System Standard, ISO 14001", BodyRun, u"'",

         LeftParagraph, BoldParagraph, u"A few facts\\'85\\'85.. ",

         FirstBulletNoTab,
         (u"ISO 14001 was published in 1996 by the International Organization for Standardization (ISO), whose "
          u"members are the national standards bodies of more than 100 countries."),

         NextBullet,
         (u"It belongs to the ISO 14000 family. ISO 14001 holds the requirements that an organization is audited and "
          u"certified against, and its companion, ISO 14004, gives guidance only."),

         NextBullet,
         (u"By the end of 1998 nearly 8,000 certificates had been issued in more than 70 countries, to organizations "
          u"of every size.")});
}

QString nature()
{
    return join(
        {LeftParagraph,
         BoldParagraph,
         u"ISO 14001 is: ",

         FirstBulletNoTab,
         (u"A tool for managing what your work does to the environment. It tells you how to manage, and leaves the "
          u"level of performance to your policy, to the law and to your own targets."),

         NextBullet,
         u"Voluntary. No authority imposes it, although customers and owners may well ask for it.",

         NextBullet,
         u"About the way an organization is run. It is the system that is certified, and never a product.",

         LeftParagraph,
         BoldParagraph,
         u"ISO 14001 provides: ",

         FirstBulletNoTab,
         u"A framework that turns good intentions into responsibilities, programs and dates.",

         NextBullet,
         (u"A basis for certification by an independent body, or for a declaration of your own, on which customers, "
          u"neighbors and authorities can rely."),

         NextBullet,
         (u"A way to find savings. Waste, energy and lost material are looked at as effects on the environment, and "
          u"they are also costs."),

         NextBullet,
         (u"Early warning, because checks and audits bring a weakness to light before it becomes an accident or a "
          u"fine.")});
}

QString elements()
{
    return join(
        {LeftParagraph, BoldParagraph, u"ISO 14001 includes: ",

         FirstBulletNoTab, u"An environmental policy that top management stands behind.",

         NextBullet,
         (u"Planning: environmental aspects, legal and other requirements, objectives and targets, and the programs "
          u"to reach them."),

         NextBullet,
         (u"Implementation and operation: responsibility, training, communication, documentation and its control, "
          u"operational control, and emergency preparedness and response."),

         NextBullet,
         (u"Checking and corrective action: monitoring and measurement, nonconformance, records, and audits of the "
          u"system."),

         NextBullet, u"Management review, which closes the circle and starts the next round of improvement."});
}

QString purpose()
{
    return join(
        {LeftParagraph,
         BoldParagraph,
         u"ISO 14001 aims to: ",

         FirstBulletNoTab,
         u"Prevent pollution, where possible at its source and not at the end of the pipe.",

         NextBullet,
         u"Keep the organization on the right side of environmental law, today and when the law changes.",

         NextBullet,
         u"Bring about steady improvement, at a pace that the organization can afford and keep up.",

         LeftParagraph,
         BoldParagraph,
         u"ISO 14001 requires you to: ",

         FirstBulletNoTab,
         (u"Commit yourselves, in a policy that the public may read, to obeying the law, preventing pollution and "
          u"getting better from year to year."),

         NextBullet,
         (u"Find out which of your activities, products and services affect the environment most, and keep them under "
          u"control."),

         NextBullet,
         u"Set objectives and targets, and give each of them a responsible person, the means and a date.",

         NextBullet,
         u"Train your people, write down what has to be written down, and be ready for an emergency.",

         NextBullet,
         u"Measure and audit the results, put right what fails, and have top management review the system."});
}

QString reach()
{
    return join(
        {LeftParagraph, BoldParagraph, u"ISO 14001 applies to: ",

         FirstBulletNoTab,
         (u"Any organization in any country, whatever its size or trade: a factory, a hospital, a bank or a city "
          u"department."),

         NextBullet,
         (u"A whole company, one site or one plant. You settle the scope in Step 2, and it has to make sense to an "
          u"outsider."),

         NextBullet,
         (u"Effects that are in your own hands, and effects that you can influence through suppliers, contractors and "
          u"customers."),

         LeftParagraph, BoldParagraph, u"Revision of ISO 14001 in year 2000-2002 could:",

         FirstBulletNoTab,
         (u"Bring the standard closer to the new edition of ISO 9001, so that quality and environment can be run as "
          u"one system."),

         NextBullet,
         (u"Make the wording clearer where companies and auditors have read it in different ways, for example on "
          u"legal compliance."),

         NextBullet,
         (u"Keep the main requirements as they are. A system that works well today should need adjusting and not "
          u"rebuilding.")});
}

} // namespace

QString guideSection4()
{
    return join({Header, Blank, ColourTable, Blank, facts(), nature(), elements(), purpose(), reach(), Closing, Blank});
}

} // namespace orvane::pages
