#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <utility>
#include <vector>

namespace client {

// The list of a command's reply, returned one record at a time from the last to the first.
template <class Record>
class RecordCursor {
public:
    void clear() { fill({}, 0); }

    // The records that arrived, and how many the server had announced: a signed 16-bit number, below 0 for no records.
    void fill(std::vector<Record> records, std::int16_t announced) {
        records_ = std::move(records);
        announced_ = announced;
        remaining_ = static_cast<std::size_t>(std::max<std::int16_t>(announced, 0));
    }

    // The count that the server announced, however many records arrived.
    [[nodiscard]] std::int16_t announced() const { return announced_; }

    // The records not returned yet, in the order in which they arrived.
    [[nodiscard]] const std::vector<Record>& records() const { return records_; }

    // Returns the next record; false when none is left. Throws std::out_of_range "invalid vector<T> subscript" when the
    // list was cut short, because the missing records would be the first ones to be returned.
    bool next(Record& record) {
        if (remaining_ == 0) {
            return false;
        }
        if (remaining_ > records_.size()) {
            throw std::out_of_range("invalid vector<T> subscript");
        }
        --remaining_;
        record = std::move(records_[remaining_]);
        records_.resize(remaining_);
        return true;
    }

    // All remaining records, in the order in which they arrived.
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
