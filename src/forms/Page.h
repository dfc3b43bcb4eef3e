#pragma once

#include "forms/Container.h"
#include "wire/Text.h"

#include <string_view>

namespace forms {

class Tabs;

// One page of a tab control. A hidden one has no tab, and cannot be shown.
class Page final : public Container {
public:
    Page(Tabs& tabs, std::u16string_view title);

    [[nodiscard]] const wire::WideString& title() const { return title_; }
    void setTitle(wire::WideString title);
    [[nodiscard]] bool visible() const { return visible_; }
    // Hiding the page in front brings up the next one, or the previous one if there is no next.
    void setVisible(bool visible);
    [[nodiscard]] Tabs& tabs() const { return tabs_; }
    Form& form() override;
    [[nodiscard]] bool shown() const override;
    [[nodiscard]] bool usable() const override;

private:
    Tabs& tabs_;
    wire::WideString title_;
    bool visible_ = true;
};

} // namespace forms
