#pragma once

#include "console/IResultData.h"
#include "shell/Observers.h"
#include "shell/Row.h"
#include "shell/RowDigests.h"
#include "shell/RowFilter.h"
#include "shell/SortOrder.h"

#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

namespace shell {

// The list. Handlers fill it through the platform's operations; changes are displayed, sorted and filtered, when they
// are committed, and until then the previous rows. A row keeps its id as long as its node passes it on.
class ResultPane final : public console::IResultData {
public:
    // Notifies the observers, which outlive it.
    explicit ResultPane(const Observers& observers) : observers_(observers) {}

    console::Result InsertItem(console::ResultItemFields& row) override;
    console::Result DeleteItem(console::ResultId itemId, std::int32_t column) override;
    // The row keeps its place, even if its new texts would be sorted elsewhere or filtered out.
    console::Result UpdateItem(console::ResultId itemId) override;
    console::Result DeleteAllRsltItems() override;

    // The displayed rows, addressed by their current position.
    std::size_t rowCount() const { return shown_.size(); }
    const Row& row(std::size_t index) const { return *shown_[index]; }
    std::optional<std::size_t> indexOf(console::ResultId id) const;
    // See cellOf.
    wire::WideStringView cell(std::size_t index, std::int32_t column) const { return cellOf(row(index), column); }
    // All rows, those that the filter hides included, in the order in which they were inserted.
    std::size_t unfilteredCount() const { return scopeRows_.size() + rows_.size(); }
    const Row& unfilteredRow(std::size_t index) const {
        return index < scopeRows_.size() ? scopeRows_[index] : rows_[index - scopeRows_.size()];
    }
    const std::vector<wire::WideString>& titles() const { return titles_; }
    // Grows whenever rows, their texts or the columns may have changed; neither sorting nor filtering changes it.
    std::uint64_t revision() const { return revision_; }

    // Rows equal in the column keep their order. Without an order, neighbours of one class are in the natural order of
    // their first column.
    void sort(std::optional<SortOrder> order);
    const std::optional<SortOrder>& sortOrder() const { return order_; }
    // Shows only the rows that pass; see RowFilter.
    void filter(wire::WideStringView text);
    const wire::WideString& filterText() const { return filterText_; }
    // What in the filter was probably meant differently.
    const std::vector<FilterProblem>& filterProblems() const { return filter_.problems(); }

    // The row that a host shows at the top of its window, to be shown there again after a change. When that row is
    // removed, the next remaining one takes its place, or else the previous one; 0 when none remains.
    void setTopRow(console::ResultId id) { topRow_ = id; }
    console::ResultId topRow() const { return topRow_; }

    // For the shell. The titles of the columns, which the filter refers to.
    void setTitles(std::vector<wire::WideString> titles);
    // Removes all rows, because another node is going to be shown, in its own order and unfiltered.
    void restart(std::optional<SortOrder> order);
    // The same with a filter, which takes effect on commit.
    void beginFiltered(wire::WideStringView text);
    // The row with that id as handlers see it; null when there is none.
    const Row* find(console::ResultId id) const;
    // The row for the same thing, by class and refresh key; null when there is none.
    const Row* findLike(const console::CSnapInItem& node) const;
    // Rows for scope items, in front of all others.
    void setScopeRows(std::vector<Row> rows);
    // True when all rows have been removed since the last call.
    bool takeReplaced();
    // Displays the changes.
    void commit();

private:
    // The rows as handlers have them.
    std::span<const Row> current() const;
    void commitRows();
    void redraw();
    // True when the row is the next one of rows_, and nothing else has come since all rows were removed.
    bool insertAgain(const console::ResultItemFields& row);
    // The node of the row that comes next; null when nobody owns it.
    std::shared_ptr<console::CSnapInItem> takeNode(console::CSnapInItem& node);
    void beginChange();
    bool isTaken(console::ResultId id);
    // The positions of the rows in current(), by their ids. Built on first use.
    std::unordered_map<console::ResultId, std::size_t>& places();
    std::vector<const Row*> passing() const;
    std::vector<const Row*> sorted() const;
    std::vector<const Row*> arranged();
    // True when all rows stand where the displayed ones do.
    bool stand();
    // Makes shown_ point to rows that stand where the previous ones did.
    void follow(const std::vector<Row>& scopeBefore, const std::vector<Row>& before);
    void show(std::vector<const Row*> next);
    void tellChanged();
    void reset(std::vector<const Row*> next);
    void keepTopRow(const std::vector<const Row*>& next);

    const Observers& observers_;
    std::vector<Row> scopeRows_;
    std::vector<Row> rows_; // in order of insertion
    // Of rows_, as many as have been inserted again after all were removed, in their old sequence and unchanged; most
    // refreshes do that with all of them.
    std::optional<std::size_t> again_;
    // The rows as handlers see them, while they differ from those; a removed row has no node.
    std::optional<std::vector<Row>> working_;
    std::vector<console::ResultId> redrawn_;    // to be redrawn on commit
    std::vector<Row> discarded_;                // removed before they were displayed; a refresh inserts its rows twice
    std::optional<std::vector<Row>> nextScope_; // scope rows that are not committed yet
    std::optional<std::unordered_map<console::ResultId, std::size_t>> places_; // see places()
    std::vector<const Row*> shown_; // scopeRows_ and rows_, sorted and filtered
    RowDigests digests_;            // of the rows that shown_ was made of, if it has all of them
    std::optional<SortOrder> order_;
    RowFilter filter_;
    wire::WideString filterText_;
    std::vector<wire::WideString> titles_;
    console::ResultId last_ = 0;
    console::ResultId greatest_ = 0; // no row of current() has a greater id
    bool follows_ = false;           // all rows inserted since all were removed are in the same order as in rows_
    console::ResultId topRow_ = 0;
    bool replaced_ = false;
    std::uint64_t revision_ = 0;
};

} // namespace shell
