#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

#include <QTabWidget>

namespace forms {
class Tabs;
} // namespace forms

namespace desktop {

// The pages of a form, one of them in front.
class TabsWidget final : public ControlWidget {
public:
    explicit TabsWidget(forms::Tabs& tabs);

    [[nodiscard]] QWidget& surface(std::size_t page) const { return *pages_->widget(static_cast<int>(page)); }
    void showLabels(const forms::FormLabels& labels) override;
    // The bar takes the keyboard.
    [[nodiscard]] std::vector<QWidget*> tabStops() const override;

protected:
    void update(forms::Aspect aspect) override;
    // As on the platform, the controls on the page in front stay usable.
    void enable(bool enabled) override;

private:
    forms::Tabs& tabs_;
    QTabWidget* pages_;
};

} // namespace desktop
