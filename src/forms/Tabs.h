#pragma once

#include "forms/Control.h"

#include <cstddef>
#include <vector>

namespace forms {

class Page;

// A tab control: pages of which one is shown.
class Tabs final : public Control {
public:
    explicit Tabs(Container& container);
    void accept(ControlVisitor& visitor) override;

    [[nodiscard]] const std::vector<Page*>& pages() const { return pages_; }
    // The page in front; 0 at first.
    [[nodiscard]] std::size_t current() const { return current_; }
    // Throws std::out_of_range for a page that does not exist or is hidden.
    void show(std::size_t page);

    std::function<void()> onShow;
    bool userShowed(std::size_t page);

private:
    friend class Page;
    [[nodiscard]] bool canShow(std::size_t page) const;
    void leaveHiddenPage();

    std::vector<Page*> pages_;
    std::size_t current_ = 0;
};

} // namespace forms
