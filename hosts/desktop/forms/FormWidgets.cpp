#include "hosts/desktop/forms/FormWidgets.h"

#include "forms/Button.h"
#include "forms/Form.h"
#include "forms/FormWalk.h"
#include "hosts/desktop/forms/ButtonWidget.h"
#include "hosts/desktop/forms/SheetTabs.h"
#include "hosts/desktop/forms/WidgetMaker.h"

#include <QTabBar>
#include <QWidget>

#include <algorithm>

namespace desktop {

FormWidgets::FormWidgets(forms::Form& form, forms::Arrangement arrangement, QWidget& surface, QWidget& foot)
    : form_(form), labels_(form), layout_([this](const forms::Control& control) { return find(control); }) {
    WidgetMaker maker(surface);
    for (forms::Control* control : forms::controlsOf(form)) {
        auto widget = maker.make(*control);
        widget->showLabels(labels_);
        inOrder_.push_back(widget.get());
        widgets_.emplace(control, std::move(widget));
    }
    layout_.lay(forms::planOf(form, arrangement), surface, foot);
    for (ControlWidget* widget : inOrder_) {
        widget->mirrorContent();
    }
    layout_.levelRemarks();
    orderTabStops();
    showDefaultButton();
}

void FormWidgets::hideInvisible() {
    for (ControlWidget* widget : inOrder_) {
        widget->mirror(forms::Aspect::visible);
    }
    layout_.hideEmptyLines();
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
    const forms::Button* const found = form_.defaultButton(focused());
    for (forms::Control* control : forms::controlsOf(form_)) {
        if (dynamic_cast<const forms::Button*>(control) != nullptr) {
            static_cast<ButtonWidget*>(find(*control))->showAsDefault(control == found);
        }
    }
}

const forms::Control* FormWidgets::focused() const {
    const auto hasFocus = [](const auto& each) {
        return std::ranges::any_of(each.second->tabStops(), [](const QWidget* stop) { return stop->hasFocus(); });
    };
    const auto found = std::ranges::find_if(widgets_, hasFocus);
    return found != widgets_.end() ? found->first : nullptr;
}

void FormWidgets::orderTabStops() {
    QWidget* before = nullptr;
    for (const SheetTabs* tabs : layout_.sheets()) {
        before = tabs->tabBar();
    }
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
