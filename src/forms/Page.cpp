#include "forms/Page.h"

#include "forms/Tabs.h"

#include <utility>

namespace forms {

Page::Page(Tabs& tabs, std::u16string_view title) : tabs_(tabs), title_(title) {
    tabs.pages_.push_back(this);
}

void Page::setTitle(wire::WideString title) {
    if (title_ != title) {
        title_ = std::move(title);
        tabs_.changed(Aspect::pages);
    }
}

void Page::setVisible(bool visible) {
    if (std::exchange(visible_, visible) != visible) {
        tabs_.changed(Aspect::pages);
        tabs_.leaveHiddenPage();
    }
}

Form& Page::form() {
    return tabs_.form();
}

bool Page::usable() const {
    return shown() && tabs_.enabled() && tabs_.container().usable();
}

bool Page::shown() const {
    return visible_ && tabs_.visible() && tabs_.container().shown() && tabs_.pages()[tabs_.current()] == this;
}

} // namespace forms
