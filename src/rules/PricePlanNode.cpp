#include "rules/PricePlanNode.h"

#include "client/CQVXAdminClass.h"
#include "rules/NewPricePlanDlg.h"

#include <array>
#include <utility>

namespace rules {
namespace {

constexpr std::int32_t editCommand = 376;
constexpr std::int32_t removeCommand = 377;

// "External debit", which the dialog writes as "External Debit"; both must stay.
const char16_t* payMethodText(std::uint8_t payMethod) {
    static constexpr std::array texts{u"Log", u"Wallet", u"External debit", u"Wallet and external debit"};
    return payMethod < texts.size() ? texts[payMethod] : u"";
}

} // namespace

PricePlanNode::PricePlanNode(platform::Platform& platform, protocol::PricePlanRecord plan)
    : CBaseNodeItem(platform), plan_(std::move(plan)) {
    setDisplayName(plan_.name);
}

const char16_t* PricePlanNode::GetResultPaneColInfo(std::int32_t column) {
    switch (column) {
    case 0:
        return displayName().c_str();
    case 1:
        return plan_.comment.c_str();
    case 2:
        return payMethodText(plan_.payMethod);
    default:
        return u"";
    }
}

std::span<const console::MenuEntry> PricePlanNode::menu() const {
    static constexpr std::array entries{
        console::MenuEntry{u"Edit price plan", u"To edit price plan", editCommand},
        console::MenuEntry{u"Remove price plan", u"To remove price plan", removeCommand}};
    return entries;
}

console::Result PricePlanNode::runCommand(std::int32_t commandId, console::CommandOrigin) {
    if (commandId == editCommand) {
        return edit();
    }
    return commandId == removeCommand ? remove() : console::Result::notDone;
}

console::Result PricePlanNode::edit() {
    NewPricePlanDlg dialog(platform(), plan_);
    runModal(dialog);
    if (console() != nullptr) {
        console()->SelectScopeItem(parentRow());
        press({platform::Key::f5, platform::Key::f5});
    }
    return console::Result::ok;
}

console::Result PricePlanNode::remove() {
    if (!confirm(u"Do you want to delete the selected rule? ")) {
        return console::Result::notDone;
    }
    client::CQVXAdminClass client;
    client.deletePricePlan(plan_.id);
    press({platform::Key::tab, platform::Key::up, platform::Key::down, platform::Key::f5});
    return console::Result::ok;
}

} // namespace rules
