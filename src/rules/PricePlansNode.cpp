#include "rules/PricePlansNode.h"

#include "client/CQVXAdminClass.h"
#include "console/NodePointers.h"
#include "rules/NewPricePlanDlg.h"

#include <array>
#include <utility>

namespace rules {
namespace {

constexpr std::int32_t newPlanCommand = 375;

} // namespace

PricePlansNode::PricePlansNode(platform::Platform& platform) : CBaseNodeItem(platform) {}

std::span<const console::Column> PricePlansNode::columns() const {
    static constexpr std::array titles{console::Column{u"Name", 2}, console::Column{u"Comment", 3},
                                       console::Column{u"Pay Method", 2}};
    return titles;
}

std::span<const console::MenuEntry> PricePlansNode::menu() const {
    static constexpr std::array entries{
        console::MenuEntry{u"New Price Plan...", u"To create a new price plan", newPlanCommand}};
    return entries;
}

void PricePlansNode::readRows() {
    auto before = std::exchange(plans_, {});
    client::CQVXAdminClass client;
    std::vector<protocol::PricePlanRecord> plans;
    client.listPricePlans(plans);
    plans_ = rowsFor(std::move(plans), std::move(before));
}

std::vector<console::NodeBase*> PricePlansNode::rows() const {
    return console::nodePointers(plans_);
}

console::Result PricePlansNode::runCommand(std::int32_t commandId, console::CommandOrigin) {
    if (commandId != newPlanCommand) {
        return console::Result::notDone;
    }
    NewPricePlanDlg dialog(platform());
    runModal(dialog);
    if (console() != nullptr) {
        console()->SelectScopeItem(row());
    }
    press({platform::Key::up, platform::Key::down, platform::Key::f5, platform::Key::f5});
    return console::Result::ok;
}

} // namespace rules
