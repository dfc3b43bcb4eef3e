#pragma once

#include <array>
#include <cstdint>
#include <string_view>

// The types of rule entries.
namespace protocol::ruleEntryType {

constexpr std::uint8_t ruleGroup = 1;
constexpr std::uint8_t pageLimit = 2;
constexpr std::uint8_t pricePlan = 3;
constexpr std::uint8_t handover = 4;
constexpr std::uint8_t parsePrintJob = 5;
constexpr std::uint8_t snmpQueryPrinter = 6;
constexpr std::uint8_t clientBilling = 7;
constexpr std::uint8_t shortId = 10;

struct Labelled {
    std::uint8_t type;
    std::u16string_view label;
};

// All types that exist, with the text that an administrator reads.
constexpr std::array<Labelled, 8> labels = {{
    {ruleGroup, u"Rule group"},
    {pageLimit, u"Page limit"},
    {pricePlan, u"Price plan"},
    {handover, u"Handover"},
    {parsePrintJob, u"Parse print job"},
    {snmpQueryPrinter, u"SNMP query printer"},
    {clientBilling, u"Client billing"},
    {shortId, u"Short Id"},
}};

} // namespace protocol::ruleEntryType
