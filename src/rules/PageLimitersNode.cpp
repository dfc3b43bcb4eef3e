#include "rules/PageLimitersNode.h"

#include "client/CQVXAdminClass.h"
#include "console/NodePointers.h"
#include "rules/PageLimitDlg.h"

#include <array>
#include <string>
#include <utility>

namespace rules {
namespace {

constexpr std::int32_t newLimitCommand = 381;

} // namespace

PageLimitersNode::PageLimitersNode(platform::Platform& platform) : CBaseNodeItem(platform) {}

std::span<const console::Column> PageLimitersNode::columns() const {
    static constexpr std::array titles{console::Column{u"Name", 2}, console::Column{u"Comment", 3}};
    return titles;
}

std::span<const console::MenuEntry> PageLimitersNode::menu() const {
    static constexpr std::array entries{
        console::MenuEntry{u"New Page Limit Rule...", u"To create a new page limit rule", newLimitCommand}};
    return entries;
}

// The list of all has only names: each limit is asked for by a command of its own.
void PageLimitersNode::readRows() {
    auto before = std::exchange(limits_, {});
    client::CQVXAdminClass client;
    std::vector<std::string> ids;
    std::vector<wire::WideString> names;
    client.listPageLimits(ids, names);
    std::vector<protocol::PageLimitRecord> limits;
    limits.reserve(ids.size());
    for (const auto& id : ids) {
        auto limit = client.getPageLimit(id);
        if (!limit) {
            return;
        }
        limits.push_back(std::move(*limit));
    }
    limits_ = rowsFor(std::move(limits), std::move(before));
    for (std::size_t row = 0; row < names.size(); ++row) {
        limits_[row]->setDisplayName(std::move(names[row]));
    }
}

std::vector<console::NodeBase*> PageLimitersNode::rows() const {
    return console::nodePointers(limits_);
}

console::Result PageLimitersNode::runCommand(std::int32_t commandId, console::CommandOrigin) {
    if (commandId != newLimitCommand) {
        return console::Result::notDone;
    }
    PageLimitDlg dialog(platform());
    runModal(dialog);
    if (console() != nullptr) {
        console()->SelectScopeItem(row());
    }
    press({platform::Key::up, platform::Key::down, platform::Key::f5, platform::Key::f5});
    return console::Result::ok;
}

} // namespace rules
