#include "rules/PageLimitResultNode.h"

#include "client/CQVXAdminClass.h"
#include "rules/PageLimitDlg.h"

#include <array>
#include <utility>

namespace rules {
namespace {

constexpr std::int32_t editCommand = 372;
constexpr std::int32_t removeCommand = 373;

} // namespace

PageLimitResultNode::PageLimitResultNode(platform::Platform& platform, protocol::PageLimitRecord limit)
    : CBaseNodeItem(platform), limit_(std::move(limit)) {
    setDisplayName(limit_.name);
}

const char16_t* PageLimitResultNode::GetResultPaneColInfo(std::int32_t column) {
    switch (column) {
    case 0:
        return displayName().c_str();
    case 1:
        return limit_.comment.c_str();
    default:
        return u"";
    }
}

std::span<const console::MenuEntry> PageLimitResultNode::menu() const {
    static constexpr std::array entries{
        console::MenuEntry{u"Edit page limit", u"To edit page limit", editCommand},
        console::MenuEntry{u"Remove page limit", u"To remove page limit", removeCommand}};
    return entries;
}

console::Result PageLimitResultNode::runCommand(std::int32_t commandId, console::CommandOrigin) {
    if (commandId == editCommand) {
        return edit();
    }
    return commandId == removeCommand ? remove() : console::Result::notDone;
}

console::Result PageLimitResultNode::edit() {
    PageLimitDlg dialog(platform(), limit_);
    runModal(dialog);
    if (console() != nullptr) {
        console()->SelectScopeItem(parentRow());
        press({platform::Key::f5, platform::Key::f5});
    }
    return console::Result::ok;
}

console::Result PageLimitResultNode::remove() {
    if (!confirm(u"Do you want to delete the selected limit rule? ")) {
        return console::Result::notDone;
    }
    client::CQVXAdminClass client;
    client.deletePageLimit(limit_.id);
    press({platform::Key::tab, platform::Key::up, platform::Key::down, platform::Key::f5});
    return console::Result::ok;
}

} // namespace rules
