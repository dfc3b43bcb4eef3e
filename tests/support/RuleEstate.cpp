#include "tests/support/RuleEstate.h"

#include "protocol/rules/PageLimit.h"
#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleEntry.h"
#include "tests/support/Bytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace support {
namespace {

template <class Record>
Bytes bytesOf(const Record& record) {
    const auto message = protocol::makeDataMessage(record);
    return {message->bytes().begin() + 5, message->bytes().end()};
}

template <class Record>
std::vector<Bytes> allBytesOf(const std::vector<Record>& records) {
    std::vector<Bytes> all;
    std::ranges::transform(records, std::back_inserter(all), bytesOf<Record>);
    return all;
}

template <class Request>
Request requestOf(const Bytes& fields) {
    const Bytes message = dataMessage(fields);
    wire::Message loaded;
    loaded.loadMessage(message.data(), static_cast<std::uint32_t>(message.size()));
    return protocol::read<Request>(loaded);
}

template <class Key, class Record>
std::vector<Bytes> bytesUnder(const std::map<Key, std::vector<Record>>& records, const Key& key) {
    const auto found = records.find(key);
    return found != records.end() ? allBytesOf(found->second) : std::vector<Bytes>();
}

} // namespace

RuleEstate::RuleEstate(client::ClientHooks hooks) : estate_(hooks) {
    auto& lists = estate_.lists;
    lists[39] = [this](const Bytes&) { return allBytesOf(queues); };
    lists[57] = [this](const Bytes&) { return allBytesOf(groups); };
    lists[59] = [this](const Bytes&) { return allBytesOf(affected); };
    lists[61] = [this](const Bytes& fields) {
        const auto request = requestOf<protocol::ListRuleEntriesRequest>(fields);
        return request.ownerId.empty() ? bytesUnder(entriesOfRegion, request.ownerNumber)
                                       : bytesUnder(entries, request.ownerId);
    };
    lists[67] = [this](const Bytes&) { return allBytesOf(messages); };
    lists[69] = [this](const Bytes& fields) {
        const auto filter = requestOf<protocol::ListPricePlansRequest>(fields).filter;
        auto found = plans;
        std::erase_if(found, [&](const auto& plan) { return !filter.empty() && plan.id != filter; });
        return allBytesOf(found);
    };
    lists[71] = [this](const Bytes& fields) {
        return bytesUnder(prices, requestOf<protocol::ListPriceEntriesRequest>(fields).planId);
    };
    lists[73] = [this](const Bytes&) {
        std::vector<protocol::PageLimitName> names;
        for (const auto& limit : limits) {
            names.push_back({.id = limit.id, .name = limit.name});
        }
        return allBytesOf(names);
    };
    lists[81] = [this](const Bytes&) { return allBytesOf(shortIds); };
    estate_.replies[65] = [this](const Bytes& fields) {
        const auto id = requestOf<protocol::GetPageLimitRequest>(fields).id;
        const auto found = std::ranges::find(limits, id, &protocol::PageLimitRecord::id);
        return found != limits.end() ? bytesOf(*found) : Bytes();
    };
}

Bytes RuleEstate::fieldsOf(const std::vector<std::string>& changes, std::size_t count, std::uint16_t opcode) {
    if (changes.size() != count || count == 0) {
        throw std::runtime_error(std::to_string(changes.size()) + " changes instead of " + std::to_string(count));
    }
    const std::string& last = changes.back();
    EXPECT_EQ(std::stoul(last), opcode);
    return hex(last.substr(last.find(':') + 1));
}

} // namespace support
