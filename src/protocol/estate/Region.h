#pragma once

#include "protocol/WireOrder.h"

#include <cstdint>

namespace protocol {

// Which of the two region trees a command refers to; their ids are unrelated.
enum class RegionKind : std::uint8_t {
    printersAndQueues = 0,
    localPrinters = 1,
};

// A region of printers and queues, or of local printers.
struct RegionRecord {
    wire::WideString name;
    std::int32_t id = 0;
    std::int32_t parentId = 0; // 0 at the top of the tree

    static constexpr auto fields = wireOrder(field("name", &RegionRecord::name), field("id", &RegionRecord::id),
                                             field("parentId", &RegionRecord::parentId));

    bool operator==(const RegionRecord&) const = default;
};

// Asks for the regions of a tree.
struct ListRegionsRequest {
    static constexpr std::uint16_t opcode = 0;

    std::uint8_t kind = 0;     // a RegionKind
    std::int32_t parentId = 0; // 0 for the whole tree
    std::uint16_t reserved = 0;

    static constexpr auto fields =
        wireOrder(field("kind", &ListRegionsRequest::kind), field("parentId", &ListRegionsRequest::parentId),
                  field("reserved", &ListRegionsRequest::reserved));

    bool operator==(const ListRegionsRequest&) const = default;
};

// The regions of a tree as one message.
struct ListRegionsReply {
    std::vector<RegionRecord> regions;

    static constexpr auto fields = wireOrder(field("regions", &ListRegionsReply::regions));

    bool operator==(const ListRegionsReply&) const = default;
};

// Creates a region below another.
struct CreateRegionRequest {
    static constexpr std::uint16_t opcode = 1;

    std::uint8_t kind = 0; // a RegionKind
    std::int32_t parentId = 0;
    wire::WideString name;

    static constexpr auto fields =
        wireOrder(field("kind", &CreateRegionRequest::kind), field("parentId", &CreateRegionRequest::parentId),
                  field("name", &CreateRegionRequest::name));

    bool operator==(const CreateRegionRequest&) const = default;
};

// Gives a region another name.
struct RenameRegionRequest {
    static constexpr std::uint16_t opcode = 2;

    std::uint8_t kind = 0; // a RegionKind
    std::int32_t regionId = 0;
    wire::WideString name;

    static constexpr auto fields =
        wireOrder(field("kind", &RenameRegionRequest::kind), field("regionId", &RenameRegionRequest::regionId),
                  field("name", &RenameRegionRequest::name));

    bool operator==(const RenameRegionRequest&) const = default;
};

// Moves a region, with everything in it, below another.
struct MoveRegionRequest {
    static constexpr std::uint16_t opcode = 3;

    std::uint8_t kind = 0; // a RegionKind
    std::int32_t regionId = 0;
    std::int32_t parentId = 0; // the new one

    static constexpr auto fields =
        wireOrder(field("kind", &MoveRegionRequest::kind), field("regionId", &MoveRegionRequest::regionId),
                  field("parentId", &MoveRegionRequest::parentId));

    bool operator==(const MoveRegionRequest&) const = default;
};

// Deletes a region.
struct DeleteRegionRequest {
    static constexpr std::uint16_t opcode = 45;

    std::int32_t regionId = 0;
    std::uint8_t kind = 0; // a RegionKind

    static constexpr auto fields =
        wireOrder(field("regionId", &DeleteRegionRequest::regionId), field("kind", &DeleteRegionRequest::kind));

    bool operator==(const DeleteRegionRequest&) const = default;
};

} // namespace protocol
