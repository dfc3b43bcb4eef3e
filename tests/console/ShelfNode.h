#pragma once

#include "console/CBaseNodeItem.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace console {

// What a shelf reads of a box.
struct BoxRecord {
    std::string id;
    wire::WideString name;
};

// A box on a shelf: a leaf that is a row in the shelf's list and an item of the tree.
class BoxNode final : public CBaseNodeItem<BoxNode> {
public:
    static constexpr NodeIdentity identity{.displayName = u"Box", .image = 4, .openImage = 5, .strip = noStrip};

    BoxNode(platform::Platform& platform, std::string id, wire::WideString name)
        : CBaseNodeItem(platform), id_(std::move(id)) {
        setDisplayName(std::move(name));
    }
    BoxNode(platform::Platform& platform, BoxRecord record)
        : BoxNode(platform, std::move(record.id), std::move(record.name)) {}

    std::string refreshKey() const override { return id_; }
    using NodeBase::console;
    using NodeBase::redrawRow;
    using NodeBase::removeFromList;
    using NodeBase::removeFromTree;
    using NodeBase::row;
    using NodeBase::selectAndPress;
    using NodeBase::setResultImage;

private:
    std::string id_;
};

// A shelf with boxes, which it reads from a list as other nodes read theirs from the server. The test sets its
// behaviour.
class ShelfNode final : public CBaseNodeItem<ShelfNode> {
public:
    static constexpr NodeIdentity identity{
        .displayName = u"Shelf", .nodeType = folderNodeType, .image = 0, .openImage = 1, .children = 2};

    using Record = BoxRecord;

    explicit ShelfNode(platform::Platform& platform) : CBaseNodeItem(platform) {}

    std::vector<Record> records;
    std::function<void()> reading; // called where other nodes ask the server
    std::function<Result(std::int32_t, CommandOrigin)> command;
    std::function<Result()> pasting;
    wire::WideString renamedTo;
    CSnapInItem* pasted = nullptr;
    CSnapInItem* cut = nullptr;
    std::optional<ExpandCode> lastExpand;
    std::vector<std::pair<bool, int>> shows;
    KeySequence keys{platform::Key::f5};
    CarryOver carryOver = CarryOver::resultRow;
    RowReading whenRead = RowReading::never;
    NodeArray<BoxNode> boxes;

    using NodeBase::componentData;
    using NodeBase::confirm;
    using NodeBase::console;
    using NodeBase::PressTabKey;
    using NodeBase::row;
    using NodeBase::runModal;
    using NodeBase::visible;

    static void replaceBoxes(NodeArray<BoxNode>& current, NodeArray<BoxNode> fresh, CarryOver what) {
        replaceChildren(current, std::move(fresh), what);
    }

    Result OnExpand(ExpandCode code, IConsole& console, ScopeId scopeId) override {
        lastExpand = code;
        if (!beginExpand(code, console, scopeId)) {
            return Result::ok;
        }
        if (reading) {
            reading();
        }
        NodeArray<BoxNode> fresh;
        for (const Record& record : records) {
            fresh.push_back(std::make_shared<BoxNode>(platform(), record.id, record.name));
        }
        replaceChildren(boxes, std::move(fresh), carryOver);
        for (const auto& box : boxes) {
            insertChild(console, *box);
        }
        return Result::ok;
    }

    Result OnShow(IConsole& console, bool show, int again) override {
        shows.emplace_back(show, again);
        return NodeBase::OnShow(console, show, again);
    }

protected:
    std::span<const Column> columns() const override {
        static constexpr std::array<Column, 3> all{{{u"Name", 2.5}, {u"Weight", 1.333}, {u"Kept automatic"}}};
        return all;
    }
    MenuEntries menu() const override {
        return {{u"Add Box", u"To add a box", 12}, separator, {u"Empty", u"To empty the shelf", 13}};
    }
    std::vector<NodeBase*> rows() const override { return pointersTo(boxes); }
    RowReading rowReading() const override { return whenRead; }
    void readRows() override {
        if (reading) {
            reading();
        }
        boxes = rowsFor<BoxNode>(records, boxes);
    }
    Result runCommand(std::int32_t commandId, CommandOrigin origin) override {
        return command ? command(commandId, origin) : Result::notDone;
    }
    KeySequence keysAfterCommand(std::int32_t /*commandId*/, CommandOrigin /*origin*/) const override { return keys; }
    Result OnRename(IConsole& /*console*/, const wire::WideString& newName) override {
        renamedTo = newName;
        return Result::ok;
    }
    Result OnPaste(CSnapInItem& source) override {
        pasted = &source;
        return pasting ? pasting() : Result::notDone;
    }
    Result OnQueryPaste(const CSnapInItem& source) override {
        return source.className() == "class BoxNode" ? Result::ok : Result::notDone;
    }
    Result OnCutOrMove(CSnapInItem& source) override {
        cut = &source;
        return Result::ok;
    }
};

} // namespace console
