#include "tests/support/RecordingConsole.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace support {

using console::Result;
using console::ResultId;
using console::ScopeId;

namespace {

// Fails the test for a node that no shared pointer owns: a console could not keep it alive.
RecordingConsole::NodePointer kept(console::CSnapInItem* node) {
    auto pointer = node != nullptr ? node->weak_from_this().lock() : nullptr;
    EXPECT_NE(pointer, nullptr) << "a row without a node that can be kept";
    return pointer;
}

std::string nameOf(const RecordingConsole::NodePointer& node) {
    return node != nullptr ? wire::toUtf8(node->displayName()) : "nobody";
}

wire::WideString textOr(const char16_t* text) {
    return text != nullptr ? wire::WideString(text) : wire::WideString();
}

const char* nameOf(console::Verb verb) {
    switch (verb) {
    case console::Verb::open:
        return "open";
    case console::Verb::copy:
        return "copy";
    case console::Verb::paste:
        return "paste";
    case console::Verb::deleteItem:
        return "delete";
    case console::Verb::properties:
        return "properties";
    case console::Verb::rename:
        return "rename";
    case console::Verb::refresh:
        return "refresh";
    case console::Verb::print:
        return "print";
    case console::Verb::cut:
        return "cut";
    }
    return "?";
}

} // namespace

ScopeId RecordingConsole::addScopeRow(const NodePointer& node, ScopeId parent) {
    scopeRows.push_back({++lastScopeId_, parent, node, {}});
    return lastScopeId_;
}

std::vector<RecordingConsole::NodePointer> RecordingConsole::children(ScopeId parent) const {
    std::vector<NodePointer> found;
    for (const ScopeRow& row : scopeRows) {
        if (row.parent == parent) {
            found.push_back(row.node);
        }
    }
    return found;
}

std::vector<wire::WideString> RecordingConsole::childNames(ScopeId parent) const {
    std::vector<wire::WideString> names;
    for (const NodePointer& child : children(parent)) {
        names.push_back(child->displayName());
    }
    return names;
}

std::vector<std::vector<wire::WideString>> RecordingConsole::table() const {
    std::vector<std::vector<wire::WideString>> rows;
    for (const ResultRow& row : resultRows) {
        std::vector<wire::WideString> cells;
        for (std::size_t column = 0; column < columns.size(); ++column) {
            cells.push_back(textOr(row.node->GetResultPaneColInfo(static_cast<std::int32_t>(column))));
        }
        rows.push_back(std::move(cells));
    }
    return rows;
}

std::vector<wire::WideString> RecordingConsole::titles() const {
    std::vector<wire::WideString> all;
    for (const Column& column : columns) {
        all.push_back(column.title);
    }
    return all;
}

Result RecordingConsole::QueryConsoleVerb(console::IConsoleVerb*& verb) {
    verb = hasVerbs ? this : nullptr;
    return hasVerbs ? Result::ok : Result::failed;
}

Result RecordingConsole::QueryScopeImageList(console::IImageList*& images) {
    images = hasImages ? this : nullptr;
    return hasImages ? Result::ok : Result::failed;
}

Result RecordingConsole::SelectScopeItem(ScopeId scopeId) {
    calls.push_back("SelectScopeItem " + std::to_string(scopeId));
    return Result::ok;
}

Result RecordingConsole::GetMainWindow(platform::WindowHandle& window) {
    window = mainWindow;
    return Result::ok;
}

Result RecordingConsole::InsertItem(console::ScopeItemFields& row) {
    const NodePointer node = kept(row.lParam);
    row.ID = addScopeRow(node, row.relativeID);
    calls.push_back("InsertItem " + nameOf(node) + " under " + std::to_string(row.relativeID));
    return Result::ok;
}

Result RecordingConsole::SetItem(ScopeId scopeId, std::u16string_view text) {
    calls.push_back("SetItem " + std::to_string(scopeId) + " " + wire::toUtf8(text));
    const auto found = std::ranges::find(scopeRows, scopeId, &ScopeRow::id);
    if (found == scopeRows.end()) {
        return Result::failed;
    }
    found->text = text;
    return Result::ok;
}

Result RecordingConsole::GetChildItem(ScopeId scopeId, ScopeId& child, console::CSnapInItem*& cookie) {
    const auto found = std::ranges::find(scopeRows, scopeId, &ScopeRow::parent);
    child = found != scopeRows.end() ? found->id : 0;
    cookie = found != scopeRows.end() ? found->node.get() : nullptr;
    return found != scopeRows.end() ? Result::ok : Result::notDone;
}

