#pragma once

#include "forms/Control.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace forms {

class RadioButton;

// A row of a drop list: its text, and the id by which the program identifies it (not shown).
struct DropListItem {
    wire::WideString text;
    std::string data;
};

struct DropListOptions {
    bool sorted = false; // rows are ordered by their texts, whatever the order in which they were added
    const RadioButton* belongsTo = nullptr; // a list that has no label of its own and goes with a radio button
};

// A drop-down list of which at most one row is selected. No text can be typed into it.
class DropList : public Control {
public:
    DropList(Container& container, std::u16string_view label, DropListOptions options = {});
    void accept(ControlVisitor& visitor) override;

    [[nodiscard]] const DropListOptions& options() const { return options_; }
    [[nodiscard]] const std::vector<DropListItem>& items() const { return items_; }
    // Returns the row at which it was inserted.
    std::size_t addItem(wire::WideString text, std::string data = {});
    // Above all other rows, in a sorted list too: an empty row, or one that asks to select.
    void addFirst(wire::WideString text, std::string data = {});
    void clear();

    [[nodiscard]] std::optional<std::size_t> selection() const { return selection_; }
    // The selected row's text and data; empty without a selection.
    [[nodiscard]] wire::WideString selectedText() const;
    [[nodiscard]] std::string selectedData() const;
    // Does not fire onSelect. A row that does not exist clears the selection.
    void select(std::optional<std::size_t> row);
    // False, and no change, when no row has the text (compared exactly) or the data.
    bool selectText(std::u16string_view text);
    bool selectData(std::string_view data);

    std::function<void()> onSelect;
    bool userSelected(std::size_t row);

private:
    void insert(std::size_t row, DropListItem item);

    DropListOptions options_;
    std::vector<DropListItem> items_;
    std::size_t firsts_ = 0; // rows at the top that are not sorted
    std::optional<std::size_t> selection_;
};

} // namespace forms
