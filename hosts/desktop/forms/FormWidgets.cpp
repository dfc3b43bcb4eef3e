#include "hosts/desktop/forms/FormWidgets.h"

#include "forms/Button.h"
#include "forms/Form.h"
#include "forms/FormWalk.h"
#include "forms/Page.h"
#include "forms/Tabs.h"
#include "hosts/desktop/forms/AccessKeys.h"
#include "hosts/desktop/forms/ButtonWidget.h"
#include "hosts/desktop/forms/FormLayout.h"
#include "hosts/desktop/forms/ShownText.h"
#include "hosts/desktop/forms/TabsWidget.h"
#include "hosts/desktop/forms/WidgetMaker.h"

#include <QWidget>

#include <algorithm>

namespace desktop {
namespace {

constexpr std::size_t standardButtons = 2;

} // namespace

FormWidgets::FormWidgets(forms::Form& form, QWidget& surface) : form_(form) {
    WidgetMaker maker(surface);
    for (forms::Control* control : forms::controlsOf(form)) {
        auto widget = maker.make(*control);
        inOrder_.push_back(widget.get());
        widgets_.emplace(control, std::move(widget));
    }
    giveAccessKeys();
    FormLayout([this](const forms::Control& control) { return find(control); }).lay(form, surface);
    for (ControlWidget* widget : inOrder_) {
        widget->mirrorAll();
    }
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
    if (aspect == forms::Aspect::label) {
        giveAccessKeys();
    }
    widget->mirror(aspect);
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

// The standard buttons come first, so that they are the same in every dialog.
void FormWidgets::giveAccessKeys() {
    std::vector<std::function<void(const QString&)>> takers;
    AccessKeys keys;
    const auto add = [&](const wire::WideString& label, std::function<void(const QString&)> taker) {
        const bool isStandard = takers.size() < standardButtons;
        keys.add(exactText(label), isStandard ? AccessKeys::Claim::keeps : AccessKeys::Claim::givesWay);
        takers.push_back(std::move(taker));
    };
    auto controls = forms::controlsOf(form_);
    std::rotate(controls.begin(), controls.end() - standardButtons, controls.end());
    for (forms::Control* control : controls) {
        ControlWidget* const widget = find(*control);
        if (auto* const tabs = dynamic_cast<TabsWidget*>(widget)) {
            for (std::size_t page = 0; page < tabs->tabs().pages().size(); ++page) {
                add(tabs->tabs().pages()[page]->title(),
                    [tabs, page](const QString& title) { tabs->showTitle(page, title); });
            }
        } else if (widget->takesAccessKey()) {
            add(control->label(), [widget](const QString& label) { widget->showLabel(label); });
        } else {
            widget->showLabel(withoutAccessKey(shownLine(forms::readableLabel(control->label()))));
        }
    }
    const auto texts = keys.assign();
    for (std::size_t i = 0; i < texts.size(); ++i) {
        takers[i](texts[i]);
    }
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