Result RecordingConsole::DeleteItem(ScopeId scopeId, bool deleteThis) {
    calls.push_back("DeleteItem " + std::to_string(scopeId) + (deleteThis ? " itself" : " children"));
    removeChildren(scopeId);
    if (deleteThis) {
        std::erase_if(scopeRows, [scopeId](const ScopeRow& row) { return row.id == scopeId; });
    }
    return Result::ok;
}

void RecordingConsole::removeChildren(ScopeId parent) {
    std::vector<ScopeId> ids;
    for (const ScopeRow& row : scopeRows) {
        if (row.parent == parent) {
            ids.push_back(row.id);
        }
    }
    for (const ScopeId id : ids) {
        removeChildren(id);
    }
    std::erase_if(scopeRows, [parent](const ScopeRow& row) { return row.parent == parent; });
}

Result RecordingConsole::InsertItem(console::ResultItemFields& row) {
    const bool free = row.itemID != 0 && std::ranges::find(resultRows, row.itemID, &ResultRow::id) == resultRows.end();
    if (!free) {
        row.itemID = ++lastResultId_;
    }
    const NodePointer node = kept(row.lParam);
    resultRows.push_back({row.itemID, node});
    calls.push_back("InsertRow " + nameOf(node));
    return Result::ok;
}

Result RecordingConsole::DeleteItem(ResultId itemId, std::int32_t /*column*/) {
    calls.push_back("DeleteRow " + std::to_string(itemId));
    const auto removed = std::erase_if(resultRows, [itemId](const ResultRow& row) { return row.id == itemId; });
    return removed > 0 ? Result::ok : Result::failed;
}

Result RecordingConsole::UpdateItem(ResultId itemId) {
    calls.push_back("UpdateRow " + std::to_string(itemId));
    return std::ranges::find(resultRows, itemId, &ResultRow::id) != resultRows.end() ? Result::ok : Result::failed;
}

Result RecordingConsole::DeleteAllRsltItems() {
    calls.emplace_back("DeleteAllRsltItems");
    resultRows.clear();
    return Result::ok;
}

Result RecordingConsole::InsertColumn(std::int32_t index, const char16_t* title, std::int32_t format,
                                      std::int32_t width) {
    calls.push_back("InsertColumn " + std::to_string(index) + " " + wire::toUtf8(textOr(title)));
    EXPECT_EQ(format, console::columnLeft);
    EXPECT_EQ(width, console::automaticWidth);
    const Column column{textOr(title), automaticColumnWidth};
    const auto place = static_cast<std::size_t>(index);
    if (place < columns.size()) {
        columns[place] = column;
    } else {
        columns.push_back(column);
    }
    return Result::ok;
}

Result RecordingConsole::GetColumnWidth(std::int32_t index, std::int32_t& width) {
    if (static_cast<std::size_t>(index) >= columns.size()) {
        return Result::failed;
    }
    width = columns[static_cast<std::size_t>(index)].width;
    return Result::ok;
}

Result RecordingConsole::SetColumnWidth(std::int32_t index, std::int32_t width) {
    calls.push_back("SetColumnWidth " + std::to_string(index) + " " + std::to_string(width));
    if (static_cast<std::size_t>(index) >= columns.size()) {
        return Result::failed;
    }
    columns[static_cast<std::size_t>(index)].width = width;
    return Result::ok;
}

Result RecordingConsole::SetVerbState(console::Verb verb, console::VerbState /*state*/, bool flag) {
    verbs[verb] = flag;
    verbCalls.push_back(std::string(nameOf(verb)) + (flag ? " on" : " off"));
    return Result::ok;
}

Result RecordingConsole::GetVerbState(console::Verb verb, console::VerbState /*state*/, bool& flag) {
    const auto found = verbs.find(verb);
    flag = found != verbs.end() && found->second;
    return Result::ok;
}

Result RecordingConsole::ImageListSetStrip(const console::ImageStrip& strip, std::int32_t start, std::uint32_t mask) {
    calls.push_back("ImageListSetStrip " + std::to_string(strip.small) + " " + std::to_string(strip.large) + " from " +
                    std::to_string(start) + " mask " + std::to_string(mask));
    return hasImages ? Result::ok : Result::failed;
}

Result RecordingConsole::AddItem(const console::ContextMenuItem& item) {
    EXPECT_EQ(item.lInsertionPointID, console::insertionPointPrimaryTop);
    EXPECT_EQ(item.fSpecialFlags, 0);
    menu.push_back({textOr(item.strName), textOr(item.strStatusBarText), item.lCommandID, item.fFlags});
    return Result::ok;
}

} // namespace support
