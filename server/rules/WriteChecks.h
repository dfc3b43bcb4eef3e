#pragma once

#include "protocol/rules/RuleWriteAction.h"
#include "server/commands/Refusal.h"
#include "server/commands/ReplyBuffer.h"
#include "wire/WireUuid.h"

#include <optional>

// Checks for every rules record that is written. The console chooses its id. Names may occur twice: none of these
// writes is answered, so a refusal would silently discard what an administrator has typed.
namespace server {

[[nodiscard]] protocol::StatusReply ruleRefused(const wire::WideString& text);

// A refusal, or nothing. The word is the name for the kind of record ("price plan").
using Refused = std::optional<protocol::StatusReply>;

[[nodiscard]] Refused refuseId(const wire::WideString& word, const std::string& id);
[[nodiscard]] Refused refuseId(const wire::WideString& word, const wire::Uuid& id);
[[nodiscard]] Refused refuseName(const wire::WideString& word, const wire::WideString& name);
[[nodiscard]] Refused refuseFrameSize(const wire::WideString& word, std::size_t size);
[[nodiscard]] Refused refuseAction(const wire::WideString& word, std::uint8_t action, bool isThere);
[[nodiscard]] protocol::StatusReply isGone(const wire::WideString& word);

// Checks whether a record with this id can be added or updated, apart from its name and its values.
template <class Table, protocol::Record R>
[[nodiscard]] Refused refuseWrite(Table& table, const wire::WideString& word, std::uint8_t action, const R& record) {
    if (auto refused = refuseId(word, record.id)) {
        return refused;
    }
    if (auto refused = refuseFrameSize(word, frameDataSize(record))) {
        return refused;
    }
    return refuseAction(word, action, table.find(record.id).has_value());
}

// Adds the record, or replaces the one with its id.
template <class Table, protocol::Record R>
protocol::StatusReply store(Table& table, std::uint8_t action, const R& record) {
    if (action == protocol::ruleWriteAction::add) {
        table.insert(record);
    } else {
        table.update(record);
    }
    return done();
}

template <class Table, class Id>
protocol::StatusReply removeFrom(Table& table, const wire::WideString& word, const Id& id) {
    if (!table.find(id)) {
        return isGone(word);
    }
    table.remove(id);
    return done();
}

} // namespace server
