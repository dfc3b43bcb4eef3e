#include "server/inventory/IpRangeTable.h"

#include "server/store/NameKey.h"
#include "server/store/RecordColumns.h"

#include <algorithm>

namespace server {

using protocol::IpRangeRecord;

namespace {

std::string selectRanges() {
    return "SELECT " + columnNames<IpRangeRecord>() + " FROM ipRange ";
}

Address addressIn(std::span<const std::uint8_t> bytes) {
    Address address{};
    std::copy_n(bytes.begin(), std::min(bytes.size(), address.size()), address.begin());
    return address;
}

} // namespace

std::optional<AddressBlock> blockOf(const IpRangeRecord& range) {
    const auto first = parseAddress(range.startIp);
    const auto last = parseAddress(range.endIp);
    if (!first && !last) {
        return std::nullopt;
    }
    return AddressBlock{.first = first ? *first : *last, .last = last ? *last : *first};
}

IpRangeTable::IpRangeTable(sqlite3* connection)
    : insert_(connection, "INSERT INTO ipRange (" + columnNames<IpRangeRecord>() +
                              ", nameKey, startKey, endKey) VALUES (" + columnPlaces<IpRangeRecord>() + ", ?, ?, ?)"),
      update_(connection, "UPDATE ipRange SET " + columnAssignments<IpRangeRecord>() +
                              ", nameKey = ?, startKey = ?, endKey = ? WHERE rangeId = ?"),
      remove_(connection, "DELETE FROM ipRange WHERE rangeId = ?"),
      setActive_(connection, "UPDATE ipRange SET active = ? WHERE rangeId = ?"),
      active_(connection,
              "SELECT startKey, endKey, rangeType FROM ipRange WHERE active = 1 AND startKey <> x'' ORDER BY number"),
      all_(connection, selectRanges() + "ORDER BY startKey, nameKey, number"),
      one_(connection, selectRanges() + "WHERE rangeId = ?") {}

int IpRangeTable::bindAll(Query& query, const IpRangeRecord& range) {
    int index = bindFields(query, range);
    query.bind(index++, nameKey(range.name));
    const auto block = blockOf(range);
    query.bind(index++, block ? Bytes(block->first.begin(), block->first.end()) : Bytes());
    query.bind(index++, block ? Bytes(block->last.begin(), block->last.end()) : Bytes());
    return index;
}

void IpRangeTable::insert(const IpRangeRecord& range) {
    bindAll(insert_, range);
    insert_.execute();
}

bool IpRangeTable::update(const IpRangeRecord& range) {
    update_.bind(bindAll(update_, range), range.rangeId);
    return update_.affects();
}

bool IpRangeTable::remove(const std::string& rangeId) {
    return remove_.affects(rangeId);
}

bool IpRangeTable::setActive(const std::string& rangeId, bool active) {
    return setActive_.affects(active, rangeId);
}

std::vector<ActiveRange> IpRangeTable::active() {
    std::vector<ActiveRange> ranges;
    for (auto rows = active_.run(); rows.next();) {
        ranges.push_back({.block = {.first = addressIn(rows.bytes(0)), .last = addressIn(rows.bytes(1))},
                          .rangeType = static_cast<std::int32_t>(rows.number(2))});
    }
    return ranges;
}

} // namespace server
