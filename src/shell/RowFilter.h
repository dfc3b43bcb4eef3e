#pragma once

#include "wire/Text.h"

namespace shell {

// What a person typed to see only the rows that hold it, in whatever column and case.
class RowFilter {
public:
    RowFilter() = default;
    explicit RowFilter(wire::WideStringView text);

    // An empty filter lets everything pass.
    bool empty() const { return folded_.empty(); }
    bool matches(wire::WideStringView cell) const;

private:
    wire::WideString folded_;
};

} // namespace shell
