#pragma once

#include "protocol/StatusReply.h"
#include "protocol/rules/DeletePageLimitRequest.h"
#include "protocol/rules/WritePageLimitRequest.h"
#include "server/Estate.h"

namespace server {

// What may be done to page limits, and doing it. Each change runs inside of the caller's transaction;
// a refused one has changed nothing. Throws StoreError.
class PageLimitRules {
public:
    explicit PageLimitRules(Estate& estate) : estate_(estate) {}

    protocol::StatusReply write(const protocol::WritePageLimitRequest& request);
    // The entries that point at it stay as they are.
    protocol::StatusReply remove(const protocol::DeletePageLimitRequest& request);

private:
    Estate& estate_;
};

} // namespace server
