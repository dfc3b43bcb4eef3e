#include "server/Changes.h"

#include "server/RecordRules.h"
#include "server/Refusal.h"
#include "server/RegionRules.h"
#include "server/StoreError.h"
#include "wire/Text.h"

#include <spdlog/spdlog.h>

namespace server {

namespace {

using protocol::CreateRecordReply;
using protocol::StatusReply;

const StatusReply& statusOf(const StatusReply& reply) {
    return reply;
}
const StatusReply& statusOf(const CreateRecordReply& reply) {
    return reply.status;
}

template <class Reply>
Reply databaseRefused(const StoreError& error) {
    spdlog::error("a change was not stored: {}", error.what());
    auto status = refusal(u"Not saved", u"The server could not store the change: " + wire::toWide(error.what()) + u".");
    if constexpr (std::same_as<Reply, CreateRecordReply>)
        return {.status = std::move(status), .id = {}};
    else
        return status;
}

// A request, the operation of the rules that carries it out, and whether the console waits for the outcome.
template <class Rules, auto operation, class Request, bool replies>
Change prepare(std::span<const std::uint8_t> fields) {
    auto request = RequestReader(fields).read<Request>();
    auto make = [request = std::move(request)](Estate& estate, ReplyBuffer& buffer) -> StatusReply {
        using Reply = decltype((std::declval<Rules&>().*operation)(request));
        Reply reply;
        try {
            reply = estate.change([&] { return (Rules(estate).*operation)(request); });
        } catch (const StoreError& error) {
            reply = databaseRefused<Reply>(error);
        }
        if constexpr (replies)
            buffer.putFrame(reply);
        return statusOf(reply);
    };
    return {.isAnswered = replies, .make = std::move(make)};
}

struct Entry {
    std::uint16_t opcode;
    Change (*prepare)(std::span<const std::uint8_t> fields);
};

template <class Rules, auto operation, class Request, bool replies = false>
constexpr Entry entry = {Request::opcode, &prepare<Rules, operation, Request, replies>};

constexpr Entry entries[] = {
    entry<RegionRules, &RegionRules::create, protocol::CreateRegionRequest>,
    entry<RegionRules, &RegionRules::rename, protocol::RenameRegionRequest>,
    entry<RegionRules, &RegionRules::move, protocol::MoveRegionRequest>,
    entry<RegionRules, &RegionRules::remove, protocol::DeleteRegionRequest>,
    entry<RecordRules, &RecordRules::create, protocol::CreateRecordRequest, true>,
    entry<RecordRules, &RecordRules::update, protocol::UpdateRecordRequest, true>,
    entry<RecordRules, &RecordRules::move, protocol::MovePrinterRequest>,
    entry<RecordRules, &RecordRules::remove, protocol::DeleteRecordRequest>,
    entry<RecordRules, &RecordRules::setOctetOrder, protocol::SetStatusOctetOrderRequest>,
};

} // namespace

std::optional<Change> prepareChange(std::uint16_t opcode, std::span<const std::uint8_t> fields) {
    for (const auto& one : entries) {
        if (one.opcode == opcode)
            return one.prepare(fields);
    }
    return std::nullopt;
}

} // namespace server
