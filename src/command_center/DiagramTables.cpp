#include "command_center/DiagramTables.h"

namespace orvane::diagram
{

namespace
{
using enum ButtonArray;
using enum PictureArray;

// clang-format off
constexpr TabRow Tabs[] = {
    {1,    0, 1455, u"Implementation Guide",  u"102", u"tabs/guide"},
    {2, 1920, 1455, u"Environment Manual",    u"109", u"tabs/manual"},
    {3, 3840, 1455, u"Management Procedures", u"300", u"tabs/procedures"},
    {4, 5760, 1455, u"Action Tools",          u"400", u"tabs/tools"},
    {5, 7680, 1425, u"Records",               u"500", u"tabs/records"},
};

constexpr FrameRow Frames[] = {
    {1,  90,  90, 5295, 1815},
    {2,  90,  90, 5295, 2655},
    {3,  90,  90, 3255,  735},
    {4, 120, 240, 6855, 2655},
    {5,  90,  90, 3255,  735},
};

constexpr ButtonRow Buttons[] = {
    {cmdImp,       0, 1,    0,    0, u"101", u"Welcome to orvane"},
    {cmdImp,       1, 1, 1950,    0, u"102", u"Using this Guide"},
    {cmdImp,       2, 1, 3840,    0, u"104", u"What is ISO14001?", u"What is ISO 14001?"},
    {cmdImpMnu,    3, 1, 1980, 1200, u"111", u"3 Phase Plan", {}, true},

    {cmdEnvMnu,    1, 2,    0,    0, u"900", u"Introduction"},
    {cmdEnv,       2, 2, 1950,    0, u"900", u"Scope"},
    {cmdEnv,       3, 2, 3915,    0, u"900", u"Definitions"},
    {cmdEnvMnuAn,  4, 2,    0,  960, u"900", u"Annexes"},
    {cmdEnvMnuMSR, 5, 2, 1950,  960, u"207", u"Management System Requirements", {}, true},
    {cmdEnv,       6, 2, 1950, 1920, u"900", u"References"},

    {cmdPrc,       0, 3,    0,    0, u"1",   u"Core Procedures", {}, true},
    {cmdPrc,       1, 3, 1800,    0, u"1",   u"Environment Procedures"},

    {cmdAct,       0, 4,    0,    0, u"900", u"Environmental Objectives", u"60 suggestions to set Environmental Objectives"},
    {cmdAct,       1, 4, 1800,    0, u"900", u"Environmental Responsibilities", u"80 Environmental Responsibilities to Assign"},
    {cmdAct,       2, 4, 3600,    0, u"900", u"Training Needs", u"60 Environmental Training Needs to Identify"},
    {cmdAct,       9, 4, 5400,    0, u"900", u"Environmental Aspects and Impacts", u"100 Environmental Aspects & Impacts to Identify"},
    {cmdAct,       3, 4,    0,  952, u"900", u"Records to Keep", u"20 Environmental Records to Keep"},
    {cmdAct,       4, 4, 1800,  952, u"900", u"Operational Procedure Titles", u"30 key activities to consider for Operational Procedures"},
    {cmdAct,       5, 4, 3600,  952, u"900", u"Suppliers and Contractors ", u"20 Environmental Rules for Suppliers & Contractors"},
    {cmdAct,      10, 4, 5400,  952, u"900", u"Aspects Data", u"50 ways to Quantify Environmental Aspects"},
    {cmdAct,       6, 4,    0, 1905, u"900", u"Audit Questions", u"80 Questions to ask at Internal Audit"},
    {cmdAct,       7, 4, 1800, 1905, u"406", u"Emergency Plan Ideas", u"50 key points to Include in Emergency Plans", true},
    {cmdAct,       8, 4, 3600, 1905, u"900", u"Typical Nonconformances", u"30 Nonconformances to Recognize & Eliminate"},

    {cmdRec,       0, 5,    0,    0, u"1",   u"Core Records", {}, true},
    {cmdRec,       1, 5, 1800,    0, u"1",   u"Environment Records"},
};

constexpr ConnectorRow Connectors[] = {
    {Image2,  0, 1, u"right",          1470,  210,  420, 180},
    {Image2,  1, 1, u"right",          3390,  210,  420, 180},
    {Image2,  2, 1, u"downlong",       2580,  660,  180, 510},
    {Image2,  3, 1, u"elbowleft",      3405,  645, 1230, 960},
    {Image1,  0, 2, u"right",          1470,  210,  420, 180},
    {Image1,  1, 2, u"right",          3420,  210,  420, 180},
    {Image1,  2, 2, u"down",           2550,  645,  180, 300},
    {Image1,  3, 2, u"left",           1455, 1170,  420, 180},
    {Image1,  4, 2, u"up",             2550, 1590,  180, 300},
    {Image5, -1, 3, u"double",         1425,  210,  330, 180},
    {Image3,  0, 4, u"down",            600,  630,  180, 300},
    {Image3,  1, 4, u"down",            600, 1590,  180, 300},
    {Image3,  2, 4, u"down",           2400,  630,  180, 300},
    {Image3,  3, 4, u"down",           2400, 1590,  180, 300},
    {Image3,  4, 4, u"down",           4200,  630,  180, 300},
    {Image3,  5, 4, u"down",           4200, 1590,  180, 300},
    {Image4,  1, 4, u"doublevertical", 6000,  630,  180, 300},
    {Image6, -1, 5, u"double",         1425,  210,  330, 180},
};
// clang-format on
} // namespace

std::span<const TabRow> tabs()
{
    return Tabs;
}

std::span<const FrameRow> frames()
{
    return Frames;
}

std::span<const ButtonRow> buttons()
{
    return Buttons;
}

std::span<const ConnectorRow> connectors()
{
    return Connectors;
}

} // namespace orvane::diagram
