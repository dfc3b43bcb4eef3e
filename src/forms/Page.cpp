#include "forms/Page.h"

#include "forms/Tabs.h"

namespace forms {

Page::Page(Tabs& tabs, std::u16string_view title) : tabs_(tabs), title_(title) {
    tabs.pages_.push_back(this);
}

Form& Page::form() {
    return tabs_.form();
}

bool Page::usable() const {
    return shown() && tabs_.enabled() && tabs_.container().usable();
}

bool Page::shown() const {
    return tabs_.visible() && tabs_.container().shown() && tabs_.pages()[tabs_.current()] == this;
}

} // namespace forms
