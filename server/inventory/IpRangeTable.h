#pragma once

#include "protocol/inventory/IpRange.h"
#include "server/inventory/RangeMap.h"
#include "server/store/ListQuery.h"

namespace server {

// The addresses that an IP range spans.
[[nodiscard]] std::optional<AddressBlock> blockOf(const protocol::IpRangeRecord& range);

// The IP ranges, accessed over one connection to the database without any checks. Throws StoreError.
class IpRangeTable {
public:
    explicit IpRangeTable(sqlite3* connection);

    void insert(const protocol::IpRangeRecord& range);
    // These return false when there is no range with that id.
    bool update(const protocol::IpRangeRecord& range);
    bool remove(const std::string& rangeId);
    bool setActive(const std::string& rangeId, bool active);

    // In the order of their first addresses.
    [[nodiscard]] Listing list() { return all_.run(); }
    [[nodiscard]] Listing find(const std::string& rangeId) { return one_.run(rangeId); }

    // Those that span addresses, in the order of creation.
    [[nodiscard]] std::vector<ActiveRange> active();

private:
    int bindAll(Query& query, const protocol::IpRangeRecord& range);

    Query insert_;
    Query update_;
    Query remove_;
    Query setActive_;
    Query active_;
    ListQuery all_;
    ListQuery one_;
};

} // namespace server
