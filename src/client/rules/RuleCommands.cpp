#include "client/rules/RuleCommands.h"

#include "client/ServerCalls.h"
#include "protocol/rules/Affected.h"
#include "protocol/rules/PageLimit.h"
#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleEntry.h"
#include "protocol/rules/RuleGroup.h"
#include "protocol/rules/RuleWriteAction.h"
#include "protocol/rules/ShortId.h"
#include "protocol/rules/UserMessage.h"

#include <stdexcept>

namespace client {

namespace action = protocol::ruleWriteAction;
using wire::toUtf8;

bool RuleCommands::listRuleGroups(std::vector<protocol::RuleGroupRecord>& groups) {
    return listAllRecords(client_, protocol::ListRuleGroupsRequest{}, groups);
}

bool RuleCommands::addRuleGroup(const protocol::RuleGroupRecord& group) {
    return sendCommand(client_, protocol::WriteRuleGroupRequest{.action = action::add, .group = group},
                       toUtf8(group.name));
}

bool RuleCommands::updateRuleGroup(const protocol::RuleGroupRecord& group) {
    return sendCommand(client_, protocol::WriteRuleGroupRequest{.action = action::update, .group = group},
                       toUtf8(group.name));
}

bool RuleCommands::deleteRuleGroup(const std::string& id) {
    return sendCommand(client_, protocol::DeleteRuleGroupRequest{.id = id}, id);
}

bool RuleCommands::listAffected(std::vector<protocol::AffectedRecord>& affected) {
    return listAllRecords(client_, protocol::ListAffectedRequest{}, affected);
}

bool RuleCommands::addAffected(const protocol::AffectedRecord& affected) {
    return writeAffected(action::add, affected);
}

bool RuleCommands::updateAffected(const protocol::AffectedRecord& affected) {
    return writeAffected(action::update, affected);
}

bool RuleCommands::writeAffected(std::uint8_t writeAction, const protocol::AffectedRecord& affected) {
    return sendCommand(client_,
                       protocol::WriteAffectedRequest{.action = writeAction,
                                                      .equals = affected.equals,
                                                      .id = affected.id,
                                                      .type = affected.type,
                                                      .name = affected.name},
                       toUtf8(affected.name));
}

bool RuleCommands::deleteAffected(const std::string& id) {
    return sendCommand(client_, protocol::DeleteAffectedRequest{.id = id}, id);
}

bool RuleCommands::listRuleEntries(const std::string& ownerId, std::int32_t ownerNumber,
                                   std::vector<protocol::RuleEntryRecord>& entries) {
    return listRecords(client_, protocol::ListRuleEntriesRequest{.ownerId = ownerId, .ownerNumber = ownerNumber},
                       entries, ownerId.empty() ? "region " + std::to_string(ownerNumber) : ownerId);
}

bool RuleCommands::addRuleEntry(std::int32_t ownerNumber, const std::string& parentId, const std::string& ownerId,
                                const protocol::RuleEntryRecord& entry) {
    return sendCommand(client_,
                       protocol::AddRuleEntryRequest{
                           .ownerNumber = ownerNumber, .parentId = parentId, .ownerId = ownerId, .entry = entry},
                       toUtf8(entry.name));
}

bool RuleCommands::updateRuleEntry(const protocol::RuleEntryRecord& entry) {
    return sendCommand(client_, protocol::UpdateRuleEntryRequest{.entry = entry}, toUtf8(entry.name));
}

bool RuleCommands::removeRuleEntry(const std::string& id, std::uint8_t type) {
    return sendCommand(client_, protocol::RemoveRuleEntryRequest{.id = id, .type = type}, id);
}

bool RuleCommands::listPageLimits(std::vector<std::string>& ids, std::vector<wire::WideString>& names) {
    ids.clear();
    names.clear();
    std::vector<protocol::PageLimitName> limits;
    const bool listed = listRecords(client_, protocol::ListPageLimitsRequest{}, limits);
    for (auto& limit : limits) {
        ids.push_back(std::move(limit.id));
        names.push_back(std::move(limit.name));
    }
    return listed;
}

std::optional<protocol::PageLimitRecord> RuleCommands::getPageLimit(const std::string& id) {
    using Request = protocol::GetPageLimitRequest;
    Exchange exchange(client_, protocol::commandOf<Request>(), id);
    if (!exchange.connect()) {
        return std::nullopt;
    }
    exchange.send(dataMessageOf(Request{.id = id}));
    const auto message = exchange.receive();
    return exchange.run([&] {
        if (!message) {
            throw std::runtime_error("failed to get message");
        }
        return std::optional(protocol::read<protocol::PageLimitRecord>(*message));
    });
}

bool RuleCommands::addPageLimit(const protocol::PageLimitRecord& limit) {
    return sendCommand(client_, protocol::WritePageLimitRequest{.action = action::add, .limit = limit},
                       toUtf8(limit.name));
}

bool RuleCommands::updatePageLimit(const protocol::PageLimitRecord& limit) {
    return sendCommand(client_, protocol::WritePageLimitRequest{.action = action::update, .limit = limit},
                       toUtf8(limit.name));
}

bool RuleCommands::deletePageLimit(const std::string& id) {
    return sendCommand(client_, protocol::DeletePageLimitRequest{.id = id}, id);
}

bool RuleCommands::listPricePlans(std::vector<protocol::PricePlanRecord>& plans, const std::string& filter) {
    return listRecords(client_, protocol::ListPricePlansRequest{.filter = filter}, plans, filter);
}

bool RuleCommands::listPriceEntries(const std::string& planId, std::vector<protocol::PriceEntryRecord>& entries) {
    return listRecords(client_, protocol::ListPriceEntriesRequest{.planId = planId}, entries, planId);
}

bool RuleCommands::addPricePlan(const protocol::PricePlanRecord& plan,
                                const std::vector<protocol::PriceEntryRecord>& entries) {
    return writePricePlan(action::add, plan, entries);
}

bool RuleCommands::updatePricePlan(const protocol::PricePlanRecord& plan,
                                   const std::vector<protocol::PriceEntryRecord>& entries) {
    return writePricePlan(action::update, plan, entries);
}

bool RuleCommands::writePricePlan(std::uint8_t writeAction, const protocol::PricePlanRecord& plan,
                                  const std::vector<protocol::PriceEntryRecord>& entries) {
    if (entries.size() > 65535) {
        throw std::length_error("a price plan has 65535 entries at most");
    }
    return sendCommand(client_,
                       protocol::WritePricePlanRequest{.action = writeAction, .plan = plan, .entries = entries},
                       toUtf8(plan.name));
}

bool RuleCommands::deletePricePlan(const std::string& id) {
    return sendCommand(client_, protocol::DeletePricePlanRequest{.id = id}, id);
}

bool RuleCommands::listShortIds(std::vector<protocol::ShortIdRecord>& shortIds) {
    return listRecords(client_, protocol::ListShortIdsRequest{}, shortIds);
}

bool RuleCommands::addShortId(const protocol::ShortIdRecord& shortId) {
    return sendCommand(client_, protocol::AddShortIdRequest{.shortId = shortId}, toUtf8(shortId.name));
}

bool RuleCommands::updateShortId(const protocol::ShortIdRecord& shortId) {
    return sendCommand(client_, protocol::UpdateShortIdRequest{.shortId = shortId}, toUtf8(shortId.name));
}

bool RuleCommands::deleteShortId(const wire::Uuid& id) {
    return sendCommand(client_, protocol::DeleteShortIdRequest{.id = id}, wire::toText(id));
}

bool RuleCommands::listUserMessages(std::vector<protocol::UserMessageRecord>& messages) {
    return listRecords(client_, protocol::ListUserMessagesRequest{}, messages);
}

bool RuleCommands::addUserMessage(const protocol::UserMessageRecord& message) {
    return sendCommand(client_, protocol::WriteUserMessageRequest{.action = action::add, .message = message},
                       toUtf8(message.name));
}

bool RuleCommands::updateUserMessage(const protocol::UserMessageRecord& message) {
    return sendCommand(client_, protocol::WriteUserMessageRequest{.action = action::update, .message = message},
                       toUtf8(message.name));
}

bool RuleCommands::deleteUserMessage(const wire::Uuid& id) {
    return sendCommand(client_, protocol::DeleteUserMessageRequest{.id = id}, wire::toText(id));
}

} // namespace client
