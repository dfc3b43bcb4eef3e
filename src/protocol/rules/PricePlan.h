#pragma once

#include "protocol/WireOrder.h"
#include "protocol/rules/RuleWriteAction.h"

// How a job is paid for.
namespace protocol::payMethod {

constexpr std::uint8_t log = 0; // it is only recorded
constexpr std::uint8_t wallet = 1;
constexpr std::uint8_t externalDebit = 2;
constexpr std::uint8_t walletAndExternalDebit = 3;
constexpr std::uint8_t last = walletAndExternalDebit;

} // namespace protocol::payMethod

namespace protocol {

// What a row of a price plan applies to, and how.
enum class PriceKind : std::uint8_t {
    multiplier = 0, // a paper, by its base price and the plan's multipliers
    print = 1,      // a paper, absolutely
    copy = 2,       // the same
    scan = 3,       // the same, without duplex
    other = 4,      // a paper, absolutely; no console creates such a row, and it can't be edited
    areaMultiplier = 5,
    areaPrint = 6, // absolutely, without duplex
};

// A paper may have several rows if each is of a different one of these kinds.
constexpr bool isAbsoluteOfPaper(PriceKind kind) {
    return kind >= PriceKind::print && kind <= PriceKind::other;
}

constexpr bool isArea(PriceKind kind) {
    return kind == PriceKind::areaMultiplier || kind == PriceKind::areaPrint;
}

constexpr bool isMultiplier(PriceKind kind) {
    return kind == PriceKind::multiplier || kind == PriceKind::areaMultiplier;
}

// A peer may send any number.
constexpr bool isKnown(PriceKind kind) {
    return kind <= PriceKind::areaPrint;
}

// What print jobs cost: the general figures of a plan, whose prices for papers and areas are PriceEntryRecords.
struct PricePlanRecord {
    std::string id;             // uuid text, made by the console
    std::uint8_t payMethod = 0; // one of protocol::payMethod
    wire::WideString name;
    wire::WideString comment;
    float defaultPrice = 0;
    float colorMultiplier = 0;
    float duplexMultiplier = 0;
    float copyMultiplier = 0;
    float scanMultiplier = 0;
    std::uint32_t vat = 0; // in hundredths of a percent: 2500 is 25 %

    static constexpr auto fields =
        wireOrder(field("id", &PricePlanRecord::id), field("payMethod", &PricePlanRecord::payMethod),
                  field("name", &PricePlanRecord::name), field("comment", &PricePlanRecord::comment),
                  field("defaultPrice", &PricePlanRecord::defaultPrice),
                  field("colorMultiplier", &PricePlanRecord::colorMultiplier),
                  field("duplexMultiplier", &PricePlanRecord::duplexMultiplier),
                  field("copyMultiplier", &PricePlanRecord::copyMultiplier),
                  field("scanMultiplier", &PricePlanRecord::scanMultiplier), field("vat", &PricePlanRecord::vat));

    bool operator==(const PricePlanRecord&) const = default;
};

// The price of a paper or of a unit of area within a price plan. A price without a meaning for the kind is 0.
struct PriceEntryRecord {
    std::string id;        // uuid text, made by the console
    std::string paperName; // label of the paper or area, in 8-bit text
    PriceKind kind = PriceKind::multiplier;
    std::uint16_t paperCode = 0; // of paperSizes or areaUnits
    float basePrice = 0;         // the only price of a multiplier
    float bwSimplex = 0;
    float bwDuplex = 0;
    float colorSimplex = 0;
    float colorDuplex = 0;

    static constexpr auto fields = wireOrder(
        field("id", &PriceEntryRecord::id), field("paperName", &PriceEntryRecord::paperName),
        field("kind", &PriceEntryRecord::kind), field("paperCode", &PriceEntryRecord::paperCode),
        field("basePrice", &PriceEntryRecord::basePrice), field("bwSimplex", &PriceEntryRecord::bwSimplex),
        field("bwDuplex", &PriceEntryRecord::bwDuplex), field("colorSimplex", &PriceEntryRecord::colorSimplex),
        field("colorDuplex", &PriceEntryRecord::colorDuplex));

    bool operator==(const PriceEntryRecord&) const = default;
};

// Asks for one price plan or for all.
struct ListPricePlansRequest {
    static constexpr std::uint16_t opcode = 69;

    std::string filter; // the id of a plan, empty for all

    static constexpr auto fields = wireOrder(field("filter", &ListPricePlansRequest::filter));

    bool operator==(const ListPricePlansRequest&) const = default;
};

// Asks for the prices of a plan.
struct ListPriceEntriesRequest {
    static constexpr std::uint16_t opcode = 71;

    std::string planId;

    static constexpr auto fields = wireOrder(field("planId", &ListPriceEntriesRequest::planId));

    bool operator==(const ListPriceEntriesRequest&) const = default;
};

// Adds or changes a price plan together with all of its prices, which replace the old ones.
struct WritePricePlanRequest {
    static constexpr std::uint16_t opcode = 70;
    static constexpr std::string_view form = "action 1 adds, 2 updates";
    static constexpr std::array<std::uint8_t, 2> actions = {ruleWriteAction::add, ruleWriteAction::update};

    std::uint8_t action = ruleWriteAction::add;
    PricePlanRecord plan;
    std::vector<PriceEntryRecord> entries;

    static constexpr auto fields =
        wireOrder(field("action", &WritePricePlanRequest::action), field("plan", &WritePricePlanRequest::plan),
                  field("entries", &WritePricePlanRequest::entries));

    bool operator==(const WritePricePlanRequest&) const = default;
};

// Deletes a price plan with its prices.
struct DeletePricePlanRequest {
    static constexpr std::uint16_t opcode = 70;
    static constexpr std::string_view form = "action 3 deletes";
    static constexpr std::array<std::uint8_t, 1> actions = {ruleWriteAction::remove};

    std::uint8_t action = ruleWriteAction::remove;
    std::string id;

    static constexpr auto fields =
        wireOrder(field("action", &DeletePricePlanRequest::action), field("id", &DeletePricePlanRequest::id));

    bool operator==(const DeletePricePlanRequest&) const = default;
};

} // namespace protocol
