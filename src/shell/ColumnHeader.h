#pragma once

#include "console/IHeaderCtrl.h"
#include "wire/Text.h"

#include <functional>
#include <vector>

namespace shell {

// A column of the list as displayed; the width is in pixels.
struct ShownColumn {
    wire::WideString title;
    std::int32_t width = 0;

    friend bool operator==(const ShownColumn&, const ShownColumn&) = default;
};

// The columns of the list.
class ColumnHeader final : public console::IHeaderCtrl {
public:
    // A column inserted at an index that is taken replaces the one there: so a region that holds regions and printers
    // ends up with the columns of the printers.
    console::Result InsertColumn(std::int32_t index, const char16_t* title, std::int32_t format,
                                 std::int32_t width) override;
    console::Result GetColumnWidth(std::int32_t index, std::int32_t& width) override;
    console::Result SetColumnWidth(std::int32_t index, std::int32_t width) override;

    // Removes the columns, because another node is going to be shown.
    void clear();
    // The same node is going to be shown again: the current columns are dropped as soon as it inserts one.
    void restart() { restarting_ = true; }
    // Ends a restart and shows what was inserted; true when that differs from before.
    bool commit();

    // The displayed columns, without uncommitted changes.
    [[nodiscard]] const std::vector<ShownColumn>& columns() const { return shown_; }

    // How wide a title is in pixels, for automatic widths; a host with a font may set its own.
    std::function<std::int32_t(wire::WideStringView title)> measure;

private:
    std::vector<ShownColumn> columns_;
    std::vector<ShownColumn> shown_;
    bool restarting_ = false;
};

} // namespace shell
