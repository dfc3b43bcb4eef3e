#pragma once

#include "console/IResultData.h"
#include "shell/Observers.h"
#include "shell/Row.h"
#include "shell/RowFilter.h"
#include "shell/SortOrder.h"

#include <optional>
#include <unordered_map>
#include <vector>

namespace shell {

// The list. Handlers fill it through the platform's operations; people see the change, sorted and filtered, when it is
// committed, and until then the rows that were there before. A row keeps its id for as long as its node hands it on.
class ResultPane final : public console::IResultData {
public:
    // Tells the observers, which outlive it.
    explicit ResultPane(const Observers& observers) : observers_(observers) {}

    console::Result InsertItem(console::ResultItemFields& row) override;
    console::Result DeleteItem(console::ResultId itemId, std::int32_t column) override;
    // The row keeps its place, also where its new texts would be sorted elsewhere or filtered out.
    console::Result UpdateItem(console::ResultId itemId) override;
    console::Result DeleteAllRsltItems() override;

    // What people see. A row is named by where it stands now.
    std::size_t rowCount() const { return shown_.size(); }
    const Row& row(std::size_t index) const { return *shown_[index]; }
    std::optional<std::size_t> indexOf(console::ResultId id) const;
    // See cellOf.
    wire::WideStringView cell(std::size_t index, std::int32_t column) const { return cellOf(row(index), column); }
    std::size_t unfilteredCount() const { return scopeRows_.size() + rows_.size(); }

    // Rows equal in the column stay as they were. Without an order, neighbours of one class stand in the natural order
    // of their first column.
    void sort(std::optional<SortOrder> order);
    const std::optional<SortOrder>& sortOrder() const { return order_; }
    // Compares the first `columns` columns.
    void filter(wire::WideStringView text, std::int32_t columns);
    const wire::WideString& filterText() const { return filterText_; }

    // The row that a host shows at the top of its window, to be shown there again after a change. When that row goes,
    // the next one that stays takes its place, else the one before; 0 when none stays.
    void setTopRow(console::ResultId id) { topRow_ = id; }
    console::ResultId topRow() const { return topRow_; }

    // For the shell. Another node is going to be shown, in its own order and unfiltered: no rows.
    void restart(std::optional<SortOrder> order);
    // The row with that id as handlers know it; null when it is not there.
    const Row* find(console::ResultId id) const;
    // The row that is the same one to people, by class and refresh key; null when there is none.
    const Row* findLike(const console::CSnapInItem& node) const;
    // Rows for scope items, in front of all others.
    void setScopeRows(std::vector<Row> rows);
    // True when all rows were removed since the last call.
    bool takeReplaced();
    // Shows people the changes.
    void commit();

private:
    // The rows as handlers have them.
    const std::vector<Row>& current() const { return working_ ? *working_ : rows_; }
    void commitRows();
    void redraw();
    // The node of the row that comes next; null when nobody owns it.
    std::shared_ptr<console::CSnapInItem> takeNode(console::CSnapInItem& node);
    void beginChange();
    bool isTaken(console::ResultId id);
    // Where the rows stand in current(), by their ids. Made when it is asked for first.
    std::unordered_map<console::ResultId, std::size_t>& places();
    std::vector<const Row*> passing() const;
    std::vector<const Row*> arranged() const;
    // The same, where it is likely that the rows stand as in the rows before, which shown_ points to.
    std::vector<const Row*> arrangedLike(const std::vector<Row>& scopeBefore, const std::vector<Row>& before) const;
    void show(std::vector<const Row*> next);
    void reset(std::vector<const Row*> next);
    void keepTopRow(const std::vector<const Row*>& next);

    const Observers& observers_;
    std::vector<Row> scopeRows_;
    std::vector<Row> rows_;                     // in order of insertion
    std::optional<std::vector<Row>> working_;   // the same as handlers have it, while it differs; removed: no node
    std::vector<console::ResultId> redrawn_;    // to be shown anew when it is committed
    std::vector<Row> discarded_;                // removed before anybody saw them; a refresh hands out its rows twice
    std::optional<std::vector<Row>> nextScope_; // scope rows that are not committed yet
    std::optional<std::unordered_map<console::ResultId, std::size_t>> places_; // see places()
    std::vector<const Row*> shown_; // scopeRows_ and rows_, sorted and filtered
    std::optional<SortOrder> order_;
    RowFilter filter_;
    wire::WideString filterText_;
    std::int32_t filterColumns_ = 0;
    console::ResultId last_ = 0;
    console::ResultId greatest_ = 0; // no row of current() has a greater id
    bool follows_ = false;           // all rows inserted since the last removal of all stand as in rows_
    console::ResultId topRow_ = 0;
    bool replaced_ = false;
};

} // namespace shell
