#pragma once

#include "protocol/estate/Region.h"
#include "server/store/Query.h"

#include <cstdint>
#include <optional>

namespace server {

// The regions, accessed over one connection to the database without any checks. A parent of 0 is the top of the tree of
// its kind. Throws StoreError.
class RegionTable {
public:
    explicit RegionTable(sqlite3* connection);

    [[nodiscard]] std::optional<protocol::RegionRecord> find(std::uint8_t kind, std::int32_t id);

    // Whether another region below the parent has the name.
    [[nodiscard]] bool nameTaken(std::uint8_t kind, std::int32_t parentId, const wire::WideString& name,
                                 std::int32_t except);

    // Whether the region is the other one or anywhere below it.
    [[nodiscard]] bool isWithin(std::uint8_t kind, std::int32_t id, std::int32_t other);

    [[nodiscard]] bool hasRegions(std::uint8_t kind, std::int32_t id);
    [[nodiscard]] bool hasRecords(std::uint8_t kind, std::int32_t id);

    // Returns the id of the new region; ids are never reused.
    std::int32_t insert(std::uint8_t kind, std::int32_t parentId, const wire::WideString& name);
    void rename(std::int32_t id, const wire::WideString& name);
    void move(std::int32_t id, std::int32_t parentId);
    void remove(std::int32_t id);

    [[nodiscard]] bool isEmpty();

    // All regions of the kind, or those below the parent when it is not 0, by name and then by id. The columns are the
    // fields of RegionRecord.
    [[nodiscard]] Rows list(std::uint8_t kind, std::int32_t parentId);

private:
    Query find_;
    Query nameTaken_;
    Query parentOf_;
    Query hasRegions_;
    Query hasRecords_;
    Query insert_;
    Query rename_;
    Query move_;
    Query remove_;
    Query any_;
    Query listAll_;
    Query listBelow_;
};

} // namespace server
