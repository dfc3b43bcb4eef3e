#pragma once

#include "protocol/estate/Region.h"
#include "server/commands/ReplyStream.h"

namespace server {

// A list of regions: in one message if a console can receive it, otherwise a count and a frame for each region.
class RegionListStream final : public ReplyStream {
public:
    RegionListStream(const protocol::ListRegionsRequest& request, StoreConnection& connection);

    bool append(ReplyBuffer& buffer, std::size_t wanted) override;

private:
    // False when they do not fit into one message; then the count has been announced.
    [[nodiscard]] bool appendAsOne(ReplyBuffer& buffer);

    protocol::ListRegionsRequest request_;
    StoreConnection& connection_;
    StoreConnection::Moment moment_;
    std::int64_t left_ = -1; // not counted yet
    Rows rows_{nullptr};
};

} // namespace server
