#pragma once

#include "forms/Control.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace forms {

// One item of a tree view.
struct TreeItem {
    wire::WideString text;
    std::int64_t parameter = 0;        // by which the program identifies it
    std::optional<std::size_t> parent; // index of an earlier item; none at the top
};

// A tree of which at most one item is selected. Items are numbered in the order in which they were added.
class TreeView final : public Control {
public:
    TreeView(Container& container, std::u16string_view label);
    void accept(ControlVisitor& visitor) override;

    [[nodiscard]] const std::vector<TreeItem>& items() const { return items_; }
    // Returns the number of the item. Throws std::out_of_range when the parent does not exist yet.
    std::size_t addItem(TreeItem item);
    void clear();
    // The texts from the top down to the item, joined by slashes, so that items with the same text can be told apart. A
    // slash in a text is "\/", a backslash "\\". Throws std::out_of_range for an item that does not exist.
    [[nodiscard]] wire::WideString path(std::size_t item) const;

    [[nodiscard]] std::optional<std::size_t> selection() const { return selection_; }
    // Does not fire onSelect. An item that does not exist clears the selection.
    void select(std::optional<std::size_t> item);

    std::function<void()> onSelect;
    bool userSelected(std::size_t item);

private:
    std::vector<TreeItem> items_;
    std::optional<std::size_t> selection_;
};

} // namespace forms
