#include "hosts/desktop/forms/FormWidgets.h"

#include "forms/Button.h"
#include "forms/Form.h"
#include "forms/FormWalk.h"
#include "hosts/desktop/forms/ButtonWidget.h"
#include "hosts/desktop/forms/WidgetMaker.h"

#include <QWidget>

#include <algorithm>

namespace desktop {

FormWidgets::FormWidgets(forms::Form& form, QWidget& surface)
    : form_(form), labels_(form), layout_([this](const forms::Control& control) { return find(control); }) {
    WidgetMaker maker(surface);
    for (forms::Control* control : forms::controlsOf(form)) {
        auto widget = maker.make(*control);
        widget->showLabels(labels_);
        inOrder_.push_back(widget.get());
        widgets_.emplace(control, std::move(widget));
    }
    layout_.lay(forms::planOf(form), surface);
    for (ControlWidget* widget : inOrder_) {
        widget->mirrorAll();
    }
    layout_.hideEmptyLines();
    orderTabStops();
    showDefaultButton();
}

FormWidgets::~FormWidgets() = default;

ControlWidget* FormWidgets::find(const forms::Control& control) const {
    const auto found = widgets_.find(&control);
    return found != widgets_.end() ? found->second.get() : nullptr;
}

void FormWidgets::controlChanged(forms::Control& control, forms::Aspect aspect) {
    ControlWidget* const widget = find(control);
    if (widget == nullptr) {
        return;
    }
    if (aspect == forms::Aspect::label || aspect == forms::Aspect::pages) {
        labels_.changed(control);
        widget->showLabels(labels_);
    }
    widget->mirror(aspect);
    if (aspect == forms::Aspect::visible) {
        layout_.hideEmptyLines();
    }
    if (aspect == forms::Aspect::enabled || aspect == forms::Aspect::visible || aspect == forms::Aspect::selection) {
        showDefaultButton();
    }
}

ControlWidget* FormWidgets::first() const {
    const auto canTakeIt = [this](forms::Control& control) {
        const auto* const widget = find(control);
        return widget != nullptr && control.reachable() && !widget->tabStops().empty() &&
               widget->widget()->focusPolicy() != Qt::NoFocus;
    };
    if (form_.focus() != nullptr && canTakeIt(*form_.focus())) {
        return find(*form_.focus());
    }
    const auto all = forms::controlsOf(form_);
    const auto found = std::ranges::find_if(all, [&](auto* control) { return canTakeIt(*control); });
    return found != all.end() ? find(**found) : nullptr;
}

void FormWidgets::showDefaultButton() {
    bool found = false;
    for (forms::Control* control : forms::controlsOf(form_)) {
        if (const auto* const button = dynamic_cast<const forms::Button*>(control)) {
            const bool isIt = !found && button->isDefault() && button->reachable();
            static_cast<ButtonWidget*>(find(*control))->showAsDefault(isIt);
            found = found || isIt;
        }
    }
}

void FormWidgets::orderTabStops() {
    QWidget* before = nullptr;
    for (const ControlWidget* widget : inOrder_) {
        for (QWidget* stop : widget->tabStops()) {
            if (before != nullptr) {
                QWidget::setTabOrder(before, stop);
            }
            before = stop;
        }
    }
}

} // namespace desktop
