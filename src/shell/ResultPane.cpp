#include "shell/ResultPane.h"

#include "shell/ListDiff.h"
#include "shell/RowOrder.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace shell {
namespace {

using console::Result;
using console::ResultId;

std::vector<std::intptr_t> idsOf(const std::vector<const Row*>& rows) {
    std::vector<std::intptr_t> ids(rows.size());
    std::ranges::transform(rows, ids.begin(), &Row::id);
    return ids;
}

} // namespace

std::span<const Row> ResultPane::current() const {
    if (working_) {
        return *working_;
    }
    return std::span(rows_).first(again_.value_or(rows_.size()));
}

Result ResultPane::InsertItem(console::ResultItemFields& row) {
    if (insertAgain(row)) {
        return Result::ok;
    }
    auto node = row.lParam != nullptr ? takeNode(*row.lParam) : nullptr;
    if (!node) {
        return Result::failed;
    }
    beginChange();
    if (row.itemID <= 0 || row.itemID > last_ || isTaken(row.itemID)) {
        row.itemID = ++last_;
    }
    const std::size_t place = working_->size();
    greatest_ = std::max(greatest_, row.itemID);
    follows_ = follows_ && place < rows_.size() && rows_[place].id == row.itemID;
    if (places_) {
        places_->emplace(row.itemID, place);
    }
    working_->push_back({std::move(node), row.itemID, row.nImage});
    return Result::ok;
}

bool ResultPane::insertAgain(const console::ResultItemFields& row) {
    if (!again_ || *again_ == rows_.size()) {
        return false;
    }
    const Row& next = rows_[*again_];
    if (row.lParam != next.node.get() || row.itemID != next.id || row.nImage != next.image) {
        return false;
    }
    greatest_ = std::max(greatest_, next.id);
    if (places_) {
        places_->emplace(next.id, *again_);
    }
    ++*again_;
    return true;
}

Result ResultPane::DeleteItem(ResultId itemId, std::int32_t /*column*/) {
    const auto place = places().find(itemId);
    if (place == places_->end()) {
        return Result::failed;
    }
    beginChange();
    (*working_)[place->second].node.reset();
    places_->erase(place);
    return Result::ok;
}

Result ResultPane::UpdateItem(ResultId itemId) {
    if (itemId <= 0 || find(itemId) == nullptr) {
        return Result::failed;
    }
    redrawn_.push_back(itemId);
    return Result::ok;
}

Result ResultPane::DeleteAllRsltItems() {
    if (working_) {
        discarded_ = std::move(*working_);
    }
    working_.reset();
    again_ = 0;
    places_.reset();
    greatest_ = 0;
    follows_ = true;
    replaced_ = true;
    return Result::ok;
}

std::shared_ptr<console::CSnapInItem> ResultPane::takeNode(console::CSnapInItem& node) {
    const std::size_t place = current().size();
    if (place < discarded_.size() && discarded_[place].node.get() == &node) {
        return std::move(discarded_[place].node);
    }
    return node.weak_from_this().lock();
}

void ResultPane::beginChange() {
    if (!working_) {
        const auto rows = current();
        working_.emplace().reserve(rows_.size());
        working_->assign(rows.begin(), rows.end());
        again_.reset();
    }
}

bool ResultPane::isTaken(ResultId id) {
    if (id > greatest_) {
        return false;
    }
    const std::size_t next = current().size();
    // Rows that are inserted again in their old sequence are recognised without looking at the others.
    const bool expected = follows_ && next < rows_.size() && rows_[next].id == id;
    return !expected && places().contains(id);
}

std::unordered_map<ResultId, std::size_t>& ResultPane::places() {
    if (!places_) {
        const auto rows = current();
        places_.emplace().reserve(rows.size());
        for (std::size_t place = 0; place < rows.size(); ++place) {
            places_->emplace(rows[place].id, place);
        }
    }
    return *places_;
}

