#include "hosts/ctl/TreeReader.h"

#include "hosts/ctl/Failure.h"
#include "hosts/ctl/ListWriter.h"
#include "hosts/ctl/PrintableText.h"
#include "shell/RowFilter.h"

#include <algorithm>

namespace ctl {

using console::ScopeId;
using shell::FilterProblem;
using shell::Row;

TreeItem TreeReader::read(ScopeId id) {
    TreeItem item{.name = shell_.tree().text(id), .cells = {choice_.columns.size(), std::nullopt}};
    readChildren(item, id, 0);
    checkColumns();
    return item;
}

std::vector<wire::WideString> TreeReader::titles() const {
    std::vector<wire::WideString> titles;
    std::ranges::transform(titles_, std::back_inserter(titles), [](const auto& title) { return title.value_or(u""); });
    return titles;
}

void TreeReader::readChildren(TreeItem& item, ScopeId id, std::uint32_t level) {
    if (depth_ && level >= *depth_) {
        return;
    }
    item.read = true;
    const auto titles = open(id);
    std::vector<Row> rows;
    for (const ScopeId child : shell_.tree().children(id)) {
        rows.push_back({.node = shell_.tree().find(child)->node, .id = -child});
    }
    if (rows.empty()) {
        return;
    }
    std::vector<const Row*> order(rows.size());
    std::ranges::transform(rows, order.begin(), [](const Row& row) { return &row; });
    sortBy(order, choice_, titles);
    const shell::RowFilter filter(choice_.filter, titles);
    note(titles, filter.problems());
    for (const Row* const row : order) {
        const bool wanted = filter.matches(*row);
        TreeItem child{.name = shell_.tree().text(row->scopeId()), .cells = cellsOf(*row, titles)};
        readChildren(child, row->scopeId(), level + 1);
        if (wanted || !child.children.empty()) {
            item.children.push_back(std::move(child));
        }
    }
}

std::vector<wire::WideString> TreeReader::open(ScopeId id) {
    if (choice_.empty()) {
        shell_.expand(id);
        return {};
    }
    shell_.select(id);
    return titlesOf(shell_);
}

void TreeReader::note(std::span<const wire::WideString> titles, const Problems& problems) {
    for (std::size_t place = 0; place < titles_.size(); ++place) {
        const auto column = shell::columnCalled(choice_.columns[place], titles);
        if (column && !titles_[place]) {
            titles_[place] = titles[static_cast<std::size_t>(*column)];
        }
    }
    for (std::size_t place = 0; place < sorted_.size(); ++place) {
        sorted_[place] = sorted_[place] || shell::columnCalled(choice_.sort[place].column, titles).has_value();
    }
    if (!problems_) {
        problems_ = problems;
    }
    std::erase_if(*problems_, [&](const FilterProblem& known) {
        return std::ranges::find(problems, known.begin, &FilterProblem::begin) == problems.end();
    });
}

std::vector<std::optional<wire::WideString>> TreeReader::cellsOf(const Row& row,
                                                                 std::span<const wire::WideString> titles) const {
    std::vector<std::optional<wire::WideString>> cells;
    for (const auto& name : choice_.columns) {
        const auto column = shell::columnCalled(name, titles);
        cells.push_back(column ? std::optional<wire::WideString>(shell::cellOf(row, *column)) : std::nullopt);
    }
    return cells;
}

void TreeReader::checkColumns() const {
    const auto refuse = [](const wire::WideString& name) {
        throw Failure(ExitStatus::refused, "No list in this part of the tree has a column \"" + shown(name) + '"');
    };
    for (std::size_t place = 0; place < titles_.size(); ++place) {
        if (!titles_[place]) {
            refuse(choice_.columns[place]);
        }
    }
    for (std::size_t place = 0; place < sorted_.size(); ++place) {
        if (!sorted_[place]) {
            refuse(choice_.sort[place].column);
        }
    }
}

} // namespace ctl
