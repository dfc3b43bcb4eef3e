#pragma once

#include "protocol/rules/PricePlan.h"

#include <array>
#include <cstdint>
#include <string_view>

// The words and figures of the rules of the sample estate. People are fictitious.
namespace server::ruleSample {

constexpr std::array<std::u16string_view, 9> departments = {u"Accounts",       u"Apprentices", u"Board of directors",
                                                            u"Drawing office", u"Marketing",   u"Personnel",
                                                            u"Production",     u"Visitors",    u"Works council"};

constexpr std::array<std::u16string_view, 16> firstNames = {
    u"anna", u"bjørn",  u"chloé", u"dawid", u"eleni",  u"fatima", u"göran",  u"hanna",
    u"ivo",  u"joanna", u"karl",  u"łucja", u"miguel", u"nora",   u"øyvind", u"petra"};

constexpr std::array<std::u16string_view, 20> lastNames = {
    u"almqvist", u"brandt",   u"carvalho", u"dubois",   u"eriksen",   u"fischer", u"garcía",
    u"hofmann",  u"ivanov",   u"jansen",   u"kowalska", u"lindqvist", u"moreau",  u"nowak",
    u"oliveira", u"papadaki", u"richter",  u"sørensen", u"tanaka",    u"weiß"};

struct Message {
    std::u16string_view name;
    std::u16string_view caption;
    std::u16string_view text;
    std::uint32_t icon;
    std::uint32_t type;
};

constexpr std::array<Message, 4> messages = {{
    {u"Think before you print", u"Do you need it on paper?",
     u"Print jobs of more than 50 pages are better read on the screen.", 1, 2},
    {u"Too expensive", u"Print job stopped",
     u"This print job costs more than 20 €. Please ask your department for an approval.", 2, 1},
    {u"Print rules of the company", u"", u"http://intranet.example/print-rules", 0, 3},
    {u"Färgutskrift", u"Utskriften är i färg", u"Skriv ut i svartvitt om färgen inte behövs.", 3, 2},
}};

struct Limit {
    std::u16string_view name;
    std::u16string_view comment;
    std::u16string_view document;
    std::uint16_t format;
    std::uint8_t color;
    std::uint8_t duplex;
    std::uint16_t maxPages;
    std::uint8_t action;
    float maxCost;
};

constexpr std::array<Limit, 7> limits = {{
    {u"Long documents", u"Goes to the print room", u"", 0, 0, 0, 200, 3, 0.0F},
    {u"Color only for few pages", u"", u"", 9, 2, 0, 20, 4, 0.0F},
    {u"Drawings", u"Plotters only with a PIN code", u"*.dwg", 262, 0, 0, 5, 6, 0.0F},
    {u"One-sided printing", u"Duplex saves half of the paper", u"", 9, 0, 1, 30, 2, 0.0F},
    {u"Expensive jobs", u"Twenty euros at most", u"", 0, 0, 0, 0, 2, 20.0F},
    {u"E-mail", u"Nothing is done, only counted", u"*Outlook*", 0, 0, 0, 10, 0, 0.0F},
    {u"Divert A3", u"A3 goes where A3 is loaded", u"", 8, 0, 0, 0, 5, 0.0F},
}};

struct Plan {
    std::u16string_view name;
    std::u16string_view comment;
    std::uint8_t payMethod;
    float price;
    float color;
    float duplex;
    float scan;
    std::uint32_t vat;
    float level;      // of the prices below
    std::size_t rows; // how many of the prices below it has
};

constexpr std::array<Plan, 5> plans = {{
    {u"Internal", u"Counted for the departments, nobody pays", 0, 0.03F, 4.0F, 0.9F, 0.0F, 0, 1.0F, 12},
    {u"Students", u"From the wallet that they fill at the counter", 1, 0.05F, 5.0F, 0.9F, 0.2F, 1900, 1.5F, 7},
    {u"Guests", u"", 2, 0.1F, 5.0F, 1.0F, 0.5F, 1900, 2.5F, 4},
    {u"Projects", u"Wallet first, then the account of the project", 3, 0.04F, 4.5F, 0.85F, 0.1F, 2500, 1.0F, 12},
    {u"Free of charge", u"For the works council", 0, 0.0F, 1.0F, 1.0F, 0.0F, 0, 0.0F, 0},
}};

using protocol::PriceKind;

struct Price {
    std::string_view paper; // in 8-bit text, which is UTF-8 for consoles on this platform
    PriceKind kind;
    std::uint16_t code;
    float base;
    float bwSimplex;
    float bwDuplex;
    float colorSimplex;
    float colorDuplex;
};

// For each paper either a multiplier or a price for each kind of work, as a console would write them.
constexpr std::array<Price, 12> prices = {{
    {"A4", PriceKind::print, 9, 0.0F, 0.04F, 0.07F, 0.2F, 0.36F},
    {"A4", PriceKind::copy, 9, 0.0F, 0.05F, 0.09F, 0.24F, 0.44F},
    {"A4", PriceKind::scan, 9, 0.0F, 0.01F, 0.0F, 0.02F, 0.0F},
    {"A3", PriceKind::multiplier, 8, 2.0F, 0.0F, 0.0F, 0.0F, 0.0F},
    {"A5", PriceKind::multiplier, 11, 0.6F, 0.0F, 0.0F, 0.0F, 0.0F},
    {"Legal", PriceKind::multiplier, 5, 1.2F, 0.0F, 0.0F, 0.0F, 0.0F},
    {"Letter", PriceKind::multiplier, 1, 1.0F, 0.0F, 0.0F, 0.0F, 0.0F},
    {"A2", PriceKind::multiplier, 66, 4.0F, 0.0F, 0.0F, 0.0F, 0.0F},
    {"A1", PriceKind::print, 263, 0.0F, 1.5F, 0.0F, 4.5F, 0.0F},
    {"A0", PriceKind::print, 262, 0.0F, 3.0F, 0.0F, 9.0F, 0.0F},
    {"m ²", PriceKind::areaPrint, 259, 0.0F, 2.8F, 0.0F, 8.5F, 0.0F},
    {"dm ²", PriceKind::areaMultiplier, 258, 0.03F, 0.0F, 0.0F, 0.0F, 0.0F},
}};

struct ShortIds {
    std::u16string_view name;
    std::u16string_view comment;
    std::uint32_t valid; // minutes, 0 for none
    std::uint32_t reserved;
    int untilHour; // -1 for none
};

constexpr std::array<ShortIds, 5> shortIds = {{
    {u"Short id of the day", u"Free again at four in the morning", 720, 0, 4},
    {u"Three hours", u"", 180, 180, -1},
    {u"Weekend", u"Fetched on Monday at the latest", 4320, 1440, -1},
    {u"Ninety minutes", u"For the reading room", 90, 30, -1},
    {u"Without a limit", u"", 0, 0, -1},
}};

struct Group {
    std::u16string_view name;
    std::u16string_view comment;
};

constexpr std::array<Group, 6> groups = {{
    {u"Everybody", u"What holds for all of the company"},
    {u"Save paper", u"Limits that the works council has agreed to"},
    {u"Training rooms", u"Trainees pay, trainers do not"},
    {u"Reception", u"Printing for visitors"},
    {u"Plot room", u"Drawings by the square metre"},
    {u"Utbildning", u"Regler för kurser och elever"},
}};

constexpr std::array<std::u16string_view, 10> entryNames = {
    u"For all of the department", u"Until the end of the year", u"As agreed with accounts", u"Standard",
    u"Not for visitors",          u"Trial in this office",      u"Only apprentices",        u"Requested by the board",
    u"Since the audit",           u"Cost centre 4711"};

constexpr std::array<std::u16string_view, 5> entryComments = {
    u"Ask Petra Richter before you change it", u"To be looked at again in spring", u"Replaces the rule of last year",
    u"Works well", u"The exception is the drawing office"};

} // namespace server::ruleSample
