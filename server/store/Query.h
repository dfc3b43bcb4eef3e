#pragma once

#include "wire/WireUuid.h"

#include <concepts>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace server {

using Bytes = std::vector<std::uint8_t>;

// The rows of one run of a query; destroying this object ends the run and releases its lock on the database.
class Rows {
public:
    explicit Rows(sqlite3_stmt* statement) : statement_(statement) {}
    ~Rows();
    Rows(Rows&& other) noexcept;
    Rows& operator=(Rows&& other) noexcept;
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;

    // Moves to the first row, then to the next; false after the last. Throws StoreError.
    bool next();

    // The values of the current row. Views are valid until the next call of next().
    [[nodiscard]] std::int64_t number(int column) const;
    [[nodiscard]] double real(int column) const;
    [[nodiscard]] std::string_view text(int column) const;
    [[nodiscard]] std::span<const std::uint8_t> bytes(int column) const;
    [[nodiscard]] std::u16string wide(int column) const;
    [[nodiscard]] bool isNull(int column) const;

private:
    void end() noexcept;

    sqlite3_stmt* statement_;
};

// A statement, prepared on first use and kept as long as its connection lives.
class Query {
public:
    Query(sqlite3* connection, std::string sql) : connection_(connection), sql_(std::move(sql)) {}
    ~Query();
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;

    // The values are copied. One run at a time.
    template <class... Values>
    [[nodiscard]] Rows run(const Values&... values) {
        int index = 1;
        (bind(index++, values), ...);
        return Rows(statement());
    }

    template <class... Values>
    void execute(const Values&... values) {
        auto rows = run(values...);
        while (rows.next()) {
        }
    }

    // Whether any row was inserted, updated or deleted.
    template <class... Values>
    [[nodiscard]] bool affects(const Values&... values) {
        execute(values...);
        return hasChanged();
    }

    // The number that the new row got.
    template <class... Values>
    std::int64_t insert(const Values&... values) {
        execute(values...);
        return insertedNumber();
    }

    void bind(int index, std::int64_t value);
    void bind(int index, double value);
    void bind(int index, const wire::Uuid& value); // as its text
    void bind(int index, std::string_view text);
    void bind(int index, std::u16string_view text); // as the bytes of its units
    void bind(int index, std::span<const std::uint8_t> bytes);
    void bind(int index, std::nullptr_t);

    void bind(int index, const std::string& text) { bind(index, std::string_view(text)); }
    void bind(int index, const std::u16string& text) { bind(index, std::u16string_view(text)); }
    void bind(int index, const Bytes& bytes) { bind(index, std::span<const std::uint8_t>(bytes)); }

    template <std::integral Number>
    void bind(int index, Number value) {
        bind(index, static_cast<std::int64_t>(value));
    }

    template <class Enumeration>
    requires std::is_enum_v<Enumeration>
    void bind(int index, Enumeration value) { bind(index, static_cast<std::underlying_type_t<Enumeration>>(value)); }

    template <class Value>
    void bind(int index, const std::optional<Value>& value) {
        if (value) {
            bind(index, *value);
        } else {
            bind(index, nullptr);
        }
    }

private:
    [[nodiscard]] sqlite3_stmt* statement();
    [[nodiscard]] bool hasChanged() const;
    [[nodiscard]] std::int64_t insertedNumber() const;

    sqlite3* connection_;
    std::string sql_;
    sqlite3_stmt* statement_ = nullptr;
};

} // namespace server
