#pragma once

#include "console/IHeaderCtrl.h"
#include "wire/Text.h"

#include <functional>
#include <vector>

namespace shell {

// A column of the list as people see it; the width is in pixels.
struct ShownColumn {
    wire::WideString title;
    std::int32_t width = 0;

    friend bool operator==(const ShownColumn&, const ShownColumn&) = default;
};

// The columns of the list.
class ColumnHeader final : public console::IHeaderCtrl {
public:
    // A column inserted where one stands takes its place: so a region that holds regions and printers ends up with the
    // columns of the printers.
    console::Result InsertColumn(std::int32_t index, const char16_t* title, std::int32_t format,
                                 std::int32_t width) override;
    console::Result GetColumnWidth(std::int32_t index, std::int32_t& width) override;
    console::Result SetColumnWidth(std::int32_t index, std::int32_t width) override;

    // Another node is going to be shown: no columns.
    void clear();
    // The same node is going to be shown anew: what stands goes as soon as it inserts a column.
    void restart() { restarting_ = true; }
    // Ends a restart and shows what was inserted; true when that is something else than before.
    bool commit();

    // What people see: nothing that is not committed.
    const std::vector<ShownColumn>& columns() const { return shown_; }

    // How wide a title is in pixels, for automatic widths; a host with a font may set its own.
    std::function<std::int32_t(wire::WideStringView title)> measure;

private:
    std::vector<ShownColumn> columns_;
    std::vector<ShownColumn> shown_;
    bool restarting_ = false;
};

} // namespace shell
