#pragma once

#include "client/RequestObserver.h"
#include "hosts/common/SeenRequests.h"
#include "hosts/common/WriteLookup.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace common {

// The look-ups of all commands without a reply.
std::vector<WriteLookup> allWriteLookups();

// Tells which writes the server has not carried out. The protocol answers many of them with nothing at all; what became
// of these shows only in a list, so that this asks for one: afterwards, and for a new record before the write as well,
// since another one may look like it. Each write is looked up before the next one goes out, which may undo it.
//
// A write that changed nothing, as of a record that is saved again as it was, counts as carried out. So does one of
// which nothing can be seen, and one whose list can't be had: that is a failed command of its own.
class WriteCheck final : public client::RequestObserver {
public:
    // May throw wire::Cancelled, nothing else.
    void requestMade(const protocol::Command& command, std::span<const std::uint8_t> data) override;

    // The name of the first write since forget() that the server has not carried out. Throws wire::Cancelled.
    std::optional<std::string> notCarriedOut();
    // What was written so far is not asked about any more.
    void forget();

private:
    void lookUp();
    Shows prepare(const protocol::Command& command, std::span<const std::uint8_t> data) const;

    const std::vector<WriteLookup> lookups_ = allWriteLookups();
    SeenRequests seen_;
    Shows pending_;
    const protocol::Command* pendingCommand_ = nullptr;
    std::optional<std::string> notCarriedOut_;
    bool looking_ = false;
};

} // namespace common
