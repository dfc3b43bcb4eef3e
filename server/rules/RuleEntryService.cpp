#include "server/rules/RuleEntryService.h"

#include "protocol/rules/RuleEntry.h"
#include "server/estate/RecordTable.h"
#include "server/estate/RegionTable.h"
#include "server/rules/NamedTable.h"
#include "server/rules/WriteChecks.h"

namespace server {

using protocol::RuleEntryRecord;
using protocol::StatusReply;

namespace {

const wire::WideString ruleEntryWord = u"rule entry";
constexpr auto appliesGroup = protocol::ruleEntryType::ruleGroup;

Refused refuseEntry(RuleEntryRecord entry) {
    if (auto refused = refuseId(ruleEntryWord, entry.id)) {
        return refused;
    }
    if (auto refused = refuseName(ruleEntryWord, entry.name)) {
        return refused;
    }
    entry.typeText = ruleEntryTypeText(entry.type);
    if (entry.typeText.empty()) {
        return ruleRefused(u"There is no such type of rule entries.");
    }
    return refuseFrameSize(ruleEntryWord, frameDataSize(entry));
}

// The id of the owner on which the entry is to be placed. A console that applies a group names that group as the owner
// too, instead of the owner that it means; the parent then identifies the owner.
std::string ownerIdOf(const protocol::AddRuleEntryRequest& request) {
    const bool namesItsGroup = request.entry.type == appliesGroup && request.ownerId == request.entry.targetId;
    return namesItsGroup ? request.parentId : request.ownerId;
}

} // namespace

std::optional<RuleEntryOwner> RuleEntryService::findOwner(const std::string& id) {
    if (connection_.table<RuleGroupTable>().find(id)) {
        return RuleEntryOwner{.groupId = id, .recordId = {}, .regionId = {}};
    }
    if (connection_.table<RecordTable>().find(id)) {
        return RuleEntryOwner{.groupId = {}, .recordId = id, .regionId = {}};
    }
    return std::nullopt;
}

std::optional<RuleEntryOwner> RuleEntryService::findOwner(std::int32_t regionId) {
    if (regionId == 0) {
        return RuleEntryOwner{};
    }
    for (const std::uint8_t kind : {std::uint8_t{0}, std::uint8_t{1}}) {
        if (connection_.table<RegionTable>().find(kind, regionId)) {
            return RuleEntryOwner{.groupId = {}, .recordId = {}, .regionId = regionId};
        }
    }
    return std::nullopt;
}

StatusReply RuleEntryService::add(const protocol::AddRuleEntryRequest& request) {
    auto& entries = connection_.table<RuleEntryTable>();
    auto entry = request.entry;
    if (entry.parentId.empty()) {
        entry.parentId = request.parentId;
    }
    if (const auto refused = refuseEntry(entry)) {
        return *refused;
    }
    if (entries.has(entry.id)) {
        return ruleRefused(u"There is a rule entry with this id already.");
    }
    const auto ownerId = ownerIdOf(request);
    if (request.ownerNumber == 0 && ownerId.empty() && !request.ownerId.empty()) {
        return ruleRefused(u"The rule entry does not say where to apply its rule group.");
    }
    const auto owner =
        request.ownerNumber == 0 && !ownerId.empty() ? findOwner(ownerId) : findOwner(request.ownerNumber);
    if (!owner) {
        return ruleRefused(u"The owner of the rule entry does not exist any more.");
    }
    if (entry.type == appliesGroup && owner->groupId) {
        return ruleRefused(u"A rule group cannot be applied inside another rule group.");
    }
    entries.insert(entry, *owner);
    return done();
}

StatusReply RuleEntryService::update(const protocol::UpdateRuleEntryRequest& request) {
    auto& entries = connection_.table<RuleEntryTable>();
    if (const auto refused = refuseEntry(request.entry)) {
        return *refused;
    }
    if (!entries.has(request.entry.id)) {
        return isGone(ruleEntryWord);
    }
    if (request.entry.type == appliesGroup && entries.isInGroup(request.entry.id)) {
        return ruleRefused(u"A rule group cannot be applied inside another rule group.");
    }
    entries.update(request.entry);
    return done();
}

StatusReply RuleEntryService::remove(const protocol::RemoveRuleEntryRequest& request) {
    auto& entries = connection_.table<RuleEntryTable>();
    if (!entries.has(request.id)) {
        return isGone(ruleEntryWord);
    }
    entries.remove(request.id);
    return done();
}

} // namespace server
