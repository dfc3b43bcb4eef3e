#pragma once

#include "wire/Text.h"

#include <cstdint>
#include <optional>

namespace console {

// What a column shows of a record: one of its texts, or what a function makes of it; and the number to sort by where
// the text would sort wrongly.
template <class Record>
class RecordCell {
public:
    using Number = std::int64_t (*)(const Record&);

    // NOLINTNEXTLINE(google-explicit-constructor): a table of cells names members and functions
    constexpr RecordCell(wire::WideString Record::*text, Number number = nullptr) : text_(text), number_(number) {}
    // The text is a literal, or the record's own.
    // NOLINTNEXTLINE(google-explicit-constructor)
    constexpr RecordCell(const char16_t* (*made)(const Record&), Number number = nullptr)
        : made_(made), number_(number) {}

    [[nodiscard]] const char16_t* textOf(const Record& record) const {
        return made_ != nullptr ? made_(record) : (record.*text_).c_str();
    }
    [[nodiscard]] std::optional<std::int64_t> sortValueOf(const Record& record) const {
        return number_ != nullptr ? std::optional(number_(record)) : std::nullopt;
    }

private:
    wire::WideString Record::*text_ = nullptr;
    const char16_t* (*made_)(const Record&) = nullptr;
    Number number_ = nullptr;
};

} // namespace console
