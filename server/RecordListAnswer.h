#pragma once

#include "server/Answer.h"

#include <optional>

namespace server {

// A list of printer records: the count and the rows of one moment.
class RecordListAnswer final : public Answer {
public:
    RecordListAnswer(const protocol::ListPrinterRecordsRequest& request, Estate& estate);

    bool append(ReplyBuffer& buffer, std::size_t wanted) override;

private:
    Estate::Moment moment_;
    std::int64_t left_ = 0;
    bool announced_ = false;
    Rows rows_;
};

// What of a list of so many is announced; a longer one is cut, and the log says so.
[[nodiscard]] std::int64_t announcedCount(std::int64_t count);

} // namespace server
