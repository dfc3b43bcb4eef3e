#include "forms/Tabs.h"

#include "forms/ControlVisitor.h"

#include <stdexcept>

namespace forms {

Tabs::Tabs(Container& container) : Control(container, {}) {}

void Tabs::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

void Tabs::show(std::size_t page) {
    if (page >= pages_.size()) {
        throw std::out_of_range("Tabs::show: no such page");
    }
    if (current_ != page) {
        current_ = page;
        changed(Aspect::selection);
    }
}

bool Tabs::userShowed(std::size_t page) {
    if (!takesInput() || page >= pages_.size()) {
        return false;
    }
    current_ = page;
    run(onShow);
    return true;
}

} // namespace forms
