#include "shell/View.h"

#include <algorithm>
#include <utility>

namespace shell {

using console::DataObjectType;
using console::ResultId;
using console::ScopeId;

View::View(console::IConsole& console, const Notifier& notifier, ScopeTree& tree, const Observers& observers)
    : pane(observers), console_(console), notifier_(notifier), tree_(tree), observers_(observers) {}

void View::load(ScopeItem& item) {
    if (!std::exchange(item.loaded, true)) {
        const ScopeId id = item.id;
        const auto result = notifier_.expand(item.node, id);
        tree_.noteRead(id, result == console::Result::ok);
    }
}

void View::select(ScopeItem& item) {
    const ScopeId id = item.id;
    load(item);
    leaveActive();
    if (const ScopeItem* const before = tree_.alive(scope_); before != nullptr && before->node == shown_) {
        notifier_.show(shown_, scope_, false);
    }
    // A handler may have removed the item.
    if (ScopeItem* const target = tree_.alive(id)) {
        show(*target);
    }
}

void View::show(ScopeItem& item) {
    if (shown_) {
        if (pane.sortOrder()) {
            orders_[shown_->className()] = *pane.sortOrder();
        } else {
            orders_.erase(shown_->className());
        }
    }
    const auto node = item.node;
    const ScopeId id = item.id;
    const bool sameItem = id == scope_;
    scope_ = id;
    row_ = 0;
    shown_ = node;
    tree_.keepReachable(id);
    if (!sameItem) {
        const auto order = orders_.find(node->className());
        pane.restart(order != orders_.end() ? std::optional(order->second) : std::nullopt);
    }
    header.clear();
    verbs.reset();
    notifier_.addImages(node, id, images);
    listsScopeChildren_ = notifier_.listsScopeChildren(node);
    notifier_.show(node, id, true);
    pane.takeReplaced();
    activate(node, DataObjectType::scope);
}

void View::leaveActive() {
    const auto node = std::exchange(active_, nullptr);
    if (!node) {
        return;
    }
    const auto standing =
        row_ != 0 ? nodeOf(row_) : (tree_.alive(scope_) != nullptr ? tree_.alive(scope_)->node : nullptr);
    if (standing == node) {
        notifier_.select(node, activeType_, false);
    }
}

void View::activate(std::shared_ptr<console::CSnapInItem> node, DataObjectType type) {
    verbs.reset();
    active_ = std::move(node);
    activeType_ = type;
    notifier_.select(active_, type, true);
}

std::shared_ptr<console::CSnapInItem> View::nodeOf(ResultId id) {
    if (id < 0) {
        const ScopeItem* const item = tree_.alive(-id);
        return item != nullptr && item->parent == scope_ ? item->node : nullptr;
    }
    const Row* const row = pane.find(id);
    return row != nullptr ? row->node : nullptr;
}

bool View::selectRow(ResultId id) {
    if (id == row_) {
        return true;
    }
    const auto node = id != 0 ? nodeOf(id) : shown_;
    if (!node) {
        return false;
    }
    leaveActive();
    row_ = id;
    activate(node, id > 0 ? DataObjectType::result : DataObjectType::scope);
    return true;
}

void View::refresh() {
    ScopeItem* const item = tree_.alive(scope_);
    if (item == nullptr) {
        return;
    }
    item->loaded = true;
    const auto result = notifier_.refresh(shown_, DataObjectType::scope, scope_);
    tree_.noteRead(scope_, result == console::Result::ok);
    pane.takeReplaced();
    if (console::succeeded(result)) {
        showAnew();
    }
}

void View::showAnew() {
    if (tree_.alive(scope_) != nullptr) {
        header.restart();
        notifier_.showAnew(shown_, console_);
        pane.takeReplaced();
    }
}

bool View::settle(bool beforeRefresh) {
    if (!shown_) {
        return false;
    }
    ScopeItem* const item = tree_.alive(scope_);
    if (item == nullptr) {
        active_.reset();
        if (ScopeItem* const above = tree_.alive(tree_.nearestAlive(scope_))) {
            load(*above);
            show(*above);
        }
        return true;
    }
    if (item->node != shown_) {
        const auto row = row_;
        const auto rowNode = row != 0 ? active_ : nullptr;
        active_.reset();
        load(*item);
        show(*item);
        row_ = row;
        active_ = rowNode ? rowNode : active_;
        return true;
    }
    if (beforeRefresh) {
        return false;
    }
    if (pane.takeReplaced()) {
        showAnew(); // another node has put its own rows into the list
        return true;
    }
    return settleRow();
}

bool View::settleRow() {
    if (row_ == 0 || !active_) {
        return false;
    }
    const auto node = nodeOf(row_);
    if (node == active_) {
        return false;
    }
    if (node) {
        activate(node, row_ > 0 ? DataObjectType::result : DataObjectType::scope);
        return true;
    }
    if (const Row* const like = pane.findLike(*active_)) {
        row_ = like->id;
        activate(like->node, DataObjectType::result);
        return true;
    }
    row_ = 0;
    activate(shown_, DataObjectType::scope);
    return true;
}

std::vector<Row> View::scopeRows() {
    std::vector<Row> rows;
    if (listsScopeChildren_) {
        for (const ScopeId child : tree_.children(scope_)) {
            const ScopeItem& item = *tree_.find(child);
            rows.push_back({item.node, -child, item.image});
        }
    }
    return rows;
}

void View::commit() {
    if (listsScopeChildren_) {
        std::int32_t width = 0;
        if (header.GetColumnWidth(0, width) != console::Result::ok) {
            header.InsertColumn(0, u"Name", console::columnLeft, console::automaticWidth);
        }
    }
    pane.setScopeRows(scopeRows());
    if (header.commit()) {
        std::vector<wire::WideString> titles;
        std::ranges::transform(header.columns(), std::back_inserter(titles), &ShownColumn::title);
        pane.setTitles(std::move(titles));
        observers_.tell([](ShellObserver& observer) { observer.columnsChanged(); });
    }
    pane.commit();
    if (const std::pair now(scope_, row_); std::exchange(told_, now) != now) {
        observers_.tell([](ShellObserver& observer) { observer.selectionChanged(); });
    }
    if (verbs.takeChange()) {
        observers_.tell([](ShellObserver& observer) { observer.verbsChanged(); });
    }
}

} // namespace shell
