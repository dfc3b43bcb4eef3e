#include "rules/RuleSetNode.h"

#include "client/CQVXAdminClass.h"
#include "console/NodePointers.h"
#include "rules/NewRuleGroupDlg.h"

#include <array>
#include <utility>

namespace rules {
namespace {

constexpr std::int32_t newGroupCommand = 374;

} // namespace

RuleSetNode::RuleSetNode(platform::Platform& platform) : CBaseNodeItem(platform) {}

std::span<const console::Column> RuleSetNode::columns() const {
    static constexpr std::array titles{console::Column{u"Rule Group Name", 2},
                                       console::Column{u"Rule Group Comment", 3}};
    return titles;
}

std::span<const console::MenuEntry> RuleSetNode::menu() const {
    static constexpr std::array entries{
        console::MenuEntry{u"New Rule Group...", u"To create a new rule group", newGroupCommand}};
    return entries;
}

void RuleSetNode::readRows() {
    auto before = std::exchange(groups_, {});
    client::CQVXAdminClass client;
    std::vector<protocol::RuleGroupRecord> groups;
    client.listRuleGroups(groups);
    groups_ = rowsFor(std::move(groups), std::move(before));
}

std::vector<console::NodeBase*> RuleSetNode::rows() const {
    return console::nodePointers(groups_);
}

console::Result RuleSetNode::runCommand(std::int32_t commandId, console::CommandOrigin) {
    if (commandId != newGroupCommand) {
        return console::Result::notDone;
    }
    NewRuleGroupDlg dialog(platform());
    runModal(dialog);
    if (console() != nullptr) {
        console()->SelectScopeItem(row());
    }
    press({platform::Key::up, platform::Key::down, platform::Key::f5, platform::Key::f5});
    return console::Result::ok;
}

} // namespace rules
