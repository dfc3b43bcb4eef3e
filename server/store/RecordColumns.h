#pragma once

#include "protocol/WireOrder.h"
#include "server/store/Query.h"

#include <type_traits>

// Records as rows: one column for each field, named after it, in the order of the wire.
namespace server {

// "ip, fpBoxIp, ..." for a SELECT or an INSERT; the prefix is put before each name ("old." for a table with that
// alias).
template <protocol::Record R>
[[nodiscard]] std::string columnNames(std::string_view prefix = {}) {
    std::string text;
    protocol::detail::eachField<R>(
        [&](const auto& one) { text.append(text.empty() ? "" : ", ").append(prefix).append(one.name); });
    return text;
}

// "?, ?, ..." for an INSERT.
template <protocol::Record R>
[[nodiscard]] std::string columnPlaces() {
    std::string text;
    protocol::detail::eachField<R>([&](const auto&) { text.append(text.empty() ? "?" : ", ?"); });
    return text;
}

// "ip = ?, fpBoxIp = ?, ..." for an UPDATE.
template <protocol::Record R>
[[nodiscard]] std::string columnAssignments() {
    std::string text;
    protocol::detail::eachField<R>(
        [&](const auto& one) { text.append(text.empty() ? "" : ", ").append(one.name).append(" = ?"); });
    return text;
}

template <protocol::Record R>
inline constexpr int columnCount = static_cast<int>(decltype(R::fields)::count);

// Binds each field from the index on; returns the next index.
template <protocol::Record R>
int bindFields(Query& query, const R& record, int index = 1) {
    protocol::forEachField(record, [&](std::string_view, const auto& value) { query.bind(index++, value); });
    return index;
}

// The value of a column of the current row.
template <class Value>
void readColumn(const Rows& rows, int column, Value& value) {
    if constexpr (wire::FieldTraits<Value>::kind == wire::FieldKind::optional) {
        value.reset();
        if (!rows.isNull(column)) {
            readColumn(rows, column, value.emplace());
        }
    } else if constexpr (std::same_as<Value, std::string>) {
        value = rows.text(column);
    } else if constexpr (std::same_as<Value, wire::WideString>) {
        value = rows.wide(column);
    } else if constexpr (std::same_as<Value, wire::Uuid>) {
        value = wire::parseUuid(rows.text(column));
    } else if constexpr (std::same_as<Value, float>) {
        value = static_cast<float>(rows.real(column));
    } else {
        static_assert(std::integral<Value> || std::is_enum_v<Value>, "a column holds one value");
        value = static_cast<Value>(rows.number(column));
    }
}

// The current row as a record, its columns in the order of the fields from the first column on.
template <protocol::Record R>
[[nodiscard]] R readFields(const Rows& rows, int firstColumn = 0) {
    R record;
    protocol::forEachField(record, [&](std::string_view, auto& value) { readColumn(rows, firstColumn++, value); });
    return record;
}

} // namespace server
