#pragma once

#include "protocol/ListRegionsRequest.h"
#include "server/Answer.h"

namespace server {

// A list of regions: in one message as long as a console can receive it, else a count and a frame for each region.
class RegionListAnswer final : public Answer {
public:
    RegionListAnswer(const protocol::ListRegionsRequest& request, Estate& estate);

    bool append(ReplyBuffer& buffer, std::size_t wanted) override;

private:
    // False when they do not fit into one message; then the count has been announced.
    [[nodiscard]] bool appendAsOne(ReplyBuffer& buffer);

    protocol::ListRegionsRequest request_;
    Estate& estate_;
    Estate::Moment moment_;
    std::int64_t left_ = -1; // not counted yet
    Rows rows_{nullptr};
};

} // namespace server
