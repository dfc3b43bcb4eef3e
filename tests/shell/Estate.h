#pragma once

#include "console/CBaseNodeItem.h"
#include "platform/Platform.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace shelltest {

class FolderNode;

// What the nodes of a test read their children from instead of a server, and a record of what they did.
struct Estate {
    struct Entry {
        std::string key;
        wire::WideString name;
        wire::WideString number{};
        bool leaf = false;
        std::optional<std::int64_t> time{}; // by which its number column is sorted
        std::optional<console::RowState> state{};
    };

    std::map<std::string, std::vector<Entry>> below; // by the key of the parent
    std::map<std::int32_t, std::function<void(FolderNode&, console::CommandOrigin)>> commands;
    std::function<void(FolderNode&, const wire::WideString&)> renamed;
    std::function<void(FolderNode&, console::CSnapInItem&)> pasted;
    bool disabled = false;  // the folders' entry 1
    std::string unreadable; // the key of a node whose children can't be read
    bool pasteAllowed = true;
    std::vector<std::string> lists; // the keys of the nodes whose children were read, in order
    int living = 0;                 // nodes
};

// Counts the living nodes of an estate.
class NodeOfEstate {
public:
    NodeOfEstate(Estate& itsEstate, Estate::Entry itsEntry) : estate(itsEstate), entry(std::move(itsEntry)) {
        ++estate.living;
    }
    NodeOfEstate(const NodeOfEstate&) = delete;
    NodeOfEstate& operator=(const NodeOfEstate&) = delete;
    ~NodeOfEstate() { --estate.living; }

    Estate& estate;
    Estate::Entry entry;
};

// A leaf: a row in its folder's list and an item without children.
class LeafNode final : public NodeOfEstate, public console::CBaseNodeItem<LeafNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Leaf", .image = 3};
    LeafNode(platform::Platform& platform, Estate& estate, Estate::Entry entry);

    std::string refreshKey() const override { return entry.key; }
    const char16_t* GetResultPaneColInfo(std::int32_t column) override;
    std::optional<std::int64_t> sortValue(std::int32_t column) const override;
    std::optional<console::RowState> rowState() const override { return entry.state; }
    using NodeBase::redrawRow;
    using NodeBase::setResultImage;

protected:
    std::span<const console::VerbChoice> verbs() const override;
};

// A folder of folders and leaves.
class FolderNode : public NodeOfEstate, public console::CBaseNodeItem<FolderNode> {
public:
    static constexpr console::NodeIdentity identity{.displayName = u"Folder", .openImage = 1, .children = 1};
    FolderNode(platform::Platform& platform, Estate& estate, Estate::Entry entry);

    std::string refreshKey() const override { return entry.key; }
    const char16_t* GetResultPaneColInfo(std::int32_t column) override;
    console::Result OnExpand(console::ExpandCode code, console::IConsole& console, console::ScopeId scopeId) override;
    console::Result GetResultViewType(const char16_t*& viewType, std::int32_t& viewOptions) override;
    using NodeBase::PressRefreshKey;

    console::IConsole& itsConsole() { return *console(); }
    void press(const console::KeySequence& keys) { NodeBase::press(keys); }

protected:
    std::span<const console::Column> columns() const override;
    console::MenuEntries menu() const override;
    std::span<const console::VerbChoice> verbs() const override;
    std::vector<console::NodeBase*> rows() const override;
    console::Result runCommand(std::int32_t commandId, console::CommandOrigin origin) override;
    console::Result OnRename(console::IConsole& console, const wire::WideString& newName) override;
    console::Result OnQueryPaste(const console::CSnapInItem& source) override;
    console::Result OnPaste(console::CSnapInItem& source) override;

private:
    console::NodeArray<console::NodeBase> children_;
};

} // namespace shelltest
