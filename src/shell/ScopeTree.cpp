#include "shell/ScopeTree.h"

#include "shell/ListDiff.h"
#include "shell/NaturalOrder.h"

#include <algorithm>
#include <utility>

namespace shell {
namespace {

using console::CSnapInItem;
using console::Result;
using console::ScopeId;

std::string identityOf(const CSnapInItem& node) {
    return node.className() + '\0' + node.refreshKey();
}

} // namespace

ScopeId ScopeTree::insertRoot(const std::shared_ptr<CSnapInItem>& node) {
    root_ = ++last_;
    ScopeItem& item = items_[root_];
    item.id = root_;
    item.node = node;
    console::ScopeItemFields* fields = nullptr;
    if (node->GetScopeData(&fields) == Result::ok && fields != nullptr) {
        fields->ID = root_;
        fill(item, *fields);
    }
    return root_;
}

Result ScopeTree::InsertItem(console::ScopeItemFields& row) {
    ScopeItem* const parent = alive(row.relativeID);
    auto node = row.lParam != nullptr ? row.lParam->weak_from_this().lock() : nullptr;
    if (parent == nullptr || !node) {
        return Result::failed;
    }
    ScopeItem* item = takeBack(*parent, *node);
    const bool isBack = item != nullptr;
    if (!isBack) {
        item = &items_[++last_]; // a node of the map: no other item moves
        item->id = last_;
        item->parent = parent->id;
    }
    item->node = std::move(node);
    item->back = isBack;
    fill(*item, row);
    row.ID = item->id;
    parent->children.push_back(item->id);
    changed_.insert(parent->id);
    if (std::exchange(item->reopen, false)) {
        reopened_.push_back(item->id);
    }
    return Result::ok;
}

Result ScopeTree::SetItem(ScopeId scopeId, std::u16string_view text) {
    ScopeItem* const item = alive(scopeId);
    if (item == nullptr) {
        return Result::failed;
    }
    item->text = std::make_unique<wire::WideString>(text);
    renamed_.push_back(scopeId);
    return Result::ok;
}

Result ScopeTree::GetChildItem(ScopeId scopeId, ScopeId& child, CSnapInItem*& cookie) {
    child = 0;
    cookie = nullptr;
    const ScopeItem* const item = alive(scopeId);
    if (item == nullptr) {
        return Result::failed;
    }
    if (item->children.empty()) {
        return Result::notDone;
    }
    child = item->children.front();
    cookie = items_.at(child).node.get();
    return Result::ok;
}

Result ScopeTree::DeleteItem(ScopeId scopeId, bool deleteThis) {
    ScopeItem* const item = alive(scopeId);
    if (item == nullptr || (deleteThis && item->parent == 0)) {
        return Result::failed;
    }
    if (!deleteThis) {
        for (const ScopeId child : std::exchange(item->children, {})) {
            depart(items_.at(child));
        }
        changed_.insert(scopeId);
        return Result::ok;
    }
    std::erase(items_.at(item->parent).children, scopeId);
    changed_.insert(item->parent);
    depart(*item);
    return Result::ok;
}

// Returns whether the item to be kept reachable is this one or below it.
bool ScopeTree::depart(ScopeItem& item) {
    bool needed = false;
    for (const ScopeId child : std::exchange(item.children, {})) {
        needed = depart(items_.at(child)) || needed;
    }
    item.gone = true;
    item.reopen = item.open || needed;
    items_.at(item.parent).departed.emplace(identityOf(*item.node), item.id);
    return needed || item.id == reachable_;
}

ScopeItem* ScopeTree::takeBack(ScopeItem& parent, const CSnapInItem& node) {
    const auto found = parent.departed.empty() ? parent.departed.end() : parent.departed.find(identityOf(node));
    if (found == parent.departed.end()) {
        return nullptr;
    }
    ScopeItem& item = items_.at(found->second);
    parent.departed.erase(found);
    item.gone = false;
    item.loaded = false;
    item.text.reset();
    if (!item.shown.empty()) {
        changed_.insert(item.id); // its old children are removed unless they come back too
    }
    return &item;
}

void ScopeTree::fill(ScopeItem& item, const console::ScopeItemFields& row) {
    item.image = row.nImage;
    item.openImage = row.nOpenImage;
    item.mayHaveChildren = row.cChildren != 0;
}

std::span<const ScopeId> ScopeTree::children(ScopeId id) const {
    const ScopeItem* const item = find(id);
    return item != nullptr ? std::span<const ScopeId>(item->shown) : std::span<const ScopeId>();
}

ScopeId ScopeTree::parent(ScopeId id) const {
    const ScopeItem* const item = find(id);
    return item != nullptr ? item->parent : 0;
}

std::size_t ScopeTree::indexInParent(ScopeId id) const {
    const auto siblings = children(parent(id));
    return static_cast<std::size_t>(std::ranges::find(siblings, id) - siblings.begin());
}

wire::WideString ScopeTree::text(ScopeId id) const {
    const ScopeItem* const item = find(id);
    if (item == nullptr) {
        return {};
    }
    if (item->text) {
        return *item->text;
    }
    console::ScopeItemFields row{.mask = console::scopeMask::text};
    const bool answered = console::succeeded(item->node->GetScopePaneInfo(row));
    return answered && row.displayname != nullptr && row.displayname != console::textCallback ? row.displayname : u"";
}

std::int32_t ScopeTree::image(ScopeId id) const {
    const ScopeItem* const item = find(id);
    if (item == nullptr) {
        return 0;
    }
    return item->open ? item->openImage : item->image;
}

bool ScopeTree::mayHaveChildren(ScopeId id) const {
    const ScopeItem* const item = find(id);
    if (item == nullptr || !item->shown.empty()) {
        return item != nullptr;
    }
    return item->mayHaveChildren && (!item->loaded || item->unread);
}

bool ScopeTree::isOpen(ScopeId id) const {
    const ScopeItem* const item = find(id);
    return item != nullptr && item->open;
}

bool ScopeTree::isLoaded(ScopeId id) const {
    const ScopeItem* const item = find(id);
    return item != nullptr && item->loaded;
}

std::vector<ScopeId> ScopeTree::pathTo(ScopeId id) const {
    std::vector<ScopeId> path;
    for (const ScopeItem* item = find(id); item != nullptr; item = find(item->parent)) {
        path.push_back(item->id);
    }
    std::ranges::reverse(path);
    return path;
}

const ScopeItem* ScopeTree::find(ScopeId id) const {
    const auto found = items_.find(id);
    return found != items_.end() ? &found->second : nullptr;
}

ScopeItem* ScopeTree::alive(ScopeId id) {
    const auto found = items_.find(id);
    return found != items_.end() && !found->second.gone ? &found->second : nullptr;
}

ScopeId ScopeTree::nearestAlive(ScopeId id) const {
    for (const ScopeItem* item = find(id); item != nullptr; item = find(item->parent)) {
        if (!item->gone) {
            return item->id;
        }
    }
    return root_;
}

void ScopeTree::setOpen(ScopeItem& item, bool open) {
    if (item.open != open) {
        item.open = open;
        const ScopeId id = item.id;
        observers_.tell([&](ShellObserver& observer) { observer.scopeItemOpened(id, open); });
    }
}

void ScopeTree::noteRead(ScopeId id, bool read) {
    ScopeItem* const item = alive(id);
    if (item != nullptr) {
        item->unread = !read && item->children.empty();
        if (item->children.empty()) {
            renamed_.push_back(id);
        }
    }
}

ScopeId ScopeTree::takeReopened() {
    while (!reopened_.empty()) {
        const ScopeId id = reopened_.back();
        reopened_.pop_back();
        if (alive(id) != nullptr) {
            return id;
        }
    }
    return 0;
}

void ScopeTree::commit() {
    const auto changed = std::exchange(changed_, {});
    std::vector<ScopeId> free;
    for (const ScopeId id : changed) {
        const auto found = items_.find(id);
        if (found == items_.end()) {
            continue;
        }
        ScopeItem& parent = found->second;
        for (const auto& [key, child] : parent.departed) {
            free.push_back(child);
        }
        parent.departed.clear();
        if (!parent.gone) {
            show(parent, inOrderForPeople(parent));
            tellReturned(parent);
        }
    }
    for (const ScopeId id : std::exchange(renamed_, {})) {
        if (alive(id) != nullptr) {
            observers_.tell([&](ShellObserver& observer) { observer.scopeItemChanged(id); });
        }
    }
    std::ranges::for_each(free, [this](ScopeId id) { erase(id); });
}

// Neighbours of one class are in their natural order; classes, and the fixed items of the upper tree, as inserted.
std::vector<ScopeId> ScopeTree::inOrderForPeople(const ScopeItem& parent) const {
    std::vector<ScopeId> result;
    result.reserve(parent.children.size());
    std::vector<std::pair<wire::WideString, ScopeId>> run;
    const std::string* runClass = nullptr;
    const auto finishRun = [&] {
        std::ranges::stable_sort(run, {}, &std::pair<wire::WideString, ScopeId>::first);
        std::ranges::transform(run, std::back_inserter(result), &std::pair<wire::WideString, ScopeId>::second);
        run.clear();
    };
    for (const ScopeId child : parent.children) {
        const std::string& childClass = items_.at(child).node->className();
        if (runClass != nullptr && *runClass != childClass) {
            finishRun();
        }
        runClass = &childClass;
        run.emplace_back(naturalKey(text(child)), child);
    }
    finishRun();
    return result;
}

void ScopeTree::show(ScopeItem& parent, const std::vector<ScopeId>& next) {
    const bool hadChildren = !parent.shown.empty();
    const auto steps = listSteps(parent.shown, next)
                           .value_or(std::vector<ListStep>{{ListStep::Kind::remove, 0, parent.shown.size()},
                                                           {ListStep::Kind::insert, 0, next.size()}});
    for (const ListStep& step : steps) {
        const std::size_t first = step.first;
        const std::size_t count = step.count;
        if (count == 0) {
            continue;
        }
        const auto at = static_cast<std::ptrdiff_t>(first);
        const auto end = static_cast<std::ptrdiff_t>(first + count);
        if (step.kind == ListStep::Kind::remove) {
            observers_.tell([&](auto& observer) { observer.scopeItemsAboutToBeRemoved(parent.id, first, count); });
            parent.shown.erase(parent.shown.begin() + at, parent.shown.begin() + end);
            observers_.tell([&](auto& observer) { observer.scopeItemsRemoved(parent.id, first, count); });
        } else {
            observers_.tell([&](auto& observer) { observer.scopeItemsAboutToBeInserted(parent.id, first, count); });
            parent.shown.insert(parent.shown.begin() + at, next.begin() + at, next.begin() + end);
            observers_.tell([&](auto& observer) { observer.scopeItemsInserted(parent.id, first, count); });
        }
    }
    if (hadChildren != !parent.shown.empty()) {
        renamed_.push_back(parent.id);
    }
}

void ScopeTree::tellReturned(const ScopeItem& parent) {
    for (const ScopeId child : parent.shown) {
        if (std::exchange(items_.at(child).back, false)) {
            observers_.tell([&](ShellObserver& observer) { observer.scopeItemChanged(child); });
        }
    }
}

void ScopeTree::erase(ScopeId id) {
    const auto found = items_.find(id);
    if (found == items_.end()) {
        return;
    }
    const auto children = found->second.shown;
    const auto departed = std::move(found->second.departed);
    items_.erase(found);
    for (const auto& [key, child] : departed) {
        erase(child);
    }
    std::ranges::for_each(children, [this](ScopeId child) { erase(child); });
}

} // namespace shell
