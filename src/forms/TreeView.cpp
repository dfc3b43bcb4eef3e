#include "forms/TreeView.h"

#include "forms/ControlVisitor.h"

#include <stdexcept>
#include <utility>

namespace forms {
namespace {

wire::WideString withEscapes(wire::WideStringView text) {
    wire::WideString escaped;
    for (const char16_t unit : text) {
        if (unit == u'/' || unit == u'\\') {
            escaped += u'\\';
        }
        escaped += unit;
    }
    return escaped;
}

} // namespace

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

wire::WideString TreeView::path(std::size_t item) const {
    wire::WideString path = withEscapes(items_.at(item).text);
    for (auto parent = items_[item].parent; parent; parent = items_[*parent].parent) {
        path.insert(0, withEscapes(items_[*parent].text) + u'/');
    }
    return path;
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
