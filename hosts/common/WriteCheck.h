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

// Finds out which writes the server has not carried out. Many of them have no reply in the protocol; their effect shows
// only in a list, so this asks for one: afterwards, and for a new record also before the write, because another record
// may look like it. Each write is looked up before the next one is sent, which may undo it.
//
// A write that changes nothing, such as saving a record unchanged, counts as carried out. So does one whose effect
// can't be seen, and one whose list can't be read: that list is itself a failed command.
class WriteCheck final : public client::RequestObserver {
public:
    // May throw wire::Cancelled, nothing else.
    void requestMade(const protocol::Command& command, std::span<const std::uint8_t> data) override;

    // The name of the first write since forget() that the server has not carried out. Throws wire::Cancelled.
    std::optional<std::string> notCarriedOut();
    // Drops the writes so far: they are not looked up any more.
    void forget();

private:
    void lookUp();
    [[nodiscard]] Shows prepare(const protocol::Command& command, std::span<const std::uint8_t> data) const;

    const std::vector<WriteLookup> lookups_ = allWriteLookups();
    SeenRequests seen_;
    Shows pending_;
    const protocol::Command* pendingCommand_ = nullptr;
    std::optional<std::string> notCarriedOut_;
    bool looking_ = false;
};

} // namespace common
