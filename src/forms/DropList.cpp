#include "forms/DropList.h"

#include "forms/ControlVisitor.h"
#include "forms/RadioButton.h"
#include "wire/CaseFold.h"

#include <algorithm>
#include <utility>

namespace forms {

DropList::DropList(Container& container, std::u16string_view label, DropListOptions options)
    : Control(container, label), options_(options) {
    if (options_.belongsTo != nullptr) {
        setBeside(*options_.belongsTo);
    }
}

void DropList::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

std::size_t DropList::addItem(wire::WideString text, std::string data) {
    auto place = items_.end();
    if (options_.sorted) {
        place = std::upper_bound(items_.begin() + static_cast<std::ptrdiff_t>(firsts_), items_.end(), text,
                                 [](const wire::WideString& added, const auto& item) {
                                     return wire::compareIgnoringCase(added, item.text) < 0;
                                 });
    }
    const auto row = static_cast<std::size_t>(place - items_.begin());
    insert(row, {std::move(text), std::move(data)});
    return row;
}

void DropList::addFirst(wire::WideString text, std::string data) {
    ++firsts_;
    insert(0, {std::move(text), std::move(data)});
}

void DropList::insert(std::size_t row, DropListItem item) {
    items_.insert(items_.begin() + static_cast<std::ptrdiff_t>(row), std::move(item));
    if (selection_ && *selection_ >= row) {
        ++*selection_; // the same row stays selected
    }
    changed(Aspect::items);
}

void DropList::clear() {
    items_.clear();
    firsts_ = 0;
    selection_.reset();
    changed(Aspect::items);
}

wire::WideString DropList::selectedText() const {
    return selection_ ? items_[*selection_].text : wire::WideString();
}

std::string DropList::selectedData() const {
    return selection_ ? items_[*selection_].data : std::string();
}

void DropList::select(std::optional<std::size_t> row) {
    if (row && *row >= items_.size()) {
        row.reset();
    }
    if (selection_ != row) {
        selection_ = row;
        changed(Aspect::selection);
    }
}

bool DropList::selectText(std::u16string_view text) {
    const auto found = std::ranges::find(items_, text, &DropListItem::text);
    if (found == items_.end()) {
        return false;
    }
    select(static_cast<std::size_t>(found - items_.begin()));
    return true;
}

bool DropList::selectData(std::string_view data) {
    const auto found = std::ranges::find(items_, data, &DropListItem::data);
    if (found == items_.end()) {
        return false;
    }
    select(static_cast<std::size_t>(found - items_.begin()));
    return true;
}

bool DropList::userSelected(std::size_t row) {
    if (!takesInput() || row >= items_.size()) {
        return false;
    }
    selection_ = row;
    run(onSelect);
    return true;
}

} // namespace forms