std::optional<std::size_t> ResultPane::indexOf(ResultId id) const {
    const auto found = std::ranges::find(shown_, id, &Row::id);
    return found != shown_.end() ? std::optional(static_cast<std::size_t>(found - shown_.begin())) : std::nullopt;
}

const Row* ResultPane::find(ResultId id) const {
    if (id < 0) {
        const auto& scopeRows = nextScope_ ? *nextScope_ : scopeRows_;
        const auto found = std::ranges::find(scopeRows, id, &Row::id);
        return found != scopeRows.end() ? &*found : nullptr;
    }
    const auto rows = current();
    if (places_) {
        const auto place = places_->find(id);
        return place != places_->end() ? &rows[place->second] : nullptr;
    }
    const auto found = std::ranges::find(rows, id, &Row::id);
    return found != rows.end() ? &*found : nullptr;
}

const Row* ResultPane::findLike(const console::CSnapInItem& node) const {
    const auto rows = current();
    const auto key = node.refreshKey();
    const auto found = std::ranges::find_if(rows, [&](const Row& row) {
        return row.node && row.node->className() == node.className() && row.node->refreshKey() == key;
    });
    return found != rows.end() ? &*found : nullptr;
}

void ResultPane::restart(std::optional<SortOrder> order) {
    DeleteAllRsltItems();
    replaced_ = false;
    setScopeRows({});
    order_ = order;
    topRow_ = 0;
    filterText_.clear();
    filter_ = RowFilter();
}

void ResultPane::setScopeRows(std::vector<Row> rows) {
    const auto same = [](const Row& a, const Row& b) { return a.id == b.id && a.node == b.node; };
    if (nextScope_ || !std::ranges::equal(rows, scopeRows_, same)) {
        nextScope_ = std::move(rows);
    }
}

bool ResultPane::takeReplaced() {
    return std::exchange(replaced_, false);
}

void ResultPane::sort(std::optional<SortOrder> order) {
    if (order_ != order) {
        order_ = order;
        reset(arranged());
    }
}

void ResultPane::filter(wire::WideStringView text) {
    filterText_ = text;
    filter_ = RowFilter(filterText_, titles_);
    reset(arranged());
}

void ResultPane::beginFiltered(wire::WideStringView text) {
    filterText_ = text;
    filter_ = RowFilter(filterText_, titles_);
}

void ResultPane::setTitles(std::vector<wire::WideString> titles) {
    titles_ = std::move(titles);
    ++revision_;
    if (!filterText_.empty()) {
        filter_ = RowFilter(filterText_, titles_);
        reset(arranged());
    }
}

std::vector<const Row*> ResultPane::passing() const {
    std::vector<const Row*> rows;
    rows.reserve(unfilteredCount());
    for (const auto* const source : {&scopeRows_, &rows_}) {
        for (const Row& row : *source) {
            if (filter_.matches(row)) {
                rows.push_back(&row);
            }
        }
    }
    return rows;
}

std::vector<const Row*> ResultPane::sorted() const {
    auto rows = passing();
    sortRows(rows, order_);
    return rows;
}

std::vector<const Row*> ResultPane::arranged() {
    stand();
    return sorted();
}

bool ResultPane::stand() {
    if (filter_.empty()) {
        return digests_.note({&scopeRows_, &rows_}, order_);
    }
    digests_.forget();
    return false;
}

void ResultPane::redraw() {
    for (const ResultId id : std::exchange(redrawn_, {})) {
        const auto row = std::ranges::find(rows_, id, &Row::id);
        const auto place = indexOf(id);
        if (row == rows_.end()) {
            continue;
        }
        console::ResultItemFields item{.mask = console::resultMask::image, .nImage = row->image};
        row->node->GetResultPaneInfo(item);
        row->image = item.nImage;
        ++revision_;
        if (place) {
            observers_.tell([&](auto& observer) { observer.rowsChanged(*place, 1); });
        }
    }
}

void ResultPane::commit() {
    commitRows();
    redraw();
}

