#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A limit to the pages or the cost of print jobs, and what is done with a job beyond it.
struct PageLimitRecord {
    std::string id; // uuid text, made by the console
    std::uint16_t priority = 0;
    wire::WideString name;
    wire::WideString comment;
    wire::WideString document;
    std::uint16_t format = 0; // a code of paperSizes, 0 for any
    std::uint8_t color = 0;   // 0 any, 1 black and white, 2 color
    std::uint8_t duplex = 0;  // 0 any, 1 no, 2 yes
    std::uint16_t maxPages = 0;
    std::uint8_t action = 0; // 0 nothing, 1 allow, 2 delete, 3 move, 4 pause, 5 divert, 6 require a PIN
    float maxCost = 0;
    std::optional<wire::Uuid> messageId; // the user message to show
    std::string destinationId;           // of a queue, empty for none
    std::uint8_t enforce = 0;            // 0 no, 1 yes
    bool extraFlag = false; // the extra fields belong to the server; a console hands them back as they came
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

} // namespace protocol
