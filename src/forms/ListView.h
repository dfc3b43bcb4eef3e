#pragma once

#include "forms/Control.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace forms {

// A column of a list view. A width of 0 or less hides it: the program keeps its ids there. Other widths are in pixels
// at 100 %.
struct ListColumn {
    wire::WideString title;
    int width = 100;
    bool number = false; // its cells are numbers, which hosts align at the right

    [[nodiscard]] bool hidden() const { return width <= 0; }
};

// A row of a list view: a text per column, the id by which the program identifies the row, and what else a person may
// want to know about it, which hosts show as a tool tip.
struct ListRow {
    std::vector<wire::WideString> cells;
    std::string data;
    wire::WideString hint{};
};

// A list with columns, of which at most one row is selected.
class ListView final : public Control {
public:
    ListView(Container& container, std::u16string_view label);
    void accept(ControlVisitor& visitor) override;

    [[nodiscard]] const std::vector<ListColumn>& columns() const { return columns_; }
    void setColumns(std::vector<ListColumn> columns);
    [[nodiscard]] const std::vector<ListRow>& rows() const { return rows_; }
    // Replaces all rows and clears the selection.
    void setRows(std::vector<ListRow> rows);
    void addRow(ListRow row);
    // These two throw std::out_of_range for a row that does not exist. The selection stays with its row.
    void removeRow(std::size_t row);
    void setCell(std::size_t row, std::size_t column, wire::WideString text);

    [[nodiscard]] std::optional<std::size_t> selection() const { return selection_; }
    [[nodiscard]] const ListRow* selectedRow() const; // null without a selection
    // Does not fire onSelect. A row that does not exist clears the selection.
    void select(std::optional<std::size_t> row);

    // The entries that a right click on a row offers; none for no menu. Hosts ask for them at the click.
    [[nodiscard]] const std::vector<wire::WideString>& rowMenu() const { return rowMenu_; }
    void setRowMenu(std::vector<wire::WideString> entries) { rowMenu_ = std::move(entries); }

    std::function<void()> onSelect;
    std::function<void()> onDoubleClick;
    std::function<void(std::size_t entry)> onRowMenu;
    bool userSelected(std::optional<std::size_t> row);
    // These two select the row first. Also false for an entry that the menu does not have.
    bool userDoubleClicked(std::size_t row);
    bool userChoseFromRowMenu(std::size_t row, std::size_t entry);

private:
    std::vector<ListColumn> columns_;
    std::vector<ListRow> rows_;
    std::optional<std::size_t> selection_;
    std::vector<wire::WideString> rowMenu_;
};

} // namespace forms
