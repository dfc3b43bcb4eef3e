#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A block of addresses and what a migration does with the printers in it. The numbered values and texts belong to the
// server, a console hands them back as they came.
struct IpRangeRecord {
    std::string rangeId;
    bool active = false;
    wire::WideString name;
    wire::WideString comment;
    wire::WideString startIp;
    wire::WideString endIp;
    std::uint16_t rangeValue1 = 0;
    wire::WideString creator;
    wire::WideString rangeText1;
    std::int32_t rangeType = 0; // one of protocol::rangeType
    std::int32_t rangeValue2 = 0;
    std::string rangeText2;
    wire::WideString rangeText3;

    static constexpr auto fields =
        wireOrder(field("rangeId", &IpRangeRecord::rangeId), field("active", &IpRangeRecord::active),
                  field("name", &IpRangeRecord::name), field("comment", &IpRangeRecord::comment),
                  field("startIp", &IpRangeRecord::startIp), field("endIp", &IpRangeRecord::endIp),
                  field("rangeValue1", &IpRangeRecord::rangeValue1), field("creator", &IpRangeRecord::creator),
                  field("rangeText1", &IpRangeRecord::rangeText1), field("rangeType", &IpRangeRecord::rangeType),
                  field("rangeValue2", &IpRangeRecord::rangeValue2), field("rangeText2", &IpRangeRecord::rangeText2),
                  field("rangeText3", &IpRangeRecord::rangeText3));

    bool operator==(const IpRangeRecord&) const = default;
};

} // namespace protocol
