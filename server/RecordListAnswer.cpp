#include "server/RecordListAnswer.h"

#include <spdlog/spdlog.h>

#include <algorithm>

namespace server {

std::int64_t announcedCount(std::int64_t count) {
    if (count > longestList)
        spdlog::warn("a list of {} records was cut to {}: consoles take no more", count, longestList);
    return std::min(count, longestList);
}

RecordListAnswer::RecordListAnswer(const protocol::ListPrinterRecordsRequest& request, Estate& estate)
    : moment_(estate), left_(announcedCount(estate.records().count(request))), rows_(estate.records().list(request)) {}

bool RecordListAnswer::append(ReplyBuffer& buffer, std::size_t wanted) {
    if (!announced_)
        buffer.putCountFrame(static_cast<std::uint16_t>(left_));
    announced_ = true;
    while (left_ > 0 && buffer.size() < wanted && rows_.next()) {
        buffer.beginFrame();
        buffer.putRow<protocol::PrinterRecord>(rows_);
        buffer.endFrame();
        --left_;
    }
    return left_ > 0;
}

} // namespace server