void ResultPane::commitRows() {
    if (!working_ && !nextScope_ && !again_) {
        return;
    }
    ++revision_;
    if (again_ && *again_ < rows_.size()) {
        beginChange();
    }
    again_.reset();
    const bool otherRows = working_.has_value();
    const bool otherScope = nextScope_.has_value();
    // The shown rows point to the old ones until the end.
    const auto oldScope = otherScope ? std::exchange(scopeRows_, std::move(*nextScope_)) : std::vector<Row>();
    const auto oldRows = otherRows ? std::exchange(rows_, std::move(*working_)) : std::vector<Row>();
    nextScope_.reset();
    working_.reset();
    discarded_.clear();
    discarded_.shrink_to_fit();
    if (std::erase_if(rows_, [](const Row& row) { return !row.node; }) != 0) {
        places_.reset();
    }
    if (stand()) {
        if (otherRows || otherScope) {
            follow(otherScope ? oldScope : scopeRows_, otherRows ? oldRows : rows_);
        }
        tellChanged();
        return;
    }
    auto next = sorted();
    keepTopRow(next);
    show(std::move(next));
}

void ResultPane::follow(const std::vector<Row>& scopeBefore, const std::vector<Row>& before) {
    for (const Row*& row : shown_) {
        row =
            row->isScopeItem() ? scopeRows_.data() + (row - scopeBefore.data()) : rows_.data() + (row - before.data());
    }
}

void ResultPane::keepTopRow(const std::vector<const Row*>& next) {
    const auto staysAt = [&next](ResultId id) { return std::ranges::find(next, id, &Row::id) != next.end(); };
    const auto before = std::ranges::find(shown_, topRow_, &Row::id);
    if (topRow_ == 0 || before == shown_.end() || staysAt(topRow_)) {
        return;
    }
    const auto ids = idsOf(next);
    const std::unordered_set<ResultId> staying(ids.begin(), ids.end());
    const auto stays = [&staying](const Row* row) { return staying.contains(row->id); };
    const auto after = std::find_if(before, shown_.end(), stays);
    const auto above = std::find_if(std::make_reverse_iterator(before), shown_.rend(), stays);
    topRow_ = after != shown_.end() ? (*after)->id : above != shown_.rend() ? (*above)->id : 0;
}

void ResultPane::show(std::vector<const Row*> next) {
    const bool sameRows = std::ranges::equal(shown_, next, {}, &Row::id, &Row::id);
    const auto steps = sameRows ? std::vector<ListStep>() : listSteps(idsOf(shown_), idsOf(next));
    if (!steps) {
        reset(std::move(next));
        return;
    }
    for (const ListStep& step : *steps) {
        const std::size_t first = step.first;
        const std::size_t count = step.count;
        if (count == 0) {
            continue;
        }
        const auto at = static_cast<std::ptrdiff_t>(first);
        const auto end = static_cast<std::ptrdiff_t>(first + count);
        if (step.kind == ListStep::Kind::remove) {
            observers_.tell([&](auto& observer) { observer.rowsAboutToBeRemoved(first, count); });
            shown_.erase(shown_.begin() + at, shown_.begin() + end);
            observers_.tell([&](auto& observer) { observer.rowsRemoved(first, count); });
        } else {
            observers_.tell([&](auto& observer) { observer.rowsAboutToBeInserted(first, count); });
            shown_.insert(shown_.begin() + at, next.begin() + at, next.begin() + end);
            observers_.tell([&](auto& observer) { observer.rowsInserted(first, count); });
        }
    }
    shown_ = std::move(next);
    tellChanged();
}

void ResultPane::tellChanged() {
    if (!shown_.empty()) {
        observers_.tell([&](auto& observer) { observer.rowsChanged(0, shown_.size()); });
    }
}

void ResultPane::reset(std::vector<const Row*> next) {
    observers_.tell([](auto& observer) { observer.rowsAboutToBeReset(); });
    shown_ = std::move(next);
    observers_.tell([](auto& observer) { observer.rowsReset(); });
}

} // namespace shell
