#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <utility>
#include <vector>

namespace client {

// A list that a command has brought, handed out one record at a time from the last to the first.
template <class Record>
class RecordCursor {
public:
    void clear() { fill({}, 0); }

    // The records that came, and how many the server had announced: a signed 16-bit number, below 0 for no records.
    void fill(std::vector<Record> records, std::int16_t announced) {
        records_ = std::move(records);
        announced_ = announced;
        remaining_ = static_cast<std::size_t>(std::max<std::int16_t>(announced, 0));
    }

    // What the server announced, whatever came of it.
    [[nodiscard]] std::int16_t announced() const { return announced_; }

    // Those that have not been handed out, in the order in which they came.
    [[nodiscard]] const std::vector<Record>& records() const { return records_; }

    // Hands the next record over; false when all have been. Throws std::out_of_range "invalid vector<T> subscript" when
    // the list broke off, since the records that are missing would be the first ones to be handed out.
    bool next(Record& record) {
        if (remaining_ == 0)
            return false;
        if (remaining_ > records_.size())
            throw std::out_of_range("invalid vector<T> subscript");
        --remaining_;
        record = std::move(records_[remaining_]);
        records_.resize(remaining_);
        return true;
    }

    // All records that remain, in the order in which they came.
    [[nodiscard]] std::vector<Record> takeAll() {
        remaining_ = 0;
        return std::exchange(records_, {});
    }

private:
    std::vector<Record> records_;
    std::int16_t announced_ = 0;
    std::size_t remaining_ = 0;
};

} // namespace client
