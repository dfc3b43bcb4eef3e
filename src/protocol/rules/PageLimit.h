#pragma once

#include "protocol/WireOrder.h"
#include "protocol/rules/RuleWriteAction.h"

// Which jobs a page limit applies to, by their color and by whether they are printed on both sides.
namespace protocol::limitedColor {

constexpr std::uint8_t any = 0;
constexpr std::uint8_t blackAndWhite = 1;
constexpr std::uint8_t color = 2;
constexpr std::uint8_t last = color;

} // namespace protocol::limitedColor

namespace protocol::limitedDuplex {

constexpr std::uint8_t any = 0;
constexpr std::uint8_t no = 1;
constexpr std::uint8_t yes = 2;
constexpr std::uint8_t last = yes;

} // namespace protocol::limitedDuplex

// What to do with a job beyond a page limit.
namespace protocol::limitAction {

constexpr std::uint8_t nothing = 0;
constexpr std::uint8_t allow = 1;
constexpr std::uint8_t remove = 2;
constexpr std::uint8_t move = 3; // to the destination
constexpr std::uint8_t pause = 4;
constexpr std::uint8_t divert = 5;
constexpr std::uint8_t requirePin = 6;
constexpr std::uint8_t last = requirePin;

} // namespace protocol::limitAction

namespace protocol {

// A limit on the pages or the cost of print jobs, and what to do with a job beyond it.
struct PageLimitRecord {
    std::string id; // uuid text, made by the console
    std::uint16_t priority = 0;
    wire::WideString name;
    wire::WideString comment;
    wire::WideString document;
    std::uint16_t format = 0; // a code of paperSizes, 0 for any
    std::uint8_t color = 0;   // one of limitedColor
    std::uint8_t duplex = 0;  // one of limitedDuplex
    std::uint16_t maxPages = 0;
    std::uint8_t action = 0; // one of limitAction
    float maxCost = 0;
    std::optional<wire::Uuid> messageId; // the user message to show
    std::string destinationId;           // of a queue, empty for none
    std::uint8_t enforce = 0;            // 0 no, 1 yes
    bool extraFlag = false;              // the extra fields belong to the server; a console sends them back unchanged
    wire::WideString extraText1;
    std::string extraId;
    wire::WideString extraText2;

    static constexpr auto fields =
        wireOrder(field("id", &PageLimitRecord::id), field("priority", &PageLimitRecord::priority),
                  field("name", &PageLimitRecord::name), field("comment", &PageLimitRecord::comment),
                  field("document", &PageLimitRecord::document), field("format", &PageLimitRecord::format),
                  field("color", &PageLimitRecord::color), field("duplex", &PageLimitRecord::duplex),
                  field("maxPages", &PageLimitRecord::maxPages), field("action", &PageLimitRecord::action),
                  field("maxCost", &PageLimitRecord::maxCost), field("messageId", &PageLimitRecord::messageId),
                  field("destinationId", &PageLimitRecord::destinationId), field("enforce", &PageLimitRecord::enforce),
                  field("extraFlag", &PageLimitRecord::extraFlag), field("extraText1", &PageLimitRecord::extraText1),
                  field("extraId", &PageLimitRecord::extraId), field("extraText2", &PageLimitRecord::extraText2));

    bool operator==(const PageLimitRecord&) const = default;
};

// A page limit in the list of all, with what is needed to choose one.
struct PageLimitName {
    std::string id;
    wire::WideString name;

    static constexpr auto fields = wireOrder(field("id", &PageLimitName::id), field("name", &PageLimitName::name));

    bool operator==(const PageLimitName&) const = default;
};

// Asks for the names of all page limits. It has no fields.
struct ListPageLimitsRequest {
    static constexpr std::uint16_t opcode = 73;

    static constexpr auto fields = wireOrder();

    bool operator==(const ListPageLimitsRequest&) const = default;
};

// Asks for a page limit.
struct GetPageLimitRequest {
    static constexpr std::uint16_t opcode = 65;

    std::string id;

    static constexpr auto fields = wireOrder(field("id", &GetPageLimitRequest::id));

    bool operator==(const GetPageLimitRequest&) const = default;
};

// Adds or changes a page limit.
struct WritePageLimitRequest {
    static constexpr std::uint16_t opcode = 64;
    static constexpr std::string_view form = "action 1 adds a page limit, 2 updates one";
    static constexpr std::array<std::uint8_t, 2> actions = {ruleWriteAction::add, ruleWriteAction::update};

    std::uint8_t action = ruleWriteAction::add;
    PageLimitRecord limit;

    static constexpr auto fields =
        wireOrder(field("action", &WritePageLimitRequest::action), field("limit", &WritePageLimitRequest::limit));

    bool operator==(const WritePageLimitRequest&) const = default;
};

// Deletes a page limit.
struct DeletePageLimitRequest {
    static constexpr std::uint16_t opcode = 66;

    std::string id;

    static constexpr auto fields = wireOrder(field("id", &DeletePageLimitRequest::id));

    bool operator==(const DeletePageLimitRequest&) const = default;
};

} // namespace protocol
