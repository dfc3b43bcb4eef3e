#pragma once

#include "console/CSnapInItem.h"
#include "tests/support/RecordingConsole.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string_view>

// What a console does with nodes, as functions for tests.
namespace support {

inline console::Result notify(RecordingConsole& console, console::CSnapInItem& node,
                              console::Notification notification) {
    notification.componentData = &console;
    return node.Notify(notification);
}

inline console::Result expand(RecordingConsole& console, console::CSnapInItem& node, console::ScopeId row,
                              std::intptr_t code = 1) {
    return notify(console, node, {.event = console::Event::expand, .arg = code, .param = row});
}

inline console::Result show(RecordingConsole& console, console::CSnapInItem& node, bool shown = true) {
    return notify(console, node, {.event = console::Event::show, .arg = shown ? 1 : 0});
}

inline console::Result refresh(RecordingConsole& console, console::CSnapInItem& node, console::ScopeId row) {
    return notify(console, node, {.event = console::Event::refresh, .arg = row});
}

inline console::Result rename(RecordingConsole& console, console::CSnapInItem& node, const char16_t* name) {
    return notify(console, node, {.event = console::Event::rename, .text = name});
}

inline console::Result paste(RecordingConsole& console, console::CSnapInItem& node, console::CSnapInItem& source) {
    return notify(console, node, {.event = console::Event::paste, .source = &source});
}

inline console::Result queryPaste(RecordingConsole& console, console::CSnapInItem& node, console::CSnapInItem& source) {
    return notify(console, node, {.event = console::Event::queryPaste, .source = &source});
}

// The verbs that the node sets when selected, in order.
inline std::vector<std::string> verbsOf(RecordingConsole& console, console::CSnapInItem& node) {
    console.verbs[console::Verb::paste] = true; // so that only the selection's own verbs are set
    console.verbCalls.clear();
    notify(console, node, {.event = console::Event::select, .arg = 3});
    return console.verbCalls;
}

inline std::vector<RecordingConsole::MenuItem> menuOf(RecordingConsole& console, console::CSnapInItem& node) {
    console.menu.clear();
    node.AddMenuItems(console, console::insertionAllowedTop, console::DataObjectType::scope);
    return console.menu;
}

// The row of a node in the tree; fails the test and returns 0 when there is none.
inline console::ScopeId rowOf(const RecordingConsole& console, std::u16string_view name) {
    const auto found =
        std::ranges::find_if(console.scopeRows, [&](const auto& row) { return row.node->displayName() == name; });
    if (found == console.scopeRows.end()) {
        ADD_FAILURE() << "no row " << wire::toUtf8(name);
        return 0;
    }
    return found->id;
}

// The node of that name in the tree.
inline std::shared_ptr<console::CSnapInItem> nodeOf(const RecordingConsole& console, std::u16string_view name) {
    const auto id = rowOf(console, name);
    const auto found = std::ranges::find(console.scopeRows, id, &RecordingConsole::ScopeRow::id);
    return found != console.scopeRows.end() ? found->node : nullptr;
}

// The node of that name in the result pane; fails the test and returns null when there is none.
inline std::shared_ptr<console::CSnapInItem> shownNode(const RecordingConsole& console, std::u16string_view name) {
    const auto found =
        std::ranges::find_if(console.resultRows, [&](const auto& row) { return row.node->displayName() == name; });
    if (found == console.resultRows.end()) {
        ADD_FAILURE() << "nothing shown is called " << wire::toUtf8(name);
        return nullptr;
    }
    return found->node;
}

} // namespace support
