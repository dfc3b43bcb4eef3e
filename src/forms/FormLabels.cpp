#include "forms/FormLabels.h"

#include "forms/ControlShape.h"
#include "forms/Form.h"
#include "forms/FormWalk.h"
#include "forms/Page.h"
#include "forms/Tabs.h"

namespace forms {

FormLabels::FormLabels(Form& form) {
    add(form.okButton(), AccessKeys::Claim::keeps);
    add(form.cancelButton(), AccessKeys::Claim::keeps);
    for (Control* control : controlsOf(form)) {
        if (!controls_.contains(control)) {
            add(*control, AccessKeys::Claim::givesWay);
        }
    }
    keys_.assign();
}

void FormLabels::add(Control& control, AccessKeys::Claim claim) {
    if (const auto* const tabs = dynamic_cast<const Tabs*>(&control)) {
        for (const Page* page : tabs->pages()) {
            pages_.emplace(page, keys_.add(page->title(), claim));
        }
    } else if (shapeOf(control).takesKey) {
        controls_.emplace(&control, keys_.add(control.label(), claim));
    }
}

KeyedLabel FormLabels::of(const Control& control) const {
    const auto found = controls_.find(&control);
    return found != controls_.end() ? keys_.label(found->second)
                                    : KeyedLabel{.text = readableLabel(control.label()), .key = {}};
}

KeyedLabel FormLabels::of(const Page& page) const {
    return keys_.label(pages_.at(&page));
}

void FormLabels::changed(const Control& control) {
    if (const auto found = controls_.find(&control); found != controls_.end()) {
        keys_.change(found->second, control.label());
    } else if (const auto* const tabs = dynamic_cast<const Tabs*>(&control)) {
        for (const Page* page : tabs->pages()) {
            keys_.change(pages_.at(page), page->title());
        }
    }
}

} // namespace forms
