#include "forms/Tabs.h"

#include "forms/ControlVisitor.h"
#include "forms/Page.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace forms {

Tabs::Tabs(Container& container) : Control(container, {}) {}

void Tabs::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

void Tabs::show(std::size_t page) {
    if (!canShow(page)) {
        throw std::out_of_range("Tabs::show: no such page");
    }
    if (current_ != page) {
        current_ = page;
        changed(Aspect::selection);
    }
}

bool Tabs::userShowed(std::size_t page) {
    if (!takesInput() || !canShow(page)) {
        return false;
    }
    current_ = page;
    run(onShow);
    return true;
}

bool Tabs::canShow(std::size_t page) const {
    return page < pages_.size() && pages_[page]->visible();
}

void Tabs::leaveHiddenPage() {
    if (canShow(current_)) {
        return;
    }
    const auto front = pages_.begin() + static_cast<std::ptrdiff_t>(current_);
    const auto next = std::find_if(front, pages_.end(), [](const Page* page) { return page->visible(); });
    const auto before = std::find_if(std::make_reverse_iterator(front), pages_.rend(),
                                     [](const Page* page) { return page->visible(); });
    if (next != pages_.end()) {
        show(static_cast<std::size_t>(next - pages_.begin()));
    } else if (before != pages_.rend()) {
        show(static_cast<std::size_t>(before.base() - pages_.begin()) - 1);
    }
}

} // namespace forms
