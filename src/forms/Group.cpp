#include "forms/Group.h"

#include "forms/ControlVisitor.h"

namespace forms {

Group::Group(Container& container, std::u16string_view label) : Control(container, label) {}

void Group::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

Form& Group::form() {
    return container().form();
}

bool Group::shown() const {
    return visible() && container().shown();
}

bool Group::usable() const {
    return visible() && enabled() && container().usable();
}

} // namespace forms
