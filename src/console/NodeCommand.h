#pragma once

#include "console/KeySequence.h"
#include "console/MenuEntry.h"
#include "console/Result.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace console {

// Whether a command or a notification came from the scope tree or from a row of the result pane.
enum class CommandOrigin : std::uint8_t { scope, result };

// A command of a class of nodes: its entry in the menu, what it does, and when the menu has it. An id without a text is
// a command that no menu offers.
template <class Node>
struct NodeCommand {
    MenuEntry entry{};
    Result (Node::*run)(CommandOrigin) = nullptr;
    bool (Node::*offered)() const = nullptr; // null: always
    bool (Node::*checked)() const = nullptr; // null: never
    bool (Node::*enabled)() const = nullptr; // null: always
    KeySequence keys{};                      // pressed after the command, unless it throws; also after a Cancel
};

// The entries of the node's menu at this moment. A separator is kept only between two other entries.
template <class Node>
MenuEntries menuOf(const Node& node, std::span<const NodeCommand<Node>> commands) {
    MenuEntries entries;
    bool separate = false;
    for (const auto& command : commands) {
        if (command.entry.id == 0) {
            separate = !entries.empty();
        } else if (command.entry.text != nullptr && (command.offered == nullptr || (node.*command.offered)())) {
            if (separate) {
                entries.push_back(separator);
            }
            separate = false;
            entries.push_back(command.entry);
            entries.back().checked = command.checked != nullptr && (node.*command.checked)();
            entries.back().disabled = command.enabled != nullptr && !(node.*command.enabled)();
        }
    }
    return entries;
}

// The command with the id, whether or not the menu offers it now; null when there is none.
template <class Node>
const NodeCommand<Node>* findCommand(std::span<const NodeCommand<Node>> commands, std::int32_t id) {
    const auto found = std::ranges::find_if(
        commands, [id](const NodeCommand<Node>& command) { return id != 0 && command.entry.id == id; });
    return found != commands.end() ? &*found : nullptr;
}

} // namespace console
