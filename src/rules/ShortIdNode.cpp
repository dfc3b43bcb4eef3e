#include "rules/ShortIdNode.h"

#include "client/CQVXAdminClass.h"
#include "console/NodePointers.h"
#include "rules/ShortIdDlg.h"

#include <array>
#include <utility>

namespace rules {
namespace {

constexpr std::int32_t newRuleCommand = 465;

} // namespace

ShortIdNode::ShortIdNode(platform::Platform& platform) : CBaseNodeItem(platform) {}

std::span<const console::Column> ShortIdNode::columns() const {
    static constexpr std::array titles{console::Column{u"Name", 2}, console::Column{u"Comment", 3}};
    return titles;
}

std::span<const console::MenuEntry> ShortIdNode::menu() const {
    static constexpr std::array entries{
        console::MenuEntry{u"New Short id Rule...", u"To create a new short id rule", newRuleCommand}};
    return entries;
}

void ShortIdNode::readRows() {
    auto before = std::exchange(shortIds_, {});
    client::CQVXAdminClass client;
    std::vector<protocol::ShortIdRecord> shortIds;
    client.listShortIds(shortIds);
    shortIds_ = rowsFor(std::move(shortIds), std::move(before));
}

std::vector<console::NodeBase*> ShortIdNode::rows() const {
    return console::nodePointers(shortIds_);
}

console::Result ShortIdNode::runCommand(std::int32_t commandId, console::CommandOrigin) {
    if (commandId != newRuleCommand) {
        return console::Result::notDone;
    }
    ShortIdDlg dialog(platform());
    if (runModal(dialog) == forms::idOk) {
        shortIds_.push_back(std::make_shared<ShortIdResultNode>(platform(), dialog.shortId()));
        shortIds_.back()->setParent(*this);
    }
    if (console() != nullptr) {
        console()->SelectScopeItem(row());
    }
    press({platform::Key::up, platform::Key::down, platform::Key::f5, platform::Key::f5});
    return console::Result::ok;
}

} // namespace rules
