#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

namespace client {

// A list that a command has brought, handed out one record at a time from the last to the first.
template <class Record>
class RecordCursor {
public:
    void fill(std::vector<Record> records) {
        const std::size_t remaining = records.size();
        fill(std::move(records), remaining);
    }

    // With the number of records that are to be handed out.
    void fill(std::vector<Record> records, std::size_t remaining) {
        records_ = std::move(records);
        remaining_ = remaining;
    }

    // Those that have not been handed out, in the order in which they came.
    const std::vector<Record>& records() const { return records_; }

    // Hands the next record over; none when all have been. Throws std::out_of_range "invalid vector<T> subscript" when
    // fewer records are there than remain.
    std::optional<Record> next() {
        if (remaining_ == 0)
            return std::nullopt;
        if (remaining_ > records_.size())
            throw std::out_of_range("invalid vector<T> subscript");
        --remaining_;
        std::optional<Record> record(std::move(records_[remaining_]));
        records_.resize(remaining_);
        return record;
    }

    // All records that remain, in the order in which they came.
    std::vector<Record> takeAll() {
        remaining_ = 0;
        return std::exchange(records_, {});
    }

private:
    std::vector<Record> records_;
    std::size_t remaining_ = 0;
};

} // namespace client
