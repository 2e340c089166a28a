#include "documents/pages/GuidePages.h"
#include "documents/pages/PageChunks.h"

#include <span>

namespace orvane::pages
{

namespace
{

struct StepLine {
    QStringView label;
    QStringView tabs; // from the bold label to the title
    QStringView title;
};

constexpr QStringView TwoTabs = uR"(\plain\f2\fs24 \tab \tab )"; // a label of one figure ends before the first stop
constexpr QStringView OneTab = uR"(\plain\f2\fs24 \tab )";
constexpr QStringView BoldTab = uR"(\tab \plain\f2\fs24 )";
constexpr QStringView Spacer = uR"(\par \plain\f2\fs12 )";
constexpr QStringView PhaseParagraph = uR"(\par \pard\li2160)";
constexpr QStringView CentredPhaseParagraph = uR"(\par \pard\qc)";

constexpr StepLine PolicyAndPlanning[] = {
    {u"Step 1", TwoTabs, u"Action Team "},
    {u"Step 2", TwoTabs, u"Management System Scope "},
    {u"Step 3", TwoTabs, u"Initial Review "},
    {u"Step 4", TwoTabs, u"Environmental Policy "},
    {u"Step 5", TwoTabs, u"Environmental Aspects "},
    {u"Step 6", TwoTabs, u"Legal and Other Requirements "},
    {u"Step 7", TwoTabs, u"Objectives and Targets "},
    {u"Step 8", TwoTabs, u"Environmental Management Program(s) "},
};

constexpr StepLine ImplementationAndOperation[] = {
    {u"Step 9", TwoTabs, u"Structure and Responsibility "},
    {u"Step 10", OneTab, u"Performance Reporting "},
    {u"Step 11", OneTab, u"Training, Awareness and Competence "},
    {u"Step 12", OneTab, u"Communication "},
    {u"Step 13", OneTab, u"Environmental Management System Documentation "},
    {u"Step 14", OneTab, u"Document Control "},
    {u"Step 15", OneTab, u"Operational Control "},
    {u"Step 16", OneTab, u"Purchasing "},
    {u"Step 17", OneTab, u"Emergency Preparedness and Response "},
};

constexpr StepLine EvaluationAndReview[] = {
    {u"Step 18", OneTab, u"Monitoring and Measurement "},
    {u"Step 19", OneTab, u"Calibration of Monitoring Equipment "},
    {u"Step 20", OneTab, u"Legal Compliance "},
    {u"Step 21", BoldTab, u"Nonconformance and Corrective and Preventive Action "},
    {u"Step 22", OneTab, u"Records "},
    {u"Step 23", OneTab, u"Environmental Management System Audit "},
    {u"Step 24", OneTab, u"Management Review "},
};

// A heading, a blank line and the steps with a thin line between them.
QString phase(QStringView paragraph, QStringView heading, std::span<const StepLine> steps)
{
    QString text = join({BodyParagraph, paragraph, UnderlinedHeading, heading, LeftParagraph});
    QStringView between;
    for (const StepLine &step : steps) {
        text += join({between, BoldParagraph, step.label, step.tabs, step.title});
        between = Spacer;
    }
    return text;
}

} // namespace

QString guideSection3()
{
    return join({Header, Blank, ColourTable, Blank, FirstParagraph, TitleRun,
                 u"Three Phase Plan for ISO 14001 \\endash  Your Route to Success ",
                 phase(PhaseParagraph, u"PHASE I   Policy and Planning ", PolicyAndPlanning),
                 phase(CentredPhaseParagraph, u"PHASE II   Implementation and Operation ", ImplementationAndOperation),
                 phase(CentredPhaseParagraph, u"PHASE III   Evaluation and Review ", EvaluationAndReview), Closing,
                 Blank});
}

} // namespace orvane::pages
