// The tags that the windows' code reports by itself, besides the numbers of tools and buttons.
#pragma once

#include <span>
#include <string_view>

namespace orvane
{

struct LiteralTag {
    int tag;
    std::string_view place; // where it comes from
};

// clang-format off
inline constexpr LiteralTag LiteralTags[] = {
    {101, "the intro is left"},
    {102, "the first click in the console"},
    {103, "the Implementation Guide prints"},
    {106, "a click in the Implementation Guide's page"},
    {127, "the preview of the Implementation Guide is closed"},
    {206, "the preview of the Environment Manual is closed"},
    {310, "a procedure prints"},
    {311, "the preview of a procedure is closed"},
    {401, "an Action Tool is closed"},
    {402, "an Action Tool prints"},
    {406, "the preview of an Action Tool is closed"},
    {502, "a record shows its blank form"},
    {503, "the blank record is opened"},
    {504, "a record is closed"},
    {600, "an environment record is closed"},
    {601, "the help's contents"},
    {602, "the console's Close button"},
    {603, "the end of the tour"},
    {604, "the end of the tour with the dealer's text"},
};
// clang-format on

} // namespace orvane
