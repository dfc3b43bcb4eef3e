#include "forms/TreeView.h"

#include "forms/ControlVisitor.h"

#include <stdexcept>
#include <utility>

namespace forms {

TreeView::TreeView(Container& container, std::u16string_view label) : Control(container, label) {}

void TreeView::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

std::size_t TreeView::addItem(TreeItem item) {
    if (item.parent && *item.parent >= items_.size()) {
        throw std::out_of_range("TreeView::addItem: no such parent");
    }
    items_.push_back(std::move(item));
    changed(Aspect::items);
    return items_.size() - 1;
}

void TreeView::clear() {
    items_.clear();
    selection_.reset();
    changed(Aspect::items);
}

void TreeView::select(std::optional<std::size_t> item) {
    if (item && *item >= items_.size()) {
        item.reset();
    }
    if (selection_ != item) {
        selection_ = item;
        changed(Aspect::selection);
    }
}

bool TreeView::userSelected(std::size_t item) {
    if (!takesInput() || item >= items_.size()) {
        return false;
    }
    selection_ = item;
    run(onSelect);
    return true;
}

} // namespace forms
