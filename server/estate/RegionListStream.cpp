#include "server/estate/RegionListStream.h"

#include "server/commands/ListStream.h"
#include "server/estate/RegionTable.h"

namespace server {

RegionListStream::RegionListStream(const protocol::ListRegionsRequest& request, StoreConnection& connection)
    : request_(request), connection_(connection), moment_(connection) {}

bool RegionListStream::append(ReplyBuffer& buffer, std::size_t wanted) {
    if (left_ < 0 && appendAsOne(buffer)) {
        return false;
    }
    while (left_ > 0 && buffer.size() < wanted && rows_.next()) {
        buffer.beginFrame();
        buffer.putRow<protocol::RegionRecord>(rows_);
        buffer.endFrame();
        --left_;
    }
    return left_ > 0;
}

bool RegionListStream::appendAsOne(ReplyBuffer& buffer) {
    ReplyBuffer regions;
    std::int64_t count = 0;
    auto rows = connection_.table<RegionTable>().list(request_.kind, request_.parentId);
    for (; rows.next(); ++count) {
        if (wire::Message::headerSize + sizeof(std::uint16_t) + regions.size() <= largestReceivableFrame) {
            regions.putRow<protocol::RegionRecord>(rows);
        }
    }
    if (wire::Message::headerSize + sizeof(std::uint16_t) + regions.size() <= largestReceivableFrame) {
        buffer.beginFrame();
        buffer.put(static_cast<std::uint16_t>(count));
        buffer.append(regions.bytes());
        buffer.endFrame();
        return true;
    }
    left_ = announcedCount(count);
    buffer.putCountFrame(static_cast<std::uint16_t>(left_));
    rows_ = connection_.table<RegionTable>().list(request_.kind, request_.parentId);
    return false;
}

} // namespace server
