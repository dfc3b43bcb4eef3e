#pragma once

#include "protocol/inventory/FoundQueue.h"
#include "protocol/rules/Affected.h"
#include "protocol/rules/PageLimit.h"
#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleEntry.h"
#include "protocol/rules/RuleGroup.h"
#include "protocol/rules/ShortId.h"
#include "protocol/rules/UserMessage.h"
#include "tests/support/FakeEstate.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace support {

// A FakeEstate that lists the rules which the test puts into it. It changes nothing by itself.
class RuleEstate {
public:
    explicit RuleEstate(client::ClientHooks hooks = {});

    // Set these only between commands.
    std::vector<protocol::RuleGroupRecord> groups;
    std::vector<protocol::AffectedRecord> affected;
    std::map<std::string, std::vector<protocol::RuleEntryRecord>> entries; // by the id of the owner
    std::map<std::int32_t, std::vector<protocol::RuleEntryRecord>> entriesOfRegion;
    std::vector<protocol::PageLimitRecord> limits;
    std::vector<protocol::PricePlanRecord> plans;
    std::map<std::string, std::vector<protocol::PriceEntryRecord>> prices; // by the id of the plan
    std::vector<protocol::ShortIdRecord> shortIds;
    std::vector<protocol::UserMessageRecord> messages;
    std::vector<protocol::FoundQueueRecord> queues; // found by every search

    void goOffline() { estate_.goOffline(); }
    // All commands so far, once the given number has arrived, as "45: 05 00 00 00 00" with the bytes of the fields in
    // hex; and the same without those that only list.
    std::vector<std::string> requests(std::size_t count) { return estate_.requests(count); }
    std::vector<std::string> changes(std::size_t count) { return estate_.changes(count); }

    // The last of the given number of changes; fails the test when its opcode is not that of the request.
    template <class Request>
    Request change(std::size_t count) {
        return decoded<Request>(changes(count), count);
    }

private:
    static Bytes fieldsOf(const std::vector<std::string>& changes, std::size_t count, std::uint16_t opcode);

    template <class Request>
    static Request decoded(const std::vector<std::string>& changes, std::size_t count) {
        const Bytes message = dataMessage(fieldsOf(changes, count, Request::opcode));
        wire::Message loaded;
        loaded.loadMessage(message.data(), static_cast<std::uint32_t>(message.size()));
        return protocol::read<Request>(loaded);
    }

    FakeEstate estate_;
};

} // namespace support
