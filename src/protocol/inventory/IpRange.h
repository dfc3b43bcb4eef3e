#pragma once

#include "protocol/WireOrder.h"

#include <cstdint>

// What a migration does with the printers of an IP range.
namespace protocol::rangeType {

constexpr std::int32_t ignore = 0;
constexpr std::int32_t migrate = 1;
constexpr std::int32_t migrateLocal = 2; // as local printers
constexpr std::int32_t forceMigrate = 3;
constexpr std::int32_t forceMigrateLocal = 4;

} // namespace protocol::rangeType

// Which IP ranges a list asks for.
namespace protocol::rangeListKind {

constexpr std::uint8_t all = 0;
constexpr std::uint8_t one = 2;

} // namespace protocol::rangeListKind

namespace protocol {

// The operation on an IP range.
enum class RangeOperation : std::uint8_t {
    add = 1,
    save = 2,
    remove = 3,    // uses only the rangeId
    setActive = 4, // uses only the rangeId and active
};

// A block of addresses and what a migration does with the printers in it. The numbered values and texts belong to the
// server, and a console sends them back unchanged.
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

// Lists the IP ranges: all, or one.
struct ListIpRangesRequest {
    static constexpr std::uint16_t opcode = 55;

    std::uint8_t listKind = 0; // one of rangeListKind
    std::string id;            // of the one range

    static constexpr auto fields =
        wireOrder(field("listKind", &ListIpRangesRequest::listKind), field("id", &ListIpRangesRequest::id));

    bool operator==(const ListIpRangesRequest&) const = default;
};

// Adds, changes, deletes or switches an IP range.
struct ChangeIpRangeRequest {
    static constexpr std::uint16_t opcode = 56;
    static constexpr std::array actions = {RangeOperation::add, RangeOperation::save, RangeOperation::remove,
                                           RangeOperation::setActive};

    RangeOperation operation = RangeOperation::add;
    IpRangeRecord range;

    static constexpr auto fields =
        wireOrder(field("operation", &ChangeIpRangeRequest::operation), field("range", &ChangeIpRangeRequest::range));

    bool operator==(const ChangeIpRangeRequest&) const = default;
};

} // namespace protocol
