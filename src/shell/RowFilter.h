#pragma once

#include "wire/Text.h"

namespace shell {

// The text that the user typed to see only the rows that contain it, in any column and ignoring case.
class RowFilter {
public:
    RowFilter() = default;
    explicit RowFilter(wire::WideStringView text);

    // An empty filter lets everything pass.
    [[nodiscard]] bool empty() const { return folded_.empty(); }
    [[nodiscard]] bool matches(wire::WideStringView cell) const;

private:
    wire::WideString folded_;
};

} // namespace shell
