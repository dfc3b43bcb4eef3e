#include "rules/ShortIdResultNode.h"

#include "client/CQVXAdminClass.h"
#include "rules/ShortIdDlg.h"

#include <array>
#include <utility>

namespace rules {
namespace {

constexpr std::int32_t editCommand = 372;
constexpr std::int32_t removeCommand = 373;

} // namespace

ShortIdResultNode::ShortIdResultNode(platform::Platform& platform, protocol::ShortIdRecord shortId)
    : CBaseNodeItem(platform), shortId_(std::move(shortId)) {
    setDisplayName(shortId_.name);
}

std::string ShortIdResultNode::refreshKey() const {
    return wire::toText(shortId_.id);
}

const char16_t* ShortIdResultNode::GetResultPaneColInfo(std::int32_t column) {
    switch (column) {
    case 0:
        return displayName().c_str();
    case 1:
        return shortId_.comment.c_str();
    default:
        return u"";
    }
}

// "Short id", "Short Id" and "Short ID": all three spellings of the term must stay.
std::span<const console::MenuEntry> ShortIdResultNode::menu() const {
    static constexpr std::array entries{
        console::MenuEntry{u"Edit Short ID rule", u"To edit Short ID rule", editCommand},
        console::MenuEntry{u"Remove Short ID rule", u"To remove Short ID rule", removeCommand}};
    return entries;
}

console::Result ShortIdResultNode::runCommand(std::int32_t commandId, console::CommandOrigin) {
    if (commandId == editCommand) {
        return edit();
    }
    return commandId == removeCommand ? remove() : console::Result::notDone;
}

console::Result ShortIdResultNode::edit() {
    ShortIdDlg dialog(platform(), shortId_);
    runModal(dialog);
    if (console() != nullptr) {
        console()->SelectScopeItem(parentRow());
        press({platform::Key::f5, platform::Key::f5});
    }
    return console::Result::ok;
}

console::Result ShortIdResultNode::remove() {
    if (!confirm(u"Do you want to delete the selected Short ID rule? ")) {
        return console::Result::notDone;
    }
    client::CQVXAdminClass client;
    client.deleteShortId(shortId_.id);
    press({platform::Key::tab, platform::Key::up, platform::Key::down, platform::Key::f5});
    return console::Result::ok;
}

} // namespace rules
