#include "shell/Shell.h"

#include "shell/ContextMenu.h"
#include "shell/TreeSearch.h"

#include <algorithm>
#include <utility>

namespace shell {

using console::DataObjectType;
using console::Result;
using console::ResultId;
using console::ScopeId;

namespace {

std::optional<SortOrder> orderAfterClick(const std::optional<SortOrder>& order, std::int32_t column) {
    if (!order || order->column != column) {
        return SortOrder{column, true};
    }
    return order->ascending ? std::optional(SortOrder{column, false}) : std::nullopt;
}

} // namespace

Shell::Shell(SnapIn& snapIn, TaskQueue& tasks, const Observers& observers)
    : snapIn_(snapIn),
      tasks_(tasks),
      observers_(observers),
      notifier_(snapIn, observers),
      tree_(observers),
      view_(*this, notifier_, tree_, observers) {}

Shell::~Shell() {
    if (started_) {
        notifier_.guard("Destroy", [this] { snapIn_.Destroy(); });
    }
}

bool Shell::start() {
    if (started_) {
        return false;
    }
    return operate([this] {
        started_ = true;
        if (!console::succeeded(snapIn_.Initialize(*this))) {
            return false;
        }
        const ScopeId root = tree_.insertRoot(snapIn_.root());
        view_.load(*tree_.alive(root));
        tree_.setOpen(*tree_.alive(root), true);
        return show(root);
    });
}

bool Shell::operate(const std::function<bool()>& work) {
    if (std::exchange(running_, true)) {
        return false;
    }
    bool done = false;
    notifier_.guard("console", [&] { done = work(); });
    notifier_.guard("console", [&] { settle(); });
    notifier_.guard("console", [&] { commit(); });
    running_ = false;
    return done;
}

void Shell::settle() {
    for (;;) {
        while (const ScopeId id = tree_.takeReopened()) {
            view_.load(*tree_.alive(id));
        }
        const Task* const first = tasks_.front();
        const bool refreshFirst = first != nullptr && first->kind == Task::Kind::refresh;
        if ((first == nullptr || refreshFirst) && view_.settle(refreshFirst)) {
            continue;
        }
        const auto task = tasks_.next();
        if (!task) {
            return;
        }
        run(*task);
    }
}

void Shell::run(const Task& task) {
    switch (task.kind) {
    case Task::Kind::refresh:
        view_.refresh();
        break;
    case Task::Kind::selectScopeItem:
        show(task.scopeId);
        break;
    case Task::Kind::work:
        commit(); // work started by handlers may ask the user something, who should see the current state
        notifier_.guard("thread", task.work);
        break;
    case Task::Kind::close:
        observers_.tell([](ShellObserver& observer) { observer.closeRequested(); });
        break;
    }
}

void Shell::commit() {
    tree_.commit();
    view_.commit();
}

bool Shell::drain() {
    return operate([] { return true; });
}

bool Shell::show(ScopeId id) {
    ScopeItem* const item = tree_.alive(id);
    if (item == nullptr) {
        return false;
    }
    if (id == view_.scope()) {
        return view_.selectRow(0);
    }
    history_.keepFilter(view_.pane.filterText());
    view_.select(*item);
    history_.visit(view_.scope());
    return true;
}

bool Shell::select(ScopeId id) {
    return operate([&] { return show(id); });
}

bool Shell::expand(ScopeId id) {
    return operate([&] {
        ScopeItem* item = tree_.alive(id);
        if (item == nullptr) {
            return false;
        }
        item->loaded = item->loaded && !item->unread;
        view_.load(*item);
        item = tree_.alive(id);
        if (item != nullptr) {
            tree_.setOpen(*item, true);
            if (item->unread) {
                tree_.setOpen(*item, false); // so that opening it tries again
            }
        }
        return item != nullptr;
    });
}

bool Shell::collapse(ScopeId id) {
    return operate([&] {
        ScopeItem* const item = tree_.alive(id);
        if (item == nullptr || !item->open) {
            return false;
        }
        tree_.setOpen(*item, false);
        notifier_.collapse(item->node, id);
        const auto path = tree_.pathTo(view_.scope());
        return view_.scope() == id || std::ranges::find(path, id) == path.end() || show(id);
    });
}

bool Shell::reveal(ScopeId id) {
    return operate([&] {
        auto path = tree_.pathTo(id);
        if (path.empty()) {
            return false;
        }
        path.pop_back();
        for (const ScopeId above : path) {
            if (ScopeItem* const item = tree_.alive(above)) {
                view_.load(*item);
                tree_.setOpen(*item, true);
            }
        }
        return true;
    });
}

bool Shell::selectRow(ResultId id) {
    return operate([&] { return view_.selectRow(id); });
}

bool Shell::doubleClick(ResultId id) {
    return operate([&] {
        return view_.selectRow(id) && id != 0 &&
               console::succeeded(notifier_.doubleClick(view_.active(), view_.activeType()));
    });
}

bool Shell::clickColumn(std::int32_t column) {
    return operate([&] {
        const ScopeItem* const item = tree_.alive(view_.scope());
        if (item == nullptr || column < 0 || static_cast<std::size_t>(column) >= header().columns().size()) {
            return false;
        }
        view_.pane.sort(orderAfterClick(pane().sortOrder(), column));
        notifier_.columnClick(item->node, column);
        return true;
    });
}

bool Shell::refresh() {
    return operate([&] {
        if (!view_.active()) {
            return false;
        }
        if (view_.activeType() == DataObjectType::result) {
            return console::succeeded(notifier_.refresh(view_.active(), DataObjectType::result, view_.scope()));
        }
        view_.refresh();
        return true;
    });
}

bool Shell::refreshList() {
    return operate([&] {
        if (!view_.active()) {
            return false;
        }
        view_.refresh();
        return true;
    });
}

bool Shell::reread(const std::vector<ScopeId>& items) {
    return operate([&] {
        for (const ScopeId id : items) {
            ScopeItem* item = id != view_.scope() ? tree_.alive(id) : nullptr;
            if (item == nullptr) {
                continue;
            }
            const bool wasUnread = std::exchange(item->unread, false);
            item->loaded = false;
            view_.load(*item);
            item = tree_.alive(id);
            if (item != nullptr && wasUnread && !item->unread) {
                tree_.setOpen(*item, true);
            }
        }
        view_.refresh();
        return true;
    });
}

ViewHistory::Exists Shell::exists() const {
    return [this](ScopeId id) { return tree_.contains(id); };
}

bool Shell::step(ScopeId (ViewHistory::*direction)(const ViewHistory::Exists&)) {
    return operate([&] {
        history_.keepFilter(view_.pane.filterText());
        ScopeItem* const item = tree_.alive((history_.*direction)(exists()));
        if (item == nullptr) {
            return false;
        }
        view_.select(*item);
        view_.pane.beginFiltered(history_.filter());
        return true;
    });
}

bool Shell::back() {
    return step(&ViewHistory::back);
}

bool Shell::forward() {
    return step(&ViewHistory::forward);
}

bool Shell::canGoBack() const {
    return history_.canGoBack(exists());
}

bool Shell::canGoForward() const {
    return history_.canGoForward(exists());
}

ScopeId Shell::scopeOf(console::CSnapInItem& node) const {
    console::ScopeItemFields* fields = nullptr;
    const bool answered = console::succeeded(node.GetScopeData(&fields)) && fields != nullptr;
    return answered && tree_.contains(fields->ID) ? fields->ID : 0;
}

std::shared_ptr<console::CSnapInItem> Shell::nodeOf(const Target& target) const {
    if (target.row > 0) {
        const Row* const row = target.scope == view_.scope() ? view_.pane.find(target.row) : nullptr;
        return row != nullptr ? row->node : nullptr;
    }
    const ScopeItem* const item = tree_.find(target.row < 0 ? -target.row : target.scope);
    return item != nullptr && !item->gone ? item->node : nullptr;
}

std::vector<MenuItem> Shell::menuOf(const Target& target) const {
    ContextMenu menu;
    if (const auto node = nodeOf(target)) {
        node->AddMenuItems(menu, console::insertionAllowedTop,
                           target.row > 0 ? DataObjectType::result : DataObjectType::scope);
    }
    return std::move(menu.items);
}

std::vector<MenuItem> Shell::menu(const Target& target) {
    std::vector<MenuItem> items;
    operate([&] {
        items = menuOf(target);
        return !items.empty();
    });
    return items;
}

bool Shell::invoke(std::int32_t commandId, const Target& target) {
    return operate([&] {
        const auto node = nodeOf(target);
        const bool disabled = std::ranges::any_of(
            menuOf(target), [commandId](const MenuItem& item) { return item.disabled && item.id == commandId; });
        return node != nullptr && !disabled &&
               console::succeeded(
                   node->Command(commandId, target.row > 0 ? DataObjectType::result : DataObjectType::scope));
    });
}

bool Shell::rename(const wire::WideString& newName) {
    return operate([&] {
        return canRename() && console::succeeded(notifier_.rename(view_.active(), view_.activeType(), newName));
    });
}

bool Shell::cut() {
    return operate([&] {
        if (!canCut()) {
            return false;
        }
        setCutNode(view_.active());
        return true;
    });
}

bool Shell::isCut(const console::CSnapInItem& node) const {
    return clipboard_ != nullptr && clipboard_->className() == node.className() &&
           clipboard_->refreshKey() == node.refreshKey();
}

void Shell::setCutNode(std::shared_ptr<console::CSnapInItem> node) {
    if (clipboard_ != node) {
        clipboard_ = std::move(node);
        observers_.tell([](ShellObserver& observer) { observer.cutChanged(); });
    }
}

bool Shell::accepts(const std::shared_ptr<console::CSnapInItem>& source) {
    return source != nullptr && source != view_.active() && offers(console::Verb::paste) &&
           notifier_.queryPaste(view_.active(), view_.activeType(), source) == Result::ok;
}

bool Shell::canPaste() {
    bool accepted = false;
    operate([&] {
        accepted = accepts(clipboard_);
        return accepted;
    });
    return accepted;
}

bool Shell::paste() {
    return operate([&] {
        const auto source = clipboard_;
        if (!accepts(source)) {
            return false;
        }
        setCutNode(nullptr);
        return console::succeeded(notifier_.paste(view_.active(), view_.activeType(), source));
    });
}

bool Shell::deleteItem() {
    return operate(
        [&] { return canDelete() && console::succeeded(notifier_.deleteItem(view_.active(), view_.activeType())); });
}

bool Shell::canDrop(const Target& source, ScopeId target) {
    bool accepted = false;
    operate([&] {
        const auto node = nodeOf(source);
        const ScopeItem* const item = tree_.alive(target);
        accepted = node != nullptr && item != nullptr && item->node != node &&
                   notifier_.queryPaste(item->node, DataObjectType::scope, node) == Result::ok;
        return accepted;
    });
    return accepted;
}

bool Shell::drop(const Target& source, ScopeId target) {
    return operate([&] {
        const auto node = nodeOf(source);
        return node != nullptr && show(target) && accepts(node) &&
               console::succeeded(notifier_.paste(view_.active(), view_.activeType(), node));
    });
}

void Shell::sort(std::optional<SortOrder> order) {
    view_.pane.sort(order);
}

void Shell::filter(wire::WideStringView text) {
    view_.pane.filter(text);
}

Table Shell::table() const {
    Table table;
    std::ranges::transform(header().columns(), std::back_inserter(table.columns), &ShownColumn::title);
    table.rowCount = pane().rowCount();
    table.cell = [this](std::size_t row, std::size_t column) {
        return pane().cell(row, static_cast<std::int32_t>(column));
    };
    return table;
}

Table Shell::table(std::vector<std::size_t> rows, const std::vector<std::size_t>& columns) const {
    Table table;
    std::ranges::transform(columns, std::back_inserter(table.columns),
                           [this](std::size_t column) { return header().columns().at(column).title; });
    table.rowCount = rows.size();
    table.cell = [this, rows = std::move(rows), columns](std::size_t row, std::size_t column) {
        return pane().cell(rows[row], static_cast<std::int32_t>(columns[column]));
    };
    return table;
}

ScopeId Shell::find(wire::WideStringView text, bool load) {
    ScopeId found = 0;
    operate([&] {
        const auto loader = [this](ScopeId id) {
            if (ScopeItem* const item = tree_.alive(id)) {
                view_.load(*item);
                tree_.commit();
            }
        };
        found = findInTree(tree_, text, view_.scope(),
                           load ? std::function<void(ScopeId)>(loader) : std::function<void(ScopeId)>());
        return found != 0;
    });
    return found;
}

Result Shell::QueryConsoleVerb(console::IConsoleVerb*& verb) {
    verb = &view_.verbs;
    return Result::ok;
}

Result Shell::QueryScopeImageList(console::IImageList*& images) {
    images = &scopeImages_;
    return Result::ok;
}

Result Shell::SelectScopeItem(ScopeId scopeId) {
    if (tree_.alive(scopeId) == nullptr) {
        return Result::failed;
    }
    tasks_.add({.kind = Task::Kind::selectScopeItem, .scopeId = scopeId});
    return Result::ok;
}

Result Shell::GetMainWindow(platform::WindowHandle& window) {
    window = mainWindow_;
    return Result::ok;
}

} // namespace shell
