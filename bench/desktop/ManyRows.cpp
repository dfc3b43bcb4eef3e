#include "bench/desktop/ManyRows.h"

#include "wire/Text.h"

namespace bench {

std::u16string cellText(std::size_t row, std::size_t column) {
    const std::size_t scattered = row * 7'919 % rowCount;
    return wire::toWide("Cell " + std::to_string(column) + " of printer " + std::to_string(scattered));
}

OneRow::OneRow(platform::Platform& platform, std::size_t number) : CBaseNodeItem(platform), number_(number) {
    for (std::size_t column = 0; column < columnCount; ++column) {
        cells_[column] = cellText(number, column);
    }
}

const char16_t* OneRow::GetResultPaneColInfo(std::int32_t column) {
    return cells_[static_cast<std::size_t>(column)].c_str();
}

void OneRow::renew() {
    for (auto& cell : cells_) {
        std::u16string(cell).swap(cell);
    }
}

ManyRows::ManyRows(platform::Platform& platform) : CBaseNodeItem(platform) {
    rows_.reserve(rowCount);
    for (std::size_t row = 0; row < rowCount; ++row) {
        rows_.push_back(std::make_shared<OneRow>(platform, row));
    }
}

console::Result ManyRows::OnExpand(console::ExpandCode code, console::IConsole& /*console*/,
                                   console::ScopeId /*scopeId*/) {
    if (code == console::ExpandCode::refresh) {
        for (const auto& row : rows_) {
            row->renew();
        }
    }
    return console::Result::ok;
}

std::span<const console::Column> ManyRows::columns() const {
    static constexpr std::array titles{console::Column{u"One", 2},   console::Column{u"Two", 2},
                                       console::Column{u"Three", 2}, console::Column{u"Four", 2},
                                       console::Column{u"Five", 2},  console::Column{u"Six", 2},
                                       console::Column{u"Seven", 2}, console::Column{u"Eight", 2}};
    return titles;
}

std::vector<console::NodeBase*> ManyRows::rows() const {
    std::vector<console::NodeBase*> nodes;
    nodes.reserve(rows_.size());
    for (const auto& row : rows_) {
        nodes.push_back(row.get());
    }
    return nodes;
}

Top::Top(platform::Platform& platform) : CBaseNodeItem(platform), many_(std::make_shared<ManyRows>(platform)) {}

console::Result Top::OnExpand(console::ExpandCode code, console::IConsole& console, console::ScopeId scopeId) {
    if (beginExpand(code, console, scopeId)) {
        many_->setParent(*this);
        insertChild(console, *many_);
    }
    return console::Result::ok;
}

} // namespace bench
