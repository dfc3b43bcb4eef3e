#include "shell/ColumnHeader.h"

#include "shell/DisplayWidth.h"

#include <utility>

namespace shell {
namespace {

constexpr std::int32_t pixelsPerCell = 7;
constexpr std::int32_t padding = 24;

} // namespace

console::Result ColumnHeader::InsertColumn(std::int32_t index, const char16_t* title, std::int32_t /*format*/,
                                           std::int32_t width) {
    if (index < 0 || title == nullptr) {
        return console::Result::failed;
    }
    if (std::exchange(restarting_, false)) {
        columns_.clear();
    }
    ShownColumn column{.title = title, .width = width};
    if (width == console::automaticWidth) {
        column.width = measure ? measure(column.title)
                               : padding + pixelsPerCell * static_cast<std::int32_t>(displayWidth(column.title));
    }
    if (const auto place = static_cast<std::size_t>(index); place < columns_.size()) {
        columns_[place] = std::move(column);
    } else {
        columns_.push_back(std::move(column));
    }
    return console::Result::ok;
}

console::Result ColumnHeader::GetColumnWidth(std::int32_t index, std::int32_t& width) {
    if (index < 0 || static_cast<std::size_t>(index) >= columns_.size()) {
        return console::Result::failed;
    }
    width = columns_[static_cast<std::size_t>(index)].width;
    return console::Result::ok;
}

console::Result ColumnHeader::SetColumnWidth(std::int32_t index, std::int32_t width) {
    if (index < 0 || static_cast<std::size_t>(index) >= columns_.size()) {
        return console::Result::failed;
    }
    columns_[static_cast<std::size_t>(index)].width = width;
    return console::Result::ok;
}

void ColumnHeader::clear() {
    columns_.clear();
    restarting_ = false;
}

bool ColumnHeader::commit() {
    restarting_ = false;
    const bool changed = shown_ != columns_;
    shown_ = columns_;
    return changed;
}

} // namespace shell
