#include "tests/shell/Estate.h"

#include <array>
#include <stdexcept>
#include <utility>

namespace shelltest {
namespace {

using console::Verb;
using console::VerbChoice;

constexpr std::array<VerbChoice, 5> folderVerbs{
    {{Verb::refresh, true}, {Verb::cut, true}, {Verb::copy, false}, {Verb::deleteItem, false}, {Verb::rename, true}}};
constexpr std::array<VerbChoice, 5> leafVerbs{
    {{Verb::refresh, true}, {Verb::cut, true}, {Verb::copy, false}, {Verb::deleteItem, true}, {Verb::rename, false}}};

} // namespace

LeafNode::LeafNode(platform::Platform& platform, Estate& itsEstate, Estate::Entry itsEntry)
    : NodeOfEstate(itsEstate, std::move(itsEntry)), CBaseNodeItem(platform) {
    setDisplayName(entry.name);
}

const char16_t* LeafNode::GetResultPaneColInfo(std::int32_t column) {
    return column == 0 ? entry.name.c_str() : entry.number.c_str();
}

std::span<const VerbChoice> LeafNode::verbs() const {
    return leafVerbs;
}

std::optional<std::int64_t> LeafNode::sortValue(std::int32_t column) const {
    return column == 1 ? entry.time : std::nullopt;
}

FolderNode::FolderNode(platform::Platform& platform, Estate& itsEstate, Estate::Entry itsEntry)
    : NodeOfEstate(itsEstate, std::move(itsEntry)), CBaseNodeItem(platform) {
    setDisplayName(entry.name);
}

const char16_t* FolderNode::GetResultPaneColInfo(std::int32_t column) {
    return column == 0 ? displayName().c_str() : entry.number.c_str();
}

console::Result FolderNode::OnExpand(console::ExpandCode code, console::IConsole& console, console::ScopeId scopeId) {
    if (!beginExpand(code, console, scopeId)) {
        return console::Result::ok;
    }
    estate.lists.push_back(entry.key);
    if (estate.unreadable == entry.key) {
        throw std::runtime_error("the server does not answer");
    }
    console::NodeArray<console::NodeBase> fresh;
    for (const auto& child : estate.below[entry.key]) {
        if (child.leaf) {
            fresh.push_back(std::make_shared<LeafNode>(platform(), estate, child));
        } else {
            fresh.push_back(std::make_shared<FolderNode>(platform(), estate, child));
        }
        fresh.back()->setParent(*this);
    }
    replaceChildren(children_, std::move(fresh));
    for (const auto& child : children_) {
        insertChild(console, *child);
    }
    return console::Result::ok;
}

// The folder "top" lets the console list its children, and has no columns.
console::Result FolderNode::GetResultViewType(const char16_t*& viewType, std::int32_t& viewOptions) {
    NodeBase::GetResultViewType(viewType, viewOptions);
    viewOptions = entry.key == "top" ? 0 : viewOptions;
    return console::Result::notDone;
}

std::span<const console::Column> FolderNode::columns() const {
    static constexpr std::array titles{console::Column{u"Name", 2}, console::Column{u"Number", 0},
                                       console::Column{u"Third", 0}, console::Column{u"Fourth", 0}};
    return entry.key == "top" ? std::span<const console::Column>() : titles;
}

console::MenuEntries FolderNode::menu() const {
    return {{.text = u"Do it", .statusBarText = u"To do it", .id = 1, .disabled = estate.disabled},
            console::separator,
            {.text = u"Undo it", .statusBarText = u"To undo it", .id = 2, .checked = true}};
}

std::span<const VerbChoice> FolderNode::verbs() const {
    return folderVerbs;
}

std::vector<console::NodeBase*> FolderNode::rows() const {
    std::vector<console::NodeBase*> nodes;
    for (const auto& child : children_) {
        nodes.push_back(child.get());
    }
    return nodes;
}

console::Result FolderNode::runCommand(std::int32_t commandId, console::CommandOrigin origin) {
    const auto command = estate.commands.find(commandId);
    if (command == estate.commands.end()) {
        return console::Result::notDone;
    }
    command->second(*this, origin);
    return console::Result::ok;
}

console::Result FolderNode::OnRename(console::IConsole&, const wire::WideString& newName) {
    if (estate.renamed) {
        estate.renamed(*this, newName);
    }
    return console::Result::ok;
}

console::Result FolderNode::OnQueryPaste(const console::CSnapInItem&) {
    return estate.pasteAllowed ? console::Result::ok : console::Result::notDone;
}

console::Result FolderNode::OnPaste(console::CSnapInItem& source) {
    if (estate.pasted) {
        estate.pasted(*this, source);
    }
    return console::Result::ok;
}

} // namespace shelltest
