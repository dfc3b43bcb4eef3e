#include "hosts/common/WriteCheck.h"

#include "hosts/common/AlarmWriteLookups.h"
#include "hosts/common/ConfigurationWriteLookups.h"
#include "hosts/common/DriverWriteLookups.h"
#include "hosts/common/EstateWriteLookups.h"
#include "hosts/common/InventoryWriteLookups.h"
#include "hosts/common/RuleWriteLookups.h"
#include "wire/Cancelled.h"

#include <utility>

namespace common {
namespace {

wire::Message messageOf(std::span<const std::uint8_t> data) {
    wire::Message message;
    message.loadMessage(data.data(), static_cast<std::uint32_t>(data.size()));
    return message;
}

// Runs a look-up; empty when it fails. The commands of the look-up are not looked up themselves.
template <class Look>
auto looking(bool& flag, Look look) -> std::optional<decltype(look())> {
    flag = true;
    try {
        auto result = look();
        flag = false;
        return result;
    } catch (const wire::Cancelled&) {
        flag = false;
        throw;
    } catch (...) {
        flag = false;
        return std::nullopt;
    }
}

} // namespace

std::vector<WriteLookup> allWriteLookups() {
    std::vector<WriteLookup> all;
    for (const auto domain : {estateWriteLookups(), driverWriteLookups(), configurationWriteLookups(),
                              alarmWriteLookups(), inventoryWriteLookups(), ruleWriteLookups()}) {
        all.insert(all.end(), domain.begin(), domain.end());
    }
    return all;
}

void WriteCheck::requestMade(const protocol::Command& command, std::span<const std::uint8_t> data) {
    if (looking_) {
        return;
    }
    seen_.add(command, data);
    if (command.reply != protocol::ReplyShape::none) {
        return;
    }
    lookUp();
    pendingCommand_ = &command;
    pending_ = looking(looking_, [&] { return prepare(command, data); }).value_or(Shows());
}

Shows WriteCheck::prepare(const protocol::Command& command, std::span<const std::uint8_t> data) const {
    for (const WriteLookup& lookup : lookups_) {
        if (lookup.opcode == command.opcode) {
            auto message = messageOf(data);
            auto whole = messageOf(data);
            if (lookup.isMeant(message)) {
                return lookup.prepare(whole, seen_);
            }
        }
    }
    return {};
}

void WriteCheck::lookUp() {
    const auto pending = std::exchange(pending_, Shows());
    if (pending && !looking(looking_, pending).value_or(true) && !notCarriedOut_) {
        notCarriedOut_ = pendingCommand_->name;
    }
}

std::optional<std::string> WriteCheck::notCarriedOut() {
    lookUp();
    return notCarriedOut_;
}

void WriteCheck::forget() {
    pending_ = Shows();
    notCarriedOut_.reset();
}

} // namespace common
