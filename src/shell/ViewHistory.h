#pragma once

#include "console/ItemFields.h"
#include "wire/Text.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace shell {

// The scope items that were shown, in order, for going back and forward, each with the filter that its list had.
class ViewHistory {
public:
    using Exists = std::function<bool(console::ScopeId)>;

    // Forgets the items ahead.
    void visit(console::ScopeId id);
    // The list of the current item is filtered by the text, and will be so when it is shown again by going there.
    void keepFilter(wire::WideStringView text);
    // The filter of the current item.
    [[nodiscard]] wire::WideString filter() const;
    // The nearest other item that still exists; 0 when there is none.
    console::ScopeId back(const Exists& exists);
    console::ScopeId forward(const Exists& exists);
    [[nodiscard]] bool canGoBack(const Exists& exists) const;
    [[nodiscard]] bool canGoForward(const Exists& exists) const;

private:
    struct Visit {
        console::ScopeId id = 0;
        wire::WideString filter;
    };

    static constexpr std::size_t longest = 200;

    // The index in visited_ where a step ends, or visited_.size().
    [[nodiscard]] std::size_t before(const Exists& exists) const;
    [[nodiscard]] std::size_t after(const Exists& exists) const;

    std::vector<Visit> visited_;
    std::size_t current_ = 0;
};

} // namespace shell
