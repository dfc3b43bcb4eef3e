#include "rules/RuleGroupNode.h"

#include "client/CQVXAdminClass.h"
#include "rules/NewRuleGroupDlg.h"

#include <array>
#include <utility>

namespace rules {
namespace {

constexpr std::int32_t editCommand = 372;
constexpr std::int32_t removeCommand = 373;

} // namespace

RuleGroupNode::RuleGroupNode(platform::Platform& platform, protocol::RuleGroupRecord group)
    : CBaseNodeItem(platform), group_(std::move(group)) {
    setDisplayName(group_.name);
}

const char16_t* RuleGroupNode::GetResultPaneColInfo(std::int32_t column) {
    switch (column) {
    case 0:
        return displayName().c_str();
    case 1:
        return group_.comment.c_str();
    default:
        return u"";
    }
}

std::span<const console::MenuEntry> RuleGroupNode::menu() const {
    static constexpr std::array entries{
        console::MenuEntry{u"Edit rule group", u"To edit rule group", editCommand},
        console::MenuEntry{u"Remove rule group", u"To remove rule group", removeCommand}};
    return entries;
}

console::Result RuleGroupNode::runCommand(std::int32_t commandId, console::CommandOrigin) {
    if (commandId == editCommand) {
        return edit();
    }
    return commandId == removeCommand ? remove() : console::Result::notDone;
}

console::Result RuleGroupNode::edit() {
    NewRuleGroupDlg dialog(platform(), group_);
    runModal(dialog);
    if (console() != nullptr) {
        console()->SelectScopeItem(parentRow());
        press({platform::Key::f5, platform::Key::f5});
    }
    return console::Result::ok;
}

// The blank at the end of the question must stay.
console::Result RuleGroupNode::remove() {
    if (!confirm(u"Do you want to delete the selected rule? ")) {
        return console::Result::notDone;
    }
    client::CQVXAdminClass client;
    client.deleteRuleGroup(group_.id);
    press({platform::Key::tab, platform::Key::up, platform::Key::down, platform::Key::f5});
    return console::Result::ok;
}

} // namespace rules
