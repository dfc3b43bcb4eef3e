#pragma once

#include "console/IConsoleNameSpace.h"
#include "shell/Observers.h"
#include "shell/ScopeItem.h"

#include <optional>
#include <set>
#include <span>
#include <unordered_map>
#include <vector>

namespace shell {

// The scope tree. Handlers change it through the platform's operations; changes are displayed when they are committed.
//
// An item that is removed and comes back before the commit, as every refresh does to all children of a node, keeps its
// id: it is the one with the same parent, class and refresh key. So everything that is identified by ids (open items,
// the selection, the history) stays as it was, although each node is a new one.
class ScopeTree final : public console::IConsoleNameSpace {
public:
    // Notifies the observers, which outlive it.
    explicit ScopeTree(const Observers& observers) : observers_(observers) {}

    // The root has no parent and is shown at once.
    console::ScopeId insertRoot(const std::shared_ptr<console::CSnapInItem>& node);

    // Result::failed without a node or under an item that does not exist.
    console::Result InsertItem(console::ScopeItemFields& row) override;
    console::Result SetItem(console::ScopeId scopeId, std::u16string_view text) override;
    console::Result GetChildItem(console::ScopeId scopeId, console::ScopeId& child,
                                 console::CSnapInItem*& cookie) override;
    // Never removes the root.
    console::Result DeleteItem(console::ScopeId scopeId, bool deleteThis) override;

    // The tree as displayed.
    console::ScopeId root() const { return root_; }
    bool contains(console::ScopeId id) const { return find(id) != nullptr; }
    std::span<const console::ScopeId> children(console::ScopeId id) const;
    console::ScopeId parent(console::ScopeId id) const;   // 0 of the root
    std::size_t indexInParent(console::ScopeId id) const; // among the children shown
    wire::WideString text(console::ScopeId id) const;     // empty for an unknown item
    std::int32_t image(console::ScopeId id) const;        // into the strip, by whether it is open
    bool mayHaveChildren(console::ScopeId id) const;      // whether an expander is drawn
    bool isOpen(console::ScopeId id) const;
    bool isLoaded(console::ScopeId id) const;
    std::vector<console::ScopeId> pathTo(console::ScopeId id) const; // from the root down to the item itself
    std::size_t size() const { return items_.size(); }

    // For the shell. Null for an item that does not exist, or that a handler has removed.
    ScopeItem* alive(console::ScopeId id);
    // Also finds items whose removal is not committed yet.
    const ScopeItem* find(console::ScopeId id) const;
    // The item itself, or else the nearest one above it that still exists.
    console::ScopeId nearestAlive(console::ScopeId id) const;
    void setOpen(ScopeItem& item, bool open);
    // The item's node has read its children, or could not read them: then the expander stays, to try it again.
    void noteRead(console::ScopeId id, bool read);
    // The item that must be loaded again when it comes back, even if nothing around it is open: the selected one.
    void keepReachable(console::ScopeId id) { reachable_ = id; }
    // An item that came back and was open before; 0 when there is none.
    console::ScopeId takeReopened();
    // Displays the changes and frees removed items.
    void commit();

private:
    bool depart(ScopeItem& item);
    ScopeItem* takeBack(ScopeItem& parent, const console::CSnapInItem& node);
    void fill(ScopeItem& item, const console::ScopeItemFields& row);
    std::vector<console::ScopeId> inOrderForPeople(const ScopeItem& parent) const;
    void show(ScopeItem& parent, const std::vector<console::ScopeId>& next);
    void tellReturned(const ScopeItem& parent);
    void erase(console::ScopeId id);

    const Observers& observers_;
    std::unordered_map<console::ScopeId, ScopeItem> items_;
    std::set<console::ScopeId> changed_; // parents with undisplayed changes; an ancestor has the smaller id
    std::vector<console::ScopeId> reopened_;
    std::vector<console::ScopeId> renamed_; // whose text or expander has changed
    console::ScopeId root_ = 0;
    console::ScopeId last_ = 0;
    console::ScopeId reachable_ = 0;
};

} // namespace shell
